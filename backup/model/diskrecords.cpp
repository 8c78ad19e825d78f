// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/diskrecords.h"

#include "backup/model/filehash.h"
#include "backup/model/recordnames.h"
#include "backup/model/setfolder.h"
#include "shell/core/reservednames.h"
#include "storage/datafolder.h"
#include "storage/valuefile.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <limits>
#include <system_error>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QByteArrayView diskStart("QUILLERY DISK");
constexpr QByteArrayView setStart("QUILLERY SET");
constexpr QByteArrayView version("1");
constexpr QByteArrayView end("END");
constexpr QByteArrayView sealedWord("sealed");
constexpr QByteArrayView openWord("open");
constexpr qsizetype idLength = 16;
constexpr qsizetype longestName = 4000;
constexpr qint64 mostNumber = qint64(1) << 62U;
constexpr int mostDisks = 100'000;

/// How fine a time is written.
enum class Second { Whole, Split };

/// "2026-11-23T19:30:00.250Z"; a record has thousands of them.
QByteArray timeText(const QDateTime &value, Second second)
{
    static constexpr QByteArrayView form("0000-00-00T00:00:00.000Z");
    if (!value.isValid())
        return {};
    using namespace std::chrono;
    const sys_time<milliseconds> point{milliseconds(value.toMSecsSinceEpoch())};
    const auto day = floor<days>(point);
    const year_month_day date(day);
    const hh_mm_ss time(point - day);
    QByteArray text = form.toByteArray();
    const auto put = [&text](qsizetype at, qsizetype digits, qint64 number) {
        for (qsizetype place = at + digits; place-- > at; number /= 10)
            text[place] = char('0' + number % 10);
    };
    put(0, 4, int(date.year()));
    put(5, 2, unsigned(date.month()));
    put(8, 2, unsigned(date.day()));
    put(11, 2, time.hours().count());
    put(14, 2, time.minutes().count());
    put(17, 2, time.seconds().count());
    put(20, 3, time.subseconds().count());
    return second == Second::Split ? text : text.remove(19, 4);
}

/// Nothing where the text is not exactly such a time.
std::optional<QDateTime> timeOf(QByteArrayView text, Second second)
{
    using namespace std::chrono;
    if (text.size() != (second == Second::Split ? 24 : 20))
        return std::nullopt;
    const auto number = [text](qsizetype at, qsizetype digits) {
        int value = 0;
        for (const char digit : text.sliced(at, digits))
            value = 10 * value + (digit - '0');
        return value;
    };
    const year_month_day date(year(number(0, 4)), month(unsigned(number(5, 2))), day(unsigned(number(8, 2))));
    if (!date.ok())
        return std::nullopt;
    const milliseconds time = hours(number(11, 2)) + minutes(number(14, 2)) + seconds(number(17, 2)) +
                              milliseconds(second == Second::Split ? number(20, 3) : 0);
    const sys_time<milliseconds> point = sys_days(date) + time;
    const QDateTime value = QDateTime::fromMSecsSinceEpoch(point.time_since_epoch().count(), Qt::UTC);
    // What is no time at all is written in another way.
    if (timeText(value, second) != text)
        return std::nullopt;
    return value;
}

/// The values of a record, one a line: none of them has a quote in it.
class Writer
{
public:
    /// For so many parts, or files.
    explicit Writer(qsizetype count) { m_bytes.reserve(256 * (count + 2)); }

    Writer &text(QByteArrayView value)
    {
        m_bytes.append('"').append(value).append("\"\r\n");
        return *this;
    }
    Writer &number(qint64 value)
    {
        std::array<char, 24> digits{};
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
        return text(QByteArrayView(digits.data(), end - digits.data()));
    }
    Writer &name(const QString &value) { return text(RecordNames::encoded(value)); }
    Writer &hex(const QByteArray &value) { return text(value.toHex()); }
    Writer &time(const QDateTime &value, Second second = Second::Whole)
    {
        return text(timeText(value, second));
    }

