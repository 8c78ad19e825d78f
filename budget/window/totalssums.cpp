// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/totalssums.h"

#include "budget/model/lines.h"
#include "budget/window/sheetlook.h"
#include "shell/controls/controls.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr double corner = 8;
constexpr int shareFoot = 3; ///< brings it down to the line of the amount
} // namespace

TotalsSums::TotalsSums(QWidget *parent)
    : QWidget(parent)
    , m_row(new QHBoxLayout(this))
{
    setPalette(Theme::of(this).panelPalette()); // not the panel's ink: it has a ground of its own
    setLow(false);
    m_row->setSpacing(24);
    m_income = add(u"Total Income"_s, u"Label13"_s, u"Label18"_s);
    m_expenses = add(u"Total Expenses"_s, u"Label14"_s, u"Label16"_s);
    m_balance = add(u"Balance"_s, u"Label15"_s, u"Label17"_s);
}

void TotalsSums::setLow(bool isLow)
{
    m_row->setContentsMargins(16, isLow ? 4 : 8, 16, isLow ? 5 : 9);
}

/// The caption, under it the amount, and behind that "Percent" and the share.
TotalsSums::Labels TotalsSums::add(const QString &caption, const QString &amountName,
                                   const QString &shareName)
{
    const Labels labels{makeQuietLabel(caption, this), named(makeTitle({}, this), amountName),
                        named(new QLabel(this), shareName)};
    labels.share->setFont(TypeScale::strong());
    labels.share->setContentsMargins(0, 0, 0, shareFoot);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(1);
    grid->addWidget(labels.caption, 0, 0);
    grid->addWidget(makeQuietLabel(u"Percent"_s, this), 0, 1);
    grid->addWidget(labels.amount, 1, 0);
    grid->addWidget(labels.share, 1, 1, Qt::AlignBottom);
    grid->setColumnStretch(2, 1);
    m_row->addLayout(grid, 1);
    return labels;
}

/// Under the words that the sheet has for them in `layer`.
void TotalsSums::showSums(const BudgetTotals &totals, SheetLayer layer)
{
    m_expenses.caption->setText(BudgetLines::expensesHead(layer));
    m_balance.caption->setText(BudgetLines::balanceHead(layer));
    show(m_income, totals.income);
    show(m_expenses, totals.expenses);
    show(m_balance, totals.balance);
    fit();
}

void TotalsSums::show(const Labels &labels, const BudgetTotals::Sum &sum) const
{
    labels.amount->setText(sum.amount);
    labels.share->setText(sum.share);
    const QString caption = labels.caption->text();
    labels.amount->setAccessibleName(caption + u": "_s + sum.amount.trimmed());
    labels.share->setAccessibleName(caption + u", Percent: "_s + sum.share);
    QPalette colors = palette();
    if (sum.isNegative)
        colors.setColor(QPalette::WindowText, SheetLook::red(Theme::of(this)));
    labels.amount->setPalette(colors);
}

/// Amounts are squeezed rather than cut.
void TotalsSums::fit()
{
    for (const QFont &font : {TypeScale::windowTitle(), TypeScale::group(), TypeScale::strong()}) {
        for (const Labels *labels : {&m_income, &m_expenses, &m_balance})
            labels->amount->setFont(font);
        m_row->activate(); // measures its parts anew
        if (m_row->minimumSize().width() <= width())
            return;
    }
}

void TotalsSums::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fit();
}

void TotalsSums::paintEvent(QPaintEvent *)
{
    const Theme &theme = Theme::of(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(theme.line);
    painter.setBrush(theme.head);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
}
