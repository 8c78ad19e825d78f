// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/holdings.h"

#include "backup/model/diskrecords.h"
#include "backup/model/setfolder.h"
#include "storage/changeset.h"
#include "storage/saving.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array settingsFiles{"ghinv1.fil"_L1,   "hinvname.fil"_L1, "hinv2.fil"_L1,   "gcolor1.fil"_L1,
                                   "gcolor2.fil"_L1,  "gcolor3.fil"_L1,  "gcolor4.fil"_L1, "gcolor5.fil"_L1,
                                   "gcolor14.fil"_L1, "gcolor44.fil"_L1, "spell1.fil"_L1,  "spell2.fil"_L1};
constexpr auto backgroundStart = "wp"_L1; ///< of the main menu's pictures
constexpr auto passwordFile = "pctrl1.fil"_L1;

template <std::size_t N>
bool isOneOf(QStringView name, const std::array<QLatin1StringView, N> &names)
{
    return std::ranges::any_of(
        names, [name](QLatin1StringView one) { return name.compare(one, Qt::CaseInsensitive) == 0; });
}

/// What stands in a household's folder and is none of its data: locks, what is being written, records of
/// backups and snapshots.
bool isPassing(const QString &name)
{
    static constexpr std::array names{"Quillery.lock"_L1, "Quillery.changes"_L1, DiskRecord::fileName,
                                      SetRecord::fileName, SetFolder::sums};
    static constexpr std::array endings{Saving::partSuffix, Saving::stagedSuffix, ChangeSet::waitingSuffix};
    static constexpr std::array folders{"Snapshots/"_L1, "Quillery Backup/"_L1, "thumbnails/"_L1};
    const auto beginsIt = [&name](QLatin1StringView folder) {
        return name.startsWith(folder, Qt::CaseInsensitive);
    };
    const auto endsIt = [&name](QLatin1StringView ending) { return name.endsWith(ending); };
    return isOneOf(name, names) || std::ranges::any_of(folders, beginsIt) ||
           std::ranges::any_of(endings, endsIt);
}

/// Where the household lies in the program's own folder: what came with the program.
bool isOfProgram(const QString &name)
{
    static constexpr std::array names{"quillery"_L1, "qt.conf"_L1, "LICENSE.txt"_L1, "README.txt"_L1};
    static constexpr std::array folders{"modules/"_L1, "dictionaries/"_L1, "platforms/"_L1,
                                        "imageformats/"_L1, "licenses/"_L1};
    static constexpr std::array endings{".exe"_L1, ".dll"_L1};
    const auto beginsIt = [&name](QLatin1StringView folder) { return name.startsWith(folder); };
    const auto endsIt = [&name](QLatin1StringView ending) {
        return name.endsWith(ending, Qt::CaseInsensitive);
    };
    return isOneOf(name, names) || std::ranges::any_of(folders, beginsIt) ||
           std::ranges::any_of(endings, endsIt);
}

bool hasProgram(const DataFolder &folder)
{
    const QDir dir(folder.path());
    return dir.exists(u"quillery"_s) || dir.exists(u"quillery.exe"_s);
}

/// Gathers a household's files, each once, the first that claims one getting it. Each is looked at once, as
/// there may be thousands.
class Gathering
{
public:
    explicit Gathering(const DataFolder &folder)
        : m_folder(folder)
    {
        const bool isPrograms = hasProgram(folder);
        QDirIterator files(folder.path(), QDir::Files | QDir::Hidden | QDir::System,
                           QDirIterator::Subdirectories);
        const qsizetype start = folder.path().size() + 1;
        while (files.hasNext()) {
            QString name = files.next().sliced(start);
            if (isPassing(name) || (isPrograms && isOfProgram(name)))
                continue;
            const QFileInfo file = files.fileInfo();
            m_found.insert(name, {file.size(), file.lastModified().toUTC()});
            m_names.append(std::move(name));
        }
        m_names.sort();
    }

    void claim(const QString &function, const QString &path)
    {
        const QString name = SetFolder::nameOf(m_folder.path(), path);
        if (m_claimed.contains(name) || isPassing(name))
            return;
        if (const auto found = m_found.constFind(name); found != m_found.cend()) {
            take(function, name, path, *found);
            return;
        }
        const QFileInfo file(path);
        if (file.isFile())
            take(function, name, path, {file.size(), file.lastModified().toUTC()});
    }

    /// What nobody has claimed and `isIt` says yes to.
    template <typename IsIt>
    void claimRest(const QString &function, IsIt isIt)
    {
        for (const QString &name : std::as_const(m_names)) {
            if (!m_claimed.contains(name) && isIt(name))
                take(function, name, m_folder.path() + u'/' + name, m_found.value(name));
        }
    }

    void add(const BackupItem &item)
    {
        m_claimed.insert(item.name);
        m_holdings.items.append(item);
    }

    Holdings finished()
    {
        m_holdings.items += m_pictures;
        return std::move(m_holdings);
    }

private:
    struct Found {
        qint64 size = 0;
        QDateTime changed;
    };

    void take(const QString &function, const QString &name, const QString &path, const Found &found)
    {
        m_claimed.insert(name);
        if (!DiskRecords::isSafe(name)) {
            m_holdings.leftOut.append(name);
            return;
        }
        QList<BackupItem> &items = SetFolder::isPicture(name) ? m_pictures : m_holdings.items;
        items.append({name, path, function, found.size, found.changed, {}});
    }

    const DataFolder &m_folder;
    QHash<QString, Found> m_found; ///< all that goes along from the folder
    QStringList m_names;           ///< of these, in order
    QSet<QString> m_claimed;
    QList<BackupItem> m_pictures;
    Holdings m_holdings;
};

} // namespace

Holdings Holdings::of(const DataFolder &folder, const QList<BackupSource> &sources, const QByteArray &desk)
{
    Gathering gathering(folder);
    // First of all: a restore asks for the password in it before it reads anything else.
    gathering.claimRest(
        password, [](const QString &name) { return name.compare(passwordFile, Qt::CaseInsensitive) == 0; });
    for (const BackupSource &source : sources) {
        for (const QString &path : folder.filePaths(source.files))
            gathering.claim(source.function, path);
    }
    for (const BackupSource &source : sources) {
        for (const QString &path : source.pictures)
            gathering.claim(source.function, path);
    }
    if (!desk.isEmpty())
        gathering.add({deskName, {}, settings, desk.size(), {}, desk});
    gathering.claimRest(settings, &Holdings::isSetting);
    gathering.claimRest(others, [](const QString &) { return true; });
    return gathering.finished();
}

bool Holdings::isSetting(const QString &name)
{
    const bool isBackground = name.startsWith(backgroundStart, Qt::CaseInsensitive) && !name.contains(u'/') &&
                              SetFolder::isPicture(name);
    return isBackground || name == deskName || isOneOf(name, settingsFiles);
}

QStringList Holdings::filesAtTop(const DataFolder &folder)
{
    QStringList names = QDir(folder.path()).entryList(QDir::Files | QDir::Hidden | QDir::System);
    const bool isPrograms = hasProgram(folder);
    names.removeIf([isPrograms](const QString &name) {
        return isPassing(name) || (isPrograms && isOfProgram(name)) || !DiskRecords::isSafe(name);
    });
    return names;
}

Holdings Holdings::only(const QStringList &functions) const
{
    Holdings chosen = *this;
    chosen.items.removeIf([&](const BackupItem &item) { return !functions.contains(item.function); });
    return chosen;
}

qint64 Holdings::bytes() const
{
    qint64 sum = 0;
    for (const BackupItem &item : items)
        sum += item.size;
    return sum;
}
