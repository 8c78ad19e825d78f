// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/functions.h"

#include "addressbook/entry/entrywindow.h"
#include "addressbook/model/addressbook.h"
#include "addressbook/model/addressholdings.h"
#include "addressbook/model/addressnews.h"
#include "addressbook/model/addressrecords.h"
#include "addressbook/model/addresssearch.h"
#include "addressbook/viewer/viewerwindow.h"
#include "album/model/albumholdings.h"
#include "album/model/albumnews.h"
#include "album/model/albumrecords.h"
#include "album/model/albumsource.h"
#include "album/model/photoshelf.h"
#include "album/window/albumwindow.h"
#include "backup/model/backupnews.h"
#include "backup/window/backup1.h"
#include "budget/model/budgetnews.h"
#include "budget/model/budgetrecords.h"
#include "budget/model/budgetsource.h"
#include "budget/window/budgetwindow.h"
#include "calendar/model/calendarfiles.h"
#include "calendar/model/calendarholdings.h"
#include "calendar/model/calendarnews.h"
#include "calendar/model/calendarrecords.h"
#include "calendar/model/calendarsource.h"
#include "calendar/window/calendarwindow.h"
#include "cars/model/carfiles.h"
#include "cars/model/carnews.h"
#include "cars/model/carpictures.h"
#include "cars/model/carrecords.h"
#include "cars/model/carsource.h"
#include "cars/window/automaint.h"
#include "journal/model/journalholdings.h"
#include "journal/model/journalnews.h"
#include "journal/model/journalrecords.h"
#include "journal/model/journalseal.h"
#include "journal/model/journalsource.h"
#include "journal/window/journalwindow.h"
#include "keeper/model/keepernews.h"
#include "keeper/window/keeperwindow.h"
#include "planner/model/dayrecord.h"
#include "planner/model/plannernews.h"
#include "planner/model/plannerrecords.h"
#include "planner/model/plannersource.h"
#include "planner/window/plannerwindow.h"
#include "shell/access/gate.h"
#include "shell/access/guardedareas.h"
#include "shell/access/passwordcheck.h"
#include "shell/access/passwordcontrol.h"
#include "shell/program/program.h"
#include "shell/writing/correctionfile.h"
#include "shell/writing/ownwords.h"
#include "todo/model/todofiles.h"
#include "todo/model/todonews.h"
#include "todo/model/todorecords.h"
#include "todo/model/todosource.h"
#include "todo/window/todowindow.h"
#include "weight/model/personfiles.h"
#include "weight/model/weightnews.h"
#include "weight/model/weightpictures.h"
#include "weight/model/weightrecords.h"
#include "weight/model/weightsource.h"
#include "weight/window/weighttracker.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename Window>
QWidget *makeWindow(Program &program)
{
    return new Window(program);
}

template <typename Records>
std::unique_ptr<FunctionRecords> makeRecords(const Program &, const DataFolder &folder)
{
    return std::make_unique<Records>(folder);
}

/// The same of those that tell dates.
template <typename Records>
std::unique_ptr<FunctionRecords> makeDatedRecords(const Program &program, const DataFolder &folder)
{
    return std::make_unique<Records>(folder, program.state.dateStyle);
}

std::optional<LiveLine> addressNews(const Program &program, QDate today)
{
    return AddressNews::liveLine(program.folder, program.state.dateStyle, today);
}

QList<DayNote> addressNotes(const Program &program, QDate from, QDate to)
{
    return AddressNews::dayNotes(program.folder, program.state.dateStyle, from, to, program.clock.today());
}

QStringList addressNames(const Program &program)
{
    return AddressHoldings::names(program.folder);
}

QList<KnownPerson> addressPersons(const Program &program)
{
    return AddressHoldings::persons(program.folder, program.state.dateStyle, program.clock.today());
}

QStringList addressFiles(const Program &program)
{
    return AddressHoldings::files(program.folder);
}

QStringList addressPictures(const Program &program)
{
    return AddressHoldings::pictures(program.folder);
}

QStringList missingAddressPictures(const Program &program)
{
    return AddressHoldings::missingPictures(program.folder);
}

std::optional<UndoStep> relinkAddressPictures(const Program &program, const QHash<QString, QString> &files)
{
    return AddressHoldings::relinkPictures(program.folder, files);
}

