// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/budgetnews.h"

#include "budget/model/amount.h"
#include "budget/model/budgetfigures.h"
#include "budget/model/budgetfiles.h"
#include "budget/model/spendingfiles.h"
#include "shell/core/dates.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int daysOverdue = 31; ///< nobody wants to hear of older ones
constexpr int december = 12;

bool hasFigures(const BudgetSheet &sheet, std::size_t month)
{
    return Amount::stored(sheet.incomes[month]) > 0 ||
           std::ranges::any_of(sheet.rows, [month](const BudgetSheet::Row &row) {
               return Amount::stored(row.amounts[month]) > 0;
           });
}

/// The notes of one year.
class YearNotes
{
public:
    YearNotes(const DataFolder &folder, int year, DateStyle style, QDate today)
        : m_year(year)
        , m_style(style)
        , m_today(today)
        , m_spending(SpendingFiles(folder).read(year).spending)
    {
        if (!m_spending.dueDays.isEmpty())
            m_sheet = BudgetFiles(folder).read(year).sheet;
    }

    void add(QDate from, QDate to, QList<DayNote> &notes) const
    {
        if (m_spending.dueDays.isEmpty())
            return;
        const SpentSums sums = SpentSums::of(m_sheet, m_spending.amounts);
        const BudgetItems items(m_sheet);
        for (const DueDay &due : m_spending.dueDays) {
            const int row = items.row(due.item);
            for (std::size_t month = 0; row >= 0 && month < BudgetSheet::monthCount; ++month)
                add(due, row, month, sums.rows[std::size_t(row)][month], from, to, notes);
        }
    }

private:
    void add(const DueDay &due, int row, std::size_t month, qint64 spent, QDate from, QDate to,
             QList<DayNote> &notes) const
    {
        const qint64 planned = centsOf(m_sheet.rows[std::size_t(row)].amounts[month]);
        if (planned <= 0)
            return;
        const QDate date = BudgetNews::dueDate(m_year, int(month) + 1, due.day);
        const bool isDone = spent >= planned || m_spending.isPaid(due.item, int(month) + 1);
        const qint64 daysAgo = date.daysTo(m_today);
        if (!isDone && daysAgo > daysOverdue)
            return;
        const bool isOverdue = !isDone && daysAgo > 0;
        const bool isMoved = isOverdue && date < from && m_today >= from;
        const QDate shown = isMoved ? m_today : date;
        if (shown < from || shown > to)
            return;
        const QString words = isDone      ? u", paid"_s
                              : isMoved   ? u", overdue since "_s + Dates::shortText(date, m_style)
                              : isOverdue ? u", overdue"_s
                                          : u", due"_s;
        // Of what was spent in part the rest is told.
        const qint64 amount = isDone ? planned : planned - std::max(qint64(0), spent);
        notes.append({shown,
                      due.item + u": "_s + centsText(amount) + words,
                      u"Personal Budget"_s,
                      isDone      ? NoteKind::Done
                      : isOverdue ? NoteKind::Overdue
                                  : NoteKind::Due,
                      {},
                      {.date = date, .row = row},
                      due.item.size()});
    }

    int m_year;
    DateStyle m_style;
    QDate m_today;
    Spending m_spending;
    BudgetSheet m_sheet;
};

} // namespace

std::optional<qint64> BudgetNews::left(const BudgetSheet &sheet, const SpentSums &spent, std::size_t month)
{
    if (!hasFigures(sheet, month) && !spent.hasAny(month))
        return {};
    const float balance = BudgetFigures::of(sheet).months[month].balance;
    qint64 left = qint64(std::llround(Amount::rounded(double(balance)) * 100));
    for (std::size_t row = 0; row < BudgetSheet::rowCount; ++row)
        left -= std::max(qint64(0), spent.rows[row][month] -
                                        std::max(qint64(0), centsOf(sheet.rows[row].amounts[month])));
    return left - spent.noRow[month];
}

QString BudgetNews::leftText(qint64 cents)
{
    return cents < 0 ? centsText(-cents) + u" over"_s : centsText(cents) + u" left"_s;
}

std::optional<LiveLine> BudgetNews::liveLine(const DataFolder &folder, QDate today)
{
    const BudgetFiles files(folder);
    const BudgetSheet sheet = files.read(today.year()).sheet;
    const SpentSums spent = SpentSums::of(sheet, SpendingFiles(folder).read(today.year()).spending.amounts);
    if (const auto cents = left(sheet, spent, std::size_t(today.month() - 1)))
        return LiveLine{.text = QLocale::c().monthName(today.month()) + u": "_s + leftText(*cents),
                        .urgency = *cents < 0 ? LiveLine::Overdue : LiveLine::Plain,
                        .sentence = {},
                        .shorter = {QLocale::c().monthName(today.month(), QLocale::ShortFormat) + u": "_s +
                                        leftText(*cents),
                                    leftText(*cents)}};
    if (today.month() == december && !files.has(today.year() + 1))
        return LiveLine{
            u"No budget for "_s + QString::number(today.year() + 1) + u" yet"_s, LiveLine::Plain, {}};
    return {};
}

QList<DayNote> BudgetNews::dayNotes(const DataFolder &folder, DateStyle style, QDate from, QDate to,
                                    QDate today)
{
    QList<DayNote> notes;
    if (!from.isValid() || !to.isValid() || from > to)
        return notes;
    // What fell due before the first day may have to be told on it.
    const QDate first = from <= today ? from.addDays(-daysOverdue) : from;
    for (int year = std::max(first.year(), BudgetFiles::firstYear);
         year <= std::min(to.year(), BudgetFiles::lastYear); ++year)
        YearNotes(folder, year, style, today).add(from, to, notes);
    std::ranges::stable_sort(notes, {}, &DayNote::date);
    return notes;
}

QStringList BudgetNews::liveFiles(QDate today)
{
    QStringList files;
    for (int year = today.year() - 1; year <= today.year() + 1; ++year)
        files << BudgetFiles::fileName(year) << SpendingFiles::fileName(year);
    return files;
}

QStringList BudgetNews::files(const DataFolder &folder)
{
    QStringList files;
    for (const int year : BudgetFiles(folder).years())
        files << BudgetFiles::fileName(year);
    for (const int year : SpendingFiles(folder).years())
        files << SpendingFiles::fileName(year);
    return files;
}

QDate BudgetNews::dueDate(int year, int month, int dueDay)
{
    const QDate first(year, month, 1);
    return first.addDays(std::min(dueDay, first.daysInMonth()) - 1);
}
