// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/daterule.h"
#include "calendar/model/holidayfile.h"
#include "fuzztarget.h"

namespace {

const QDate from(2026, 12, 1), to(2028, 2, 29);

void tryRule(QStringView text)
{
    const auto rule = DateRule::parse(text);
    if (!rule)
        return;
    require(DateRule::parse(rule->text()) == rule, "a rule comes back");
    QDate last = from;
    for (const DateRule::Day &day : rule->days(from, to, [](QDate date) { return date.day() % 2 == 0; })) {
        require(day.date >= last && day.date <= to, "days are in order and asked for");
        last = day.date;
    }
}

} // namespace

/// A rule in each line, and a file of sets.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = asBytes(data, size).toByteArray();
    for (const QByteArray &line : bytes.split('\n'))
        tryRule(QString::fromUtf8(line));
    const HolidayFile file = HolidayFile::read(bytes);
    for (const HolidaySet &set : file.sets) {
        for (const HolidayDay &day : set.days(from, to))
            require(day.date >= from && day.date <= to, "days are asked for");
    }
    if (file.form == TabLine::Known) {
        const HolidayFile again = HolidayFile::read(file.bytes());
        require(again.sets == file.sets && again.head == file.head, "the sets come back");
        require(again.bytes() == file.bytes(), "and stay as they are");
    }
    return 0;
}