std::unique_ptr<SearchSource> addressSearch(const Program &program)
{
    return std::make_unique<AddressSearch>(program.folder);
}

void showAddress(QWidget &window, const Place &place)
{
    if (auto *book = qobject_cast<ADDBKVIEW *>(&window))
        book->showRecord(place.record);
}

std::unique_ptr<SearchSource> plannerSearch(const Program &program)
{
    return std::make_unique<PlannerSource>(program.folder, program.clock, program.state.dateStyle);
}

void showInPlanner(QWidget &window, const Place &place)
{
    if (auto *planner = qobject_cast<Zcalandar1 *>(&window))
        planner->showPlace(place);
}

QList<DayNote> plannerNotes(const Program &program, QDate from, QDate to)
{
    return PlannerNews::dayNotes(program.folder, from, to);
}

QStringList plannerFiles(const Program &program)
{
    return PlannerNews::files(program.folder);
}

std::optional<LiveLine> plannerNews(const Program &program, QDate)
{
    return PlannerNews::liveLine(program.folder, program.clock.now());
}

std::optional<LiveLine> budgetNews(const Program &program, QDate today)
{
    return BudgetNews::liveLine(program.folder, today);
}

QList<DayNote> budgetNotes(const Program &program, QDate from, QDate to)
{
    return BudgetNews::dayNotes(program.folder, program.state.dateStyle, from, to, program.clock.today());
}

QStringList budgetFiles(const Program &program)
{
    return BudgetNews::files(program.folder);
}

std::unique_ptr<SearchSource> budgetSearch(const Program &program)
{
    return std::make_unique<BudgetSource>(program.folder, program.clock, program.state.dateStyle);
}

void showInBudget(QWidget &window, const Place &place)
{
    if (auto *budget = qobject_cast<Budget1 *>(&window))
        budget->showPlace(place);
}

std::optional<LiveLine> calendarNews(const Program &program, QDate today)
{
    return CalendarNews::liveLine(program.folder, today);
}

QStringList calendarLiveFiles(const Program &program)
{
    return CalendarFiles::names(program.folder);
}

std::unique_ptr<SearchSource> calendarSearch(const Program &program)
{
    return std::make_unique<CalendarSource>(program.folder, program.state.dateStyle);
}

QStringList calendarFiles(const Program &program)
{
    return CalendarHoldings::files(program.folder);
}

QStringList calendarPictures(const Program &program)
{
    return CalendarHoldings::pictures(program.folder);
}

QStringList missingCalendarPictures(const Program &program)
{
    return CalendarHoldings::missingPictures(program.folder);
}

std::optional<UndoStep> relinkCalendarPictures(const Program &program, const QHash<QString, QString> &files)
{
    return CalendarHoldings::relinkPictures(program.folder, files);
}

void showInCalendar(QWidget &window, const Place &place)
{
    if (auto *calendar = qobject_cast<Calendar *>(&window))
        calendar->showPlace(place);
}

std::optional<LiveLine> carNews(const Program &program, QDate today)
{
    return CarNews::liveLine(program.folder, program.state.dateStyle, today);
}

QList<DayNote> carNotes(const Program &program, QDate from, QDate to)
{
    return CarNews::dayNotes(program.folder, program.state.dateStyle, from, to, program.clock.today());
}

QStringList filesOfCars(const Program &program)
{
    return CarFiles::files(program.folder);
}

QStringList carPictures(const Program &program)
{
    return CarFiles::pictures(program.folder);
}

QStringList missingCarPictures(const Program &program)
{
    return CarPictures::missing(program.folder);
}

std::optional<UndoStep> relinkCarPictures(const Program &program, const QHash<QString, QString> &files)
{
    return CarPictures::relink(program.folder, program.state.dateStyle, files);
}

std::unique_ptr<FunctionRecords> carRecords(const Program &program, const DataFolder &folder)
{
    return std::make_unique<CarRecords>(folder, program.state.dateStyle, program.clock.now());
}

std::unique_ptr<SearchSource> carSearch(const Program &program)
{
    return std::make_unique<CarSource>(program.folder, program.state.dateStyle);
}

void showCar(QWidget &window, const Place &place)
{
    if (auto *cars = qobject_cast<AutoMaint *>(&window))
        cars->showPlace(place);
}

std::optional<LiveLine> albumNews(const Program &program, QDate today)
{
    return AlbumNews::liveLine(program.folder, today);
}

