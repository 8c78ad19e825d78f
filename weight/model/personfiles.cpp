// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/personfiles.h"

#include "shell/core/reservednames.h"
#include "shell/pictures/picturefolder.h"
#include "storage/ansitext.h"
#include "storage/log.h"
#include "storage/valuefile.h"
#include "weight/model/messages.h"
#include "weight/model/personlist.h"
#include "weight/model/toldfigures.h"
#include "weight/model/weightdates.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

using State = PersonFiles::State;

const QString trashKind = u"Weights"_s;
const QString ending = u".Fil"_s;

constexpr qsizetype longestName = 100;

/// The values in front of the weigh-ins, in the order of the file: the number of rows, then these.
constexpr std::array fileFields{WeightSheet::BeginningDate,      WeightSheet::BeginningWeight,
                                WeightSheet::GoalWeight,         WeightSheet::DaysPerWeek,
                                WeightSheet::TimePerPeriod,      WeightSheet::ExerciseTypes,
                                WeightSheet::BeginningPhotoDate, WeightSheet::CurrentPhotoDate};
/// The fewest bytes that a weigh-in has in a file: two empty texts in quotes, with their line ends.
constexpr qsizetype leastRow = 8;

/// The number of rows, heading included, that a file says it has; -1 where it says none.
qsizetype countIn(const QString &text)
{
    bool isNumber = false;
    const int count = text.trimmed().toInt(&isNumber);
    return isNumber && count >= 0 ? count : -1;
}

QString trimmed(const QString &name)
{
    return AnsiText::trimmedBlanks(name).toString();
}

/// What a name that is in the list has in the trash: the place there and the name, then the file.
bool isBroughtBack(const Trash::Item &item)
{
    return !item.pieces.empty() && item.pieces.front().file == PersonList::fileName() &&
           !PersonList::decode(item.pieces.front().bytes).isEmpty();
}

} // namespace

QString PersonFiles::fileName(const QString &name)
{
    return trimmed(name) + ending;
}

QStringList PersonFiles::names() const
{
    const QStringList listed = PersonList(m_folder).names();
    return listed.isEmpty() ? unlisted() : listed;
}

QStringList PersonFiles::unlisted() const
{
    const QStringList listed = PersonList(m_folder).names();
    QStringList names;
    for (const QString &file : QDir(m_folder.path()).entryList({u'*' + ending}, QDir::Files, QDir::Name)) {
        const QString name = file.chopped(ending.size());
        if (PersonList::place(listed, name) > 0 || whyNotNamed(name))
            continue;
        const Found found = read(name);
        const QString &begin = found.sheet.field(WeightSheet::BeginningDate);
        const bool hasDate = begin.isEmpty() || WeightDates::date(begin).isValid();
        if (hasDate && (found.state == State::Whole || found.state == State::Cut))
            names.append(name);
    }
    return names;
}

QStringList PersonFiles::empty() const
{
    QStringList names;
    for (const QString &file : QDir(m_folder.path()).entryList({u'*' + ending}, QDir::Files)) {
        if (QFileInfo(m_folder.path() + u'/' + file).size() == 0)
            names.append(file.chopped(ending.size()));
    }
    return names;
}

PersonFiles::Found PersonFiles::read(const QString &name) const
{
    Found found;
    const QString path = m_folder.filePath(fileName(name));
    if (whyNotNamed(name)) {
        found.state = State::Foreign;
    } else if (QFile file(path); QFileInfo::exists(path)) {
        found.state = State::OutOfReach;
        if (QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
            const QByteArray bytes = file.readAll();
            if (file.error() == QFile::NoError)
                found = decode(bytes);
        }
    }
    found.sheet.field(WeightSheet::Name) = name;
    return found;
}

