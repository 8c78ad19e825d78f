// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/automaint.h"

#include "cars/model/carneeds.h"
#include "cars/model/carplace.h"
#include "cars/model/lines.h"
#include "cars/model/messages.h"
#include "cars/window/carchanges.h"
#include "cars/window/carlist.h"
#include "cars/window/carprint.h"
#include "cars/window/carsigns.h"
#include "cars/window/carview.h"
#include "cars/window/carviews.h"
#include "cars/window/createroutine.h"
#include "cars/window/donepanel.h"
#include "cars/window/dueview.h"
#include "cars/window/historycommands.h"
#include "cars/window/informationview.h"
#include "cars/window/opencar.h"
#include "cars/window/sheetform.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/emptypage.h"
#include "shell/core/helpcontexts.h"
#include "shell/core/place.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/picturepanel.h"
#include "shell/frame/picturetaker.h"
#include "shell/frame/sidesplitter.h"
#include "shell/frame/undostack.h"
#include "shell/frame/windowtoolbar.h"
#include "shell/frame/workviews.h"

#include <QMenu>

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

/// No field of the sheet has a width, but a path is one of the system's.
PictureUse carPictureUse()
{
    constexpr qsizetype longestPath = 260;
    return {u"Select Car Picture"_s, longestPath, CarLines::pathNotStorable(), CarLines::noPictureToDelete()};
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
    , m_views(new CarViews(desk(), this))
    , m_histories(new HistoryCommands(desk(), m_views->histories(), this))
    , m_print(new CarPrint(
          desk(), [this] { return m_views->sheet(); }, [this] { m_views->finishEdit(); }, this))
    , m_changes(new CarChanges(desk(),
                               {undoStack(), [this](int slot) { openList(slot); },
                                [this] { return mayReplace(leaveQuestion()); },
                                [this] { return !m_list->vehicles().isEmpty(); }},
                               this))
    , m_create(new CreateRoutine(desk(),
                                 {*m_views, *m_changes, [this](int slot) { openList(slot); },
                                  [this] { return mayReplace(leaveQuestion()); }, [this] { return save(); }},
                                 this))
    , m_done(new DonePanel(desk()))
    , m_pictures(new PicturePanel(program, carPictureUse(), PicturePanel::systemDrives, this))
    , m_emptyPage(new EmptyPage(
          "car-log"_L1, u"No car is in the list yet"_s,
          u"A name, the make or model and what the odometer reads are enough to begin."_s, this))
{
    setWork(new SideSplitter(u"leftPaneSplitter"_s, m_list, makeWorkPanel(), [](QSize window) {
        return window.width() < 900 ? 180 : window.width() < 1200 ? 212 : 272;
    }));
    makeCommands();
    setViews(m_stack);
    connectCar();
    connectViews();
    finishFrame();
    openList(0);
}

CarDesk AutoMaint::desk()
{
    return {program(), *this, *m_car, commands(), *m_stack};
}

QWidget *AutoMaint::makeWorkPanel()
{
    QWidget *panel = makePanel(u"carPanel"_s, m_stack);
    m_stack->addHome(m_emptyPage);
    m_stack->addPanel(m_done);
    m_stack->addPanel(m_pictures);
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
    m_changes->addEditCommands(edit);
    edit->addSeparator();
    m_histories->addCommands(edit);
    view->addSeparator();
    m_histories->addCosts(view);
    toolbar().giveWay(m_print->addCommands(options));
    options->addSeparator();
    options->addAction(standard(Standard::PanelColor));
    options->addSeparator();
    QAction *create = m_create->addCommand(options);
    QAction *remove = m_changes->addDelete(options);
    options->addSeparator();
    m_changes->addUnitCommands(options);
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
    addUsualTools();
    makeFoot(remove);
    m_create->addButtons();
    makeListButtons(create, remove);
}

void AutoMaint::makeListButtons(QAction *create, QAction *remove)
{
    m_listCreate = commands().button(create, u"createNew"_s, create->text(), m_list);
    m_list->addButton(m_listCreate);
    m_emptyPage->addButton(
        commands().button(create, u"emptyCreate"_s, create->text(), m_emptyPage, ButtonKind::Main));
    m_emptyPage->addButton(commands().button(standard(Standard::Restore), u"emptyRestore"_s,
                                             standard(Standard::Restore)->text(), m_emptyPage));
    // Del works in the list alone, and stands in no menu for it: there it is that of the entries.
    QAction *key = commands().writing(
        commands().add(nullptr, u"deleteFileKey"_s, remove->text(), [remove] { remove->trigger(); }));
    commands().setKeyIn(m_list->focusProxy(), key, CommonKeys::remove);
}

/// Each view has the same buttons at the right.
void AutoMaint::makeFoot(QAction *remove)
{
    ButtonRow &sheet = m_views->view(CarViews::Information)->foot();
    m_buttons.append(commands().button(remove, u"Command8"_s, remove->text(), &sheet));
    sheet.addLeft(m_buttons.back());
    for (CarView *view : m_views->all()) {
        ButtonRow &foot = view->foot();
        const QString name = view->objectName();
        m_buttons.append(commands().button(m_save, name + u"Save"_s, u"&Save"_s, &foot, ButtonKind::Main));
        foot.addRight(m_buttons.back());
        m_buttons.append(commands().button(standard(Standard::Exit), name + u"Exit"_s, u"E&xit"_s, &foot));
        foot.addRight(m_buttons.back());
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

void AutoMaint::connectViews()
{
    connect(m_changes, &CarChanges::said, &activity(), &ActivityBar::say);
    connect(m_create, &CreateRoutine::said, &activity(), &ActivityBar::say);
    connect(m_create, &CreateRoutine::changed, this, &AutoMaint::refreshHome);
    connect(m_done, &DonePanel::said, &activity(), &ActivityBar::say);
    connect(m_done, &DonePanel::done, this, [this](const QString &line) {
        activity().say(line);
        undoStack().offer();
    });
    auto *due = static_cast<DueView *>(m_views->view(CarViews::Due));
    connect(due, &DueView::doneRequested, this, &AutoMaint::enterDone);
    connect(due, &DueView::odometerRequested, this,
            [this] { typeInto(SheetForm::boxOf(VehicleSheet::Odometer)); });
    auto *sheet = static_cast<InformationView *>(m_views->view(CarViews::Information));
    QAction *picture = commands().writing(commands().add(
        nullptr, u"loadPicture"_s, u"&Load Picture"_s, [this] { choosePicture(); },
        [this] { return m_car->whyLocked(CarPart::Sheet); }));
    sheet->form().setPictureButton(
        commands().button(picture, u"carPicture"_s, picture->text(), &sheet->form()));
    const auto *taker = new PictureTaker(program(), sheet->form().picture(), carPictureUse(), *picture,
                                         {[this] { return m_car->record().vehicle.name.trimmed(); },
                                          [this](const QString &path) { setPicture(path); }});
    connect(taker, &PictureTaker::said, &activity(), &ActivityBar::say);
    connect(m_pictures, &PicturePanel::pictureEntered, this, &AutoMaint::setPicture);
    connect(m_pictures, &PicturePanel::pictureDeleted, this, [this] { setPicture({}); });
    connect(m_pictures, &PicturePanel::said, &activity(), &ActivityBar::say);
}

QString AutoMaint::whyNoCar() const
{
    return isPreviewShown() ? CarLines::inViewsOnly() : QString();
}

bool AutoMaint::isModified() const
{
    m_views->finishEdit();
    return m_car->isModified();
}

void AutoMaint::showPlace(const Place &place)
{
    const CarPlace wanted = CarPlace::of(place);
    if (wanted.slot > 0 && wanted.slot != m_car->slot() && mayReplace(leaveQuestion()))
        openList(wanted.slot);
    if (wanted.slot > 0 && wanted.slot == m_car->slot())
        m_views->show(wanted);
}

bool AutoMaint::save()
{
    m_views->finishEdit();
    if (m_car->isNew())
        return m_create->create();
    const QString name = m_car->record().vehicle.name;
    const bool isRenamed = name != m_car->savedName();
    if (const auto refusal = CarFiles::whyNotNamed(name); refusal && isRenamed) {
        ask(*refusal);
        typeInto(SheetForm::nameBox);
        return false;
    }
    if (!m_car->save())
        return false;
    if (isRenamed) {
        m_list->setVehicles(m_car->files().vehicles());
        m_list->show(m_car->slot());
        m_signs->readAll();
    }
    return true;
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

/// Reads the list anew and opens the car of `slot`; the first one where there is no such car. Without any,
/// the empty page has the focus.
void AutoMaint::openList(int slot)
{
    const QList<Vehicle> vehicles = m_car->files().vehicles();
    m_list->setVehicles(vehicles);
    m_signs->readAll();
    const bool isThere =
        std::ranges::any_of(vehicles, [slot](const Vehicle &vehicle) { return vehicle.slot == slot; });
    openCar(isThere ? slot : vehicles.isEmpty() ? 0 : vehicles.first().slot);
    vehicles.isEmpty() ? m_emptyPage->setFocus() : m_list->setFocus();
}

void AutoMaint::openCar(int slot)
{
    activity().say({});
    m_list->show(slot);
    m_car->load(slot);
    m_create->end();
    refreshHome();
}

/// What the other views lead back to. A car that is not made yet has its sheet only.
void AutoMaint::refreshHome()
{
    if (m_car->isNew())
        m_list->show(0);
    const auto home = m_car->isNew() ? CarViews::Information : CarViews::Due;
    m_stack->setHome(m_car->isOpen() ? static_cast<QWidget *>(m_views->view(home)) : m_emptyPage);
    if (!m_car->isOpen())
        m_stack->goHome();
    m_listCreate->setVisible(m_car->isOpen()); // the empty page has its own
    for (QPushButton *button : m_buttons)
        button->setVisible(!m_create->isOn());
    for (CarView *view : m_views->all())
        view->foot().rearrange();
    commands().refresh();
}

void AutoMaint::saveByCommand()
{
    if (!m_car->isOpen())
        ask(CarMessages::noneSelected());
    else if (save())
        commands().refresh();
}

/// What was done is entered; what was renewed has a new date on the sheet.
void AutoMaint::enterDone(const CarNeed &need)
{
    m_views->finishEdit();
    if (const QString why = m_car->whyLocked(CarPart::Maintenance); !why.isEmpty())
        activity().say(why);
    else if (need.kind == CarNeed::Kind::Action)
        m_done->start(need.row);
    else
        typeInto(SheetForm::boxOf(need.kind == CarNeed::Kind::Insurance ? VehicleSheet::InsuranceExpiration
                                                                        : VehicleSheet::RegistrationMonth));
}

void AutoMaint::typeInto(std::size_t box)
{
    m_views->open(CarViews::Information);
    FieldBox *place = static_cast<InformationView *>(m_views->view(CarViews::Information))->form().box(box);
    place->setFocus();
    place->selectAll();
}

void AutoMaint::choosePicture()
{
    m_views->finishEdit();
    m_stack->open(m_pictures);
    m_pictures->start(!m_car->record().sheet.field(VehicleSheet::Picture).trimmed().isEmpty());
}

void AutoMaint::setPicture(const QString &path)
{
    m_views->open(CarViews::Information);
    CarRecord wanted = m_car->record();
    wanted.sheet.field(VehicleSheet::Picture) = path;
    m_car->change(u"Picture"_s, wanted);
}
