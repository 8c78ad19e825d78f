// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzztarget.h"
#include "weight/model/personfiles.h"
#include "weight/model/personlist.h"
#include "weight/model/weightentry.h"
#include "weight/model/weightnumbers.h"

namespace {

void tryText(const QString &text)
{
    const float number = WeightNumbers::number(text).value_or(1);
    require(number > 0 && number <= 100'000, "a weight is above 0");
    const QDate today(2026, 11, 22);
    for (const auto entry : {WeightEntry::tableDate, WeightEntry::sheetDate}) {
        const QString date = entry(text, {}, WeightEntry::DateChecker::Off, today).text;
        require(entry(date, {}, WeightEntry::DateChecker::Off, today).text == date,
                "a date that was taken is taken again");
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView bytes = asBytes(data, size);
    const QStringList names = PersonList::decode(bytes);
    for (const QString &name : names)
        require(PersonList::place(names, name) > 0, "a name is found");
    if (!names.isEmpty())
        require(PersonFiles::fileName(names.front()).endsWith(QStringLiteral(".Fil")), "a name names a file");

    const PersonFiles::Found found = PersonFiles::decode(bytes);
    require(found.sheet.weighIns.rowCount() + found.uncounted.rowCount() <= bytes.size(),
            "no row comes from nothing");
    for (const QString &field : found.sheet.fields)
        tryText(field);
    const QByteArray written = PersonFiles::encode(found.sheet);
    const PersonFiles::Found again = PersonFiles::decode(written);
    require(again.state == PersonFiles::State::Whole && again.uncounted.isEmpty(), "a file holds all values");
    require(PersonFiles::encode(again.sheet) == written, "a sheet comes back");
    return 0;
}