PersonFiles::Found PersonFiles::decode(QByteArrayView bytes)
{
    ValueFile::Cutter cutter(bytes);
    Found found;
    if (cutter.isAtEnd()) {
        found.state = State::Empty;
        return found;
    }
    const qsizetype count = countIn(cutter.take());
    if (count < 0) {
        found.state = State::Foreign;
        return found;
    }
    for (const WeightSheet::Field field : fileFields)
        found.sheet.field(field) = cutter.take();
    found.sheet.comments = cutter.take();
    found.sheet.beginningPicture = cutter.take();
    bool isWhole = !cutter.isAtEnd();
    found.sheet.currentPicture = cutter.take();
    found.sheet.weighIns.reserve(std::min(count, bytes.size() / leastRow));
    for (qsizetype row = 1; !cutter.isAtEnd(); ++row) {
        WeightTable &table = row < count ? found.sheet.weighIns : found.uncounted;
        const QByteArrayView date = cutter.takeBytes();
        isWhole = isWhole && !cutter.isAtEnd();
        table.append(date, cutter.takeBytes());
    }
    isWhole = isWhole && !cutter.isTorn() && found.sheet.weighIns.rowCount() + 1 >= count;
    found.state = isWhole ? State::Whole : State::Cut;
    return found;
}

QByteArray PersonFiles::encode(const WeightSheet &sheet)
{
    const WeightTable &table = sheet.weighIns;
    QStringList head{QString::number(table.rowCount() + 1)};
    for (const WeightSheet::Field field : fileFields)
        head.append(sheet.field(field));
    QByteArray bytes =
        ValueFile::encode(head << sheet.comments << sheet.beginningPicture << sheet.currentPicture);
    for (qsizetype row = 0; row < table.rowCount(); ++row) {
        ValueFile::append(bytes, table.dateBytes(row));
        ValueFile::append(bytes, table.weightBytes(row));
    }
    return bytes;
}

std::optional<Message> PersonFiles::whyNotNamed(const QString &name)
{
    const QString text = trimmed(name);
    if (QStringView(text).trimmed().isEmpty())
        return WeightMessages::nameMissing();
    if (const QString foreign = AnsiText::foreignCharacters(text); !foreign.isEmpty())
        return WeightMessages::nameForeign(foreign);
    QString forbidden;
    for (const QChar c : text) {
        if ((c < u' ' || u"\\/:*?\"<>|"_s.contains(c)) && !forbidden.contains(c))
            forbidden += c;
    }
    if (!forbidden.isEmpty())
        return WeightMessages::nameNoFile(forbidden);
    if (text.startsWith(u'.'))
        return WeightMessages::nameHidden();
    if (text.size() > longestName)
        return WeightMessages::nameTooLong();
    if (ReservedNames::isReserved(text) || ReservedNames::isDevice(text) ||
        ReservedNames::isProgramFile(text))
        return WeightMessages::nameReserved(text + ending);
    return {};
}

std::optional<Message> PersonFiles::whyNotNew(const QString &name, const QString &former) const
{
    if (auto refusal = whyNotNamed(name))
        return refusal;
    const QString text = trimmed(name);
    const bool isSame = text.compare(trimmed(former), Qt::CaseInsensitive) == 0;
    const bool isThere = m_folder.exists(fileName(text)) || PersonList::place(names(), text) > 0;
    return isThere && !isSame ? std::optional(WeightMessages::nameTaken(text)) : std::nullopt;
}

QString PersonFiles::freeName(const QString &name, const QStringList &listed) const
{
    QString free = name;
    for (int number = 2;
         whyNotNew(free) == WeightMessages::nameTaken(free) || PersonList::place(listed, free) > 0;
         ++number) {
        const QString end = u' ' + QString::number(number);
        free = name.left(longestName - end.size()) + end; // or the file would have no name
    }
    return free;
}

std::optional<WholeFilesChange> PersonFiles::create(const WeightSheet &sheet)
{
    const QString name = trimmed(sheet.field(WeightSheet::Name));
    if (whyNotNew(name))
        return {};
    WholeFilesChange change;
    change.replace(m_folder, fileName(name), encode(sheet));
    writeList(change, names() + QStringList(name));
    return done(std::move(change));
}

std::optional<WholeFilesChange> PersonFiles::save(const QString &name, const WeightSheet &sheet)
{
    const QString after = trimmed(sheet.field(WeightSheet::Name));
    QStringList listed = names();
    const int place = PersonList::place(listed, name);
    if (place == 0 || !read(name).mayBeWritten()) {
        qCWarning(storageLog).noquote() << "Refused to write" << fileName(name);
        return {};
    }
    WholeFilesChange change;
    const bool isRenamed = after != listed[place - 1];
    if (isRenamed && whyNotNew(after, name))
        return {};
    change.replace(m_folder, fileName(after), encode(sheet));
    if (isRenamed) {
        listed[place - 1] = after;
        // Where the disk heeds no case, two spellings lead to one file.
        if (QFileInfo(m_folder.filePath(fileName(after))) != QFileInfo(m_folder.filePath(fileName(name))))
            change.replace(m_folder, fileName(name), {});
        renameTold(change, name, after);
    }
    writeList(change, listed);
    return done(std::move(change));
}

