// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/budgetfiles.h"

#include "storage/saving.h"
#include "storage/valuefile.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

BudgetFiles::Found foundIn(const QStringList &values)
{
    BudgetFiles::Found found;
    found.values = int(values.size());
    auto next = values.begin();
    const auto take = [&next, &values](QString &text) {
        if (next != values.end())
            text = *next++;
    };
    for (BudgetSheet::Row &row : found.sheet.rows) {
        take(row.item);
        for (QString &amount : row.amounts)
            take(amount);
    }
    for (QString &income : found.sheet.incomes)
        take(income);
    return found;
}

} // namespace

QString BudgetFiles::fileName(int year)
{
    return QString::number(year) + u".Fil"_s;
}

int BudgetFiles::yearOf(QDate today)
{
    const int lastDigits = today.year() % 100;
    return lastDigits < 90 ? 2000 + lastDigits : 1900 + lastDigits;
}

BudgetFiles::Found BudgetFiles::decode(QByteArrayView bytes)
{
    return foundIn(ValueFile::decode(bytes));
}

BudgetFiles::Found BudgetFiles::read(int year) const
{
    return foundIn(ValueFile::read(m_folder.filePath(fileName(year))));
}

QByteArray BudgetFiles::encode(const BudgetSheet &sheet)
{
    QStringList values;
    values.reserve(valueCount);
    for (const BudgetSheet::Row &row : sheet.rows) {
        values.append(row.item);
        for (const QString &amount : row.amounts)
            values.append(amount);
    }
    for (const QString &income : sheet.incomes)
        values.append(income);
    return ValueFile::encode(values);
}

bool BudgetFiles::write(int year, const BudgetSheet &sheet) const
{
    return Saving::replaceFile(m_folder, fileName(year), encode(sheet));
}

bool BudgetFiles::has(int year) const
{
    return QFileInfo(m_folder.filePath(fileName(year))).size() > 0;
}

bool BudgetFiles::copyToNext(int year) const
{
    QFile file(m_folder.filePath(fileName(year)));
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = file.readAll();
    return !bytes.isEmpty() && file.error() == QFile::NoError &&
           Saving::replaceFile(m_folder, fileName(year + 1), bytes);
}

QList<int> BudgetFiles::years() const
{
    QList<int> years;
    for (int year = firstYear; year <= lastYear + 1; ++year) {
        if (has(year))
            years.append(year);
    }
    return years;
}
