// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/daynote.h"
#include "shell/core/functionrecords.h"
#include "shell/core/knownperson.h"
#include "shell/core/liveline.h"
#include "shell/core/picturealbum.h"
#include "shell/core/searchsource.h"
#include "shell/core/undostep.h"
#include "storage/filestamp.h"

#include <QHash>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

class DataFolder;
class QDate;
struct Program;

/// The functions of this edition, in the order of their cards on the main menu; the viewer has no card of its
/// own.
enum class Function {
    AddressBook,
    Planner,
    CalendarMaker,
    ToDoList,
    Journal,
    Budget,
    CarLog,
    WeightTracker,
    PhotoAlbum,
    PasswordKeeper,
    PasswordControl,
    Backup,
    AddressViewer
};

/// How a function joins the program: the one place where it tells the household what it has. All of it comes
/// from the function's model half. Nothing is asked of a function while any way into it is guarded, nor
/// before the asking window has been painted.
struct FunctionEntry {
    /// Makes the function's window. It deletes itself when it is closed.
    std::function<QWidget *(Program &)> open{};
    /// Its news of the day, or nothing; empty for a function without any. Reads the function's files.
    std::function<std::optional<LiveLine>(const Program &, QDate today)> liveLine{};
    /// The files that news and notes come from: they are read again only when one of these has changed.
    QStringList liveFiles{};
    /// More of these, where their names depend on the household; empty where they do not.
    std::function<QStringList(const Program &)> moreLiveFiles{};
    /// What the function has for the dates `from` to `to`, in date order; empty for a function without any.
    std::function<QList<DayNote>(const Program &, QDate from, QDate to)> dayNotes{};
    /// Whether the news change in the course of a day without any file having changed.
    bool followsClock = false;
    /// What the search over everything looks through; empty for a function without anything to find.
    std::function<std::unique_ptr<SearchSource>(const Program &)> search{};
    /// Shows a place in the function's own window; empty for a function without places.
    std::function<void(QWidget &window, const Place &)> show{};
    /// The persons that it knows by name: "Anne Lind"; empty for a function without any.
    std::function<QStringList(const Program &)> names{};
    /// The same with their records and what else is known of them; empty for a function without any.
    std::function<QList<KnownPerson>(const Program &)> persons{};
    /// Those of its files in the household's folder that are there, as `DataFolder` finds them.
    std::function<QStringList(const Program &)> files{};
    /// Its pictures that are there, as full paths: they may stand in any folder.
    std::function<QStringList(const Program &)> pictures{};
    /// The pictures that its records name and that are not there, as the records have them, each once.
    std::function<QStringList(const Program &)> missingPictures{};
    /// Has its records name other files in the place of these: from what a record has to where the file is
    /// now. Nothing where that is refused; a step without `undo` where no record names one.
    std::function<std::optional<UndoStep>(const Program &, const QHash<QString, QString> &files)>
        relinkPictures{};
    /// Its pictures by album, for windows in which one is chosen; empty for a function without albums.
    std::function<QList<PictureAlbum>(const Program &)> pictureAlbums{};
    /// The pictures of a day, or of a person by name, as full paths in the order in which they were taken.
    std::function<QStringList(const Program &, QDate day)> picturesOfDay{};
    std::function<QStringList(const Program &, const QString &person)> picturesOfPerson{};
    /// Whether its files are sealed with a password of its own; empty for a function whose files never are.
    std::function<bool(const Program &)> isSealed{};
    /// Its records in `folder`, the household's own or a copy of it; empty for a function without any, null
    /// where they are sealed.
    std::function<std::unique_ptr<FunctionRecords>(const Program &, const DataFolder &folder)> records{};

    /// What the files that news and notes come from are like now.
    FileStamp liveStamp(const Program &program) const;
};

/// Shows `window`, as it was before it was minimised, in front of the others.
void bringToFront(QWidget &window);

/// The functions that are built into this program. A function that is not in it yet stands disabled on the
/// main menu.
class FunctionCatalogue
{
public:
    void add(Function function, FunctionEntry entry);
    bool has(Function function) const;
    /// Null when the function is not built in.
    const FunctionEntry *entry(Function function) const;

    /// Opens the function's window, or raises the one that is open already. Null when it is not built in.
    QWidget *open(Function function, Program &program);
    /// The same, and shows `place` there. No guard is asked here: `ProgramSignals::placeRequested` does.
    QWidget *open(Function function, Program &program, const Place &place);

    /// Whether the function's window is open now.
    bool isOpen(Function function) const;
    /// Its window; null when it is not open.
    QWidget *window(Function function) const;
    /// Another window that shows what the function has: `functionOf()` knows it.
    void join(Function function, QWidget &window);
    /// The function that a window of its own shows; none for any other.
    std::optional<Function> functionOf(const QWidget &window) const;

    /// What can be found in the function: made when it is first asked for, and kept. Null where there is
    /// nothing to find.
    SearchSource *searchSource(Function function, const Program &program);
    /// Lets go of what was read for searching in the function.
    void forgetSearch(Function function);

    /// The windows that are open now, in no particular order.
    QList<QWidget *> openWindows() const;

private:
    std::map<Function, FunctionEntry> m_entries;
    std::map<Function, QPointer<QWidget>> m_windows; ///< null when their window is gone
    std::vector<std::pair<Function, QPointer<QWidget>>> m_joined;
    std::map<Function, std::unique_ptr<SearchSource>> m_sources;
};
