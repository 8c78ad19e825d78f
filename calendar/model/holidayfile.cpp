// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/holidayfile.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QByteArrayView firstLine = "Quillery holidays 1";

/// A text as it is written again: with line ends of one kind.
QString textOf(QByteArrayView column)
{
    return TabLine::text(column).replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
}

QByteArray restOf(QByteArrayView line, const TabLine::Columns &columns)
{
    return columns.isAtEnd() ? QByteArray() : line.sliced(columns.at()).toByteArray();
}

/// Takes a line into `file`, of which `set` is the one that it stands in, or -1 before the first.
void takeLine(HolidayFile &file, qsizetype &set, QByteArrayView line, int number)
{
    TabLine::Columns columns(line);
    const QByteArrayView kind = columns.take();
    if (kind == "set") {
        const QString name = textOf(columns.take());
        const HolidaySet *known = file.set(name);
        set = known ? known - file.sets.constData() : file.sets.size();
        if (!known)
            file.sets.append({name});
        return;
    }
    const bool isHoliday = kind == "holiday" && set >= 0;
    Holiday holiday{{}, {}, line.toByteArray(), true, number};
    if (isHoliday) {
        const QString rule = textOf(columns.take()), text = textOf(columns.take());
        holiday = {rule, text, restOf(line, columns), false, number};
    }
    if (isHoliday ? !holiday.isReadable() : kind == "holiday")
        file.faults.append({number, TabLine::text(line).replace(u'\t', u' ')});
    if (set >= 0)
        file.sets[set].holidays.append(holiday);
    else
        file.head.append(holiday.more);
}

QByteArray lineOf(const Holiday &holiday)
{
    QByteArray line = "holiday\t" + TabLine::column(holiday.rule) + '\t' + TabLine::column(holiday.text);
    if (!holiday.more.isEmpty())
        line += '\t' + holiday.more;
    return line;
}

} // namespace

HolidayFile HolidayFile::read(QByteArrayView bytes)
{
    HolidayFile file;
    file.form = TabLine::formOf(bytes, firstLine);
    if (file.form != TabLine::Known)
        return file;
    qsizetype set = -1;
    for (int number = 1; !bytes.isEmpty(); ++number) {
        const QByteArrayView line = TabLine::lineOf(bytes);
        if (number > 1)
            takeLine(file, set, line, number);
        const qsizetype end = bytes.indexOf('\n');
        bytes = end < 0 ? QByteArrayView() : bytes.sliced(end + 1);
    }
    return file;
}

QByteArray HolidayFile::bytes() const
{
    QByteArrayList lines{firstLine.toByteArray()};
    lines += head;
    for (const HolidaySet &set : sets) {
        lines += "set\t" + TabLine::column(set.name);
        for (const Holiday &holiday : set.holidays)
            lines += holiday.isKept ? holiday.more : lineOf(holiday);
    }
    return lines.join(TabLine::lineEnd) + TabLine::lineEnd;
}

const HolidaySet *HolidayFile::set(const QString &name) const
{
    const auto found = std::ranges::find_if(
        sets, [&](const HolidaySet &set) { return set.name.compare(name, Qt::CaseInsensitive) == 0; });
    return found == sets.end() ? nullptr : &*found;
}
