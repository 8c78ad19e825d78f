// Menus and toolbar of the planner's window, and which of their commands can be used when.

#include "planner/window/plannerwindow.h"

#include "planner/model/lines.h"
#include "planner/window/dayeditor.h"
#include "planner/window/monthgrid.h"
#include "planner/window/weekview.h"
#include "shell/controls/controls.h"
#include "shell/core/framelines.h"

#include <QMenu>
#include <QMenuBar>
#include <QStackedWidget>

using namespace Qt::Literals::StringLiterals;

void Zcalandar1::makeMenus()
{
    makeOptionsMenu();
    makeEditMenu();
    makeViewMenu();
    QMenu *utilities = addMenu(u"mU"_s, u"&Utilities"_s);
    addCommand(utilities, u"mUImport"_s, u"&Import To Do List Items"_s, &Zcalandar1::importToDoItems);
    utilities->addSeparator();
    m_backupAction = addCommand(utilities, u"mUB"_s, u"&Backup Files to Disk"_s, &Zcalandar1::openBackup);
    m_restoreAction = addCommand(utilities, u"mUR"_s, u"&Restore Files from Disk"_s, &Zcalandar1::openBackup);
    m_helpAction = addCommand(nullptr, u"mH"_s, u"&Help"_s, &Zcalandar1::showHelp);
    menuBar()->addAction(m_helpAction);
}

void Zcalandar1::makeOptionsMenu()
{
    QMenu *menu = addMenu(u"mO"_s, u"&Options"_s);
    m_panelColorAction = addCommand(menu, u"mOC"_s, u"Panel C&olor"_s, &Zcalandar1::choosePanelColor);
    addCommand(menu, u"mOCal"_s, u"&Calendar Options"_s, &Zcalandar1::showOptions);
    menu->addSeparator();
    m_saveAction = addCommand(menu, u"mOSave"_s, u"&Save Day"_s, &Zcalandar1::saveDay, QKeySequence::Save);
    m_clearAction = addCommand(menu, u"mOClr"_s, u"C&lear Day"_s, &Zcalandar1::clearDay);
    menu->addSeparator();
    makePrintMenu(menu);
    menu->addSeparator();
    QAction *exit = makeAction(u"mOEx"_s, u"E&xit"_s, this);
    connect(exit, &QAction::triggered, this, &QWidget::close);
    menu->addAction(exit);
}

void Zcalandar1::makePrintMenu(QMenu *menu)
{
    m_printAction =
        addCommand(nullptr, u"mOPrt"_s, u"&Print"_s, &Zcalandar1::printShown, QKeySequence::Print);
    menu->addAction(m_printAction);
    addCommand(menu, u"mOPDay"_s, u"Print &Day"_s, &Zcalandar1::printDay);
    addCommand(menu, u"mOPWeek"_s, u"Print &Week"_s, &Zcalandar1::printWeek);
    addCommand(menu, u"mOPMonth"_s, u"Print &Month"_s, &Zcalandar1::printMonth);
    addCommand(menu, u"mOPRange"_s, u"Print D&ates"_s, &Zcalandar1::printRange);
}

void Zcalandar1::makeEditMenu()
{
    QMenu *menu = addMenu(u"mE"_s, u"&Edit"_s);
    m_copyAction = addCommand(menu, u"mECopy"_s, u"&Copy Day"_s, &Zcalandar1::copyDay);
    m_pasteAction = addCommand(menu, u"mEPaste"_s, u"&Paste Day"_s, &Zcalandar1::pasteDay);
    menu->addSeparator();
    m_repeatAction = addCommand(menu, u"mERec"_s, u"&Recurrence Option"_s, &Zcalandar1::showRecurrence,
                                Qt::CTRL | Qt::Key_R);
    menu->addSeparator();
    addCommand(menu, u"mEFind"_s, u"&Search All Years"_s, &Zcalandar1::focusSearch, QKeySequence::Find);
}

