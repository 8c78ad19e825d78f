// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/sumrow.h"

#include "budget/window/sheetlook.h"

#include <QHeaderView>
#include <QPainter>
#include <QPainterPath>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr qreal corner = 8;
}

SumRow::SumRow(const QTableView *table, QWidget *parent)
    : QWidget(parent)
    , m_table(table)
{
    connect(table->horizontalHeader(), &QHeaderView::sectionResized, this, qOverload<>(&QWidget::update));
}

void SumRow::setCells(const QStringList &cells, bool isRed)
{
    m_cells = cells;
    m_isRed = isRed;
    QStringList filled = cells;
    filled.removeAll(QString());
    setAccessibleName(filled.join(u", "_s));
    update();
}

QSize SumRow::sizeHint() const
{
    return {0, SheetLook::rowHeight()};
}

void SumRow::paintEvent(QPaintEvent *)
{
    const Theme &theme = Theme::of(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath outline;
    outline.addRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
    painter.fillPath(outline, theme.head);
    painter.setPen(theme.line);
    painter.drawPath(outline);
    painter.setFont(TypeScale::strong());
    const int begin = m_table->viewport()->mapTo(m_table, QPoint()).x();
    for (int column = 0; column < int(m_cells.size()); ++column) {
        const bool isRed = m_isRed && column == int(m_cells.size()) - 1;
        const QRect cell(begin + m_table->columnViewportPosition(column), 0, m_table->columnWidth(column),
                         height());
        const QRect place = cell.adjusted(SheetLook::inset, 0, -SheetLook::inset, 0);
        painter.setPen(isRed ? SheetLook::red(theme) : theme.text);
        painter.drawText(place, int(Qt::AlignVCenter | (column == 0 ? Qt::AlignLeft : Qt::AlignRight)),
                         painter.fontMetrics().elidedText(m_cells[column], Qt::ElideRight, place.width()));
    }
}
