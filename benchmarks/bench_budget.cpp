// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks/limit.h"
#include "budget/model/amount.h"
#include "budget/model/budgetfigures.h"

#include <benchmark/benchmark.h>

#include <charconv>
#include <string>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

/// All 50 rows in use, with an amount in each month.
BudgetSheet fullSheet()
{
    BudgetSheet sheet;
    int number = 7;
    for (BudgetSheet::Row &row : sheet.rows) {
        row.item = u"Item %1"_s.arg(number);
        for (QString &amount : row.amounts) {
            number = number * 7919 % 99991;
            amount = Amount::text(number / 100.0);
        }
    }
    sheet.incomes.fill(u"2500.00"_s);
    return sheet;
}

void recomputeASheet(benchmark::State &state)
{
    constexpr double most = 4;
    constexpr int runs = 200; // one takes microseconds
    const BudgetSheet sheet = fullSheet();
    std::vector<std::string> texts;
    for (const BudgetSheet::Row &row : sheet.rows) {
        for (const QString &amount : row.amounts)
            texts.push_back(amount.toStdString());
    }
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] {
            for (int run = 0; run < runs; ++run) {
                float sum = 0;
                for (const std::string &text : texts) {
                    float amount = 0;
                    std::from_chars(text.data(), text.data() + text.size(), amount);
                    sum += amount;
                }
                benchmark::DoNotOptimize(sum);
            }
        });
        limit.measure([&] {
            for (int run = 0; run < runs; ++run)
                benchmark::DoNotOptimize(BudgetFigures::of(sheet));
        });
    }
}
BENCHMARK(recomputeASheet)->UseManualTime()->MinTime(1);

} // namespace

BENCHMARK_MAIN();
