// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/budgetrecords.h"

#include "budget/model/budgetfiles.h"
#include "budget/model/spendingfiles.h"
#include "shell/core/bringingback.h"
#include "shell/core/dates.h"
#include "storage/wholefileschange.h"

#include <QLocale>

#include <algorithm>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

using Months = std::array<QString, BudgetSheet::monthCount>;

/// "100.00 each month", "Jan 100.00, Mar 50.00".
QString amountsText(const Months &amounts)
{
    const bool isEachMonth = std::ranges::all_of(amounts, [&amounts](const QString &amount) {
        return !amount.isEmpty() && amount == amounts.front();
    });
    if (isEachMonth)
        return amounts.front() + u" each month"_s;
    QStringList texts;
    for (std::size_t month = 0; month < amounts.size(); ++month) {
        if (!amounts[month].isEmpty())
            texts.append(QLocale::c().monthName(int(month) + 1, QLocale::ShortFormat) + u' ' +
                         amounts[month]);
    }
    return texts.join(u", "_s);
}

void addSheet(QStringList &lines, const BudgetSheet &sheet)
{
    for (const BudgetSheet::Row &row : sheet.rows) {
        if (row.isEmpty())
            continue;
        const QString amounts = amountsText(row.amounts);
        const QString item = row.item.trimmed().isEmpty() ? u"(no item)"_s : row.item.trimmed();
        lines.append(amounts.isEmpty() ? item : item + u": "_s + amounts);
    }
    BringingBack::addLine(lines, u"Income:"_s, amountsText(sheet.incomes));
}

QStringList namesOf(int year)
{
    return {BudgetFiles::fileName(year), SpendingFiles::fileName(year)};
}

int yearOf(const QString &key)
{
    return key.toInt();
}

} // namespace

BudgetRecords::BudgetRecords(const DataFolder &folder, DateStyle style)
    : m_folder(folder)
    , m_style(style)
{}

QString BudgetRecords::counted(int count) const
{
    return BringingBack::counted(count, u"budget"_s, u"budgets"_s);
}

QList<int> BudgetRecords::years() const
{
    QList<int> years = BudgetFiles(m_folder).years();
    for (const int year : SpendingFiles(m_folder).years()) {
        if (!years.contains(year))
            years.append(year);
    }
    std::ranges::sort(years);
    return years;
}

std::vector<FunctionRecord> BudgetRecords::all() const
{
    std::vector<FunctionRecord> records;
    for (const int year : years()) {
        QByteArray content;
        for (const QString &name : namesOf(year)) {
            std::optional<QByteArray> bytes;
            if (WholeFilesChange::readInto(bytes, m_folder, name) && bytes)
                content += *bytes;
            content += '\0';
        }
        const QString number = QString::number(year);
        records.push_back({number, u"Budget "_s + number, BringingBack::markOf(content)});
    }
    return records;
}

QStringList BudgetRecords::lines(const QString &key) const
{
    QStringList lines;
    const int year = yearOf(key);
    if (!years().contains(year))
        return lines;
    addSheet(lines, BudgetFiles(m_folder).read(year).sheet);
    if (m_folder.exists(SpendingFiles::fileName(year)))
        addSpent(lines, SpendingFiles(m_folder).read(year).spending);
    return lines;
}

void BudgetRecords::addSpent(QStringList &lines, const Spending &spending) const
{
    for (const DueDay &due : spending.dueDays)
        lines.append(due.item + u": due on day "_s + QString::number(due.day));
    for (const PaidMark &mark : spending.paid)
        lines.append(mark.item + u": paid in "_s + QLocale::c().monthName(mark.month));
    for (const ImportRule &rule : spending.rules)
        lines.append(rule.item + u": lines of the bank with "_s + rule.text);
    for (const SpentAmount &amount : spending.amounts) {
        QStringList what{centsText(amount.cents), amount.item, amount.note.text()};
        what.removeAll(QString());
        lines.append(Dates::shortText(amount.date, m_style) + u": "_s + what.join(u", "_s));
    }
}

RecordsBack BudgetRecords::bringBack(const FunctionRecords &from, const QStringList &keys)
{
    const auto *source = dynamic_cast<const BudgetRecords *>(&from);
    if (!source)
        return {};
    if (const QString why = BringingBack::whyNot(m_folder); !why.isEmpty())
        return BringingBack::refused(why);
    const QList<int> years = source->years();
    const auto change = std::make_shared<WholeFilesChange>();
    QStringList back;
    for (const QString &key : keys) {
        const int year = yearOf(key);
        if (!years.contains(year))
            continue;
        if (!SpendingFiles(m_folder).read(year).mayBeWritten())
            return BringingBack::refused(BringingBack::unreadable(SpendingFiles::fileName(year)));
        for (const QString &name : namesOf(year)) {
            std::optional<QByteArray> bytes;
            if (!WholeFilesChange::readInto(bytes, source->m_folder, name))
                return BringingBack::refused(BringingBack::unreadable(name));
            if (bytes && !bytes->isEmpty())
                change->replace(m_folder, name, bytes);
        }
        back.append(key);
    }
    const QString what = back.size() == 1 ? u"Budget "_s + back.first() : counted(int(back.size()));
    return change->isEmpty() ? RecordsBack{back, {}, {}} : BringingBack::done(change, m_folder, back, what);
}