QList<DayNote> albumNotes(const Program &program, QDate from, QDate to)
{
    return AlbumNews::dayNotes(program.folder, from, to);
}

std::unique_ptr<SearchSource> albumSearch(const Program &program)
{
    return std::make_unique<AlbumSource>(program.folder, program.state.dateStyle);
}

QStringList albumFiles(const Program &program)
{
    return AlbumHoldings::files(program.folder);
}

QStringList albumPictures(const Program &program)
{
    return AlbumHoldings::pictures(program.folder);
}

QList<PictureAlbum> pictureAlbums(const Program &program)
{
    return AlbumHoldings::albums(program.folder);
}

QStringList picturesOfDay(const Program &program, QDate day)
{
    return AlbumHoldings::picturesOfDay(program.folder, day);
}

QStringList picturesOfPerson(const Program &program, const QString &person)
{
    return AlbumHoldings::picturesOfPerson(program.folder, person);
}

void showInAlbum(QWidget &window, const Place &place)
{
    if (auto *album = qobject_cast<PhotoVIEW1 *>(&window))
        album->showPlace(place);
}

std::optional<LiveLine> weightNews(const Program &program, QDate today)
{
    return WeightNews::liveLine(program.folder, today);
}

std::unique_ptr<SearchSource> weightSearch(const Program &program)
{
    return std::make_unique<WeightSource>(program.folder);
}

QStringList weightNewsFiles(const Program &program)
{
    return WeightNews::liveFiles(program.folder);
}

QStringList weightFiles(const Program &program)
{
    return PersonFiles::files(program.folder);
}

QStringList weightPictures(const Program &program)
{
    return PersonFiles::pictures(program.folder);
}

QStringList missingWeightPictures(const Program &program)
{
    return WeightPictures::missing(program.folder);
}

std::optional<UndoStep> relinkWeightPictures(const Program &program, const QHash<QString, QString> &files)
{
    return WeightPictures::relink(program.folder, files);
}

void showPerson(QWidget &window, const Place &place)
{
    if (auto *tracker = qobject_cast<WeightTracker *>(&window))
        tracker->showPlace(place);
}

std::optional<LiveLine> toDoNews(const Program &program, QDate today)
{
    return ToDoNews::liveLine(program.folder, program.state.dateStyle, today);
}

QList<DayNote> toDoNotes(const Program &program, QDate from, QDate to)
{
    return ToDoNews::dayNotes(program.folder, program.state.dateStyle, from, to, program.clock.today());
}

/// With the household's words and corrections, which came with it.
QStringList filesOfToDo(const Program &program)
{
    QStringList files = ToDoNews::files(program.folder);
    for (const QString &name : {OwnWords::fileName, CorrectionFile::fileName}) {
        if (!program.folder.existingFile({}, name).isEmpty())
            files.append(name);
    }
    return files;
}

std::unique_ptr<FunctionRecords> toDoRecords(const Program &program, const DataFolder &folder)
{
    return std::make_unique<ToDoRecords>(folder, program.state.dateStyle, program.clock.today());
}

std::unique_ptr<SearchSource> toDoSearch(const Program &program)
{
    return std::make_unique<ToDoSource>(program.folder, program.state.dateStyle);
}

void showToDo(QWidget &window, const Place &place)
{
    if (auto *lists = qobject_cast<ToDo1 *>(&window))
        lists->showPlace(place);
}

/// It shows in its window alone.
bool isKeeperOpen(const Program &program)
{
    return std::ranges::any_of(program.functions.openWindows(), [](QWidget *window) {
        auto *keeper = qobject_cast<Form4 *>(window);
        return keeper && keeper->keeper().state() == Keeper::State::Open;
    });
}

std::optional<LiveLine> journalNews(const Program &program, QDate)
{
    return JournalNews::liveLine(program.folder, program.clock.now());
}

std::unique_ptr<SearchSource> journalSearch(const Program &program)
{
    return std::make_unique<JournalSource>(program.folder, program.clock, program.state.dateStyle);
}

QStringList journalFiles(const Program &program)
{
    return JournalHoldings::files(program.folder);
}

QStringList journalPictures(const Program &program)
{
    return JournalHoldings::pictures(program.folder);
}

QStringList missingJournalPictures(const Program &program)
{
    return JournalHoldings::missingPictures(program.folder);
}

