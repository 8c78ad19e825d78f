// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/carcelldelegate.h"

#include "cars/window/carcell.h"
#include "cars/window/cargrid.h"
#include "shell/controls/controls.h"
#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QAbstractItemView>
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

CarCell::Kind kindOf(const QModelIndex &index)
{
    return CarCell::Kind(index.data(CarCell::kindRole).toInt());
}

void drawRim(QPainter &painter, const QRect &cell, const Theme &theme, bool hasFocus)
{
    painter.setPen(QPen(hasFocus ? theme.accent : theme.edge, hasFocus ? 2 : 1));
    const int half = hasFocus ? 1 : 0;
    painter.drawRect(cell.adjusted(half, half, -1, -1));
}

} // namespace

CarCellDelegate::CarCellDelegate(const Program &program, CarGrid *grid, DatePicker *picker)
    : QStyledItemDelegate(grid)
    , m_program(program)
    , m_grid(grid)
    , m_picker(picker)
{
    if (!picker)
        return;
    connect(picker, &DatePicker::picked, this, [this](const DateBox *box) {
        if (box == m_editor)
            finish();
    });
}

void CarCellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                            const QModelIndex &index) const
{
    const Theme &theme = Theme::of(m_grid);
    const QModelIndex current = m_grid->currentIndex();
    // Of two grids that stand together, only the one that is used shows its current cell.
    const bool isCurrent = index == current && m_grid->isInUse();
    if (isCurrent)
        painter->fillRect(option.rect, theme.mark);
    else if ((option.state & QStyle::State_Selected) || (current.isValid() && current.row() == index.row()))
        painter->fillRect(option.rect, m_grid->isEntry() ? theme.field : theme.soft);
    else if (option.features & QStyleOptionViewItem::Alternate)
        painter->fillRect(option.rect, theme.alternate);
    const int alarm = index.data(CarCell::alarmRole).toInt();
    if (alarm == CarCell::Overdue && !isCurrent) {
        QColor fill = theme.negative;
        fill.setAlphaF(overdueFill);
        painter->fillRect(option.rect, fill);
    }
    if (isCurrent)
        drawRim(*painter, option.rect, theme, m_grid->hasFocus());
    QRect place = option.rect.adjusted(CarGrid::inset, 0, -CarGrid::inset, 0);
    const QString sign = index.data(CarCell::signRole).toString();
    if (!sign.isEmpty()) {
        painter->drawPixmap(place.left(), place.center().y() - signSize / 2 + 1,
                            Icons::pixmap(QLatin1StringView(sign.toLatin1()), theme.scheme, signSize,
                                          m_grid->devicePixelRatioF()));
        place.setLeft(place.left() + signSize + 4);
    }
    const QString text = index.data().toString();
    painter->setFont(option.font);
    painter->setPen(alarm == CarCell::Overdue                 ? theme.negative
                    : alarm == CarCell::Due                   ? theme.due
                    : index.data(CarCell::quietRole).toBool() ? theme.quiet
                                                              : theme.text);
    painter->drawText(place, int(index.data(Qt::TextAlignmentRole).value<Qt::Alignment>()),
                      painter->fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
}

QLineEdit *CarCellDelegate::makeBox(QWidget *parent, const QModelIndex &index) const
{
    if (kindOf(index) == CarCell::Kind::Date && m_picker)
        return new DateBox({m_program.state.dateStyle, m_program.clock}, m_picker, parent);
    auto *box = new FieldBox(parent);
    connect(box, &FieldBox::refused, this, &CarCellDelegate::refused);
    const QStringList choices = index.data(CarCell::choicesRole).toStringList();
    if (!choices.isEmpty()) {
        auto *completer = new QCompleter(choices, box);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        completer->setFilterMode(Qt::MatchContains);
        box->setCompleter(completer);
    }
    return box;
}

QWidget *CarCellDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                       const QModelIndex &index) const
{
    QLineEdit *box = named(makeBox(parent, index), u"cellBox"_s);
    box->setFrame(false);
    box->setAlignment(index.data(Qt::TextAlignmentRole).value<Qt::Alignment>());
    box->setAccessibleName(
        index.model()->headerData(index.column(), Qt::Horizontal, Qt::DisplayRole).toString());
    m_editor = box;
    return box;
}

void CarCellDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                           const QModelIndex &) const
{
    editor->setGeometry(option.rect);
}

void CarCellDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    auto *box = qobject_cast<QLineEdit *>(editor);
    if (box->property(shownBefore).isValid()) // the model has changed meanwhile: what is typed stays
        return;
    box->setText(index.data(Qt::EditRole).toString());
    box->setProperty(shownBefore, box->text());
    box->selectAll();
}

void CarCellDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const auto *box = qobject_cast<QLineEdit *>(editor);
    if (box->text() != box->property(shownBefore).toString())
        model->setData(index, box->text());
}

bool CarCellDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const QString text = index.data().toString();
    const bool isCut = view->fontMetrics().horizontalAdvance(text) > option.rect.width() - 2 * CarGrid::inset;
    const QString words = index.data(Qt::ToolTipRole).toString();
    QToolTip::showText(event->globalPos(), !words.isEmpty() ? words : isCut ? text : QString(), view);
    return true;
}

void CarCellDelegate::goToEnd() const
{
    if (!m_editor)
        return;
    m_editor->end(false);
    if (auto *date = qobject_cast<DateBox *>(m_editor); date && m_picker)
        m_picker->open(date);
}

void CarCellDelegate::finish()
{
    if (!m_editor || m_editor->isHidden()) // hidden: the grid has taken what it held
        return;
    emit commitData(m_editor);
    emit closeEditor(m_editor);
}

/// Whether the calendar belongs to the open box and is being used.
bool CarCellDelegate::isCalendarUsed() const
{
    const QWidget *focus = QApplication::focusWidget();
    return m_picker && m_picker->box() && m_picker->box() == m_editor && focus &&
           m_picker->isAncestorOf(focus);
}

/// Keys that lead out of the box. In a date, Down leads into the calendar, which the box outlives.
bool CarCellDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_editor)
        return QStyledItemDelegate::eventFilter(watched, event);
    if (event->type() == QEvent::FocusOut && isCalendarUsed())
        return false;
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const bool isDate = m_picker && qobject_cast<DateBox *>(m_editor);
        const bool isForCalendar =
            isDate && (key->key() == Qt::Key_Down || (key->key() == Qt::Key_Escape && m_picker->box()));
        if (isForCalendar)
            return false;
        if (m_grid->isWayOut(*key)) {
            finish();
            m_grid->walk(*key);
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(watched, event);
}
