// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/indexline.h"

#include "addressbook/model/addressentry.h"
#include "storage/ansitext.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

// Characters of the names in front of the number; with more of them the number leaves its column.
constexpr qsizetype nameWidth = 42;
constexpr qsizetype numberColumn = 47;
constexpr qsizetype leastGap = numberColumn - nameWidth;

/// "Miller, Anne": both names without outer blanks.
QString listName(QStringView lastName, QStringView firstName)
{
    return AnsiText::trimmedBlanks(lastName).toString() + u", "_s +
           AnsiText::trimmedBlanks(firstName).toString();
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool isBlank(QChar character)
{
    return character == u' ';
}

bool isBlank(char character)
{
    return character == ' ';
}

int digitValue(QChar digit)
{
    return digit.unicode() - u'0';
}

int digitValue(char digit)
{
    return digit - '0';
}

/// The number at `nameWidth`; one that no int can hold gives the largest, which no file has a record for.
template <typename View>
int recordOf(View line)
{
    if (line.size() < nameWidth)
        return 0;
    auto at = line.begin() + nameWidth;
    while (at != line.end() && isBlank(*at))
        ++at;
    int number = 0;
    for (; at != line.end() && isDigit(*at); ++at) {
        if (number > (std::numeric_limits<int>::max() - 9) / 10)
            return std::numeric_limits<int>::max();
        number = number * 10 + digitValue(*at);
    }
    return number;
}

template <typename View>
View withoutBlanks(View text)
{
    while (!text.isEmpty() && isBlank(text.back()))
        text.chop(1);
    return text;
}

template <typename View>
View nameOf(View line)
{
    const View whole = withoutBlanks(line);
    View names = whole;
    while (!names.isEmpty() && isDigit(names.back()))
        names.chop(1);
    // Digits that follow a blank are the number; others end a name, in a line that has lost its number.
    return !names.isEmpty() && isBlank(names.back()) ? withoutBlanks(names) : whole;
}

} // namespace

QString IndexLine::make(QStringView lastName, QStringView firstName, int record)
{
    const QString names = listName(lastName, firstName);
    const qsizetype start = names.size() < nameWidth ? numberColumn : names.size() + leastGap;
    return names.leftJustified(start) + QString::number(record);
}

int IndexLine::record(QStringView line)
{
    return recordOf(line);
}

int IndexLine::record(QByteArrayView line)
{
    return recordOf(line);
}

QStringView IndexLine::name(QStringView line)
{
    return nameOf(line);
}

QByteArrayView IndexLine::name(QByteArrayView line)
{
    return nameOf(line);
}

QString IndexLine::deletionMark()
{
    return u"#####"_s + QString(40, u' ');
}

bool IndexLine::isLastName(QStringView name)
{
    return !name.isEmpty() && !name.startsWith("****"_L1) && !name.trimmed().startsWith("####"_L1);
}

bool IndexLine::isDeleted(QStringView line)
{
    return line.startsWith(u"####");
}

bool IndexLine::isDeleted(QByteArrayView line)
{
    // Nearly every line differs in its first character, and lists of many thousand come through here.
    return !line.isEmpty() && line.front() == '#' && line.startsWith("####");
}

bool IndexLine::belongs(QStringView line, const AddressEntry &entry)
{
    const QString names = listName(entry[LastName], entry[FirstName]);
    return name(line) == AnsiText::trimmedBlanksRight(names);
}

bool IndexLine::fits(QStringView lastName, QStringView firstName)
{
    return listName(lastName, firstName).size() <= nameWidth;
}