std::optional<UndoStep> relinkJournalPictures(const Program &program, const QHash<QString, QString> &files)
{
    return JournalHoldings::relinkPictures(program.folder, files);
}

std::unique_ptr<FunctionRecords> journalRecords(const Program &program, const DataFolder &folder)
{
    if (JournalSeal::isSealed(folder))
        return nullptr;
    return std::make_unique<JournalRecords>(folder, program.state.dateStyle);
}

bool isJournalSealed(const Program &program)
{
    return JournalSeal::isSealed(program.folder);
}

void showInJournal(QWidget &window, const Place &place)
{
    if (auto *journal = qobject_cast<DJournal *>(&window))
        journal->showPlace(place);
}

std::optional<LiveLine> keeperNews(const Program &program, QDate today)
{
    return KeeperNews::liveLine(program.folder, isKeeperOpen(program), today);
}

/// While it is open, what its entries' file is like is not news: the card follows at once when it is locked.
QStringList keeperLiveFiles(const Program &program)
{
    return isKeeperOpen(program) ? QStringList() : QStringList{KeeperFiles::entries};
}

QStringList keeperFiles(const Program &program)
{
    return KeeperFiles::existing(program.folder);
}

/// The backup that runs, if one does.
const Backup1 *runningBackup(const Program &program)
{
    const auto *backup = qobject_cast<Backup1 *>(program.functions.window(Function::Backup));
    return backup && !backup->runningLine().isEmpty() ? backup : nullptr;
}

std::optional<LiveLine> backupNews(const Program &program, QDate today)
{
    if (const Backup1 *running = runningBackup(program))
        return LiveLine{running->runningLine(), LiveLine::Plain, {}};
    return BackupNews::of(program.folder, program.settings).liveLine(today);
}

/// While one runs, no file says how far it is.
QStringList backupLiveFiles(const Program &program)
{
    return runningBackup(program) ? QStringList() : BackupNews::files();
}

void showInBackup(QWidget &window, const Place &place)
{
    if (auto *backup = qobject_cast<Backup1 *>(&window))
        backup->showPlace(place);
}

std::optional<LiveLine> passwordNews(const Program &program, QDate)
{
    switch (PasswordCheck(program.folder, PasswordCost::interactive(), &program.gate.memory()).state()) {
    case PasswordCheck::State::NotSet:
        return LiveLine{u"No password is set"_s, LiveLine::Plain, {}};
    case PasswordCheck::State::Damaged:
        return LiveLine{u"The password file is damaged"_s, LiveLine::Overdue, {}};
    case PasswordCheck::State::Set:
        break;
    }
    int guarded = 0;
    for (int area = 0; area < ProtectedAreas::count; ++area)
        guarded +=
            GuardedAreas::isOfThisEdition(area) && program.state.protectedAreas.isProtected(area) ? 1 : 0;
    if (guarded == 0)
        return LiveLine{u"Nothing is protected"_s, LiveLine::Plain, {}};
    const QString text = guarded == 1 ? u"1 area is protected"_s : u"%1 areas are protected"_s.arg(guarded);
    return LiveLine{text, LiveLine::Plain, {}};
}

} // namespace

