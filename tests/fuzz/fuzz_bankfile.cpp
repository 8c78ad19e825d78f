// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/bankimport.h"
#include "fuzztarget.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr int year = 2026;
    Spending spending;
    spending.amounts = {{QDate(year, 3, 14), 4250, QStringLiteral("Food"), {}}};
    spending.rules = {{QStringLiteral("market"), QStringLiteral("Food")}};
    BankImport import(asBytes(data, size).toByteArray(), year, DateStyle::Usa, spending);
    std::size_t steps = 0;
    while (import.step())
        require(++steps <= 4 * size + 16, "reading comes to an end");
    require(import.lines().size() <= size, "no line comes from nothing");
    int last = 0;
    for (const BankLine &line : import.lines()) {
        require(line.number > last, "lines are counted on");
        last = line.number;
        require(line.state != BankLine::NotRead || !line.problem.isEmpty(),
                "a line that cannot be read says why");
        require(!line.isChosen || line.state == BankLine::Ready || line.isByHand ||
                    line.state == BankLine::NoItem,
                "only what is spending is taken");
    }
    for (const SpentAmount &amount : import.amounts())
        require(amount.date.year() == year, "what is taken is of the year");
    require(int(import.amounts().size()) == import.chosenCount(), "the count is that of the lines");
    return 0;
}
