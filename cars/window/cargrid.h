// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/carcolumns.h"
#include "shell/controls/cellgrid.h"

#include <vector>

class DatePicker;
struct Program;

/// A grid of a car's texts: its schedule, a history, the fuel tracker. Its columns share the width that there
/// is; where that is too little it is scrolled sideways, and the first column stays in sight.
class CarGrid final : public CellGrid
{
    Q_OBJECT
public:
    /// `picker` is null in a grid without dates.
    CarGrid(const Program &program, const QString &name, DatePicker *picker, QWidget *parent = nullptr);

    void setWidths(std::vector<CarColumns::Width> widths);
    /// Its columns stand under those of `heads`, a grid of the same columns, and are scrolled along with
    /// them.
    void putUnder(CarGrid *heads);
    /// The columns share the room anew: their texts are others.
    void fitColumns();

    QModelIndex indexAt(const QPoint &place) const override;
    QRect visualRect(const QModelIndex &index) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;

protected:
    void updateGeometries() override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    bool isScrolledSideways() const;
    int roomAcross() const;
    void paintFirst(QPainter &painter, QStyleOptionViewItem &option, int row) const;

    std::vector<CarColumns::Width> m_widths;
    CarGrid *m_heads = nullptr; ///< that this one stands under
    CarGrid *m_under = nullptr;
};
