// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/celldelegate.h"

#include "shell/controls/cellgrid.h"
#include "shell/controls/controls.h"
#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/look/theme.h"

#include <QAction>
#include <QApplication>
#include <QCompleter>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int signSize = 16;
constexpr float overdueFill = 0.12F;
constexpr auto shownBefore = "shownBefore";

GridCell::Kind kindOf(const QModelIndex &index)
{
    return GridCell::Kind(index.data(GridCell::kindRole).toInt());
}

QColor inkOf(const QModelIndex &index, const Theme &theme)
{
    switch (index.data(GridCell::alarmRole).toInt()) {
    case GridCell::Overdue:
        return theme.negative;
    case GridCell::Due:
        return theme.due;
    default:
        return index.data(GridCell::quietRole).toBool() ? theme.quiet : theme.text;
    }
}

} // namespace

CellDelegate::CellDelegate(CellGrid *grid)
    : QStyledItemDelegate(grid)
    , m_grid(grid)
{}

CellDelegate::~CellDelegate() = default;

void CellDelegate::takeDates(const DateReading &reading, DatePicker *picker)
{
    m_reading = std::make_unique<DateReading>(reading);
    m_picker = picker;
    connect(picker, &DatePicker::picked, this, [this](const DateBox *box) {
        if (box == m_editor)
            finish();
    });
}

int CellDelegate::insetOf(const QModelIndex &) const
{
    return CellGrid::inset;
}

QString CellDelegate::cut(const QModelIndex &index, const QFontMetrics &metrics, int width) const
{
    return metrics.elidedText(index.data().toString(), Qt::ElideRight, width);
}

void CellDelegate::drawRim(QPainter &painter, const QRect &cell) const
{
    const Theme &theme = Theme::of(m_grid);
    const bool hasFocus = m_grid->hasFocus();
    painter.setPen(QPen(hasFocus ? theme.accent : theme.edge, hasFocus ? 2 : 1));
    const int half = hasFocus ? 1 : 0;
    painter.drawRect(cell.adjusted(half, half, -1, -1));
}

/// Invalid where the cell has none of its own.
QColor CellDelegate::ground(const QStyleOptionViewItem &option, const QModelIndex &index,
                            bool isCurrent) const
{
    const Theme &theme = Theme::of(m_grid);
    const QModelIndex current = m_grid->currentIndex();
    if (isCurrent)
        return theme.mark;
    if ((option.state & QStyle::State_Selected) || (current.isValid() && current.row() == index.row()))
        return m_grid->isEntry() ? theme.field : theme.soft;
    return (option.features & QStyleOptionViewItem::Alternate) ? theme.alternate : QColor();
}

void CellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    const Theme &theme = Theme::of(m_grid);
    // Of two grids that stand together, only the one that is used shows its current cell.
    const bool isCurrent = index == m_grid->currentIndex() && m_grid->isInUse();
    if (const QColor fill = ground(option, index, isCurrent); fill.isValid())
        painter->fillRect(option.rect, fill);
    if (index.data(GridCell::alarmRole).toInt() == GridCell::Overdue && !isCurrent) {
        QColor fill = theme.negative;
        fill.setAlphaF(overdueFill);
        painter->fillRect(option.rect, fill);
    }
    if (isCurrent)
        drawRim(*painter, option.rect);
    QRect place = option.rect.adjusted(insetOf(index), 0, -insetOf(index), 0);
    const QString sign = index.data(GridCell::signRole).toString();
    if (!sign.isEmpty()) {
        painter->drawPixmap(place.left(), place.center().y() - signSize / 2 + 1,
                            Icons::pixmap(QLatin1StringView(sign.toLatin1()), theme.scheme, signSize,
                                          m_grid->devicePixelRatioF()));
        place.setLeft(place.left() + signSize + 4);
    }
    painter->setFont(option.font);
    painter->setPen(inkOf(index, theme));
    painter->drawText(place, int(index.data(Qt::TextAlignmentRole).value<Qt::Alignment>()),
                      cut(index, painter->fontMetrics(), place.width()));
}

QLineEdit *CellDelegate::makeBox(QWidget *parent, const QModelIndex &index) const
{
    if (kindOf(index) == GridCell::Kind::Date && m_picker)
        return new DateBox(*m_reading, m_picker, parent);
    auto *box = new FieldBox(parent);
    connect(box, &FieldBox::refused, this, &CellDelegate::refused);
    if (kindOf(index) == GridCell::Kind::Number)
        box->selectOnFirstClick();
    const QStringList choices = index.data(GridCell::choicesRole).toStringList();
    if (!choices.isEmpty()) {
        auto *completer = new QCompleter(choices, box);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        completer->setFilterMode(Qt::MatchContains);
        box->setCompleter(completer);
    }
    return box;
}

