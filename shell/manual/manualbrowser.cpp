// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/manual/manualbrowser.h"

#include "shell/look/theme.h"
#include "shell/manual/manual.h"

#include <QEvent>
#include <QScrollBar>
#include <QTextCursor>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int margin = 24;
/// Lines longer than this are hard to follow back.
constexpr int widestText = 720;

QString address(int context)
{
    return u"manual:/%1"_s.arg(context);
}

int contextOf(const QUrl &address)
{
    return address.path().mid(1).toInt();
}

} // namespace

ManualBrowser::ManualBrowser(const Manual &manual, QWidget *parent)
    : QTextBrowser(parent)
    , m_manual(manual)
{
    setOpenExternalLinks(false);
    const Theme &theme = Theme::of(this);
    setStyleSheet(
        u"QTextBrowser { background: transparent; border: 2px solid transparent; }"
        "QTextBrowser:focus { background: transparent; border-color: %1; }"_s.arg(theme.accent.name()));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    applyTheme();
}

void ManualBrowser::openPage(int context)
{
    const QUrl wanted(address(m_manual.page(context).context));
    if (source() != wanted)
        setSource(wanted);
}

int ManualBrowser::currentContext() const
{
    return contextOf(source());
}

void ManualBrowser::markWords(const QStringList &words)
{
    QList<ExtraSelection> marks;
    ExtraSelection mark;
    mark.format.setBackground(Theme::of(this).mark);
    mark.format.setForeground(Theme::of(this).text);
    for (const QString &word : words) {
        for (mark.cursor = document()->find(word); !mark.cursor.isNull();
             mark.cursor = document()->find(word, mark.cursor))
            marks.append(mark);
    }
    setExtraSelections(marks);
    const auto first = std::min_element(marks.begin(), marks.end(), [](const auto &one, const auto &other) {
        return one.cursor.position() < other.cursor.position();
    });
    if (first == marks.end())
        return;
    const int top = cursorRect(first->cursor).top();
    if (top > viewport()->height() - margin)
        verticalScrollBar()->setValue(verticalScrollBar()->value() + top - viewport()->height() / 3);
}

QVariant ManualBrowser::loadResource(int type, const QUrl &name)
{
    if (type != QTextDocument::HtmlResource)
        return {};
    // Headings come with sizes of their own that no style can take away.
    QString html = m_manual.page(contextOf(name)).html;
    html.replace("<h1>"_L1, "<p class=\"title\">"_L1).replace("</h1>"_L1, "</p>"_L1);
    return html.replace("<h2>"_L1, "<p class=\"heading\">"_L1).replace("</h2>"_L1, "</p>"_L1);
}

void ManualBrowser::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        applyTheme();
}

void ManualBrowser::resizeEvent(QResizeEvent *event)
{
    const int spare = width() - verticalScrollBar()->sizeHint().width() - 2 * margin - widestText;
    setViewportMargins(margin, 12, margin + std::max(0, spare), 12);
    QTextBrowser::resizeEvent(event);
}

void ManualBrowser::applyTheme()
{
    QPalette ink = palette();
    if (ink.color(QPalette::Text) != ink.color(QPalette::WindowText)) {
        ink.setColor(QPalette::Text, ink.color(QPalette::WindowText));
        setPalette(ink); // comes back here
        return;
    }
    const auto points = [](const QFont &font) { return QString::number(font.pointSizeF()); };
    document()->setDefaultFont(TypeScale::body());
    document()->setDocumentMargin(0);
    document()->setDefaultStyleSheet(
        u"p, li { line-height: 135%; margin-top: 0; margin-bottom: 6px; }"
        ".title { font-size: %1pt; font-weight: 600; line-height: 100%; margin-bottom: 10px; }"
        ".heading { font-size: %2pt; font-weight: 600; line-height: 100%; margin-top: 18px; }"
        "a { color: %3; }"_s.arg(points(TypeScale::windowTitle()), points(TypeScale::group()),
                                 ink.color(ThemeRole::strong).name()));
    if (!source().isEmpty())
        reload();
}
