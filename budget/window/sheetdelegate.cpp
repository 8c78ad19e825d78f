// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/sheetdelegate.h"

#include "budget/window/sheetlook.h"
#include "budget/window/sheetmodel.h"
#include "shell/controls/cellgrid.h"
#include "shell/controls/controls.h"

#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int signSize = SheetLook::signRoom - 1;
} // namespace

int SheetDelegate::insetOf(const QModelIndex &index) const
{
    return index.column() == SheetColumn::item ? SheetLook::inset : SheetLook::amountInset;
}

void SheetDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    const Theme &theme = Theme::of(grid());
    const bool isCurrent = index == grid()->currentIndex();
    const bool isOver = index.data(SheetModel::overPlanRole).toBool();
    if (isCurrent)
        painter->fillRect(option.rect, theme.mark);
    else if (option.state & QStyle::State_Selected)
        painter->fillRect(option.rect, theme.soft);
    else if (index.row() % 2 != 0)
        painter->fillRect(option.rect, theme.alternate);
    if (isOver)
        painter->fillRect(option.rect, SheetLook::redFill(theme));
    if (isCurrent)
        drawRim(*painter, option.rect);
    // The sign takes the inset, so that the largest amount has its room beside it.
    const int before = isOver ? SheetLook::signRoom : insetOf(index);
    const QRect place = option.rect.adjusted(before, 0, -insetOf(index), 0);
    if (isOver)
        painter->drawPixmap(option.rect.left() + 1, option.rect.center().y() - signSize / 2 + 1,
                            Icons::pixmap("overdue"_L1, theme.scheme, signSize, grid()->devicePixelRatioF()));
    const QString text = index.data().toString();
    const bool isItem = index.column() == SheetColumn::item;
    painter->setFont(isItem ? option.font : SheetLook::fitting(option.font, text, place.width()));
    painter->setPen(isOver ? SheetLook::red(theme) : theme.text);
    painter->drawText(place, int(index.data(Qt::TextAlignmentRole).value<Qt::Alignment>()),
                      painter->fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
}

QLineEdit *SheetDelegate::makeBox(QWidget *parent, const QModelIndex &index) const
{
    return named(CellDelegate::makeBox(parent, index), u"Text1"_s);
}
