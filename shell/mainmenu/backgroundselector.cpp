// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/backgroundselector.h"

#include "shell/controls/controls.h"
#include "shell/controls/gridwalk.h"
#include "shell/mainmenu/backgroundslot.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QRadioButton>
#include <QScrollArea>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int outerMargin = 16;
constexpr int padding = 24;
constexpr int wideColumns = 4;
/// Below this width of the board the slots stand in two columns.
constexpr int narrowBoard = 560;
constexpr double pictureRatio =
    double(BackgroundSlot::thumbnail.width()) / BackgroundSlot::thumbnail.height();

} // namespace

BackgroundSelector::BackgroundSelector(const BackgroundChoice &current, const PathOf &pathOf, QWidget *parent)
    : QWidget(parent)
    , m_choice(current)
    , m_panel(new PanelFrame(this))
    , m_area(named(new QScrollArea(m_panel), u"backgroundArea"_s))
    , m_board(new QWidget(m_area))
    , m_grid(new QGridLayout(m_board))
    , m_plain(named(new QRadioButton(u"&Default background (no picture)"_s, m_panel), u"Option1"_s))
{
    named(this, u"backgroundSelector"_s);
    setAccessibleName(u"Background Selector"_s);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->setWidget(m_board);
    m_area->viewport()->setAutoFillBackground(false);
    m_board->setAutoFillBackground(false);
    m_grid->setContentsMargins(0, 0, 0, 0);
    makeSlots(pathOf);
    m_area->viewport()->installEventFilter(this);

    auto *whole = new QVBoxLayout(this);
    whole->setContentsMargins(outerMargin, outerMargin, outerMargin, outerMargin);
    whole->addWidget(m_panel);
    auto *column = new QVBoxLayout(m_panel);
    column->setContentsMargins(padding, 18, padding, 16);
    column->setSpacing(6);
    column->addWidget(makeTitle(u"Background Selector"_s, m_panel));
    column->addWidget(makeQuietLabel(u"Choose a picture for the main menu. It is shown at once."_s, m_panel));
    column->addWidget(m_area, 1);
    column->addWidget(makeFoot());
    mark();
}

void BackgroundSelector::makeSlots(const PathOf &pathOf)
{
    for (int i = 0; i < BackgroundChoice::slotCount; ++i) {
        auto *slot = new BackgroundSlot(i, m_board);
        const BackgroundChoice picture = BackgroundChoice::ofSlot(i);
        slot->load(pathOf(picture));
        slot->installEventFilter(this);
        connect(slot, &BackgroundSlot::clicked, this, [this, picture] { choose(picture); });
        connect(slot, &BackgroundSlot::walked, this, [this, slot](int key) {
            if (BackgroundSlot *next = GridWalk::next<BackgroundSlot>(m_slots, slot, m_columns, key)) {
                next->setFocus(Qt::TabFocusReason);
                m_area->ensureWidgetVisible(next, 0, 8);
            }
        });
        m_slots.push_back(slot);
    }
}

QWidget *BackgroundSelector::makeFoot()
{
    auto *foot = new QWidget(m_panel);
    auto *row = new QHBoxLayout(foot);
    row->setContentsMargins(0, 4, 0, 0);
    // Not exclusive: with a picture chosen no button of the group is set.
    m_plain->setAutoExclusive(false);
    m_plain->setAccessibleName(u"Default background, no picture"_s);
    m_plain->installEventFilter(this);
    connect(m_plain, &QRadioButton::clicked, this, [this] { choose({}); });
    auto *ok = makeButton(u"Command1"_s, u"O&K"_s, foot, ButtonKind::Main);
    ok->setAccessibleName(u"OK"_s);
    ok->setAutoDefault(true);
    ok->setMinimumWidth(104);
    connect(ok, &QPushButton::clicked, this, &BackgroundSelector::accepted);
    row->addWidget(m_plain);
    row->addStretch(1);
    row->addWidget(ok);
    return foot;
}

void BackgroundSelector::focusChoice()
{
    if (const std::optional<int> slot = m_choice.slot())
        m_slots[std::size_t(*slot)]->setFocus(Qt::OtherFocusReason);
    else if (m_choice.isPlain())
        m_plain->setFocus(Qt::OtherFocusReason);
    else
        m_slots.front()->setFocus(Qt::OtherFocusReason);
}

void BackgroundSelector::choose(const BackgroundChoice &choice)
{
    m_choice = choice;
    mark();
    emit chosen(m_choice);
}

void BackgroundSelector::mark()
{
    const std::optional<int> current = m_choice.slot();
    for (std::size_t i = 0; i < m_slots.size(); ++i)
        m_slots[i]->setInUse(current == int(i));
    m_plain->setChecked(m_choice.isPlain());
}

/// Pictures as large as four rows of them can be, but never wider than they were read.
void BackgroundSelector::arrange()
{
    const QSize room = m_area->viewport()->size();
    const int columns = room.width() < narrowBoard ? 2 : wideColumns;
    const QSize frame = m_slots.front()->frame();
    const int rows = BackgroundChoice::slotCount / columns;
    const int ofHeight = room.height() / rows - frame.height();
    const int ofWidth = int((room.width() / columns - frame.width()) / pictureRatio);
    const int height = std::clamp(std::min(ofHeight, ofWidth), BackgroundSlot::smallestPicture,
                                  BackgroundSlot::thumbnail.height());
    const QSize size(int(height * pictureRatio), height);
    m_grid->setSpacing(0);
    for (std::size_t i = 0; i < m_slots.size(); ++i) {
        m_slots[i]->setPictureSize(size, room.width() / columns);
        if (m_columns != columns)
            m_grid->addWidget(m_slots[i], int(i) / columns, int(i) % columns,
                              Qt::AlignHCenter | Qt::AlignTop);
    }
    m_columns = columns;
}

bool BackgroundSelector::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize && watched == m_area->viewport())
        arrange();
    auto *button = qobject_cast<QAbstractButton *>(watched);
    if (!button || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    if (isEnter && !key->isAutoRepeat())
        enter(button);
    return isEnter;
}

/// Enter chooses, and on what is chosen already it is the OK.
void BackgroundSelector::enter(QAbstractButton *button)
{
    const std::optional<int> slot = m_choice.slot();
    if (m_choice.isPlain() ? button == m_plain : slot && button == m_slots[std::size_t(*slot)])
        emit accepted();
    else
        button->click();
}

/// No TaskPanel: it stands over the picture, with a margin all round, and its OK keeps what Esc takes back.
void BackgroundSelector::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape)
        emit cancelled();
    else
        QWidget::keyPressEvent(event);
}
