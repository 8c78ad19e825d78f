// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarfiles.h"

#include "calendar/model/calendarfile.h"
#include "storage/log.h"
#include "storage/saving.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString beginning = u"CalMk"_s;
const QString ending = u".Fil"_s;

/// The head lines of ours are shorter.
constexpr qsizetype headSize = 4096;
/// No calendar is larger.
constexpr qsizetype mostBytes = qsizetype(256) * 1024 * 1024;

/// The calendar whose file is called so; 0 for any other file.
int numberOf(const QString &name)
{
    if (name.size() <= beginning.size() + ending.size())
        return 0;
    const QString digits = name.sliced(beginning.size()).chopped(ending.size());
    const int number = TabLine::number(digits.toLatin1());
    return number >= 1 && number <= CalendarFiles::most &&
                   name.compare(CalendarFiles::name(number), Qt::CaseInsensitive) == 0
               ? number
               : 0;
}

CalendarHead headOf(const DataFolder &folder, int number)
{
    CalendarHead head{
        .number = number, .title = CalendarFiles::name(number), .state = CalendarHead::OutOfReach};
    QFile file(folder.filePath(head.title));
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return head;
    QByteArray bytes = file.read(headSize);
    if (file.error() != QFile::NoError)
        return head;
    head.isEmpty = bytes.isEmpty();
    const TabLine::Form form = CalendarFile::formOf(bytes);
    head.state = form == TabLine::Foreign ? CalendarHead::Foreign
                 : form == TabLine::Later ? CalendarHead::Later
                                          : CalendarHead::Whole;
    if (!file.atEnd())
        bytes.truncate(bytes.lastIndexOf('\n') + 1); // the last line may be cut
    const WallCalendar calendar = CalendarFile::read(bytes);
    if (!calendar.title.isEmpty())
        head.title = calendar.title;
    head.from = calendar.from;
    head.months = head.state == CalendarHead::Foreign ? 0 : calendar.months;
    head.layout = calendar.look.layout;
    return head;
}

} // namespace

QString CalendarFiles::name(int number)
{
    return beginning + QString::number(number) + ending;
}

QList<int> CalendarFiles::numbers(const DataFolder &folder)
{
    QList<int> numbers;
    QDirIterator names(folder.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    while (names.hasNext()) {
        names.next();
        if (const int number = numberOf(names.fileName()); number > 0 && !numbers.contains(number))
            numbers.append(number);
    }
    std::ranges::sort(numbers);
    return numbers;
}

QStringList CalendarFiles::names(const DataFolder &folder)
{
    QStringList names;
    for (const int number : numbers(folder)) {
        if (const QFileInfo file(folder.filePath(name(number))); file.isFile())
            names.append(file.fileName());
    }
    return names;
}

int CalendarFiles::freeNumber(const DataFolder &folder)
{
    const QList<int> taken = numbers(folder);
    int number = 1;
    while (taken.contains(number))
        ++number;
    return number <= most ? number : 0;
}

QList<CalendarHead> CalendarFiles::heads(const DataFolder &folder)
{
    QList<CalendarHead> heads;
    for (const int number : numbers(folder))
        heads.append(headOf(folder, number));
    return heads;
}

std::optional<QByteArray> CalendarFiles::read(const DataFolder &folder, int number)
{
    const QString path = folder.filePath(name(number));
    if (!QFileInfo::exists(path))
        return QByteArray();
    QFile file(path);
    if (QFileInfo(path).isFile() && file.size() <= mostBytes &&
        file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        const QByteArray bytes = file.readAll();
        if (file.error() == QFile::NoError)
            return bytes;
    }
    qCWarning(storageLog).noquote() << "Cannot read" << path << '-' << file.errorString();
    return {};
}

int CalendarFiles::create(const DataFolder &folder, const WallCalendar &calendar)
{
    return create(folder, CalendarFile::write(calendar));
}

int CalendarFiles::create(const DataFolder &folder, const QByteArray &bytes)
{
    const int number = freeNumber(folder);
    return number > 0 && Saving::replaceFile(folder, name(number), bytes) ? number : 0;
}