void Zcalandar1::makeViewMenu()
{
    QMenu *menu = addMenu(u"mV"_s, u"&View"_s);
    m_dayAction =
        addCommand(menu, u"mVDay"_s, u"&Day View"_s, &Zcalandar1::showDayView, Qt::CTRL | Qt::Key_1);
    m_weekAction =
        addCommand(menu, u"mVWeek"_s, u"&Week View"_s, &Zcalandar1::showWeek, Qt::CTRL | Qt::Key_2);
    m_monthAction =
        addCommand(menu, u"mVMonth"_s, u"&Month View"_s, &Zcalandar1::showMonth, Qt::CTRL | Qt::Key_3);
    menu->addSeparator();
    m_backAction = addCommand(menu, u"mVBack"_s, u"&Previous"_s, &Zcalandar1::previousDay);
    m_backAction->setShortcuts({Qt::Key_PageUp, Qt::CTRL | Qt::Key_Left});
    m_onAction = addCommand(menu, u"mVNext"_s, u"&Next"_s, &Zcalandar1::nextDay);
    m_onAction->setShortcuts({Qt::Key_PageDown, Qt::CTRL | Qt::Key_Right});
    addCommand(menu, u"mVToday"_s, u"&Today"_s, &Zcalandar1::goToToday, Qt::CTRL | Qt::Key_T);
    addCommand(menu, u"mVGo"_s, u"&Go to Date"_s, &Zcalandar1::askForDate, Qt::CTRL | Qt::Key_G);
}

void Zcalandar1::makeToolbar()
{
    addTool(m_monthAction, "month-view"_L1, u"Month"_s);
    m_weekTool = addToolOf(m_weekAction, "week-view"_L1, u"Week"_s);
    addTool(m_repeatAction, "repeat"_L1, u"Repeat"_s);
    addToolSeparator();
    addTool(m_copyAction, "copy"_L1, u"Copy Day"_s);
    m_pasteTool = addToolOf(m_pasteAction, "edit"_L1, u"Paste Day"_s);
    addTool(m_printAction, "print"_L1, u"Print"_s);
    addToolSeparator();
    addTool(m_panelColorAction, "palette"_L1, u"Panel Color"_s);
    addTool(m_backupAction, "backup-command"_L1, u"Backup"_s);
    // A menu bar would show the icon in place of the word.
    addToolOf(m_helpAction, "help"_L1, u"Help"_s);
}

/// A tool that does what `action` does and can be shown without it.
QAction *Zcalandar1::addToolOf(QAction *action, QLatin1StringView icon, const QString &text)
{
    QAction *tool = makeAction(action->objectName() + u"_tool"_s, action->text(), this);
    connect(tool, &QAction::triggered, action, &QAction::trigger);
    connect(action, &QAction::changed, tool,
            [tool, action] { setUnavailable(tool, action->isEnabled() ? QString() : action->statusTip()); });
    addTool(tool, icon, text);
    return tool;
}

/// In a narrow window the bar keeps to one row, so that the fourteen rows of the day have their place; the
/// menus have what it leaves out.
void Zcalandar1::fitToolbar(bool isWide)
{
    m_weekTool->setVisible(isWide);
    m_pasteTool->setVisible(isWide);
    m_copyAction->setIconText(isWide ? u"Copy Day"_s : u"Copy"_s);
}

/// Which commands can be used now; the others say why they cannot.
void Zcalandar1::refreshCommands()
{
    const QWidget *view = m_views->currentWidget();
    const bool isDay = view == m_day && !isPreviewShown();
    const QString dayOnly = isDay ? QString() : PlannerLines::inDayViewOnly();
    for (QAction *action : {m_saveAction, m_clearAction, m_copyAction, m_repeatAction})
        setUnavailable(action, dayOnly);
    setUnavailable(m_pasteAction, isDay && !m_day->hasCopy() ? PlannerLines::copyFirst() : dayOnly);
    // In other views the page keys turn pages and scroll lists.
    const bool isSteppable = !isPreviewShown() && (isDay || view == m_week || view == m_month);
    for (QAction *action : {m_backAction, m_onAction})
        setUnavailable(action, isSteppable ? QString() : PlannerLines::inCalendarViewsOnly());
    const bool isPrintable = isDay || isPreviewShown() || view == m_week || view == m_month;
    setUnavailable(m_printAction, isPrintable ? QString() : PlannerLines::inCalendarViewsOnly());
    const bool hasBackup = program().functions.has(Function::Backup);
    for (QAction *action : {m_backupAction, m_restoreAction})
        setUnavailable(action, hasBackup ? QString() : FrameLines::backupNotThere());
}
