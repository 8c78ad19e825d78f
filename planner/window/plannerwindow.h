#pragma once

#include "planner/model/calendaroptions.h"
#include "planner/model/plannerfiles.h"
#include "planner/model/plannerpages.h"
#include "shell/frame/functionwindow.h"

#include <memory>

class CalendarOptionsPanel;
class DayEditor;
class MonthGrid;
class PlannerSidePane;
class QSplitter;
class QStackedWidget;
class RecurrencePanel;
class SearchPanel;
class SlicedWork;
class ToDoImportRun;
class WeekView;

/// The daily planner: the appointments of one day to be typed and saved; the week and the month at a glance;
/// a search over all years; repeating an appointment; pages for all of it.
class Zcalandar1 final : public FunctionWindow
{
    Q_OBJECT
public:
    explicit Zcalandar1(Program &program, QWidget *parent = nullptr);
    ~Zcalandar1() override;

    bool isModified() const override;

protected:
    Page page(const PageSetup &setup) const override;
    bool mayDiscard() override;
    void previewClosed() override { refreshCommands(); }
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    // The parts of the window.
    QWidget *makeWorkPanel();
    void makeMenus();
    void makeOptionsMenu();
    void makeEditMenu();
    void makeViewMenu();
    void makePrintMenu(QMenu *menu);
    void makeToolbar();
    QAction *addToolOf(QAction *action, QLatin1StringView icon, const QString &text);
    void fitToolbar(bool isWide);
    void connectParts();
    void connectViews();
    void connectWalks();
    void placeSplitter();
    void setOptions(const CalendarOptions &options);

    void refreshCommands();
    /// Asks about unsaved changes before something takes the day's place; false: the user stays.
    bool mayReplaceDay(const Message &question);

    // The commands.
    void goTo(QDate date);
    void stepDay(int days);
    void previousDay() { stepDay(-1); }
    void nextDay() { stepDay(1); }
    void goToToday();
    void askForDate();
    void saveDay();
    void clearDay();
    void copyDay();
    void pasteDay();
    void choosePanelColor();
    void openBackup();
    void showHelp();

    // The views.
    void showView(QWidget *view);
    void showDayView();
    void showWeek();
    void showMonth();
    void openWeek(QDate date);
    void openMonth(QDate date);
    void showOptions();
    void takeOptions();
    void focusSearch();
    void search(const QString &text);
    void openHit(QDate date, int row);

    // Long walks.
    void showRecurrence();
    void importToDoItems();
    void finishImport(bool wasStopped);
    void setWorking(bool isWorking);
    void filesChanged();

    // Printing.
    using PageOf = Page (Zcalandar1::*)(const PageSetup &) const;
    PlannerPages::Paper paper(const PageSetup &setup) const;
    QDate viewedDate() const;
    Page dayPage(const PageSetup &setup) const;
    Page weekPage(const PageSetup &setup) const;
    Page monthPage(const PageSetup &setup) const;
    void preview(PageOf pageOf, const QString &jobName);
    void printShown();
    void printDay();
    void printWeek();
    void printMonth();
    void printRange();

    PlannerFiles m_files;
    CalendarOptions m_options;
    std::unique_ptr<ToDoImportRun> m_import;
    SlicedWork *m_importWork;

    QSplitter *m_splitter = nullptr;
    PlannerSidePane *m_side = nullptr;
    QStackedWidget *m_views = nullptr;
    DayEditor *m_day = nullptr;
    WeekView *m_week = nullptr;
    MonthGrid *m_month = nullptr;
    SearchPanel *m_searchPanel = nullptr;
    RecurrencePanel *m_recurrence = nullptr;
    CalendarOptionsPanel *m_optionsPanel = nullptr;

    QAction *m_saveAction = nullptr;
    QAction *m_clearAction = nullptr;
    QAction *m_copyAction = nullptr;
    QAction *m_pasteAction = nullptr;
    QAction *m_repeatAction = nullptr;
    QAction *m_dayAction = nullptr;
    QAction *m_weekAction = nullptr;
    QAction *m_monthAction = nullptr;
    QAction *m_backAction = nullptr;
    QAction *m_onAction = nullptr;
    QAction *m_weekTool = nullptr;
    QAction *m_pasteTool = nullptr;
    QAction *m_printAction = nullptr;
    QAction *m_panelColorAction = nullptr;
    QAction *m_backupAction = nullptr;
    QAction *m_restoreAction = nullptr;
    QAction *m_helpAction = nullptr;
};
