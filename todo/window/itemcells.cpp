// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/itemcells.h"

#include "shell/controls/cellgrid.h"
#include "shell/controls/controls.h"
#include "shell/look/theme.h"
#include "shell/writing/checkedline.h"
#include "shell/writing/writing.h"
#include "todo/model/todoitem.h"
#include "todo/window/itemsmodel.h"

#include <QPainter>
#include <QStyleOptionButton>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int stepInset = 24;
constexpr int longestWho = 80;
constexpr int longestRepeat = 60;
} // namespace

ItemCells::ItemCells(CellGrid *grid, Writing &writing)
    : CellDelegate(grid)
    , m_writing(writing)
{}

void ItemCells::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    const auto kind = ToDoRow::Kind(index.data(ItemsModel::rowKindRole).toInt());
    if (kind == ToDoRow::Group || kind == ToDoRow::Heading)
        cell.font = TypeScale::strong();
    cell.font.setStrikeOut(kind == ToDoRow::Item && index.column() == ItemsModel::Text &&
                           index.data(ItemsModel::doneRole).toBool());
    if (kind == ToDoRow::Group)
        painter->fillRect(option.rect, Theme::of(grid()).head);
    CellDelegate::paint(painter, cell, index);
    if (index.column() == ItemsModel::Tick && kind == ToDoRow::Item)
        paintTick(*painter, option, index);
}

void ItemCells::paintTick(QPainter &painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    const QStyle *style = grid()->style();
    const int side = style->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, grid());
    QStyleOptionButton box;
    box.rect = QRect(0, 0, side, side);
    box.rect.moveCenter(option.rect.center());
    box.palette = option.palette;
    box.state = QStyle::State_Enabled |
                (index.data(ItemsModel::doneRole).toBool() ? QStyle::State_On : QStyle::State_Off);
    style->drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, &painter, grid());
}

int ItemCells::insetOf(const QModelIndex &index) const
{
    const bool isStep = index.column() == ItemsModel::Text && index.data(ItemsModel::stepRole).toBool();
    return CellGrid::inset + (isStep ? stepInset : 0);
}

/// Of a repeat, the next date is told before its rule.
QString ItemCells::cut(const QModelIndex &index, const QFontMetrics &metrics, int width) const
{
    const QString text = index.data().toString();
    const qsizetype next = index.column() == ItemsModel::Repeat ? text.lastIndexOf(u", then "_s) : -1;
    if (next < 0 || metrics.horizontalAdvance(text) <= width)
        return CellDelegate::cut(index, metrics, width);
    const QString date = text.sliced(next);
    const int room = width - metrics.horizontalAdvance(date);
    return room >= metrics.horizontalAdvance(u"every\u2026"_s)
               ? metrics.elidedText(text.first(next), Qt::ElideRight, room) + date
               : metrics.elidedText(date.sliced(2), Qt::ElideRight, width);
}

void ItemCells::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    if (auto *checked = editor->findChild<CheckedLine *>({}, Qt::FindDirectChildrenOnly))
        checked->finish();
    CellDelegate::setModelData(editor, model, index);
}

QLineEdit *ItemCells::makeBox(QWidget *parent, const QModelIndex &index) const
{
    QLineEdit *box = CellDelegate::makeBox(parent, index);
    auto *field = qobject_cast<FieldBox *>(box);
    switch (index.column()) {
    case ItemsModel::Tick: // of a heading
    case ItemsModel::Text:
        field->setByteLimit(ToDoItem::longestText);
        m_writing.check(box);
        break;
    case ItemsModel::Who:
        field->setByteLimit(longestWho);
        break;
    case ItemsModel::Repeat:
        field->setByteLimit(longestRepeat);
        break;
    default:
        break;
    }
    return box;
}
