// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/spendingfiles.h"
#include "fuzztarget.h"

#include <algorithm>

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr int year = 2026;
    const SpendingFiles::Found found = SpendingFiles::decode(asBytes(data, size).toByteArray(), year);
    if (!found.mayBeWritten())
        return 0;
    for (const SpentAmount &amount : found.spending.amounts)
        require(amount.date.year() == year, "an amount is of its file's year");
    for (const DueDay &due : found.spending.dueDays)
        require(due.day >= 1 && due.day <= 31, "a due day is a day of a month");
    for (const PaidMark &mark : found.spending.paid)
        require(mark.month >= 1 && mark.month <= 12, "a mark is of a month");

    const QByteArray written = SpendingFiles::encode(found.spending);
    const SpendingFiles::Found again = SpendingFiles::decode(written, year);
    require(again.spending == found.spending, "what was spent comes back");
    require(SpendingFiles::encode(again.spending) == written, "a second save changes nothing");
    return 0;
}
