// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalform.h"

#include "journal/model/pictureplaces.h"
#include "storage/utf8text.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstring>
#include <tuple>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QByteArrayView mark("\xEF\xBB\xBF");
constexpr QByteArrayView plainLine("Quillery journal ");
constexpr QByteArrayView dateLine("=== ");
constexpr QByteArrayView earlierEnd(" earlier");
constexpr QByteArrayView lineEnd("\r\n");
const QString minutes = u"yyyy-MM-dd hh:mm"_s;

QByteArrayView withoutMark(QByteArrayView file)
{
    return file.startsWith(mark) ? file.sliced(mark.size()) : file;
}

/// The first line of `text` without its end; `text` goes on behind it.
QByteArrayView takeLine(QByteArrayView &text)
{
    const qsizetype end = text.indexOf('\n');
    QByteArrayView line = end < 0 ? text : text.first(end);
    text = end < 0 ? QByteArrayView() : text.sliced(end + 1);
    if (line.endsWith('\r'))
        line.chop(1);
    return line;
}

/// Whether `line` is `beginning` with a version behind it; which one goes into `version`.
bool isHead(QByteArrayView line, QByteArrayView beginning, int &version)
{
    if (!line.startsWith(beginning))
        return false;
    bool isNumber = false;
    const QByteArray number = line.sliced(beginning.size()).toByteArray();
    version = number.toInt(&isNumber);
    return isNumber && version > 0 && number == QByteArray::number(version);
}

bool isBlank(QByteArrayView bytes)
{
    return bytes.trimmed().isEmpty();
}

/// The number that `digits` are; -1 where they are something else.
int numberOf(QByteArrayView digits)
{
    int value = 0;
    for (const char digit : digits) {
        if (digit < '0' || digit > '9')
            return -1;
        value = 10 * value + (digit - '0');
    }
    return value;
}

/// Reads "2026-03-14" strictly; an invalid date for anything else.
QDate dateOf(QByteArrayView digits)
{
    constexpr qsizetype length = 10;
    if (digits.size() != length || digits[4] != '-' || digits[7] != '-')
        return {};
    const int year = numberOf(digits.first(4));
    const int month = numberOf(digits.sliced(5, 2));
    const int day = numberOf(digits.sliced(8, 2));
    return year < JournalForm::firstYear || month < 0 || day < 0 ? QDate() : QDate(year, month, day);
}

/// Whether `line` begins a block of `year`.
bool isDateLine(QByteArrayView line, int year, JournalBlock &block)
{
    if (!line.startsWith(dateLine))
        return false;
    line = line.sliced(dateLine.size()).trimmed();
    block.kind = JournalBlock::Entry;
    if (line.endsWith(earlierEnd)) {
        block.kind = JournalBlock::Earlier;
        line.chop(earlierEnd.size());
    }
    block.date = dateOf(line);
    return block.date.isValid() && block.date.year() == year;
}

