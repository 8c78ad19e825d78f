// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/calendaroptions.h"
#include "planner/model/plannerfiles.h"

#include <QWidget>

class ComingUp;
class PanelColors;
class PlannerCalendar;
class SearchBox;
struct Program;

/// The pane beside the planner's work: the search over all years, the calendar, what is coming up.
class PlannerSidePane final : public QWidget
{
    Q_OBJECT
public:
    PlannerSidePane(const Program &program, PanelColors &colors, const PlannerFiles &files,
                    QWidget *parent = nullptr);

    void setDate(QDate date);
    void setOptions(const CalendarOptions &options);
    /// Looks again at which days have entries and what is coming up: something was written.
    void refreshMarks();
    /// A new day may have begun.
    void showToday();
    void focusSearch();

    /// How wide the pane would like to be in a window of this size. It takes the least width that suits the
    /// window, too.
    int fitWindow(QSize window);

signals:
    void searchRequested(const QString &text);
    void dateChosen(QDate date);
    /// The user wants to go on in the day that the calendar has.
    void dayEntered();
    void said(const QString &line);

private:
    QWidget *makePanels(const Program &program, PanelColors &colors, const PlannerFiles &files);

    int m_shownMonths = 1;
    SearchBox *m_search;
    PlannerCalendar *m_calendar = nullptr;
    ComingUp *m_comingUp = nullptr;
};