    QByteArray finished() { return text(end).m_bytes; }

private:
    QByteArray m_bytes;
};

/// The values of a record as they are read; the first that is none spoils it.
class Reader
{
public:
    explicit Reader(QByteArrayView bytes)
        : m_cutter(bytes)
    {}

    bool isGood() const { return m_isGood; }
    bool check(bool isRight)
    {
        m_isGood = m_isGood && isRight;
        return m_isGood;
    }

    QByteArrayView text()
    {
        if (!check(!m_cutter.isAtEnd()))
            return {};
        const QByteArrayView value = m_cutter.takeBytes();
        return check(!m_cutter.isTorn()) ? value : QByteArrayView();
    }
    void expect(QByteArrayView value)
    {
        const QByteArrayView found = text();
        check(found == value);
    }
    qint64 number(qint64 least, qint64 most)
    {
        const QByteArrayView digits = text();
        const auto isDigit = [](char byte) { return byte >= '0' && byte <= '9'; };
        bool isNumber = std::ranges::all_of(digits, isDigit);
        qint64 value = 0;
        isNumber = isNumber && std::from_chars(digits.begin(), digits.end(), value).ec == std::errc();
        return check(isNumber && value >= least && value <= most) ? value : least;
    }
    QByteArray hex(qsizetype length)
    {
        const QByteArray digits = text().toByteArray();
        QByteArray value = QByteArray::fromHex(digits);
        check(value.size() == length && value.toHex() == digits);
        return value;
    }
    QDateTime time(Second second = Second::Whole)
    {
        QDateTime value = timeOrNone(second);
        check(value.isValid());
        return value;
    }
    QDateTime timeOrNone(Second second = Second::Whole)
    {
        const QByteArrayView written = text();
        if (written.isEmpty())
            return {};
        const std::optional<QDateTime> value = timeOf(written, second);
        return check(value.has_value()) ? *value : QDateTime();
    }
    QString word()
    {
        const std::optional<QString> value = RecordNames::decoded(text().toByteArray());
        return check(value.has_value()) ? *value : QString();
    }
    QString name()
    {
        QString value = word();
        check(DiskRecords::isSafe(value));
        return value;
    }
    /// Whether all was as it should be, up to the last line.
    bool isFinished()
    {
        expect(end);
        return check(m_cutter.isAtEnd());
    }

private:
    ValueFile::Cutter m_cutter;
    bool m_isGood = true;
};

BackupPart partOf(Reader &reader)
{
    BackupPart part;
    part.name = reader.name();
    part.size = reader.number(0, mostNumber);
    part.offset = reader.number(0, part.size);
    part.bytes = reader.number(0, part.size - part.offset);
    part.changed = reader.time(Second::Split);
    part.hash = reader.hex(FileHash::length);
    if (part.bytes == part.size)
        return part;
    const qsizetype dot = part.name.lastIndexOf(u'.');
    part.piece = QStringView(part.name).sliced(dot + 1).toInt();
    reader.check(dot > 0 && part.piece > 0 && part.name.endsWith(SetFolder::pieceEnding(part.piece)));
    part.name.truncate(std::max<qsizetype>(dot, 0));
    reader.check(DiskRecords::isSafe(part.name));
    return part;
}

BackupFile fileOf(Reader &reader, int disks)
{
    BackupFile file;
    file.name = reader.name();
    file.size = reader.number(0, mostNumber);
    file.changed = reader.time(Second::Split);
    file.hash = reader.hex(FileHash::length);
    file.firstDisk = int(reader.number(1, disks));
    file.lastDisk = int(reader.number(file.firstDisk, disks));
    return file;
}

/// The bytes of a record's file; none where it is too long for one.
QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > DiskRecords::mostBytes)
        return {};
    return file.read(DiskRecords::mostBytes);
}

} // namespace

