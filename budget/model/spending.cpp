// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/spending.h"

#include "budget/model/amount.h"
#include "budget/model/spentlines.h"

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Renaming {
    QString from;
    QString to;
};

/// The items that another name took the place of. Of two rows of one item only the first can rename it.
QList<Renaming> renamings(const BudgetSheet &before, const BudgetSheet &after)
{
    const BudgetItems former(before);
    const BudgetItems present(after);
    QList<Renaming> renamed;
    int changes = 0;
    for (std::size_t row = 0; row < BudgetSheet::rowCount; ++row) {
        const QString from = before.rows[row].item.trimmed();
        const QString to = after.rows[row].item.trimmed();
        if (from == to)
            continue;
        ++changes;
        if (!to.isEmpty() && former.row(from) == int(row))
            renamed.append({from, to});
    }
    // With several, a name that stood elsewhere before was moved.
    if (changes > 1)
        renamed.removeIf(
            [&](const Renaming &one) { return former.row(one.to) >= 0 || present.row(one.from) >= 0; });
    return renamed;
}

} // namespace

const FileText &Spending::paidNote()
{
    static const FileText note(u"Paid"_s);
    return note;
}

int Spending::dueDay(const QString &item) const
{
    const auto found = std::ranges::find(dueDays, item, &DueDay::item);
    return found == dueDays.end() ? 0 : found->day;
}

void Spending::setDueDay(const QString &item, int day)
{
    const auto found = std::ranges::find(dueDays, item, &DueDay::item);
    if (day == 0)
        dueDays.removeIf([&item](const DueDay &due) { return due.item == item; });
    else if (found == dueDays.end())
        dueDays.append({item, day});
    else
        dueDays[found - dueDays.begin()].day = day;
}

bool Spending::isPaid(const QString &item, int month) const
{
    return std::ranges::any_of(
        paid, [&](const PaidMark &mark) { return mark.month == month && mark.item == item; });
}

void Spending::tick(const QString &item, QDate date, qint64 planned)
{
    if (isPaid(item, date.month()))
        return;
    const qint64 missing = std::max(qint64(0), planned - spent(item, date.month()));
    paid.append({date.month(), item, missing});
    if (missing > 0)
        amounts.append({date, missing, item, paidNote()});
}

void Spending::untick(const QString &item, int month)
{
    const auto mark = std::ranges::find_if(
        paid, [&](const PaidMark &one) { return one.month == month && one.item == item; });
    if (mark == paid.end())
        return;
    const auto added = std::ranges::find_if(amounts, [&](const SpentAmount &one) {
        return one.cents == mark->cents && one.date.month() == month && one.item == item &&
               one.note == paidNote();
    });
    if (added != amounts.end())
        amounts.removeAt(added - amounts.begin());
    paid.removeAt(mark - paid.begin());
}

qint64 Spending::spent(const QString &item, int month) const
{
    qint64 sum = 0;
    for (const SpentAmount &amount : amounts) {
        if (amount.date.month() == month && amount.item == item)
            sum += amount.cents;
    }
    return sum;
}

void Spending::rename(const QString &from, const QString &to)
{
    for (SpentAmount &amount : amounts) {
        if (amount.item == from)
            amount.item = to;
    }
    QList<PaidMark> marks;
    for (PaidMark mark : paid) {
        if (mark.item == from && isPaid(to, mark.month))
            continue; // one mark is enough
        if (mark.item == from)
            mark.item = to;
        marks.append(mark);
    }
    paid = marks;
    for (ImportRule &rule : rules) {
        if (rule.item == from)
            rule.item = to;
    }
    const int day = dueDay(from);
    if (day > 0 && dueDay(to) == 0)
        setDueDay(to, day);
    setDueDay(from, 0);
}

void Spending::follow(const BudgetSheet &before, const BudgetSheet &after)
{
    for (const Renaming &one : renamings(before, after))
        rename(one.from, one.to);
}

SpentSums SpentSums::of(const BudgetSheet &sheet, const QList<SpentAmount> &amounts)
{
    SpentSums sums;
    const BudgetItems items(sheet);
    const SpentAmount *last = nullptr; // one item often follows itself
    int row = -1;
    for (const SpentAmount &amount : amounts) {
        if (!last || last->item != amount.item)
            row = items.row(amount.item);
        last = &amount;
        const auto month = std::size_t(amount.date.month() - 1);
        (row < 0 ? sums.noRow : sums.rows[std::size_t(row)])[month] += amount.cents;
        sums.months[month] += amount.cents;
    }
    return sums;
}

bool SpentSums::hasAny(std::size_t month) const
{
    return noRow[month] != 0 ||
           std::ranges::any_of(rows, [month](const Months &months) { return months[month] != 0; });
}

bool SpentSums::hasAny() const
{
    for (std::size_t month = 0; month < BudgetSheet::monthCount; ++month) {
        if (hasAny(month))
            return true;
    }
    return false;
}

BudgetSheet SpentSums::asSheet(const BudgetSheet &plan) const
{
    BudgetSheet sheet;
    sheet.incomes = plan.incomes;
    const auto fill = [&sheet](std::size_t row, const QString &item, const Months &cents) {
        sheet.rows[row].item = item;
        for (std::size_t month = 0; month < BudgetSheet::monthCount; ++month)
            sheet.rows[row].amounts[month] = cents[month] == 0 ? QString() : centsText(cents[month]);
    };
    for (std::size_t row = 0; row < BudgetSheet::rowCount; ++row)
        fill(row, plan.rows[row].item, rows[row]);
    if (noRow == Months{})
        return sheet;
    // In a full sheet it takes the place of an item that nothing was spent on, or stands with the last one.
    const auto isFree = [&](std::size_t row) { return rows[row] == Months{}; };
    std::size_t place = BudgetSheet::rowCount - 1;
    while (place > 0 && sheet.rows[place].isEmpty() && sheet.rows[place - 1].isEmpty())
        --place;
    for (std::size_t row = place; row > 0 && !isFree(place); --row)
        place = isFree(row) ? row : place;
    Months cents = noRow;
    for (std::size_t month = 0; month < BudgetSheet::monthCount; ++month)
        cents[month] += rows[place][month];
    const QString with = isFree(place) ? QString() : sheet.rows[place].item + u", "_s;
    fill(place, with + SpentLines::noRow(), cents);
    return sheet;
}

BudgetItems::BudgetItems(const BudgetSheet &sheet)
{
    for (std::size_t row = BudgetSheet::rowCount; row-- > 0;) {
        if (const QString item = sheet.rows[row].item.trimmed(); !item.isEmpty())
            m_rows.insert(item, int(row));
    }
}

QString BudgetItems::owned(const BudgetSheet &sheet, std::size_t row) const
{
    const QString item = sheet.rows[row].item.trimmed();
    return this->row(item) == int(row) ? item : QString();
}

QDate spentDate(int year, int month, QDate today)
{
    const QDate first(year, month, 1);
    const QDate last(year, month, first.daysInMonth());
    return first > today ? first : std::min(today, last);
}

qint64 centsOf(QStringView stored)
{
    return qint64(std::llround(Amount::rounded(Amount::stored(stored)) * 100));
}

QString centsText(qint64 cents)
{
    const quint64 positive = cents < 0 ? quint64(0) - quint64(cents) : quint64(cents);
    const QString text = QString::number(positive).rightJustified(3, u'0');
    return (cents < 0 ? u"-"_s : QString()) + text.chopped(2) + u'.' + text.last(2);
}
