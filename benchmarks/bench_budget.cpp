// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarks/limit.h"
#include "budget/model/amount.h"
#include "budget/model/budgetfigures.h"
#include "budget/model/spendingfiles.h"

#include <QFile>
#include <QTemporaryDir>

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

/// A year's file with as many amounts as a busy household enters.
void fillSpending(const DataFolder &folder, int year)
{
    constexpr int amountCount = 5000;
    Spending spending;
    for (int number = 0; number < amountCount; ++number) {
        const QDate date = QDate(year, 1, 1).addDays(number * 365 / amountCount);
        const QString note = u"Corner market, receipt %1"_s.arg(number);
        spending.amounts.append({date, 100 + number * 37 % 9000, u"Item %1"_s.arg(number % 40), note});
    }
    QFile file(folder.filePath(SpendingFiles::fileName(year)));
    if (!file.open(QIODevice::WriteOnly) || file.write(SpendingFiles::encode(spending)) < amountCount)
        qFatal("cannot write what was spent");
}

void loadWhatWasSpent(benchmark::State &state)
{
    constexpr double most = 6;
    constexpr int year = 2026;
    const QTemporaryDir temporary;
    const DataFolder folder(temporary.path());
    fillSpending(folder, year);
    Limit limit(state, most);
    for ([[maybe_unused]] const auto _ : state) {
        limit.reference([&] {
            QFile file(folder.filePath(SpendingFiles::fileName(year)));
            if (!file.open(QIODevice::ReadOnly))
                qFatal("no file");
            benchmark::DoNotOptimize(file.readAll().split('\n'));
        });
        limit.measure([&] { benchmark::DoNotOptimize(SpendingFiles(folder).read(year)); });
    }
}
BENCHMARK(loadWhatWasSpent)->UseManualTime()->MinTime(1);

} // namespace

BENCHMARK_MAIN();
