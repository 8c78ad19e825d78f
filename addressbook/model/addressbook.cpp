// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressbook.h"

#include "addressbook/model/indexline.h"
#include "storage/ansitext.h"
#include "storage/changeset.h"
#include "storage/recordvalue.h"

#include <algorithm>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype lineRecordLength = 60;
static_assert(lineRecordLength - 2 == IndexLine::maximumLength);

constexpr QLatin1StringView entriesName("Addbk1.Fil");
constexpr QLatin1StringView indexName("Addbk2.Fil");

/// Whose things in the trash are this book's.
constexpr QLatin1StringView trashKind("AddressBook");

constexpr QByteArrayView deletedName("*****");

bool isDeleted(QByteArrayView record)
{
    return record.startsWith("****");
}

/// The byte at `position`; zero where the record is cut short.
char byteAt(QByteArrayView record, qsizetype position)
{
    return position < record.size() ? record[position] : '\0';
}

/// A last name without outer blanks counts as never written when it still has its 40 bytes: never written
/// means 40 zero bytes. A name that fills the field counts too; that is the rule of the file, and why the
/// entry box takes 39.
bool isFree(QByteArrayView record)
{
    return isDeleted(record) || (byteAt(record, 0) != ' ' && byteAt(record, addressTextWidth - 1) != ' ');
}

bool isEntry(QByteArrayView record)
{
    return byteAt(record, 0) != '\0' && !isDeleted(record);
}

QByteArray deletedEntry()
{
    AddressEntry cleared;
    cleared[LastName] = QString::fromLatin1(deletedName);
    return addressLayout.encode(cleared);
}

QByteArray deletedLine()
{
    return *RecordValue::encodeText(IndexLine::deletionMark(), lineRecordLength);
}

/// Where the file ends before the record, a deleted one comes back: files never shrink, and a line of zeros
/// in the first record would be listed.
void put(RecordChange &change, const RecordFile &file, int record, QByteArrayView after,
         QByteArrayView deleted)
{
    if (file.recordCount() < record)
        change.write(file, record, after, deleted);
    else
        change.write(file, record, after);
}

bool isEntryRecord(int record)
{
    return record >= AddressBook::firstRecord && record <= AddressBook::overflowRecord;
}

/// Whether the trash has a whole entry of this book here.
bool isBroughtBack(const Trash::Item &item)
{
    return !item.pieces.empty() && item.pieces.front().file == entriesName &&
           item.pieces.front().bytes.size() <= addressLayout.size() && isEntry(item.pieces.front().bytes);
}

/// It names the entry as the file will hold it: composed, and cut to the width of its fields.
QString lineOf(int record, QByteArrayView entryBytes)
{
    const AddressEntry stored = addressLayout.decode(entryBytes);
    return IndexLine::make(stored[LastName], stored[FirstName], record);
}

AddressEntry withPictureMark(AddressEntry entry)
{
    if (!entry.hasPicture())
        entry.picture = noPicture;
    return entry;
}

} // namespace

AddressBook::AddressBook(const DataFolder &folder)
    : m_folder(folder)
{}

NameList AddressBook::loadNames() const
{
    RecordFile lines = index();
    lines.create();
    const QByteArray records = lines.read(firstRecord, overflowRecord);
    NameList names(records);
    for (qsizetype at = 0; at < records.size(); at += lineRecordLength) {
        const qsizetype length = std::min(lineRecordLength, records.size() - at);
        const QByteArrayView line = RecordValue::textBytes(QByteArrayView(records).sliced(at, length));
        const bool isFirst = at == 0;
        if ((isFirst || !line.isEmpty()) && !IndexLine::isDeleted(line))
            names.list(line.isEmpty() ? at : line.data() - records.constData(), line.size());
    }
    names.squeeze();
    return names;
}

AddressEntry AddressBook::read(int record) const
{
    if (!isEntryRecord(record))
        return {};
    RecordFile file = entries();
    file.create();
    return addressLayout.decode(file.read(record));
}

AddressBook::Reader::Reader(const AddressBook &book)
    : m_file(book.entries())
{}

AddressEntry AddressBook::Reader::read(int record)
{
    return isEntryRecord(record) ? addressLayout.decode(m_file.read(record)) : AddressEntry();
}

