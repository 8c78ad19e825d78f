// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/budgetwindow.h"

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
#include "budget/window/worksheetview.h"
#include "budget/window/yearbox.h"
#include "budget/window/yearsdesk.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/core/helpcontexts.h"
#include "shell/core/place.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/undostack.h"
#include "shell/frame/workviews.h"

#include <QMenu>

#include <algorithm>

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
    , m_sheet(new WorksheetView(program, {*m_model, *m_spent, *m_year}))
{
    m_views->addHome(m_sheet);
    m_model->setReadOnly(program.folder.isReadOnly());
    m_spentDesk = new SpentDesk(program, {*m_model, grid(), *m_spent, *m_views, commands()}, this);
    m_sheet->setSwitch(m_spentDesk->makeSwitch(m_sheet));
    m_edits =
        new SheetCommands(program, {*m_model, grid(), commands(), [this] { return whyNoSheet(); }}, this);
    m_print = new BudgetPrint(program, this, {*m_model, grid(), *m_spent});
    m_totalsDesk = new TotalsDesk(program, {*m_model, *m_spent, *m_views, *m_print}, this);
    setWork(makePanel(u"sheetPanel"_s, m_views));
    makeCommands();
    setViews(m_views);
    connect(m_views, &WorkViews::changed, this, [this] {
        if (m_views->isHome())
            m_sheet->setFocus();
    });
    connectSheet();
    connectYear();
    finishFrame();
    m_year->load(BudgetFiles::yearOf(clock().today()));
    m_sheet->setFocus();
    commands().refresh();
}

/// The tools stand in the order in which their commands are made.
void Budget1::makeCommands()
{
    QMenu *options = addMenu(u"mO"_s, u"&Options"_s);
    QMenu *edit = addMenu(u"mE"_s, u"&Edit"_s);
    QMenu *view = addMenu(u"mV"_s, u"&View"_s);
    QMenu *utilities = addMenu(u"mU"_s, u"&Utilities"_s);
    m_spentDesk->addCommands(view);
    view->addSeparator();
    m_totals = commands().add(
        view, u"mVTotals"_s, u"View &Totals"_s, [this] { viewTotals(); },
        [this] {
            const QString why = whyNoSheet();
            return why.isEmpty() ? m_spent->whyNoTotals() : why;
        },
        CommonKeys::views[2]);
    auto *years = new YearsDesk(program(), {*m_model, grid(), *m_year, *m_views}, this);
    years->addCommand(commands(), view);
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
    m_edits->addCommands(menu, m_spentDesk->amounts());
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
    menu->addActions({standard(Standard::Backup), standard(Standard::Restore)});
    menu->addSeparator();
    m_print->addExportCommand(commands(), menu);
    m_spentDesk->addImport(menu);
    connect(menu, &QMenu::aboutToShow, this, [this] { commands().refresh(); });
    addStandardTool(Standard::Backup);
}

void Budget1::makeFoot()
{
    Commands &all = commands();
    ButtonRow &foot = m_sheet->foot();
    foot.addLeft(all.button(m_deleteRow, u"Command6"_s, u"&Delete Row"_s, &foot));
    foot.addLeft(all.button(m_copyYear, u"Command7"_s, u"Copy &Year"_s, &foot));
    foot.addRight(all.button(m_totals, u"Command8"_s, u"View &Totals"_s, &foot));
    foot.addRight(all.button(m_save, u"saveBudget"_s, u"&Save"_s, &foot, ButtonKind::Main));
    foot.addRight(all.button(standard(Standard::Exit), u"Command3"_s, u"E&xit"_s, &foot));
}