QByteArray DiskRecords::encoded(const DiskRecord &record)
{
    Writer writer(record.parts.size());
    writer.text(diskStart).text(version).hex(record.set).time(record.begun);
    writer.number(record.number).number(record.parts.size());
    for (const BackupPart &part : record.parts) {
        writer.name(part.piece > 0 ? part.name + SetFolder::pieceEnding(part.piece) : part.name);
        writer.number(part.size).number(part.offset).number(part.bytes);
        writer.time(part.changed, Second::Split).hex(part.hash);
    }
    return writer.finished();
}

QByteArray DiskRecords::encoded(const SetRecord &record)
{
    Writer writer(record.files.size());
    writer.text(setStart).text(version).hex(record.set).time(record.begun).time(record.ended);
    writer.number(record.disks).name(record.drive).text(record.isSealed ? sealedWord : openWord);
    writer.time(record.tested).number(record.counts.size());
    for (const BackupCount &count : record.counts)
        writer.name(count.function).number(count.records);
    writer.number(record.files.size());
    for (const BackupFile &file : record.files) {
        writer.name(file.name).number(file.size).time(file.changed, Second::Split);
        writer.hex(file.hash).number(file.firstDisk).number(file.lastDisk);
    }
    return writer.finished();
}

std::optional<DiskRecord> DiskRecords::diskRecord(QByteArrayView bytes)
{
    Reader reader(bytes);
    DiskRecord record;
    reader.expect(diskStart);
    reader.expect(version);
    record.set = reader.hex(idLength);
    record.begun = reader.time();
    record.number = int(reader.number(1, mostDisks));
    const qint64 count = reader.number(0, mostParts);
    for (qint64 i = 0; i < count && reader.isGood(); ++i)
        record.parts.append(partOf(reader));
    if (!reader.isFinished())
        return std::nullopt;
    return record;
}

std::optional<SetRecord> DiskRecords::setRecord(QByteArrayView bytes)
{
    Reader reader(bytes);
    SetRecord record;
    reader.expect(setStart);
    reader.expect(version);
    record.set = reader.hex(idLength);
    record.begun = reader.time();
    record.ended = reader.timeOrNone();
    record.disks = int(reader.number(1, mostDisks));
    record.drive = reader.word();
    const QByteArrayView kind = reader.text();
    record.isSealed = kind == sealedWord;
    reader.check(record.isSealed || kind == openWord);
    record.tested = reader.timeOrNone();
    const qint64 counts = reader.number(0, mostParts);
    for (qint64 i = 0; i < counts && reader.isGood(); ++i) {
        QString function = reader.word();
        record.counts.append({function, int(reader.number(0, std::numeric_limits<int>::max()))});
    }
    const qint64 files = reader.number(0, mostParts);
    for (qint64 i = 0; i < files && reader.isGood(); ++i)
        record.files.append(fileOf(reader, record.disks));
    if (!reader.isFinished())
        return std::nullopt;
    return record;
}

std::optional<SetRecord> DiskRecords::readSet(const QString &folder)
{
    return setRecord(bytesOf(DataFolder(folder).filePath(SetRecord::fileName)));
}

std::optional<DiskRecord> DiskRecords::readDisk(const QString &folder)
{
    return diskRecord(bytesOf(DataFolder(folder).filePath(DiskRecord::fileName)));
}

bool DiskRecords::isSafe(const QString &name)
{
    if (name.isEmpty() || name.size() > longestName || name.contains(u'\\') || name.contains(QChar(u'\0')))
        return false;
    if (name.size() >= 2 && name[0].isLetter() && name[1] == u':' && (name.size() == 2 || name[2] == u'/'))
        return false;
    const QStringView all(name);
    for (qsizetype from = 0; from <= all.size();) {
        const qsizetype slash = all.indexOf(u'/', from);
        const qsizetype to = slash < 0 ? all.size() : slash;
        const QStringView step = all.sliced(from, to - from);
        if (step.isEmpty() || step == "."_L1 || step == ".."_L1 || ReservedNames::isDevice(step))
            return false;
        from = to + 1;
    }
    return true;
}