AddressBook::Found AddressBook::open(QStringView line) const
{
    Found found;
    found.record = IndexLine::record(line);
    found.entry = addressLayout.decode(liveEntry(found.record));
    found.mayChange = isEntryRecord(found.record) && (IndexLine::belongs(line, found.entry) ||
                                                      isOutgrownLine(found.record, line, found.entry));
    found.isStray = !found.mayChange && found.entry.isEmpty() && strayRecord(line) > 0;
    return found;
}

int AddressBook::nextFreeRecord(int first) const
{
    const RecordFile file = entries();
    const int last = std::min(file.recordCount(), overflowRecord);
    int visited = first - 1;
    bool isFound = false;
    file.forEach(first, [&](int record, QByteArrayView bytes) {
        if (record > last)
            return false;
        visited = record;
        isFound = isFree(bytes);
        return !isFound;
    });
    if (isFound)
        return visited;
    // Stopped before the end: nobody knows what the rest holds, and a guess could overwrite an entry.
    if (visited < last)
        return 0;
    return visited + 1;
}

AddressBook::SaveResult AddressBook::saveNew(const AddressEntry &entry, int begunRecord)
{
    SaveResult result;
    result.record = begunRecord;
    // One that was refused in the middle is finished first: saved once more, it would be there twice.
    if (ChangeSet::isPending(m_folder) && !ChangeSet::recover(m_folder))
        return result;
    const int record = begunRecord > 0 ? begunRecord : nextFreeRecord();
    result.isBookFull = record > overflowRecord;
    if (result.isBookFull)
        return result;
    result = write(record, entry);
    if (!result.isSaved && !ChangeSet::isPending(m_folder))
        result.record = begunRecord;
    return result;
}

AddressBook::SaveResult AddressBook::saveChanged(int record, const AddressEntry &entry)
{
    return write(record, entry);
}

std::optional<RecordChange> AddressBook::remove(int record, const QDateTime &now)
{
    if (!isEntryRecord(record))
        return {};
    RecordChange change;
    if (const QByteArray entry = liveEntry(record); !entry.isEmpty())
        change.throwAway({trashKind,
                          now,
                          addressLayout.decode(entry).fullName(),
                          {{entriesName, record, entry}, {indexName, record, index().read(record)}}});
    change.write(entries(), record, deletedEntry());
    change.write(index(), record, deletedLine());
    return change.commit(m_folder) ? std::optional(change) : std::nullopt;
}

std::optional<RecordChange> AddressBook::removeStray(QStringView line)
{
    const int record = strayRecord(line);
    if (record == 0)
        return {};
    RecordChange change;
    change.write(index(), record, deletedLine());
    return change.commit(m_folder) ? std::optional(change) : std::nullopt;
}

void AddressBook::forEachLive(const std::function<bool(int, const AddressEntry &)> &visit) const
{
    forEachLiveRecord(
        [&visit](int record, QByteArrayView bytes) { return visit(record, addressLayout.decode(bytes)); });
}

void AddressBook::forEachLiveRecord(const std::function<bool(int, QByteArrayView)> &visit) const
{
    forEachRecord(false, visit);
}

void AddressBook::forEachReadableRecord(const std::function<bool(int, QByteArrayView)> &visit) const
{
    forEachRecord(true, visit);
}

void AddressBook::forEachRecord(bool isLiveBeyondIndex,
                                const std::function<bool(int, QByteArrayView)> &visit) const
{
    std::vector<bool> isLive;
    index().forEach(1, [&](int record, QByteArrayView bytes) {
        const QByteArrayView line = RecordValue::textBytes(bytes);
        const bool isCut = isLiveBeyondIndex && bytes.size() < lineRecordLength;
        isLive.push_back(record >= firstRecord && (isCut || !line.isEmpty()) && !IndexLine::isDeleted(line));
        return record < overflowRecord;
    });
    entries().forEach(firstRecord, [&](int record, QByteArrayView bytes) {
        const auto at = std::size_t(record - 1);
        if (record > overflowRecord || (at >= isLive.size() && !isLiveBeyondIndex))
            return false;
        const bool isHere = at >= isLive.size() || isLive[at];
        return !isHere || !isEntry(bytes) || visit(record, bytes);
    });
}

AddressBook::SaveResult AddressBook::write(int record, const AddressEntry &entry)
{
    return write(record, addressLayout.encode(withPictureMark(entry)), {}, {});
}

