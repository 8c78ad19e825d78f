// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/firstlook.h"

#include "shell/controls/controls.h"
#include "shell/controls/gridwalk.h"
#include "shell/controls/walkbutton.h"
#include "shell/core/settingskeys.h"
#include "shell/look/theme.h"
#include "shell/mainmenu/backgroundchoice.h"
#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QPainter>
#include <QSettings>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto sentAwayKey = "MainMenu/firstLookSentAway"_L1;

constexpr int notNowGap = 18;

QFont lineFont()
{
    QFont font = TypeScale::group();
    font.setWeight(QFont::Normal);
    return font;
}

} // namespace

/// Underlined words in the ink of the line.
class FirstLook::Link : public WalkButton
{
public:
    Link(const QString &name, const QString &text, const QFont &font, QWidget *parent)
        : WalkButton(parent)
    {
        setObjectName(name);
        setText(text);
        setAccessibleName(text);
        setFont(font);
        setFocusPolicy(Qt::StrongFocus);
        setCursor(Qt::PointingHandCursor);
        setAttribute(Qt::WA_Hover);
    }

    QSize sizeHint() const override
    {
        return fontMetrics().size(Qt::TextSingleLine, text()) + QSize(2 * indent, 6);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor ink = palette().color(QPalette::WindowText);
        QFont words = font();
        words.setUnderline(true);
        if (underMouse()) {
            QColor fill = ink;
            fill.setAlphaF(0.1F);
            painter.setPen(Qt::NoPen);
            painter.setBrush(fill);
            painter.drawRoundedRect(rect(), 6, 6);
        }
        painter.setFont(words);
        painter.setPen(ink);
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
        if (hasFocus()) {
            painter.setBrush(Qt::NoBrush);
            painter.setPen(QPen(ink, 2));
            painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
        }
    }
};

