// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/window/dropsheet.h"

/// A sheet of which a day is the one that is worked on, and in it a line, or several days together.
class ChosenSheet : public DropSheet
{
    Q_OBJECT
public:
    explicit ChosenSheet(QWidget *parent = nullptr);

    /// Shows another sheet, or the same one changed. The day and its line stay, as far as they are there.
    void show(std::shared_ptr<const CalendarSheet> sheet, DaysOfSheet::Words words,
              DaysOfSheet::Words lineWords);

    QDate day() const { return m_day; }
    int person() const { return m_person; }
    /// Tells nobody. The day may be on a sheet that is shown next.
    void setDay(QDate day);
    /// The line that is chosen in the day, as the calendar counts them; -1 for none.
    int line() const { return m_line; }
    void setLine(int line);
    /// Those that stand in the cell of the day.
    QList<int> linesOfDay() const;
    /// The days that are chosen together; one alone is `day()`.
    QDate firstChosen() const { return m_anchor.isValid() ? qMin(m_anchor, m_day) : m_day; }
    QDate lastChosen() const { return m_anchor.isValid() ? qMax(m_anchor, m_day) : m_day; }

signals:
    /// Another day, line or choice of days.
    void moved();
    /// What the chosen line is, for the status bar.
    void said(const QString &line);

protected:
    int cell() const { return plan().find(m_day, m_person); }
    const SheetPlan::Cell &cellAt(int place) const { return plan().cells[std::size_t(place)]; }
    /// Whether days are chosen together.
    bool areSeveral() const { return m_anchor.isValid(); }

    void choose(int cell, bool isChoosing);
    /// The line of a day, wherever it stands; it is told what it is.
    void chooseLine(QDate day, int line);
    void choosePerson(int person);
    /// One day alone is chosen.
    void leaveOthers() { m_anchor = {}; }
    /// No line is the chosen one any more; what was said of it goes.
    void leaveLine();
    QString lineWords(QDate day, int line) const { return m_lineWords(day, line); }

    /// Whether the keys go to the sheet.
    virtual bool isActive() const { return hasFocus(); }
    void paintMarks(QPainter &painter) const override;

private:
    void follow();
    void bringChosen();

    DaysOfSheet::Words m_lineWords;
    QDate m_day;
    QDate m_anchor; ///< where several days were begun to be chosen
    int m_person = 0;
    int m_line = -1;
};
