// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

/// Draws a line of today's list: the day where another one begins, time, sign, text, and from where it comes.
class TodayDelegate final : public QStyledItemDelegate
{
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Lines in a column of the list: the first of each tells its day again.
    void setColumnLength(int lines) { m_columnLength = lines; }
    /// The line whose day is under the mouse, or -1.
    void setDayUnderMouse(int row) { m_dayUnderMouse = row; }
    int dayUnderMouse() const { return m_dayUnderMouse; }

    bool tellsDay(const QModelIndex &index) const;
    /// The place of the day in a line that begins at `left`.
    static int dayWidth();

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    void paintGround(QPainter &painter, const QStyleOptionViewItem &option, const QRect &line) const;
    void paintDay(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index) const;
    void paintLine(QPainter &painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                   QRect place) const;

    int m_columnLength = 1;
    int m_dayUnderMouse = -1;
};
