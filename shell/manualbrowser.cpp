#include "shell/manualbrowser.h"

#include "shell/manual.h"
#include "shell/theme.h"

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
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    dress();
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
    return m_manual.page(contextOf(name)).html;
}

void ManualBrowser::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        dress();
}

void ManualBrowser::resizeEvent(QResizeEvent *event)
{
    const int spare = width() - verticalScrollBar()->sizeHint().width() - 2 * margin - widestText;
    setViewportMargins(margin, 12, margin + std::max(0, spare), 12);
    QTextBrowser::resizeEvent(event);
}

void ManualBrowser::dress()
{
    const Theme &theme = Theme::of(this);
    const auto points = [](const QFont &font) { return QString::number(font.pointSizeF()); };
    document()->setDefaultFont(TypeScale::body());
    document()->setDocumentMargin(0);
    document()->setDefaultStyleSheet(
        u"h1 { font-size: %1pt; font-weight: 600; margin-top: 6px; margin-bottom: 10px; }"
        "h2 { font-size: %2pt; font-weight: 600; margin-top: 20px; margin-bottom: 4px; }"
        "p, li { line-height: 135%; margin-top: 0; margin-bottom: 6px; }"
        "a { color: %3; }"_s.arg(points(TypeScale::windowTitle()), points(TypeScale::group()),
                                 theme.accent.name()));
    if (!source().isEmpty())
        reload();
}
