// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/plannerfiles.h"

#include "planner/model/dayrecord.h"
#include "shell/core/calendardates.h"
#include "storage/log.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

void visitDays(QByteArrayView year, QDate from, QDate to,
               const std::function<void(QDate, const PlannerDay &)> &visit)
{
    for (QDate date = from; date <= to; date = date.addDays(1)) {
        const QByteArrayView record = DayRecord::ofNumber(year, DayRecord::number(date));
        if (DayRecord::isSaved(record))
            visit(date, plannerDayLayout.decode(record));
    }
}

} // namespace

PlannerFiles::PlannerFiles(const DataFolder &folder)
    : m_folder(folder)
{}

RecordFile PlannerFiles::yearFile(int year) const
{
    return RecordFile(m_folder, DayRecord::yearFileName(year), DayRecord::length);
}

bool PlannerFiles::isReadable(int year) const
{
    const QFileInfo file(yearFile(year).path());
    return !file.exists() || (file.isFile() && file.isReadable());
}

PlannerDay PlannerFiles::peek(QDate date) const
{
    if (!CalendarDates::has(date))
        return {};
    const RecordFile file = yearFile(date.year());
    const QByteArray record = file.read(DayRecord::number(date));
    return DayRecord::isSaved(record) ? plannerDayLayout.decode(record) : PlannerDay{};
}

PlannerDay PlannerFiles::read(QDate date) const
{
    if (CalendarDates::has(date))
        yearFile(date.year()).create();
    return peek(date);
}

bool PlannerFiles::write(QDate date, const PlannerDay &day)
{
    RecordChange change;
    return write(date, day, change);
}

bool PlannerFiles::write(QDate date, const PlannerDay &day, RecordChange &change)
{
    if (!CalendarDates::has(date))
        return false;
    RecordChange written;
    add(date, day, written);
    if (!written.commit(m_folder))
        return false;
    change.add(written);
    return true;
}

void PlannerFiles::add(QDate date, const PlannerDay &day, RecordChange &change) const
{
    if (!CalendarDates::has(date))
        return;
    PlannerDay saved = day;
    saved.mark = PlannerDay::savedMark;
    change.write(yearFile(date.year()), DayRecord::number(date), plannerDayLayout.encode(saved));
}

QByteArray PlannerFiles::yearBytes(int year) const
{
    QFile file(yearFile(year).path());
    if (!QFileInfo(file).isFile())
        return {};
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        qCWarning(storageLog).noquote() << "Cannot read" << file.fileName() << '-' << file.errorString();
        return {};
    }
    return file.read(std::min<qint64>(file.size(), qint64(DayRecord::last) * DayRecord::length));
}

void PlannerFiles::forEachDay(int year, const std::function<void(QDate, const PlannerDay &)> &visit) const
{
    if (year >= CalendarDates::firstYear && year <= CalendarDates::lastYear)
        visitDays(yearBytes(year), QDate(year, 1, 1), QDate(year, 12, 31), visit);
}

std::map<QDate, PlannerDay> PlannerFiles::days(QDate from, QDate to) const
{
    std::map<QDate, PlannerDay> days;
    if (!from.isValid() || !to.isValid())
        return days;
    from = std::max(from, CalendarDates::first());
    to = std::min(to, CalendarDates::last());
    for (int year = from.year(); year <= to.year(); ++year) {
        visitDays(yearBytes(year), std::max(from, QDate(year, 1, 1)), std::min(to, QDate(year, 12, 31)),
                  [&days](QDate date, const PlannerDay &day) { days.emplace_hint(days.end(), date, day); });
    }
    return days;
}

QList<int> PlannerFiles::years() const
{
    static const QRegularExpression name(u"^ ([1-9]\\d{3})\\.cal$"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    QList<int> years;
    for (const QString &entry : QDir(m_folder.path()).entryList(QDir::Files)) {
        if (const auto match = name.match(entry); match.hasMatch())
            years.append(match.captured(1).toInt());
    }
    std::sort(years.begin(), years.end());
    years.erase(std::unique(years.begin(), years.end()), years.end());
    return years;
}
