// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/totalsrows.h"

#include "budget/model/amount.h"
#include "budget/model/lines.h"
#include "budget/window/sheetgrid.h"
#include "budget/window/sheetmodel.h"
#include "shell/controls/controls.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int frame = 3; ///< as the grid's
constexpr int line = 1;  ///< between the columns
constexpr qreal corner = 8;

/// A sum that has outgrown its column is squeezed rather than cut.
void squeeze(QLabel *label)
{
    const QFont font =
        SheetLook::fitting(label->font(), label->text(), label->width() - SheetLook::amountInset - line);
    if (font != label->font())
        label->setFont(font);
}

void setFigure(QLabel *label, const QString &text, const QString &what, std::size_t month)
{
    if (text == label->text())
        return;
    label->setText(text);
    squeeze(label);
    label->setAccessibleName(what + u", "_s + SheetColumn::headings()[SheetColumn::firstMonth + int(month)] +
                             u": "_s + text);
}

} // namespace

void FigureLabel::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        emit clicked();
}

TotalsRows::TotalsRows(const SheetModel &model, const SheetGrid &grid, QWidget *parent)
    : QWidget(parent)
    , m_model(model)
    , m_grid(grid)
    , m_heads(controlArray<QLabel, 3>(u"totalsHead"_s, this))
    , m_expenses(controlArray<QLabel, monthCount>(u"Label3"_s, this))
    , m_incomes(controlArray<FigureLabel, monthCount>(u"Label5"_s, this))
    , m_balances(controlArray<QLabel, monthCount>(u"Label7"_s, this))
{
    setObjectName("totalsRows"_L1);
    setPalette(Theme::of(this).panelPalette()); // not the panel's ink: these rows have a ground of their own
    for (std::size_t month = 0; month < monthCount; ++month) {
        for (QLabel *label :
             std::initializer_list<QLabel *>{m_expenses[month], m_incomes[month], m_balances[month]}) {
            label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            label->setIndent(SheetLook::amountInset); // a margin would go with the next style
        }
        m_balances[month]->setFont(TypeScale::strong());
        m_incomes[month]->setCursor(Qt::PointingHandCursor);
        m_incomes[month]->setToolTip(BudgetLines::howToEnterIncome());
        connect(m_incomes[month], &FigureLabel::clicked, this,
                [this, month] { emit incomeClicked(int(month)); });
    }
    for (QLabel *head : m_heads)
        head->setFont(TypeScale::strong());
    connect(&model, &SheetModel::recomputed, this, &TotalsRows::refresh);
    connect(&model, &SheetModel::layerChanged, this, &TotalsRows::refresh);
    connect(&grid, &SheetGrid::columnsMoved, this, &TotalsRows::place);
    refresh();
}

QSize TotalsRows::sizeHint() const
{
    return {0, 3 * SheetLook::rowHeight(m_rows) + 2 * frame};
}

void TotalsRows::setRows(SheetLook::Rows rows)
{
    m_rows = rows;
    updateGeometry();
    place();
}

/// In the layer of what was spent, that takes the place of the planned expenses.
void TotalsRows::refresh()
{
    const QString expensesHead = BudgetLines::expensesHead(m_model.layer());
    m_heads[0]->setText(expensesHead);
    m_heads[1]->setText(u"Total Income"_s);
    m_heads[2]->setText(BudgetLines::balanceHead(m_model.layer()));
    for (std::size_t month = 0; month < monthCount; ++month) {
        const SheetModel::MonthFigures figures = m_model.shownFigures(month);
        setFigure(m_expenses[month], figures.expenses, expensesHead, month);
        setFigure(m_incomes[month], figures.income, u"Total Income"_s, month);
        showBalance(month, figures.balance);
    }
}

/// The colour follows what is shown: ".00" is black.
void TotalsRows::showBalance(std::size_t month, const QString &text)
{
    QLabel *label = m_balances[month];
    if (text == label->text())
        return;
    const bool isNegative = text.startsWith(u'-');
    const Theme &theme = Theme::of(this);
    setFigure(label, text, m_heads[2]->text(), month);
    QPalette colors = palette();
    if (isNegative)
        colors.setColor(QPalette::WindowText, SheetLook::red(theme));
    label->setPalette(colors);
    update();
}

/// The figures stand under their columns; those of months that are not in view are hidden.
void TotalsRows::place()
{
    const int height = SheetLook::rowHeight(m_rows);
    const int begin = m_grid.viewport()->mapTo(&m_grid, QPoint()).x();
    for (int row = 0; row < 3; ++row)
        m_heads[std::size_t(row)]->setGeometry(begin + SheetLook::inset, frame + row * height,
                                               m_grid.columnWidth(0) - SheetLook::inset, height);
    for (int month = 0; month < int(monthCount); ++month) {
        const int column = SheetColumn::firstMonth + month;
        const bool isInView = !m_grid.isColumnHidden(column);
        const int x = begin + m_grid.columnViewportPosition(column);
        int y = frame;
        for (QLabel *label :
             std::initializer_list<QLabel *>{m_expenses[std::size_t(month)], m_incomes[std::size_t(month)],
                                             m_balances[std::size_t(month)]}) {
            label->setVisible(isInView);
            label->setGeometry(x, y, m_grid.columnWidth(column) - line, height);
            squeeze(label);
            y += height;
        }
    }
    update();
}

void TotalsRows::paintEvent(QPaintEvent *)
{
    const Theme &theme = Theme::of(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
    painter.fillPath(outline, theme.head);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setClipPath(outline);
    for (const QLabel *label : m_balances) {
        if (!label->isHidden() && label->text().startsWith(u'-'))
            painter.fillRect(label->geometry(), SheetLook::redFill(theme));
    }
    painter.setPen(theme.line);
    for (int row = 1; row < 3; ++row) {
        const int y = frame + row * SheetLook::rowHeight(m_rows);
        painter.drawLine(0, y, width(), y);
    }
    for (const QLabel *label : m_expenses) {
        if (!label->isHidden())
            painter.drawLine(label->x() - 1, 0, label->x() - 1, height());
    }
    painter.setClipping(false);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawPath(outline);
}

void TotalsRows::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    place();
}