std::optional<WholeFilesChange> PersonFiles::addToList(const QStringList &names)
{
    QStringList listed = PersonList(m_folder).names();
    for (const QString &name : names) {
        if (PersonList::place(listed, name) == 0 && !whyNotNamed(name))
            listed.append(trimmed(name));
    }
    WholeFilesChange change;
    writeList(change, listed);
    return done(std::move(change));
}

std::optional<WholeFilesChange> PersonFiles::remove(const QString &name, const QDateTime &now)
{
    QStringList listed = names();
    const int place = PersonList::place(listed, name);
    if (place == 0)
        return {};
    Trash::Item item{trashKind, now, listed[place - 1], {}};
    item.pieces.push_back({PersonList::fileName(), place, PersonList::encode({listed[place - 1]})});
    WholeFilesChange change;
    // What bears such a name is a file of another function.
    if (!whyNotNamed(name)) {
        change.replace(m_folder, fileName(name), {});
        if (const auto bytes = change.before(fileName(name)))
            item.pieces.push_back({fileName(name), 0, *bytes});
    }
    listed.removeAt(place - 1);
    writeList(change, listed);
    renameTold(change, name, {});
    change.throwAway(std::move(item));
    return done(std::move(change));
}

std::vector<Trash::Item> PersonFiles::deletedPersons(const QDateTime &now) const
{
    std::vector<Trash::Item> items = Trash(m_folder).items(trashKind, now);
    std::erase_if(items, [](const Trash::Item &item) { return !isBroughtBack(item); });
    return items;
}

PersonFiles::BroughtBack PersonFiles::bringBack(const Trash::Item &item)
{
    if (!isBroughtBack(item))
        return {};
    const Trash::Piece &listed = item.pieces.front();
    const QString name = freeName(PersonList::decode(listed.bytes).front());
    WholeFilesChange change;
    if (item.pieces.size() > 1 && !whyNotNamed(name))
        change.replace(m_folder, fileName(name), item.pieces[1].bytes);
    QStringList after = names();
    after.insert(std::clamp<qsizetype>(listed.number - 1, 0, after.size()), name);
    writeList(change, after);
    change.bringBack(item);
    const bool isDone = change.commit(m_folder);
    return {name, std::move(change), isDone};
}

QStringList PersonFiles::files(const DataFolder &folder)
{
    QStringList files{PersonList::fileName(), ToldFigures::fileName()};
    const PersonFiles persons(folder);
    for (const QString &name : persons.names() + persons.unlisted() + persons.empty()) {
        if (!whyNotNamed(name))
            files.append(fileName(name));
    }
    files.removeDuplicates();
    files.removeIf([&folder](const QString &name) { return folder.existingFile({}, name).isEmpty(); });
    return files;
}

QStringList PersonFiles::pictures(const DataFolder &folder)
{
    const PictureFolder places(folder);
    QStringList pictures;
    const PersonFiles persons(folder);
    for (const QString &name : persons.names()) {
        const WeightSheet sheet = persons.read(name).sheet;
        for (const QString &stored : {sheet.beginningPicture, sheet.currentPicture}) {
            if (const QString path = stored.isEmpty() ? QString() : places.locate(stored); !path.isEmpty())
                pictures.append(path);
        }
    }
    pictures.removeDuplicates();
    return pictures;
}

void PersonFiles::writeList(WholeFilesChange &change, const QStringList &names) const
{
    change.replace(m_folder, PersonList::fileName(), PersonList::encode(names));
}

void PersonFiles::renameTold(WholeFilesChange &change, const QString &name, const QString &after) const
{
    QStringList told = ToldFigures::names(m_folder);
    const int place = PersonList::place(told, name);
    if (place == 0)
        return;
    if (after.isEmpty())
        told.removeAt(place - 1);
    else
        told[place - 1] = after;
    change.replace(m_folder, ToldFigures::fileName(), PersonList::encode(told));
}

std::optional<WholeFilesChange> PersonFiles::done(WholeFilesChange change) const
{
    if (!change.isEmpty() && !change.commit(m_folder))
        return {};
    return change;
}