/// Whether a line may say something of its entry: a word in small letters, then a blank or nothing.
bool saysSomething(QByteArrayView line)
{
    const auto isOfWord = [](char letter) {
        return (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9') || letter == '-';
    };
    const auto end = std::ranges::find_if_not(line, isOfWord);
    return end != line.begin() && line.front() >= 'a' && (end == line.end() || *end == ' ');
}

bool isKnown(QByteArrayView line)
{
    return line.startsWith("written ") || line.startsWith("tags ") || line.startsWith("picture ");
}

/// Behind a path stands " | " and the caption; in a path that holds the same a backslash comes before each
/// bar.
const QRegularExpression &barInPath()
{
    static const QRegularExpression pattern(u" (\\\\*)\\|(?= |$)"_s);
    return pattern;
}

JournalPicture pictureOf(const QString &line)
{
    const QString between = u" | "_s;
    static const QRegularExpression escaped(u" \\\\(\\\\*)\\|(?= |$)"_s);
    const qsizetype end = line.indexOf(between);
    JournalPicture picture{.path = line.left(end)};
    if (end >= 0)
        picture.caption = line.mid(end + between.size());
    picture.path.replace(escaped, u" \\1|"_s);
    return picture;
}

QString lineOf(const JournalPicture &picture)
{
    QString line = picture.path;
    line.replace(barInPath(), u" \\\\1|"_s);
    return picture.caption.isEmpty() ? line : line + u" | "_s + picture.caption;
}

QString oneLine(QString text)
{
    for (QChar &character : text) {
        if (character == u'\n' || character == u'\r' || character.isNull())
            character = u' ';
    }
    return text;
}

void readLine(JournalEntry &entry, QByteArrayView bytes)
{
    const QString line = oneLine(Utf8Text::decode(bytes));
    const auto rest = [&line] { return line.mid(line.indexOf(u' ') + 1); };
    if (bytes.startsWith("written ") && !entry.written.isValid()) {
        entry.written = QDateTime::fromString(rest().trimmed(), minutes);
        if (entry.written.isValid())
            return;
    }
    if (bytes.startsWith("tags ")) {
        entry.tags += rest().split(u',');
        return;
    }
    const JournalPicture picture =
        bytes.startsWith("picture ") ? pictureOf(rest()) : JournalPicture{.path = {}};
    if (picture.path.trimmed().isEmpty())
        entry.otherLines.append(line);
    else
        entry.pictures.append(picture);
}

JournalEntry readHead(const JournalForm::Parts &parts, QDate date)
{
    JournalEntry entry{.date = date};
    for (const QByteArrayView line : parts.head)
        readLine(entry, line);
    return entry;
}

/// Whether a line says "written 2026-03-15 08:12".
bool isTime(QByteArrayView line)
{
    constexpr QByteArrayView beginning("written ");
    constexpr qsizetype dateLength = 10;
    constexpr qsizetype length = 24;
    if (line.size() != length || !line.startsWith(beginning))
        return false;
    const QDate date = dateOf(line.sliced(beginning.size(), dateLength));
    const QByteArrayView time = line.sliced(beginning.size() + dateLength); // " 08:12"
    return date.isValid() && time[0] == ' ' && time[3] == ':' &&
           QTime(numberOf(time.sliced(1, 2)), numberOf(time.sliced(4))).isValid();
}

/// The parts of a block without when it was written: a time where one lives is slow to make, as the system is
/// asked for its rules each time.
JournalForm::Parts untimedParts(const JournalBlock &block)
{
    JournalForm::Parts parts = JournalForm::partsOf(block.bytes);
    const auto time = std::ranges::find_if(parts.head, isTime);
    if (time != parts.head.end())
        parts.head.erase(time);
    return parts;
}

void addLine(QByteArray &bytes, QByteArrayView beginning, const QString &rest)
{
    bytes += beginning;
    bytes += rest.toUtf8();
    bytes += lineEnd;
}

/// The text as it stands in a block: a line that would be mistaken for one of ours has a backslash in front.
void addText(QByteArray &bytes, const QString &text)
{
    const QByteArray plain = text.toUtf8();
    bytes.reserve(bytes.size() + plain.size() + plain.size() / 64 + 16);
    QByteArrayView rest(plain);
    while (!plain.isEmpty()) {
        const qsizetype end = rest.indexOf('\n');
        const QByteArrayView line = end < 0 ? rest : rest.first(end);
        if (line.startsWith('=') || line.startsWith('\\'))
            bytes += '\\';
        bytes.append(line);
        bytes.append(lineEnd);
        if (end < 0)
            break;
        rest = rest.sliced(end + 1);
    }
}

QString textOf(QByteArrayView body)
{
    QByteArray bytes;
    bytes.reserve(body.size());
    JournalForm::forEachLine(body, [&bytes](QByteArrayView line) {
        bytes.append(line.startsWith('\\') ? line.sliced(1) : line);
        bytes += '\n';
    });
    bytes.chop(bytes.isEmpty() ? 0 : 1);
    bytes.replace('\r', '\n');
    return Utf8Text::decode(bytes);
}

} // namespace

JournalForm::Form JournalForm::formOf(QByteArrayView file)
{
    if (file.isEmpty())
        return Form::Empty;
    QByteArrayView rest = withoutMark(file);
    const QByteArrayView line = takeLine(rest);
    int version = 0;
    if (isHead(line, sealedLine, version))
        return version == 1 ? Form::Sealed : Form::Later;
    if (!isHead(line, plainLine, version))
        return file.contains('\0') ? Form::Binary : Form::Foreign;
    if (version != 1)
        return Form::Later;
    return file.contains('\0') ? Form::Binary : Form::Plain;
}

JournalBlocks JournalForm::blocks(QByteArrayView file, int year)
{
    file = withoutMark(file);
    const char *const end = file.data() + file.size();
    JournalBlocks blocks;
    JournalBlock current{.kind = JournalBlock::Loose, .bytes = {}};
    const char *start = file.data();
    QByteArrayView rest = file;
    int version = 0;
    if (isHead(takeLine(rest), plainLine, version))
        start = rest.isEmpty() ? end : rest.data();
    const auto close = [&](const char *at) {
        current.bytes = QByteArray(start, at - start);
        if (current.kind != JournalBlock::Loose || at != start)
            blocks.push_back(current);
        start = at;
    };
    const auto next = [end](const char *at) {
        return at == end ? at : static_cast<const char *>(std::memchr(at, '=', std::size_t(end - at)));
    };
    for (const char *at = next(start); at && at != end; at = next(at + 1)) {
        if (at != start && at[-1] != '\n')
            continue;
        rest = QByteArrayView(at, end - at);
        JournalBlock found{.bytes = {}};
        if (rest.startsWith(dateLine) && isDateLine(takeLine(rest), year, found)) {
            close(at);
            current = found;
        }
    }
    close(end);
    sort(blocks);
    return blocks;
}

