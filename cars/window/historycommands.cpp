// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/historycommands.h"

#include "cars/model/fuellines.h"
#include "cars/model/historylines.h"
#include "cars/model/lines.h"
#include "cars/model/messages.h"
#include "cars/window/costspanel.h"
#include "cars/window/csvdesk.h"
#include "cars/window/fuelview.h"
#include "cars/window/logmodel.h"
#include "cars/window/logview.h"
#include "cars/window/opencar.h"
#include "shell/controls/buttonrow.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"

#include <QMenu>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

HistoryCommands::HistoryCommands(const CarDesk &desk, std::vector<LogView *> views, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_views(std::move(views))
    , m_files(new CsvDesk(
          desk, [this] { return shown(); }, this))
{
    // What is still typed in a view is not lost when another takes its place.
    connect(&m_desk.views, &WorkViews::changed, this, [this](const QWidget *front) {
        for (LogView *view : m_views) {
            if (view != front)
                view->finishEdit();
        }
    });
    connect(m_files, &CsvDesk::said, this, &HistoryCommands::said);
    connect(m_files, &CsvDesk::done, this, &HistoryCommands::done);
    for (const LogView *view : m_views)
        connect(view, &LogView::done, this, &HistoryCommands::done);
}

void HistoryCommands::addCommands(QMenu *edit)
{
    Commands &all = m_desk.commands;
    const auto unless = [this] { return whyNoRows(); };
    QAction *copy = all.add(
        edit, u"mECopyCells"_s, u"&Copy Cells"_s, [this] { shown()->pane().copy(); }, unless);
    QAction *paste = all.writing(all.add(
        edit, u"mEPasteCells"_s, u"&Paste"_s, [this] { shown()->pane().paste(); }, unless));
    edit->addSeparator();
    QAction *remove = all.writing(all.add(
        edit, u"mEDelete"_s, u"&Delete Entry"_s, [this] { deleteEntry(); },
        [this] { return m_desk.car.isOpen() ? QString() : CarLines::noCarYet(); }));
    for (LogView *view : m_views) {
        for (CarGrid *grid : {&view->pane().list(), &view->pane().entry()}) {
            all.setKeyIn(grid, copy, QKeySequence::Copy);
            all.setKeyIn(grid, paste, QKeySequence::Paste);
        }
        if (view->part() != CarPart::Fuel)
            all.setKeyIn(&view->pane().list(), remove, CommonKeys::remove);
        CarGrid *list = &view->pane().list();
        list->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(list, &QWidget::customContextMenuRequested, edit,
                [list, edit](QPoint place) { edit->popup(list->viewport()->mapToGlobal(place)); });
    }
    addButtons(remove);
}

/// Fill-ups go by a command of their own: the given one is for the two histories.
void HistoryCommands::addButtons(QAction *deleteEntry)
{
    Commands &all = m_desk.commands;
    QAction *deleteFillUp = all.writing(all.add(
        nullptr, u"deleteFillUp"_s, u"&Delete Fill-up"_s, [this] { this->deleteFillUp(); },
        [this] { return whyNoRows(); }));
    for (LogView *view : m_views) {
        ButtonRow &foot = view->foot();
        if (view->part() == CarPart::Fuel) {
            all.setKeyIn(&view->pane().list(), deleteFillUp, CommonKeys::remove);
            foot.addLeft(all.button(deleteFillUp, u"fuelDelete"_s, u"&Delete Fill-up"_s, &foot));
        } else {
            const QString name = view->part() == CarPart::Maintenance ? u"Command19"_s : u"Command19_1"_s;
            foot.addLeft(all.button(deleteEntry, name, u"&Delete Entry"_s, &foot));
        }
    }
}

void HistoryCommands::addCosts(QMenu *view)
{
    Commands &all = m_desk.commands;
    QAction *costs = all.add(
        view, u"mVCosts"_s, u"&Costs and Charts"_s, [this] { openCosts(); },
        [this] { return m_desk.car.isOpen() ? QString() : CarLines::noCarYet(); });
    for (LogView *one : m_views) {
        auto *fuel = qobject_cast<FuelView *>(one);
        if (!fuel)
            continue;
        QAction *calculators = all.add(
            view, u"mVCalculators"_s, u"Fuel Ca&lculators"_s, [fuel] { fuel->openCalculators(); },
            [this] { return m_desk.car.isOpen() ? QString() : CarLines::noCarYet(); });
        ButtonRow &foot = fuel->foot();
        foot.addLeft(all.button(calculators, u"fuelCalculator"_s, u"Ca&lculators..."_s, &foot));
        foot.addLeft(all.button(costs, u"fuelCosts"_s, u"Char&ts..."_s, &foot));
    }
}

void HistoryCommands::addFiles(QMenu *utilities)
{
    m_files->addCommands(utilities);
}

void HistoryCommands::openCosts()
{
    if (LogView *view = shown())
        view->finishEdit();
    m_desk.window.closePreview();
    if (!m_costs) {
        m_costs = new CostsPanel(m_desk);
        m_desk.views.addPanel(m_costs);
        connect(m_costs, &CostsPanel::printWanted, this, &HistoryCommands::costsPrintWanted);
        connect(m_costs, &TaskPanel::left, this, [this] {
            if (!m_costsFrom)
                return;
            m_desk.views.open(m_costsFrom);
            m_costsFrom->setFocus();
        });
    }
    m_costsFrom = shown();
    m_costs->refresh();
    m_desk.views.open(m_costs);
    m_costs->setFocus();
}

LogView *HistoryCommands::shown() const
{
    const auto found =
        std::ranges::find_if(m_views, [this](const LogView *view) { return m_desk.views.isShown(view); });
    return found == m_views.end() ? nullptr : *found;
}

QString HistoryCommands::whyNoRows() const
{
    return shown() ? QString() : HistoryLines::inHistoriesOnly();
}

/// The history is written at once, so that what was deleted does not come back from its file.
void HistoryCommands::deleteEntry()
{
    LogView *view = shown();
    if (!view || view->part() == CarPart::Fuel) {
        m_desk.program.dialogs.ask(&m_desk.window, CarMessages::noEntryToDelete());
        return;
    }
    LogPane &pane = view->pane();
    if (const QString why = m_desk.car.whyLocked(view->part()); !why.isEmpty()) {
        emit said(why);
        return;
    }
    if (!pane.isRowChosen()) {
        emit said(HistoryLines::chooseAnEntry());
        pane.list().setFocus();
        return;
    }
    if (m_desk.program.dialogs.ask(&m_desk.window, CarMessages::deleteEntry()) != Answer::Yes)
        return;
    if (const QString line = pane.removeChosen(LogPane::Removing::Written); !line.isEmpty())
        emit done(line);
}

/// What the deleted one had raised, the sheet's reading, may go back with it.
void HistoryCommands::deleteFillUp()
{
    LogPane &pane = shown()->pane();
    if (const QString why = m_desk.car.whyLocked(CarPart::Fuel); !why.isEmpty())
        emit said(why);
    else if (!pane.isRowChosen())
        emit said(HistoryLines::chooseAFillUp());
    else {
        const auto reading = [this] { return m_desk.car.record().sheet.field(VehicleSheet::Odometer); };
        const QString before = reading();
        const QString line = pane.removeChosen(LogPane::Removing::Typed);
        emit done(reading() == before ? line : line + u". "_s + FuelLines::readingWentBack(reading()));
    }
}