QWidget *CellDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                    const QModelIndex &index) const
{
    QLineEdit *box = makeBox(parent, index);
    if (box->objectName().isEmpty())
        box->setObjectName(u"cellBox"_s);
    box->setFrame(false);
    box->setAlignment(index.data(Qt::TextAlignmentRole).value<Qt::Alignment>());
    box->setAccessibleName(
        index.model()->headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString());
    m_editor = box;
    m_cell = index;
    return box;
}

void CellDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                        const QModelIndex &) const
{
    editor->setGeometry(option.rect);
}

void CellDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *box = qobject_cast<QLineEdit *>(editor);
    if (box->property(shownBefore).isValid()) // the model has changed meanwhile: what is typed stays
        return;
    box->setText(index.data(Qt::EditRole).toString());
    box->setProperty(shownBefore, box->text());
    box->selectAll();
}

void CellDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const auto *box = qobject_cast<QLineEdit *>(editor);
    if (box->text() != box->property(shownBefore).toString())
        model->setData(index, box->text());
}

bool CellDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                             const QModelIndex &index)
{
    const QString text = index.data().toString();
    const bool isCut = view->fontMetrics().horizontalAdvance(text) > option.rect.width() - 2 * insetOf(index);
    const QString words = index.data(Qt::ToolTipRole).toString();
    QToolTip::showText(event->globalPos(), !words.isEmpty() ? words : isCut ? text : QString(), view);
    return true;
}

void CellDelegate::goToEnd() const
{
    if (m_editor && kindOf(m_grid->currentIndex()) != GridCell::Kind::Date)
        static_cast<QLineEdit *>(m_editor.data())->end(false);
    openCalendar();
}

void CellDelegate::openByMouse() const
{
    if (m_editor && kindOf(m_grid->currentIndex()) == GridCell::Kind::Words)
        static_cast<QLineEdit *>(m_editor.data())->end(false);
    openCalendar();
}

void CellDelegate::openCalendar() const
{
    if (auto *date = qobject_cast<DateBox *>(m_editor); date && m_picker)
        m_picker->open(date);
}

void CellDelegate::finish()
{
    if (!m_editor || m_editor->isHidden()) // hidden: the grid has taken what it held
        return;
    const bool hadFocus = m_editor->hasFocus();
    emit commitData(m_editor);
    if (isOpenIn(m_editor))
        emit closeEditor(m_editor);
    else if (hadFocus)
        m_grid->setFocus(); // the box went with its row
}

bool CellDelegate::isOpenIn(const QWidget *editor) const
{
    return editor && editor == m_editor.data() && m_cell.isValid();
}

/// Whether the calendar belongs to the open box and is being used.
bool CellDelegate::isCalendarUsed() const
{
    const QWidget *focus = QApplication::focusWidget();
    return m_picker && m_picker->box() && m_picker->box() == m_editor && focus &&
           m_picker->isAncestorOf(focus);
}

/// What the grid does at `key` with the whole cell; null where the key belongs to what is typed.
QAction *CellDelegate::commandOf(const QKeyEvent &key) const
{
    for (const auto typing :
         {QKeySequence::Cut, QKeySequence::Copy, QKeySequence::Paste, QKeySequence::Delete}) {
        if (key.matches(typing))
            return nullptr;
    }
    for (QAction *command : m_grid->actions()) {
        if (command->isEnabled() && command->shortcut() == QKeySequence(key.keyCombination()))
            return command;
    }
    return nullptr;
}

/// In a date, Down leads into the calendar, which the box outlives.
bool CellDelegate::isForCalendar(const QKeyEvent &key) const
{
    const bool isDate = m_picker && qobject_cast<DateBox *>(m_editor);
    return isDate && (key.key() == Qt::Key_Down || (key.key() == Qt::Key_Escape && m_picker->box()));
}

/// Keys that lead out of the box: as in any worksheet, the arrows too where typing replaced the cell's text.
bool CellDelegate::isLeftBy(const QKeyEvent &key)
{
    if (m_grid->isWayOut(key)) {
        finish();
        m_grid->walk(key);
        return true;
    }
    QAction *command = commandOf(key);
    if (!command)
        return false;
    finish();
    command->trigger();
    return true;
}

bool CellDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_editor)
        return QStyledItemDelegate::eventFilter(watched, event);
    if (event->type() == QEvent::FocusOut && isCalendarUsed())
        return false;
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (isForCalendar(*key))
            return false;
        if (isLeftBy(*key))
            return true;
    }
    return QStyledItemDelegate::eventFilter(watched, event);
}
