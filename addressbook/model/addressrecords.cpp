// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressrecords.h"

#include "addressbook/model/entrylines.h"
#include "shell/core/bringingback.h"
#include "storage/ansitext.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArrayView fieldOf(QByteArrayView record, AddressField field)
{
    const QByteArrayView bytes = record.sliced(field * addressTextWidth, addressTextWidth);
    const qsizetype zero = bytes.indexOf('\0');
    return (zero < 0 ? bytes : bytes.first(zero)).trimmed();
}

/// "Anne Miller", as `AddressEntry::fullName` has it, without decoding all of the entry.
QString nameOf(QByteArrayView record)
{
    std::array<char, std::size_t(2 * addressTextWidth + 1)> name{};
    char *end = std::ranges::copy(fieldOf(record, FirstName), name.data()).out;
    *end++ = ' ';
    end = std::ranges::copy(fieldOf(record, LastName), end).out;
    return AnsiText::decode(QByteArrayView(name.data(), end).trimmed());
}

} // namespace

AddressRecords::AddressRecords(const DataFolder &folder)
    : m_folder(folder)
{}

QString AddressRecords::counted(int count) const
{
    return BringingBack::counted(count, u"address"_s, u"addresses"_s);
}

void AddressRecords::forEach(const std::function<bool(const Found &)> &visit) const
{
    const AddressBook book(m_folder);
    QSet<std::size_t> names; // of many thousand, what they come to is told apart faster than the texts
    names.reserve(std::min(book.entries().recordCount(), AddressBook::overflowRecord));
    book.forEachReadableRecord([&](int record, QByteArrayView bytes) {
        const QByteArray whole = bytes.size() < addressLayout.size()
                                     ? addressLayout.encode(addressLayout.decode(bytes))
                                     : QByteArray();
        Found found{record, {}, {}, whole.isEmpty() ? bytes : QByteArrayView(whole)};
        found.name = nameOf(found.bytes);
        const qsizetype known = names.size();
        names.insert(qHashBits(found.name.constData(), std::size_t(found.name.size()) * sizeof(QChar), 1));
        found.key = names.size() > known ? found.name : found.name + u'\n' + QString::number(record);
        return visit(found);
    });
}

std::vector<FunctionRecord> AddressRecords::all() const
{
    std::vector<FunctionRecord> records;
    records.reserve(
        std::size_t(std::min(AddressBook(m_folder).entries().recordCount(), AddressBook::overflowRecord)));
    forEach([&records](const Found &found) {
        records.push_back({found.key, titleOf(found), BringingBack::markOf(found.bytes)});
        return true;
    });
    return records;
}

void AddressRecords::visitAll(const std::function<void(const FunctionRecord &)> &visit) const
{
    forEach([&visit](const Found &found) {
        visit({found.key, titleOf(found), QByteArray::fromRawData(found.bytes.data(), found.bytes.size())});
        return true;
    });
}

QString AddressRecords::titleOf(const Found &found)
{
    return found.name.isEmpty() ? u"Without a name"_s : found.name;
}

QStringList AddressRecords::linesOf(const Found &found)
{
    QStringList lines;
    const AddressEntry entry = addressLayout.decode(found.bytes);
    for (int field = LastName; field < AddressFieldCount; ++field) {
        const AddressField labelled = field == Address2 ? Address1 : AddressField(field);
        BringingBack::addLine(lines, addressLabel(labelled), entry[AddressField(field)]);
    }
    BringingBack::addLine(lines, u"Picture:"_s, entry.hasPicture() ? entry.picture : QString());
    return lines;
}

QStringList AddressRecords::lines(const QString &key) const
{
    QStringList lines;
    forEach([&](const Found &found) {
        if (found.key != key)
            return true;
        lines = linesOf(found);
        return false;
    });
    return lines;
}

void AddressRecords::visitLines(
    const std::function<bool(const FunctionRecord &record, const QStringList &lines)> &visit) const
{
    forEach([&](const Found &found) { return visit({found.key, titleOf(found), {}}, linesOf(found)); });
}

AddressRecords::Here AddressRecords::here() const
{
    Here here;
    forEach([&here](const Found &found) {
        here.names.insert(found.record, found.name);
        here.marks.insert(found.key, BringingBack::markOf(found.bytes));
        return true;
    });
    return here;
}

std::vector<AddressRecords::Wanted> AddressRecords::wanted(const QStringList &keys) const
{
    std::vector<Wanted> wanted;
    const QSet<QString> asked(keys.begin(), keys.end());
    forEach([&](const Found &found) {
        if (asked.contains(found.key))
            wanted.push_back({found.record, found.key, found.name, found.bytes.toByteArray()});
        return qsizetype(wanted.size()) < asked.size();
    });
    return wanted;
}

RecordsBack AddressRecords::bringBack(const FunctionRecords &from, const QStringList &keys)
{
    const auto *source = dynamic_cast<const AddressRecords *>(&from);
    if (!source)
        return {};
    if (const QString why = BringingBack::whyNot(m_folder); !why.isEmpty())
        return BringingBack::refused(why);
    const Here here = this->here();
    const AddressBook book(m_folder);
    const auto change = std::make_shared<RecordChange>();
    QStringList back;
    QStringList names;
    int free = AddressBook::firstRecord - 1;
    for (const Wanted &entry : source->wanted(keys)) {
        back.append(entry.key);
        if (here.marks.value(entry.key) == BringingBack::markOf(entry.bytes))
            continue;
        const auto same = here.names.find(entry.record);
        const bool isHere = same != here.names.end() && *same == entry.name;
        if (!isHere)
            free = book.nextFreeRecord(free + 1);
        if (free == 0 || free > AddressBook::overflowRecord)
            return BringingBack::refused(free == 0
                                             ? BringingBack::unreadable(AddressBook::fileNames().first())
                                             : AddressLines::bookIsFull());
        book.add(*change, isHere ? entry.record : free, entry.bytes);
        names.append(entry.name);
    }
    if (names.isEmpty())
        return {back, {}, {}};
    const QString what = names.size() == 1 ? names.first() : counted(int(names.size()));
    return BringingBack::done(change, m_folder, back, what);
}
