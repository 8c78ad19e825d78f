// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/calendaroptions.h"
#include "planner/model/plannerfiles.h"
#include "planner/window/dayeditor.h"
#include "shell/frame/functionwindow.h"

class CalendarOptionsPanel;
class DaysView;
class PlannerChanges;
class PlannerPrint;
class PlannerSidePane;
class PlannerViews;
class RecurrencePanel;
class SearchPanel;
class ToDoImporter;

/// The daily planner: the appointments of one day to be typed and saved; the week and the month at a glance;
/// a search over all years; repeating an appointment; pages for all of it.
class Zcalandar1 final : public FunctionWindow
{
    Q_OBJECT
public:
    explicit Zcalandar1(Program &program, QWidget *parent = nullptr);

    bool isModified() const override { return m_day->isModified(); }

    /// Shows the place's date, and its row when it names one, after asking about unsaved changes.
    void showPlace(const Place &place);

protected:
    [[nodiscard]] bool save() override { return m_day->save(); }
    void drop() override { m_day->reload(); }
    Message leaveQuestion() const override;
    Message replaceQuestion() const override;

private:
    QWidget *makeWorkPanel();
    void makeCommands();
    void addViewCommands(QMenu *menu);
    void addEditCommands(QMenu *menu);
    void addOptionCommands(QMenu *menu);
    void connectDay();
    void connectViews();
    void connectWalks();

    // Why commands cannot be used now.
    QString whyNoDay() const;
    QString whyNoStep() const;

    /// Asks about unsaved changes before something takes the day's place; false: the user stays.
    bool mayReplaceDay();
    void goTo(QDate date);
    void showView(QWidget *view);
    void showDay();
    void takeOptions();
    void startSearch();
    void search(const QString &text);

    void showRecurrence();
    bool openToRepeat();
    void importToDoItems();
    /// While files are updated, only what stops it can be used.
    void setUpdating(bool isUpdating);
    /// Days were written behind the window.
    void refreshFromFiles();
    void refreshNotes();
    /// The same, after what was undone; a valid date is shown.
    void showChanged(QDate date);

    PlannerFiles m_files;
    CalendarOptions m_options;
    ToDoImporter *m_import;
    PlannerSidePane *m_side;
    DayEditor *m_day;      ///< the loaded day, as typed and as saved
    PlannerViews *m_views; ///< day, week and month, and the panels over them
    SearchPanel *m_hits;
    RecurrencePanel *m_recurrence;
    PlannerChanges *m_changes;
    CalendarOptionsPanel *m_optionsPanel;
    PlannerPrint *m_print;
    SideSplitter *m_splitter;
};