AddressBook::SaveResult AddressBook::write(int record, QByteArrayView entryBytes, QByteArrayView keptLine,
                                           RecordChange change)
{
    if (!isEntryRecord(record))
        return {};
    SaveResult result;
    result.record = record;
    if (keptLine.isEmpty()) {
        result.line = lineOf(record, entryBytes);
        result.isLineTooLong = !RecordValue::encodeText(result.line, lineRecordLength);
        add(change, record, entryBytes);
    } else {
        result.line = RecordValue::decodeText(keptLine);
        put(change, entries(), record, entryBytes, deletedEntry());
        put(change, index(), record, keptLine, deletedLine());
    }
    result.isSaved = change.commit(m_folder);
    result.change = std::move(change);
    return result;
}

void AddressBook::add(RecordChange &change, int record, QByteArrayView entryBytes) const
{
    put(change, entries(), record, entryBytes, deletedEntry());
    if (const auto line = RecordValue::encodeText(lineOf(record, entryBytes), lineRecordLength))
        put(change, index(), record, *line, deletedLine());
}

std::vector<Trash::Item> AddressBook::deletedEntries(const QDateTime &now) const
{
    std::vector<Trash::Item> items = Trash(m_folder).items(trashKind, now);
    std::erase_if(items, [](const Trash::Item &item) { return !isBroughtBack(item); });
    return items;
}

AddressBook::SaveResult AddressBook::bringBack(const Trash::Item &item)
{
    if (!isBroughtBack(item))
        return {};
    const int own = item.pieces.front().number;
    const int record = isRecordFree(own) ? own : nextFreeRecord();
    if (record > overflowRecord) {
        SaveResult result;
        result.isBookFull = true;
        return result;
    }
    RecordChange change;
    change.bringBack(item);
    const bool isLineKept = record == own && item.pieces.size() > 1;
    return write(record, item.pieces.front().bytes, isLineKept ? item.pieces[1].bytes : QByteArray(), change);
}

bool AddressBook::isRecordFree(int record) const
{
    const QByteArray line = RecordValue::textBytes(index().read(record)).toByteArray();
    return isEntryRecord(record) && record <= entries().recordCount() && isFree(entries().read(record)) &&
           (line.isEmpty() || IndexLine::isDeleted(QByteArrayView(line)));
}

QByteArray AddressBook::liveEntry(int record) const
{
    if (!isEntryRecord(record))
        return {};
    RecordFile file = entries();
    file.create();
    const QByteArray bytes = file.read(record);
    return isEntry(bytes) && !addressLayout.decode(bytes).isEmpty() ? bytes : QByteArray();
}

int AddressBook::strayRecord(QStringView line) const
{
    const QByteArray wanted = AnsiText::encode(line);
    int found = 0;
    index().forEach(firstRecord, [&](int record, QByteArrayView bytes) {
        if (RecordValue::textBytes(bytes) == wanted && liveEntry(record).isEmpty())
            found = record;
        // An empty line is listed in the first record only.
        return found == 0 && !wanted.isEmpty() && record < overflowRecord;
    });
    return found;
}

bool AddressBook::isOutgrownLine(int record, QStringView line, const AddressEntry &entry) const
{
    return IndexLine::make(entry[LastName], entry[FirstName], record).size() > IndexLine::maximumLength &&
           RecordValue::decodeText(index().read(record)) == line;
}

bool AddressBook::visitLiveRecords(int first, int last,
                                   const std::function<void(int, QByteArrayView)> &visit) const
{
    const RecordFile lines = index();
    const RecordFile records = entries();
    const QByteArray lineBytes = lines.read(first, last);
    const QByteArray recordBytes = records.read(first, last);
    const auto recordOf = [](QByteArrayView bytes, qsizetype at, qsizetype length) {
        const qsizetype offset = std::min(at * length, bytes.size());
        return bytes.sliced(offset, std::min(length, bytes.size() - offset));
    };
    for (int record = first; record <= last; ++record) {
        const QByteArrayView line =
            RecordValue::textBytes(recordOf(lineBytes, record - first, lines.recordLength()));
        const QByteArrayView bytes = recordOf(recordBytes, record - first, records.recordLength());
        if (!line.isEmpty() && !IndexLine::isDeleted(line) && isEntry(bytes))
            visit(record, bytes);
    }
    return recordBytes.size() > (qsizetype(last) - first) * records.recordLength();
}

QStringList AddressBook::fileNames()
{
    return {entriesName, indexName};
}

RecordFile AddressBook::entries() const
{
    return RecordFile(m_folder, entriesName, addressLayout.size());
}

RecordFile AddressBook::index() const
{
    return RecordFile(m_folder, indexName, lineRecordLength);
}
