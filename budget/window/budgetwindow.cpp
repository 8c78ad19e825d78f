// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/budgetwindow.h"

#include "budget/model/amount.h"
#include "budget/model/budgetnews.h"
#include "budget/model/lines.h"
#include "budget/model/messages.h"
#include "budget/window/budgetprint.h"
#include "budget/window/budgetyear.h"
#include "budget/window/sheetcommands.h"
#include "budget/window/sheetgrid.h"
#include "budget/window/sheetmodel.h"
#include "budget/window/spentdesk.h"
#include "budget/window/spentyear.h"
#include "budget/window/totalsdesk.h"
#include "budget/window/totalsrows.h"
#include "budget/window/worksheetpane.h"
#include "budget/window/yearsdesk.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/titleline.h"
#include "shell/core/framelines.h"
#include "shell/core/helpcontexts.h"
#include "shell/core/place.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/undostack.h"
#include "shell/frame/windowtoolbar.h"
#include "shell/frame/workviews.h"

#include <QComboBox>
#include <QMenu>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

WindowTraits traits()
{
    return {.name = u"Budget1"_s,
            .caption = u"Personal Budget"_s,
            .activity = u"Personal Budget"_s,
            .colors = {SettingsKeys::budgetColor, SettingsKeys::budgetProgramColor, {}},
            .helpContext = HelpContext::Budget};
}

} // namespace

Budget1::Budget1(Program &program, QWidget *parent)
    : FunctionWindow(program, traits(), parent)
    , m_model(new SheetModel(this))
    , m_spent(new SpentYear(program.folder, *m_model, this))
    , m_year(new BudgetYear(program, *m_model, *m_spent, this))
    , m_views(new WorkViews)
    , m_sheetView(named(new QWidget, u"sheetView"_s))
{
    makeSheetView();
    m_views->addHome(m_sheetView);
    m_spentDesk = new SpentDesk(program, {*m_model, m_pane->grid(), *m_spent, *m_views, commands()}, this);
    m_title->addAtRight(m_spentDesk->makeSwitch(m_title));
    m_title->addAtRight(makeYearBox());
    m_model->setReadOnly(program.folder.isReadOnly());
    m_edits = new SheetCommands(
        program, {*m_model, m_pane->grid(), commands(), [this] { return whyNoSheet(); }}, this);
    m_print = new BudgetPrint(program, this, {*m_model, m_pane->grid(), *m_year});
    m_totalsDesk = new TotalsDesk(program, {*m_model, *m_year, *m_views, *m_print}, this);
    setWork(makeWorkPanel());
    makeCommands();
    setViews(m_views);
    connectSheet();
    connectYear();
    finishFrame();
    m_year->load(BudgetFiles::yearOf(clock().today()));
    m_pane->grid().setFocus();
    commands().refresh();
}

QWidget *Budget1::makeWorkPanel()
{
    QWidget *panel = makePanel(u"sheetPanel"_s);
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(m_views);
    return panel;
}

void Budget1::makeSheetView()
{
    QWidget *view = m_sheetView;
    m_title = new TitleLine(u"budgetTitle"_s, {}, view);
    m_pane = new WorksheetPane(*m_model, view);
    m_foot = new ButtonRow(view);
    auto *rows = new QVBoxLayout(view);
    rows->setContentsMargins(20, 14, 20, 14);
    rows->setSpacing(12);
    rows->addWidget(m_title);
    rows->addWidget(m_pane, 1);
    rows->addWidget(m_foot);
}

QWidget *Budget1::makeYearBox()
{
    m_years = named(new QComboBox, u"Combo1"_s);
    for (int year = BudgetFiles::firstYear; year <= BudgetFiles::lastYear; ++year)
        m_years->addItem(QString::number(year), year);
    m_years->setMaxVisibleItems(12);
    m_years->setAccessibleName(u"Year of the budget"_s);
    return m_years;
}

/// The tools stand in the order in which their commands are made.
void Budget1::makeCommands()
{
    QMenu *options = addMenu(u"mO"_s, u"&Options"_s);
    QMenu *edit = addMenu(u"mE"_s, u"&Edit"_s);
    QMenu *view = addMenu(u"mV"_s, u"&View"_s);
    QMenu *utilities = addMenu(u"mU"_s, u"&Utilities"_s);
    m_totals = commands().add(
        view, u"mVTotals"_s, u"View &Totals"_s, [this] { viewTotals(); }, [this] { return whyNoSheet(); });
    auto *years = new YearsDesk(program(), {*m_model, m_pane->grid(), *m_year, *m_views}, this);
    years->addCommand(commands(), view);
    view->addSeparator();
    m_spentDesk->addCommands(view);
    addEditCommands(edit);
    m_print->addPrintCommands(commands(), options);
    options->addSeparator();
    addOptionCommands(options);
    addStandardTool(Standard::PanelColor);
    addUtilityCommands(utilities);
    addHelpEntry();
    addStandardTool(Standard::Help, u"mH_tool"_s);
    makeFoot();
}