QByteArray JournalForm::file(const JournalBlocks &blocks)
{
    QByteArray file = plainLine.toByteArray() + "1\r\n";
    qsizetype size = file.size();
    for (const JournalBlock &block : blocks)
        size += block.bytes.size() + lineEnd.size();
    file.reserve(size);
    for (const JournalBlock &block : blocks) {
        file += block.bytes;
        if (!file.endsWith('\n'))
            file += lineEnd;
    }
    return file;
}

void JournalForm::sort(JournalBlocks &blocks)
{
    std::ranges::stable_sort(blocks, {}, [](const JournalBlock &block) {
        return std::tuple(block.kind != JournalBlock::Loose, block.date, block.kind);
    });
}

JournalBlock JournalForm::block(const JournalEntry &entry, JournalBlock::Kind kind)
{
    JournalBlock block{.kind = kind, .date = entry.date, .bytes = dateLine.toByteArray()};
    QByteArray &bytes = block.bytes;
    bytes += entry.date.toString(Qt::ISODate).toLatin1();
    if (kind == JournalBlock::Earlier)
        bytes += earlierEnd;
    bytes += lineEnd;
    if (entry.written.isValid())
        addLine(bytes, "written ", entry.written.toString(minutes));
    if (!entry.tags.isEmpty())
        addLine(bytes, "tags ", entry.tags.join(u", "_s));
    for (const JournalPicture &picture : entry.pictures)
        addLine(bytes, "picture ", lineOf(picture));
    for (const QString &line : entry.otherLines)
        addLine(bytes, {}, line);
    bytes += lineEnd;
    addText(bytes, entry.text);
    return block;
}

JournalForm::Parts JournalForm::partsOf(QByteArrayView block)
{
    takeLine(block);
    Parts parts;
    QByteArrayView firstUnknown;
    while (!block.isEmpty()) {
        const QByteArrayView here = block;
        const QByteArrayView line = takeLine(block);
        if (isBlank(line)) {
            parts.body = block;
            return parts;
        }
        // Written by hand without the empty line in between.
        if (!saysSomething(line)) {
            parts.body = here;
            return parts;
        }
        if (firstUnknown.isNull() && !isKnown(line))
            firstUnknown = here;
        parts.head.push_back(line);
    }
    if (!firstUnknown.isNull()) {
        std::erase_if(parts.head, [&](QByteArrayView line) { return line.data() >= firstUnknown.data(); });
        parts.body = firstUnknown;
    }
    return parts;
}

JournalEntry JournalForm::entry(const JournalBlock &block)
{
    const Parts parts = partsOf(block.bytes);
    JournalEntry entry = readHead(parts, block.date);
    entry.text = textOf(parts.body);
    return tidied(entry);
}

JournalEntry JournalForm::untimed(const JournalBlock &block)
{
    const Parts parts = untimedParts(block);
    JournalEntry entry = readHead(parts, block.date);
    entry.text = textOf(parts.body);
    return tidied(entry);
}

JournalEntry JournalForm::head(const JournalBlock &block)
{
    return tidied(readHead(untimedParts(block), block.date));
}

JournalEntry JournalForm::joined(const JournalEntry &first, const JournalEntry &second)
{
    JournalEntry both = first;
    if (!both.written.isValid())
        both.written = second.written;
    both.tags += second.tags;
    both.pictures += second.pictures;
    both.otherLines += second.otherLines;
    if (!second.text.isEmpty()) {
        // Pictures without a place stand behind their own text, not behind that of both.
        both.text = PicturePlaces::complete(first.text, first.pictures.size());
        while (both.text.endsWith(u'\n'))
            both.text.chop(1);
        both.text += both.text.isEmpty() ? QString() : u"\n\n"_s;
        both.text += PicturePlaces::behind(second.text, first.pictures.size());
    }
    return tidied(both);
}

JournalEntry JournalForm::tidied(JournalEntry entry)
{
    const auto isForeign = [](QChar character) {
        return character.isNull() || character == u'\r' || character == QChar::ParagraphSeparator ||
               character == QChar::LineSeparator;
    };
    if (std::ranges::any_of(std::as_const(entry.text), isForeign)) {
        entry.text.remove(QChar(u'\0'));
        entry.text.replace(u"\r\n"_s, u"\n"_s);
        for (QChar &character : entry.text)
            character = isForeign(character) ? QChar(u'\n') : character;
    }
    if (entry.written.isValid()) {
        const QTime time = entry.written.time();
        entry.written = QDateTime(entry.written.date(), QTime(time.hour(), time.minute()));
    }
    QStringList tags;
    for (const QString &tag : entry.tags.join(u',').split(u',')) {
        const QString plain = oneLine(tag).simplified();
        if (!plain.isEmpty() && !tags.contains(plain, Qt::CaseInsensitive))
            tags.append(plain);
    }
    entry.tags = tags;
    entry.pictures.removeIf([](const JournalPicture &picture) { return picture.path.trimmed().isEmpty(); });
    for (JournalPicture &picture : entry.pictures) {
        picture.path = oneLine(picture.path);
        picture.caption = oneLine(picture.caption).trimmed();
    }
    return entry;
}