FirstLook::FirstLook(Program &program, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
{
    named(this, u"firstLook"_s);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(2);
    const std::array names{u"firstLookName"_s, u"firstLookPicture"_s, u"firstLookAddress"_s,
                           u"firstLookRestore"_s};
    const std::array texts{u"Name your family"_s, u"Choose a picture"_s, u"Type the first address"_s,
                           u"Restore from a backup"_s};
    for (std::size_t step = 0; step < StepCount; ++step) {
        m_dashes[step] = new QLabel(u"-"_s, this);
        m_dashes[step]->setFont(lineFont());
        m_links[step] = new Link(names[step], texts[step], lineFont(), this);
        row->addWidget(m_dashes[step]);
        row->addWidget(m_links[step]);
        connect(m_links[step], &Link::clicked, this, [this, step] { m_pressed = Step(step); });
    }
    m_notNow = new Link(u"firstLookNotNow"_s, u"Not now"_s, TypeScale::label(), this);
    m_notNow->setToolTip(u"Does not show this line again"_s);
    row->addSpacing(notNowGap);
    row->addWidget(m_notNow);
    row->addStretch(1);
    connect(m_links[Name], &Link::clicked, this, &FirstLook::nameWanted);
    connect(m_links[Picture], &Link::clicked, this, &FirstLook::pictureWanted);
    connect(m_links[Address], &Link::clicked, this, &FirstLook::addressWanted);
    connect(m_links[Restore], &Link::clicked, this, &FirstLook::restoreWanted);
    connect(m_notNow, &Link::clicked, this, &FirstLook::sendAway);
    for (Link *link : {m_links[Name], m_links[Picture], m_links[Address], m_links[Restore], m_notNow})
        connect(link, &Link::walked, this, [this, link](int key) { walk(link, key); });
    hide();
}

/// Where they would be cut, the letters are smaller.
bool FirstLook::event(QEvent *event)
{
    const bool isDone = QWidget::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        setLineFont(widthWith(lineFont()) > width() ? TypeScale::label() : lineFont());
    return isDone;
}

int FirstLook::widthWith(const QFont &font) const
{
    const QFontMetrics metrics(font);
    const int around = 2 * indent + 2 * layout()->spacing() + metrics.horizontalAdvance(u'-');
    int width = notNowGap + m_notNow->sizeHint().width();
    for (const Link *link : m_links)
        width += link->isHidden() ? 0 : metrics.horizontalAdvance(link->text()) + around;
    return width;
}

void FirstLook::setLineFont(const QFont &font)
{
    for (QLabel *dash : m_dashes)
        dash->setFont(font);
    for (Link *link : m_links)
        link->setFont(font);
}

std::vector<FirstLook::Link *> FirstLook::shownLinks() const
{
    std::vector<Link *> links(m_links.begin(), m_links.end());
    links.push_back(m_notNow);
    std::erase_if(links, [](const Link *link) { return link->isHidden(); });
    return links;
}

void FirstLook::takeFocus()
{
    shownLinks().front()->setFocus(Qt::TabFocusReason);
}

void FirstLook::walk(const Link *link, int key)
{
    const std::vector<Link *> links = shownLinks();
    if (key == Qt::Key_Down)
        emit leftDownward();
    else if (Link *next = GridWalk::next<Link>(links, link, int(links.size()), key))
        next->setFocus(Qt::TabFocusReason);
}

void FirstLook::begin()
{
    m_isRunning = isNew();
    refresh();
}

/// Nothing keeps it out, and no function's file has a byte. Looking at a function makes its files, empty.
bool FirstLook::isNew() const
{
    const FunctionCatalogue &functions = m_program.functions;
    if (m_program.folder.isReadOnly() || m_program.store.value(sentAwayKey).toBool())
        return false;
    return std::ranges::none_of(FunctionFaces::cards(), [&](const FunctionFace &face) {
        const FunctionEntry *entry = functions.entry(face.function);
        if (entry && face.isGuarded(m_program.state.protectedAreas))
            return true;
        const QStringList files = entry && entry->files ? entry->files(m_program) : QStringList();
        return std::ranges::any_of(files, [this](const QString &name) {
            return QFileInfo(m_program.folder.existingFile({}, name)).size() > 0;
        });
    });
}

bool FirstLook::isDone(Step step) const
{
    switch (step) {
    case Name:
        return !m_program.state.familyName.isEmpty();
    case Picture:
        return !BackgroundChoice::ofRecord(m_program.settings.tagged(SettingsKeys::background)).isPlain();
    case Restore:
        return isBegun() || !m_program.functions.has(Function::Backup);
    default:
        break;
    }
    return isBegun();
}

/// Whether there is an address, or nobody may know.
bool FirstLook::isBegun() const
{
    const FunctionEntry *book = m_program.functions.entry(Function::AddressBook);
    return !book || !book->names ||
           FunctionFaces::of(Function::AddressBook).isGuarded(m_program.state.protectedAreas) ||
           !book->names(m_program).isEmpty();
}

void FirstLook::refresh()
{
    if (!m_isRunning)
        return;
    bool isAnyShown = false;
    bool isPressedDone = false;
    for (std::size_t step = 0; step < StepCount; ++step) {
        const bool isOpen = !isDone(Step(step));
        isPressedDone = isPressedDone || (!isOpen && m_pressed == Step(step));
        m_links[step]->setVisible(isOpen);
        m_dashes[step]->setVisible(isOpen && isAnyShown);
        isAnyShown = isAnyShown || isOpen;
    }
    if (!isAnyShown) {
        end();
    } else if (isHidden()) {
        show();
        emit changed();
    }
    if (!isPressedDone)
        return;
    m_pressed = StepCount;
    if (isAnyShown)
        takeFocus();
}

void FirstLook::sendAway()
{
    m_program.store.setValue(sentAwayKey, true);
    end();
}

void FirstLook::end()
{
    m_isRunning = false;
    hide();
    emit changed();
}

void FirstLook::setInk(const QColor &ink)
{
    QPalette colors = palette();
    colors.setColor(QPalette::WindowText, ink);
    setPalette(colors);
}