void Budget1::addEditCommands(QMenu *menu)
{
    undoStack().addCommands(menu);
    menu->addSeparator();
    m_edits->addCommands(menu);
    menu->addSeparator();
    m_print->addCopyCommand(commands(), menu);
    m_copyYear = commands().writing(commands().add(
        menu, u"mECY"_s, u"Copy &Year"_s, [this] { copyYear(); }, [this] { return whyNoSheet(); }));
}

void Budget1::addOptionCommands(QMenu *menu)
{
    menu->addAction(standard(Standard::PanelColor));
    menu->addSeparator();
    m_deleteRow = m_edits->addDeleteRow(menu);
    m_save = commands().writing(commands().add(
        menu, u"mOSave"_s, u"&Save"_s, [this] { saveByCommand(); }, [this] { return whyNoSheet(); },
        CommonKeys::save));
    menu->addSeparator();
    menu->addAction(standard(Standard::Exit));
}

void Budget1::addUtilityCommands(QMenu *menu)
{
    QAction *backup = commands().add(
        menu, u"mUB"_s, u"&Backup Files to Disk"_s, [this] { backUp(); },
        [this] {
            if (!program().functions.has(Function::Backup))
                return FrameLines::backupNotThere();
            return m_year->hasFile() ? QString() : BudgetLines::nothingToBackUp(m_year->year());
        });
    menu->addAction(standard(Standard::Restore));
    menu->addSeparator();
    m_print->addExportCommand(commands(), menu);
    m_spentDesk->addImport(menu);
    connect(menu, &QMenu::aboutToShow, this, [this] { commands().refresh(); });
    commands().tool(backup, "backup-command"_L1, u"Backup"_s);
    toolbar().giveWay(backup);
}

void Budget1::makeFoot()
{
    Commands &all = commands();
    m_foot->addLeft(all.button(m_deleteRow, u"Command6"_s, u"&Delete Row"_s, m_foot));
    m_foot->addLeft(all.button(m_copyYear, u"Command7"_s, u"Copy &Year"_s, m_foot));
    m_foot->addRight(all.button(m_totals, u"Command8"_s, u"View &Totals"_s, m_foot));
    m_foot->addRight(all.button(m_save, u"saveBudget"_s, u"&Save"_s, m_foot, ButtonKind::Main));
    m_foot->addRight(all.button(standard(Standard::Exit), u"Command3"_s, u"E&xit"_s, m_foot));
}

void Budget1::connectSheet()
{
    connect(m_model, &SheetModel::recomputed, this, [this] {
        refreshTitle();
        refreshWords();
        warnOfLimit();
    });
    connect(m_model, &SheetModel::edited, this,
            [this](const UndoStep &step) { undoStack().push(m_spent->along(step)); });
    connect(m_spent, &SpentYear::edited, this, [this](const UndoStep &step) {
        undoStack().push(step);
        // Behind what the grid says of the cell that Enter leads to.
        QMetaObject::invokeMethod(
            this,
            [this, title = step.title] {
                activity().say(title);
                undoStack().offer();
            },
            Qt::QueuedConnection);
    });
    connect(m_spent, &SpentYear::changed, this, [this] {
        refreshTitle();
        refreshWords();
    });
    connect(m_spentDesk, &SpentDesk::said, &activity(), &ActivityBar::say);
    connect(m_spentDesk, &SpentDesk::progressed, this,
            [this](int done, int total) { activity().showProgress(done, total, true); });
    connect(&activity(), &ActivityBar::stopRequested, m_spentDesk, &SpentDesk::stop);
    connect(
        m_spentDesk, &SpentDesk::noticed, this, [this](const Message &message) { ask(message); },
        Qt::QueuedConnection);
    connect(m_model, &SheetModel::shownAgain, &m_pane->grid(), &SheetGrid::choose);
    // The box that is typed into goes before anything is asked.
    connect(
        m_model, &SheetModel::noticed, this, [this](const Message &message) { ask(message); },
        Qt::QueuedConnection);
    connect(&m_pane->grid(), &SheetGrid::said, &activity(), &ActivityBar::say);
    connect(m_edits, &SheetCommands::said, &activity(), &ActivityBar::say);
    connect(m_model, &SheetModel::layerChanged, &commands(), &Commands::refresh);
    connect(&m_pane->totals(), &TotalsRows::incomeClicked, this, [this](int month) {
        if (const QString reason = program().folder.whyReadOnly(); !reason.isEmpty())
            activity().say(reason);
        else
            m_edits->enterIncome(month);
    });
}

