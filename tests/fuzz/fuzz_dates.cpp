// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzztarget.h"
#include "shell/core/dates.h"
#include "storage/ansitext.h"

namespace {

void tryDate(const QString &text, DateStyle style, QDate today)
{
    const std::optional<QDate> date = Dates::parse(text, style, today);
    if (!date)
        return;
    require(date->isValid(), "a text gives a date or none");
    require(Dates::parse(Dates::boxText(*date, style), style, today) == date,
            "a date comes back from its box");
    require(!Dates::longText(*date, style).isEmpty() && !Dates::numbers(*date, style).isEmpty(),
            "a date has its words");
    const QDate next = Dates::nextAnniversary(*date, today);
    require(next >= today && next <= today.addYears(1), "an anniversary comes within a year");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = AnsiText::decode(asBytes(data, size));
    for (const DateStyle style : {DateStyle::Usa, DateStyle::Other})
        tryDate(text, style, QDate(2026, 11, 22));
    return 0;
}
