// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/automaint.h"

#include "cars/model/lines.h"
#include "cars/model/messages.h"
#include "cars/window/carlist.h"
#include "cars/window/carprint.h"
#include "cars/window/carsigns.h"
#include "cars/window/carview.h"
#include "cars/window/carviews.h"
#include "cars/window/historycommands.h"
#include "cars/window/opencar.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/emptypage.h"
#include "shell/core/helpcontexts.h"
#include "shell/core/place.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/sidesplitter.h"
#include "shell/frame/undostack.h"
#include "shell/frame/windowtoolbar.h"
#include "shell/frame/workviews.h"

#include <QMenu>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

WindowTraits traits()
{
    return {.name = u"AutoMaint"_s,
            .caption = u"Automobile Tracker"_s,
            .activity = u"Automobile Tracker"_s,
            .colors = {SettingsKeys::carColor, SettingsKeys::carProgramColor, {}},
            .helpContext = HelpContext::CarLog};
}

} // namespace

AutoMaint::AutoMaint(Program &program, QWidget *parent)
    : FunctionWindow(program, traits(), parent)
    , m_car(new OpenCar(program, this))
    , m_list(new CarList(program.folder,
                         {[this] { return isModified(); }, [this] { return mayReplace(leaveQuestion()); }},
                         this))
    , m_signs(new CarSigns(program, *m_car, *m_list, this))
    , m_stack(new WorkViews(this))
    , m_views(new CarViews({program, *this, *m_car, commands(), *m_stack}, this))
    , m_histories(
          new HistoryCommands({program, *this, *m_car, commands(), *m_stack}, m_views->histories(), this))
    , m_print(new CarPrint(
          {program, *this, *m_car, commands(), *m_stack}, [this] { return m_views->sheet(); },
          [this] { m_views->finishEdit(); }, this))
    , m_emptyPage(new EmptyPage(
          "car-log"_L1, u"No car is in the list yet"_s,
          u"A name, the make or model and what the odometer reads are enough to begin."_s, this))
{
    setWork(new SideSplitter(u"leftPaneSplitter"_s, m_list, makeWorkPanel(),
                             [](QSize window) { return window.width() < 1200 ? 212 : 272; }));
    makeCommands();
    setViews(m_stack);
    connectCar();
    finishFrame();
    openList(0);
}

QWidget *AutoMaint::makeWorkPanel()
{
    QWidget *panel = makePanel(u"carPanel"_s);
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(m_stack);
    m_stack->addHome(m_emptyPage);
    return panel;
}

/// The tools stand in the order in which their commands are made.
void AutoMaint::makeCommands()
{
    QMenu *options = addMenu(u"mO"_s, u"&Options"_s);
    QMenu *edit = addMenu(u"mE"_s, u"&Edit"_s);
    QMenu *view = addMenu(u"mV"_s, u"&View"_s);
    QMenu *utilities = addMenu(u"mU"_s, u"&Utilities"_s);
    m_views->addCommands(view);
    undoStack().addCommands(edit);
    edit->addSeparator();
    m_histories->addCommands(edit);
    view->addSeparator();
    m_histories->addCosts(view);
    toolbar().giveWay(m_print->addCommands(options));
    options->addSeparator();
    options->addAction(standard(Standard::PanelColor));
    options->addSeparator();
    m_save = commands().writing(commands().add(
        options, u"mOSave"_s, u"&Save"_s, [this] { saveByCommand(); }, [this] { return whyNoCar(); },
        CommonKeys::save));
    options->addSeparator();
    options->addAction(standard(Standard::Exit));
    utilities->addAction(standard(Standard::Backup));
    utilities->addAction(standard(Standard::Restore));
    utilities->addSeparator();
    m_histories->addFiles(utilities);
    addHelpEntry();
    commands().separateTools();
    for (const Standard tool : {Standard::PanelColor, Standard::Backup})
        addStandardTool(tool);
    addStandardTool(Standard::Help, u"mH_tool"_s);
    makeFoot();
}

/// Each view has the same buttons at the right.
void AutoMaint::makeFoot()
{
    for (CarView *view : m_views->all()) {
        ButtonRow &foot = view->foot();
        const QString name = view->objectName();
        foot.addRight(commands().button(m_save, name + u"Save"_s, u"&Save"_s, &foot, ButtonKind::Main));
        foot.addRight(commands().button(standard(Standard::Exit), name + u"Exit"_s, u"E&xit"_s, &foot));
    }
}

void AutoMaint::connectCar()
{
    connect(m_list, &CarList::chosen, this, &AutoMaint::openCar);
    connect(m_views, &CarViews::said, &activity(), &ActivityBar::say);
    connect(m_histories, &HistoryCommands::said, &activity(), &ActivityBar::say);
    connect(m_histories, &HistoryCommands::costsPrintWanted, m_print, &CarPrint::printCosts);
    connect(m_histories, &HistoryCommands::done, this, [this](const QString &line) {
        activity().say(line);
        undoStack().offer();
    });
    connect(m_car, &OpenCar::said, &activity(), &ActivityBar::say);
    connect(m_car, &OpenCar::loaded, &undoStack(), &UndoStack::forgetTyped);
    connect(m_car, &OpenCar::edited, &undoStack(), qOverload<UndoStep>(&UndoStack::push));
    connect(m_car, &OpenCar::fileTouched, this, [this] { watchFiles(m_car->fileNames()); });
}

QString AutoMaint::whyNoCar() const
{
    if (isPreviewShown())
        return CarLines::inViewsOnly();
    return m_car->isOpen() ? QString() : CarLines::noCarYet();
}

bool AutoMaint::isModified() const
{
    m_views->finishEdit();
    return m_car->isModified();
}

void AutoMaint::showPlace(const Place &place)
{
    if (place.record > 0 && place.record != m_car->slot() && mayReplace(leaveQuestion()))
        openCar(place.record);
}

bool AutoMaint::save()
{
    m_views->finishEdit();
    return m_car->save();
}

void AutoMaint::drop()
{
    m_car->reload();
}

Message AutoMaint::leaveQuestion() const
{
    return CarMessages::saveChanges();
}

void AutoMaint::filesChanged()
{
    m_views->finishEdit();
    // Its pages would show what the files had before.
    closePreview();
    const QString name = m_car->record().vehicle.name;
    if (m_car->isModified()) {
        activity().say(CarLines::changedElsewhereToo(name));
        return;
    }
    openList(m_car->slot());
    activity().say(CarLines::changedElsewhere(name));
}

/// Reads the list anew and opens the car of `slot`; the first one where there is no such car.
void AutoMaint::openList(int slot)
{
    const QList<Vehicle> vehicles = m_car->files().vehicles();
    m_list->setVehicles(vehicles);
    m_signs->readAll();
    const bool isThere =
        std::ranges::any_of(vehicles, [slot](const Vehicle &vehicle) { return vehicle.slot == slot; });
    openCar(isThere ? slot : vehicles.isEmpty() ? 0 : vehicles.first().slot);
    m_list->setFocus();
}

void AutoMaint::openCar(int slot)
{
    activity().say({});
    m_list->show(slot);
    m_car->load(slot);
    QWidget *home = slot > 0 ? static_cast<QWidget *>(m_views->view(CarViews::Due)) : m_emptyPage;
    m_stack->setHome(home);
    if (slot == 0)
        m_stack->goHome();
    commands().refresh();
}

void AutoMaint::saveByCommand()
{
    if (!save())
        return;
    commands().refresh();
}
