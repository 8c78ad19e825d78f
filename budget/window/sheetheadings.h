// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHeaderView>

/// The headings of the worksheet and the numbers of its rows; those of the current cell stand out.
class SheetHeadings final : public QHeaderView
{
    Q_OBJECT
public:
    SheetHeadings(Qt::Orientation orientation, QWidget *parent);

    QSize sizeHint() const override;

protected:
    void paintSection(QPainter *painter, const QRect &rect, int section) const override;
};
