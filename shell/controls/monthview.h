// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCalendarWidget>
#include <QSet>

#include <functional>

class MonthHeading;
class QTableView;

/// A month calendar in the program's look: heading with steps, week numbers, today ringed, the chosen day
/// filled, marked days with a dot. Month and year in the heading can be picked. The real control behind every
/// date picker; it stands on a panel, whose colours it takes.
class MonthView : public QCalendarWidget
{
    Q_OBJECT
public:
    explicit MonthView(QWidget *parent = nullptr);

    void setToday(QDate today);
    void setMarkedDays(const QSet<QDate> &days);
    void setTodayMarked(bool marked);
    /// Of two months that show some of the same days, each marks its own: the chosen day and today are marked
    /// from `from` to `to` alone, without a bound where that is invalid.
    void setOwnDays(QDate from, QDate to);
    /// What a screen reader says of the chosen day: "March 14, has an entry".
    void setDayWords(std::function<QString(QDate)> words);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

signals:
    /// The heading was asked for a month before the first or after the last one that can be shown.
    void edgeReached();

protected:
    void paintCell(QPainter *painter, const QRect &rect, QDate date) const override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    /// Ring and filling of the chosen day and of today; gives what they leave to the number.
    QRectF paintMark(QPainter &painter, const QRect &cell, QDate date) const;
    void paintNumber(QPainter &painter, const QRectF &mark, QDate date) const;
    bool isMarkedToday(QDate date) const { return m_todayMarked && date == m_today && isOwn(date); }
    bool isChosen(QDate date) const { return date == selectedDate() && isOwn(date); }
    bool isOwn(QDate date) const
    {
        return (m_from.isNull() || date >= m_from) && (m_to.isNull() || date <= m_to);
    }
    void setUpHeading();
    void showMonth(int year, int month);
    void showPaletteColors();
    void fitDayNames();
    void tellDay();

    MonthHeading *m_heading = nullptr;
    QTableView *m_view = nullptr;
    QDate m_today;
    QDate m_from;
    QDate m_to;
    QSet<QDate> m_marked;
    std::function<QString(QDate)> m_dayWords;
    bool m_todayMarked = true;
};
