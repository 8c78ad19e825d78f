// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressentry.h"
#include "addressbook/model/indexline.h"
#include "addressbook/model/namelist.h"
#include "fuzztarget.h"
#include "storage/recordvalue.h"

#include <algorithm>

namespace {

constexpr qsizetype lineRecordLength = 60;

/// The bytes as a record of the index file.
void tryLine(QByteArrayView record, const AddressEntry &entry)
{
    const QByteArrayView bytes = RecordValue::textBytes(record);
    const QString line = RecordValue::decodeText(record);
    require(IndexLine::record(bytes) == IndexLine::record(line),
            "a line leads to one record, read either way");
    require(IndexLine::record(line) >= 0, "no record is below 0");
    require(IndexLine::isDeleted(bytes) == IndexLine::isDeleted(line), "a line is deleted, read either way");
    require(QStringView(line).startsWith(IndexLine::name(line)), "the name starts the line");
    IndexLine::belongs(line, entry);

    NameList names;
    names.append(bytes);
    names.append(line);
    require(names.line(0) == line && names.line(1) == line, "a list gives its lines back");
    require(names.find(line) == 0, "a line is found by its text");
    require(names.find(line.toUpper().left(line.size() / 2)) <= 0, "nothing but the first match is found");
    names.removeAt(0);
    require(names.count() == 1 && names.line(0) == line, "a list keeps what is not removed");
}

/// The bytes as a record of the entries.
AddressEntry tryEntry(QByteArrayView record)
{
    const AddressEntry entry = addressLayout.decode(record);
    const QByteArray bytes = addressLayout.encode(entry);
    require(bytes.size() == addressLayout.size(), "an entry has the length of its record");
    require(addressLayout.decode(bytes) == entry, "an entry comes back");

    constexpr int number = 50001;
    const QString line = IndexLine::make(entry[LastName], entry[FirstName], number);
    require(IndexLine::belongs(line, entry), "a line belongs to the entry that it was made of");
    require(!IndexLine::fits(entry[LastName], entry[FirstName]) || IndexLine::record(line) == number,
            "a line that fits leads to its record");
    entry.fullName();
    return entry;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView bytes = asBytes(data, size);
    const AddressEntry entry = tryEntry(bytes.first(std::min(bytes.size(), addressLayout.size())));
    tryLine(bytes.first(std::min(bytes.size(), lineRecordLength)), entry);
    return 0;
}
