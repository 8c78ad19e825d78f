// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLayout>

/// Places the items of a toolbar in rows; a vertical bar is one column.
class ToolRows final : public QLayout
{
    Q_OBJECT
public:
    ToolRows(Qt::Orientation orientation, QWidget *parent);
    ~ToolRows() override;

    /// Tall buttons, with the word under the icon, have room of their own around them.
    void setTall(bool isTall);
    /// All buttons as wide as the widest, and wider up to `maximum` pixels while there is room.
    void setEqualWidths(int maximum);
    /// What has no room in the row is cut instead of going to the next one.
    void setOneRow(bool isOneRow);
    /// Puts `widget` before the item at `index`; behind the last one when there is no such item.
    void insert(qsizetype index, QWidget *widget);
    /// How many of `widgets`, from the first on, one row has room for: all of them, or so many that `last`
    /// has room behind them.
    qsizetype countInRow(const QList<QWidget *> &widgets, const QWidget *last) const;

    void invalidate() override;
    void addItem(QLayoutItem *item) override { m_items.append(item); }
    int count() const override { return int(m_items.size()); }
    QLayoutItem *itemAt(int index) const override { return m_items.value(index); }
    QLayoutItem *takeAt(int index) override;
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return m_orientation == Qt::Horizontal; }
    int heightForWidth(int width) const override { return place(QRect(0, 0, width, 0), Measure); }
    void setGeometry(const QRect &rect) override;
    QSize sizeHint() const override;
    /// One button: the bar may always become narrower.
    QSize minimumSize() const override;

private:
    enum Action { Measure, Move };

    QList<QLayoutItem *> shownItems() const;
    int gapWidth() const;
    int widthOf(const QLayoutItem *item, int room) const;
    int leastWidth(const QWidget *widget) const;
    int widestWord() const;
    int roomForEach(const QList<QLayoutItem *> &items, int width) const;
    int place(const QRect &rect, Action action) const;
    int placeColumn(const QRect &area, Action action) const;
    int placeRows(const QRect &area, Action action) const;
    int tallest() const;

    Qt::Orientation m_orientation;
    int m_maximumWidth = 0;
    bool m_isOneRow = false;
    mutable int m_widest = -1; ///< not measured
    QList<QLayoutItem *> m_items;
};