void Budget1::connectSheet()
{
    connect(m_model, &SheetModel::recomputed, this, &Budget1::warnOfLimit);
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
    connect(m_print, &BudgetPrint::said, &activity(), &ActivityBar::say);
    connect(m_spentDesk, &SpentDesk::said, &activity(), &ActivityBar::say);
    connect(m_spentDesk, &SpentDesk::progressed, this,
            [this](int done, int total) { activity().showProgress(done, total, true); });
    connect(&activity(), &ActivityBar::stopRequested, m_spentDesk, &SpentDesk::stop);
    connect(
        m_spentDesk, &SpentDesk::noticed, this, [this](const Message &message) { ask(message); },
        Qt::QueuedConnection);
    // Behind what was added.
    connect(
        m_spentDesk, &SpentDesk::partlyRead, this,
        [this](const QString &typed, const QString &amount) {
            activity().say(BudgetLines::partlyRead(typed, amount));
            undoStack().offer();
        },
        Qt::QueuedConnection);
    connect(m_model, &SheetModel::shownAgain, &grid(), &SheetGrid::choose);
    // The box that is typed into goes before anything is asked.
    connect(m_model, &SheetModel::noticed, this, &Budget1::notice, Qt::QueuedConnection);
    connect(
        m_model, &SheetModel::partlyRead, this,
        [this](const QString &typed, const QString &amount) {
            activity().say(BudgetLines::partlyRead(typed, amount));
        },
        Qt::QueuedConnection);
    connect(&grid(), &SheetGrid::said, &activity(), &ActivityBar::say);
    connect(&grid(), &SheetGrid::refused, this, [this] { activity().say(program().folder.whyReadOnly()); });
    connect(m_edits, &SheetCommands::said, &activity(), &ActivityBar::say);
    connect(m_edits, &SheetCommands::done, this, [this](const QString &line) {
        activity().say(line);
        undoStack().offer();
        // Typing goes on in the cells, not on the button that did it.
        m_sheet->setFocus();
    });
    connect(m_model, &SheetModel::layerChanged, &commands(), &Commands::refresh);
    connect(&m_sheet->totals(), &TotalsRows::incomeClicked, this, [this](int month) {
        if (const QString reason = program().folder.whyReadOnly(); !reason.isEmpty())
            activity().say(reason);
        else
            m_edits->enterIncome(month);
    });
}

void Budget1::connectYear()
{
    connect(&m_sheet->years(), &YearBox::yearChosen, this, &Budget1::chooseYear);
    connect(m_year, &BudgetYear::loaded, &undoStack(), &UndoStack::forgetTyped);
    connect(m_year, &BudgetYear::fileTouched, this, [this] { watchFiles(m_year->fileNames()); });
    connect(m_year, &BudgetYear::copied, this, [this](const UndoStep &step) {
        undoStack().push(step);
        activity().say(step.title);
        const int next = m_year->year() + 1;
        if (next <= BudgetFiles::lastYear)
            activity().offerWay(BudgetLines::openYear(next), [this, next] {
                chooseYear(next);
                m_sheet->setFocus();
            });
        undoStack().offer();
    });
    connect(m_year, &BudgetYear::said, &activity(), &ActivityBar::say);
}

SheetGrid &Budget1::grid() const
{
    return m_sheet->grid();
}

/// What the entry check has to say; a cell that it emptied is to be typed into again.
void Budget1::notice(const Message &message, const QModelIndex &cell)
{
    ask(message);
    if (cell.data().toString().isEmpty())
        grid().returnTo(cell);
}

QString Budget1::whyNoSheet() const
{
    return m_views->isHome() && !isPreviewShown() ? QString() : BudgetLines::inSheetOnly();
}

bool Budget1::isModified() const
{
    grid().finishEdit();
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
    grid().finishEdit();
    return m_year->save();
}

void Budget1::drop()
{
    m_year->reload();
}

Message Budget1::leaveQuestion() const
{
    return BudgetMessages::saveBeforeExiting(m_year->year());
}

Message Budget1::backupQuestion() const
{
    return BudgetMessages::saveBeforeBackup(m_year->year());
}

QString Budget1::whyNothingToBackUp() const
{
    return m_year->hasFile() ? QString() : BudgetLines::nothingToBackUp(m_year->year());
}

Message Budget1::replaceQuestion() const
{
    return BudgetMessages::saveBeforeUndo(m_year->year());
}

void Budget1::filesChanged()
{
    grid().finishEdit();
    // Its pages would show what the file had before.
    closePreview();
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
    m_sheet->years().setYear(m_year->year());
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
    m_sheet->setFocus();
}

void Budget1::viewTotals()
{
    grid().finishEdit();
    m_totalsDesk->open();
}

/// Once a recompute, however many months have outgrown the page; when no box is open any more.
void Budget1::warnOfLimit()
{
    const auto &months = m_model->figures().months;
    if (m_isWarning || m_model->isPreviewed() ||
        std::ranges::none_of(months, &BudgetFigures::Month::isOverLimit))
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