void addFunctions(FunctionCatalogue &functions, const Clock &clock)
{
    functions.add(Function::AddressBook, {.open = makeWindow<ADDBKVIEW>,
                                          .liveLine = addressNews,
                                          .liveFiles = AddressBook::fileNames(),
                                          .dayNotes = addressNotes,
                                          .search = addressSearch,
                                          .show = showAddress,
                                          .names = addressNames,
                                          .persons = addressPersons,
                                          .files = addressFiles,
                                          .pictures = addressPictures,
                                          .missingPictures = missingAddressPictures,
                                          .relinkPictures = relinkAddressPictures,
                                          .records = makeRecords<AddressRecords>});
    functions.add(Function::AddressViewer, {.open = makeWindow<ADDBKDISPLAY>});
    const int year = clock.today().year();
    const QStringList yearFiles{DayRecord::yearFileName(year), DayRecord::yearFileName(year + 1)};
    functions.add(Function::Planner, {.open = makeWindow<Zcalandar1>,
                                      .liveLine = plannerNews,
                                      .liveFiles = yearFiles,
                                      .dayNotes = plannerNotes,
                                      .followsClock = true,
                                      .search = plannerSearch,
                                      .show = showInPlanner,
                                      .files = plannerFiles,
                                      .records = makeDatedRecords<PlannerRecords>});
    functions.add(Function::CalendarMaker, {.open = makeWindow<Calendar>,
                                            .liveLine = calendarNews,
                                            .moreLiveFiles = calendarLiveFiles,
                                            .search = calendarSearch,
                                            .show = showInCalendar,
                                            .files = calendarFiles,
                                            .pictures = calendarPictures,
                                            .missingPictures = missingCalendarPictures,
                                            .relinkPictures = relinkCalendarPictures,
                                            .records = makeDatedRecords<CalendarRecords>});
    functions.add(Function::PhotoAlbum, {.open = makeWindow<PhotoVIEW1>,
                                         .liveLine = albumNews,
                                         .liveFiles = PhotoShelf::fileNames(),
                                         .dayNotes = albumNotes,
                                         .search = albumSearch,
                                         .show = showInAlbum,
                                         .files = albumFiles,
                                         .pictures = albumPictures,
                                         .pictureAlbums = pictureAlbums,
                                         .picturesOfDay = picturesOfDay,
                                         .picturesOfPerson = picturesOfPerson,
                                         .records = makeDatedRecords<AlbumRecords>});
    functions.add(Function::Budget, {.open = makeWindow<Budget1>,
                                     .liveLine = budgetNews,
                                     .liveFiles = BudgetNews::liveFiles(clock.today()),
                                     .dayNotes = budgetNotes,
                                     .search = budgetSearch,
                                     .show = showInBudget,
                                     .files = budgetFiles,
                                     .records = makeDatedRecords<BudgetRecords>});
    functions.add(Function::CarLog, {.open = makeWindow<AutoMaint>,
                                     .liveLine = carNews,
                                     .liveFiles = CarNews::liveFiles(),
                                     .dayNotes = carNotes,
                                     .search = carSearch,
                                     .show = showCar,
                                     .files = filesOfCars,
                                     .pictures = carPictures,
                                     .missingPictures = missingCarPictures,
                                     .relinkPictures = relinkCarPictures,
                                     .records = carRecords});
    functions.add(Function::WeightTracker, {.open = makeWindow<WeightTracker>,
                                            .liveLine = weightNews,
                                            .moreLiveFiles = weightNewsFiles,
                                            .search = weightSearch,
                                            .show = showPerson,
                                            .files = weightFiles,
                                            .pictures = weightPictures,
                                            .missingPictures = missingWeightPictures,
                                            .relinkPictures = relinkWeightPictures,
                                            .records = makeRecords<WeightRecords>});
    functions.add(Function::ToDoList, {.open = makeWindow<ToDo1>,
                                       .liveLine = toDoNews,
                                       .liveFiles = ToDoFiles::names(),
                                       .dayNotes = toDoNotes,
                                       .search = toDoSearch,
                                       .show = showToDo,
                                       .files = filesOfToDo,
                                       .records = toDoRecords});
    functions.add(Function::Journal, {.open = makeWindow<DJournal>,
                                      .liveLine = journalNews,
                                      .liveFiles = JournalNews::liveFiles(clock.today()),
                                      .followsClock = true,
                                      .search = journalSearch,
                                      .show = showInJournal,
                                      .files = journalFiles,
                                      .pictures = journalPictures,
                                      .missingPictures = missingJournalPictures,
                                      .relinkPictures = relinkJournalPictures,
                                      .isSealed = isJournalSealed,
                                      .records = journalRecords});
    // Nothing of what it holds is told to others, guarded or not.
    functions.add(Function::PasswordKeeper, {.open = makeWindow<Form4>,
                                             .liveLine = keeperNews,
                                             .liveFiles = {KeeperFiles::keys},
                                             .moreLiveFiles = keeperLiveFiles,
                                             .files = keeperFiles,
                                             .isSealed = [](const Program &) { return true; }});
    functions.add(Function::PasswordControl,
                  {.open = makeWindow<Form31>, .liveLine = passwordNews, .liveFiles = {u"PCtrl1.Fil"_s}});
    functions.add(Function::Backup, {.open = makeWindow<Backup1>,
                                     .liveLine = backupNews,
                                     .moreLiveFiles = backupLiveFiles,
                                     .followsClock = true,
                                     .show = showInBackup});
}
