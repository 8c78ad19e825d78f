#include "planner/plannerfiles.h"

#include "planner/dayrecord.h"
#include "storage/recordfile.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

PlannerFiles::PlannerFiles(const DataFolder &folder)
    : m_folder(folder)
{}

QString PlannerFiles::yearFilePath(int year) const
{
    return m_folder.filePath(DayRecord::yearFileName(year));
}

PlannerDay PlannerFiles::peek(QDate date) const
{
    if (!date.isValid())
        return {};
    const RecordFile file(yearFilePath(date.year()), DayRecord::length);
    const PlannerDay day = plannerDayLayout.decode(file.read(DayRecord::number(date)));
    return day.isSaved() ? day : PlannerDay{};
}

PlannerDay PlannerFiles::read(QDate date) const
{
    if (date.isValid())
        RecordFile(yearFilePath(date.year()), DayRecord::length).create();
    return peek(date);
}

bool PlannerFiles::write(QDate date, const PlannerDay &day) const
{
    if (!date.isValid())
        return false;
    PlannerDay saved = day;
    saved.mark = PlannerDay::savedMark;
    const RecordFile file(yearFilePath(date.year()), DayRecord::length);
    return file.write(DayRecord::number(date), plannerDayLayout.encode(saved));
}

void PlannerFiles::forEachDay(int year, const std::function<void(QDate, const PlannerDay &)> &visit) const
{
    const RecordFile file(yearFilePath(year), DayRecord::length);
    file.forEach(1, [&](int record, QByteArrayView bytes) {
        const QDate date = DayRecord::date(record, year);
        // The mark is looked at first: most records of a year are holes.
        const qsizetype markAt = plannerDayLayout.size() - 10;
        if (date.isValid() && bytes.size() >= markAt &&
            AnsiText::fieldText(bytes.sliced(markAt, std::min<qsizetype>(10, bytes.size() - markAt))) ==
                PlannerDay::savedMark)
            visit(date, plannerDayLayout.decode(bytes));
        return record < DayRecord::last;
    });
}

QList<int> PlannerFiles::years() const
{
    static const QRegularExpression name(u"^ (\\d{4})\\.cal$"_s, QRegularExpression::CaseInsensitiveOption);
    QList<int> years;
    for (const QString &entry : QDir(m_folder.path()).entryList(QDir::Files)) {
        if (const auto match = name.match(entry); match.hasMatch())
            years.append(match.captured(1).toInt());
    }
    std::sort(years.begin(), years.end());
    years.erase(std::unique(years.begin(), years.end()), years.end());
    return years;
}
