// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/window/sheetlook.h"

#include <QHeaderView>

/// The headings of the worksheet and the numbers of its rows; those of the current cell stand out.
class SheetHeadings final : public QHeaderView
{
    Q_OBJECT
public:
    /// `amountInset`: of the columns behind the first.
    SheetHeadings(Qt::Orientation orientation, QWidget *parent, int amountInset = SheetLook::inset);

    void setRows(SheetLook::Rows rows);

    QSize sizeHint() const override;

protected:
    void paintSection(QPainter *painter, const QRect &rect, int section) const override;

private:
    int m_amountInset;
    SheetLook::Rows m_rows = SheetLook::Rows::Roomy;
};
