// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/albumnews.h"

#include "album/model/albumfile.h"
#include "album/model/lines.h"
#include "album/model/photofile.h"
#include "album/model/recordbytes.h"
#include "storage/recordfile.h"

#include <algorithm>
#include <functional>
#include <map>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype dateAt = 2356;

/// Visits the records of pictures, as they stand in the file.
void forEachPicture(const DataFolder &folder,
                    const std::function<void(int record, QByteArrayView bytes)> &visit)
{
    RecordFile(folder, PhotoFile::name, PhotoFile::recordLength)
        .forEach(1, [&visit](int number, QByteArrayView bytes) {
            if (bytes.startsWith(PhotoFile::mark))
                visit(number, bytes);
            return number < PhotoFile::lastRecord;
        });
}

qsizetype albumCount(const DataFolder &folder)
{
    qsizetype count = 0;
    RecordFile(folder, AlbumFile::name, AlbumFile::recordLength)
        .forEach(1, [&count](int, QByteArrayView bytes) {
            count += bytes.startsWith(AlbumFile::albumMark) ? 1 : 0;
            return true;
        });
    return count;
}

QDate dayOf(QByteArrayView record)
{
    return PhotoDate::fromEdtf(RecordBytes::textBytes(record, dateAt, PhotoDate::width)).day();
}

QString missingText(qsizetype count)
{
    return AlbumLines::pictures(count) + (count == 1 ? u" is missing"_s : u" are missing"_s);
}

/// The year with most pictures, of several the latest: "On this day in 2019: 3 pictures", where there is
/// little room "3 pictures from 2019".
LiveLine thisDayLine(const std::map<int, qsizetype> &years)
{
    const auto most = std::ranges::max_element(years.rbegin(), years.rend(), {},
                                               [](const auto &year) { return year.second; });
    const QString pictures = AlbumLines::pictures(most->second);
    LiveLine line{u"On this day in %1: %2"_s.arg(most->first).arg(pictures), LiveLine::Plain, {}};
    line.shorter = {u"%1 from %2"_s.arg(pictures).arg(most->first)};
    return line;
}

/// What a day has of earlier years.
struct Earlier {
    int first = 0; ///< year
    int last = 0;
    qsizetype count = 0;
    int record = 0; ///< of the earliest

    void add(int year, int number)
    {
        if (count == 0 || year < first)
            record = number;
        first = count == 0 ? year : std::min(first, year);
        last = std::max(last, year);
        ++count;
    }
    QString text() const
    {
        const QString years = first == last ? QString::number(first) : u"%1 to %2"_s.arg(first).arg(last);
        return u"%1 from %2"_s.arg(AlbumLines::pictures(count), years);
    }
};

} // namespace

std::optional<LiveLine> AlbumNews::liveLine(const DataFolder &folder, QDate today)
{
    qsizetype count = 0;
    qsizetype missing = 0;
    std::map<int, qsizetype> years;
    forEachPicture(folder, [&](int, QByteArrayView bytes) {
        ++count;
        missing += (RecordBytes::number<quint8>(bytes, PhotoFile::bitsAt) & Photo::NotThere) != 0 ? 1 : 0;
        const QDate day = dayOf(bytes);
        if (day.isValid() && day.day() == today.day() && day.month() == today.month() &&
            day.year() < today.year())
            ++years[day.year()];
    });
    if (count == 0)
        return {};
    if (missing > 0)
        return LiveLine{missingText(missing), LiveLine::Due, {}};
    if (!years.empty())
        return thisDayLine(years);
    const qsizetype albums = albumCount(folder);
    const QString pictures = AlbumLines::pictures(count);
    return LiveLine{albums == 0 ? pictures : u"%1 in %2"_s.arg(pictures, AlbumLines::albums(albums)),
                    LiveLine::Plain,
                    {}};
}

QList<DayNote> AlbumNews::dayNotes(const DataFolder &folder, QDate from, QDate to)
{
    std::map<QDate, Earlier> days;
    forEachPicture(folder, [&](int record, QByteArrayView bytes) {
        const QDate taken = dayOf(bytes);
        if (!taken.isValid())
            return;
        for (int year = std::max(from.year(), taken.year() + 1); year <= to.year(); ++year) {
            const QDate day(year, taken.month(), taken.day()); // none for 29 February in most years
            if (day.isValid() && day >= from && day <= to)
                days[day].add(taken.year(), record);
        }
    });
    QList<DayNote> notes;
    for (const auto &[day, earlier] : days)
        notes.append({.date = day,
                      .text = earlier.text(),
                      .source = u"Photo Album"_s,
                      .place = {.record = earlier.record, .date = day}});
    return notes;
}