void Budget1::connectYear()
{
    connect(m_years, &QComboBox::activated, this,
            [this](int place) { chooseYear(m_years->itemData(place).toInt()); });
    connect(m_year, &BudgetYear::loaded, this, [this](int year) {
        m_years->setCurrentText(QString::number(year));
        undoStack().forgetTyped();
        refreshTitle();
        refreshWords();
    });
    connect(m_year, &BudgetYear::opened, this, &Budget1::goToBeginning);
    connect(m_year, &BudgetYear::fileTouched, this, [this] { watchFiles(m_year->fileNames()); });
    connect(m_year, &BudgetYear::copied, this, [this](const UndoStep &step) {
        undoStack().push(step);
        undoStack().offer();
    });
    connect(m_year, &BudgetYear::said, &activity(), &ActivityBar::say);
}

QString Budget1::whyNoSheet() const
{
    return m_views->isHome() && !isPreviewShown() ? QString() : BudgetLines::inSheetOnly();
}

bool Budget1::isModified() const
{
    m_pane->grid().finishEdit();
    return m_year->isModified();
}

void Budget1::showPlace(const Place &place)
{
    const int year = place.record > 0 ? place.record : place.date.year();
    if (year != m_year->year())
        chooseYear(year);
    if (year == m_year->year())
        m_spentDesk->show(place);
}

bool Budget1::save()
{
    m_pane->grid().finishEdit();
    const bool isSaved = m_year->save();
    refreshWords();
    return isSaved;
}

void Budget1::drop()
{
    m_year->reload();
}

Message Budget1::leaveQuestion() const
{
    return BudgetMessages::saveBeforeExiting(m_year->year());
}

Message Budget1::replaceQuestion() const
{
    return BudgetMessages::saveBeforeUndo(m_year->year());
}

void Budget1::filesChanged()
{
    m_pane->grid().finishEdit();
    m_year->takeChangedFile();
}

void Budget1::saveByCommand()
{
    if (save())
        activity().say(BudgetLines::saved(m_year->year()));
}

void Budget1::chooseYear(int year)
{
    // Nothing is replaced by the year that is there.
    const bool isThere = year == m_year->year() && isModified();
    if (!isThere && mayReplace(leaveQuestion())) {
        activity().say({});
        m_year->load(year);
    }
    m_years->setCurrentText(QString::number(m_year->year()));
    commands().refresh();
}

/// What is saved is copied; what was typed stays in any case.
void Budget1::copyYear()
{
    if (isModified()) {
        const Answer answer = ask(BudgetMessages::saveBeforeCopying(m_year->year()));
        if (answer != Answer::No && (answer != Answer::Yes || !save()))
            return;
    }
    m_year->copyToNext();
}

void Budget1::backUp()
{
    if (isModified()) {
        const Answer answer = ask(BudgetMessages::saveBeforeBackup(m_year->year()));
        if (answer != Answer::No && (answer != Answer::Yes || !save()))
            return;
    }
    program().functions.open(Function::Backup, program());
}

void Budget1::viewTotals()
{
    m_pane->grid().finishEdit();
    m_totalsDesk->open();
}

/// The month of today in this year's budget; of another year, the year.
void Budget1::refreshTitle()
{
    const QDate today = clock().today();
    const BudgetFigures &figures = m_model->figures();
    const bool isThisYear = BudgetFiles::yearOf(today) == m_year->year();
    const auto month = std::size_t(today.month() - 1);
    const double balance =
        isThisYear ? double(BudgetNews::left(m_model->sheet(), m_spent->sums(), month).value_or(0)) / 100
                   : figures.balance;
    const QString when = isThisYear ? QLocale::c().monthName(today.month()) + u' ' : QString();
    m_title->setTitle(BudgetLines::balance(when + QString::number(m_year->year()), balance));
}

void Budget1::refreshWords()
{
    const bool isEmpty = m_model->sheet() == BudgetSheet();
    m_foot->setWords(m_year->isModified() ? FrameLines::unsavedChanges()
                     : isEmpty            ? BudgetLines::howToBegin()
                                          : BudgetLines::howToEnterIncome());
}

/// The month of today; where nothing is entered yet, the first item.
void Budget1::goToBeginning()
{
    const QDate today = clock().today();
    const bool isThisYear = BudgetFiles::yearOf(today) == m_year->year();
    const bool isEmpty = m_model->sheet() == BudgetSheet();
    const int column = isEmpty ? SheetColumn::item : isThisYear ? today.month() : SheetColumn::firstMonth;
    m_pane->grid().setCurrentIndex(m_model->index(0, column));
}

/// Once a recompute, however many months have outgrown the page; when no box is open any more.
void Budget1::warnOfLimit()
{
    const auto &months = m_model->figures().months;
    if (m_isWarning || std::ranges::none_of(months, &BudgetFigures::Month::isOverLimit))
        return;
    m_isWarning = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            ask(BudgetMessages::billsLimit());
            m_isWarning = false;
        },
        Qt::QueuedConnection);
}
