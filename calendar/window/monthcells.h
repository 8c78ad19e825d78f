// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/window/dropsheet.h"

class CellEditor;

/// The sheet that is worked on, as it will be printed. Its days are walked through with the arrow keys, typed
/// into where they stand, and their lines drawn from one to another.
class MonthCells final : public DropSheet
{
    Q_OBJECT
public:
    explicit MonthCells(QWidget *parent = nullptr);

    /// What keeps one from changing anything; empty where nothing does.
    void setWhyLocked(const QString &reason) { m_whyLocked = reason; }

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

    /// Types into the day that is shown, at this line of it, or a new one for -1. `lines` are what it has.
    void openEditor(const QStringList &lines, int line);
    CellEditor &editor() const { return *m_editor; }

signals:
    /// Another day is the one; it may be on another sheet.
    void dayWanted(QDate day);
    void monthStepped(int by);
    /// Another day, line or choice of days.
    void moved();
    /// The day is to be typed into: at a line of it, or at a new one (-1), which begins with `typed`.
    void writingWanted(int line, const QString &typed);
    void spanWanted();
    void spanOpened(int span);
    /// Alt and an arrow: the chosen line changes places with its neighbour.
    void orderWanted(int by);
    /// What the chosen line is, for the status bar.
    void said(const QString &line);

protected:
    void placeOver() override;
    void paintMarks(QPainter &painter) const override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    int cell() const { return plan().find(m_day, m_person); }

    bool walk(const QKeyEvent &event);
    void go(QDate day, bool isChoosing);
    bool walkLines(int key);
    void walkPersons(int by);
    void choose(int cell, bool isChoosing);
    void follow();
    void startDrag();

    DaysOfSheet::Words m_lineWords;
    CellEditor *m_editor;
    QString m_whyLocked;
    QDate m_day;
    QDate m_anchor; ///< where several days were begun to be chosen
    int m_person = 0;
    int m_line = -1;
    QPoint m_pressed;
    bool m_isPressed = false;
    int m_pressedLine = -1;
    int m_wheel = 0; ///< turned since the last month
};
