// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QWidget>

class ButtonRow;
class MonthCells;
class OpenCalendars;
class SheetMaker;
class StepTitle;
struct Program;

/// The month that is worked on: its title, its sheet as it will be printed, and the buttons.
class MonthPage final : public QWidget
{
    Q_OBJECT
public:
    MonthPage(const Program &program, OpenCalendars &calendars, QWidget *parent = nullptr);
    ~MonthPage() override;

    MonthCells &cells() const { return *m_cells; }
    ButtonRow &foot() const { return *m_foot; }
    SheetMaker &sheets() const { return *m_sheets; }

    /// The first of the month that is shown.
    QDate month() const { return m_month; }
    /// The nearest day that the calendar has.
    void showDay(QDate day);
    /// The same, with a line of it chosen; -1: none.
    void showLine(QDate day, int line);
    void step(int months);
    /// Another calendar is shown: begins with the month of today, or with its first.
    void startOver();
    /// The calendar is another than before.
    void follow();

signals:
    /// Another month is shown.
    void monthChanged();
    /// Another number of lines has no room in its day; the sentence is for the status bar.
    void leftOverChanged(const QString &line);
    /// Another day, line or choice of days.
    void moved();
    void said(const QString &line);

private:
    void showTitle();
    void showSheet();
    QDate nearest(QDate day) const;

    const Program &m_program;
    OpenCalendars &m_calendars;
    SheetMaker *m_sheets;
    StepTitle *m_title;
    MonthCells *m_cells;
    ButtonRow *m_foot;
    QDate m_month;
    int m_leftOver = 0;
};
