// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/celldelegate.h"

#include "budget/window/sheetgrid.h"
#include "budget/window/sheetlook.h"
#include "budget/window/sheetmodel.h"
#include "shell/controls/controls.h"

#include <QAction>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int signSize = SheetLook::signRoom - 1;

int insetOf(const QModelIndex &index)
{
    return index.column() == SheetColumn::item ? SheetLook::inset : SheetLook::amountInset;
}

void drawRim(QPainter &painter, const QRect &cell, const Theme &theme, bool hasFocus)
{
    painter.setPen(QPen(hasFocus ? theme.accent : theme.edge, hasFocus ? 2 : 1));
    const int half = hasFocus ? 1 : 0;
    painter.drawRect(cell.adjusted(half, half, -1, -1));
}

} // namespace

CellDelegate::CellDelegate(SheetGrid *grid)
    : QStyledItemDelegate(grid)
    , m_grid(grid)
{}

void CellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const
{
    const Theme &theme = Theme::of(m_grid);
    const bool isCurrent = index == m_grid->currentIndex();
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
        drawRim(*painter, option.rect, theme, m_grid->hasFocus());
    // The sign takes the inset, so that the largest amount has its room beside it.
    const int before = isOver ? SheetLook::signRoom : insetOf(index);
    const QRect place = option.rect.adjusted(before, 0, -insetOf(index), 0);
    if (isOver)
        painter->drawPixmap(option.rect.left() + 1, option.rect.center().y() - signSize / 2 + 1,
                            Icons::pixmap("overdue"_L1, theme.scheme, signSize, m_grid->devicePixelRatioF()));
    const QString text = index.data().toString();
    const bool isItem = index.column() == SheetColumn::item;
    painter->setFont(isItem ? option.font : SheetLook::fitting(option.font, text, place.width()));
    painter->setPen(isOver ? SheetLook::red(theme) : theme.text);
    painter->drawText(place, int(index.data(Qt::TextAlignmentRole).value<Qt::Alignment>()),
                      painter->fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
}

QWidget *CellDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                    const QModelIndex &index) const
{
    auto *box = named(new FieldBox(parent), u"Text1"_s);
    box->setFrame(false);
    box->setAlignment(index.data(Qt::TextAlignmentRole).value<Qt::Alignment>());
    connect(box, &FieldBox::refused, this, &CellDelegate::refused);
    m_editor = box;
    return box;
}

void CellDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                        const QModelIndex &) const
{
    editor->setGeometry(option.rect);
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
    if (m_editor)
        m_editor->end(false);
}

void CellDelegate::finish()
{
    if (!m_editor || m_editor->isHidden()) // hidden: the grid has taken what it held
        return;
    emit commitData(m_editor);
    emit closeEditor(m_editor);
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

/// Keys that lead out of the box: as in any worksheet, the arrows too where typing replaced the cell's text.
bool CellDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && watched == m_editor) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (m_grid->isWayOut(*key)) {
            finish();
            m_grid->walk(*key);
            return true;
        }
        if (QAction *command = commandOf(*key)) {
            finish();
            command->trigger();
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(watched, event);
}
