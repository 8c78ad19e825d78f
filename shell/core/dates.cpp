#include "shell/core/dates.h"

#include <QLocale>

#include <array>
#include <cstddef>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype longestDate = 40;
constexpr int lastTwoDigitYear = 2029;
constexpr int yearsAhead = 20;
constexpr std::size_t partCount = 3;

constexpr std::array monthNames{u"january", u"february", u"march",     u"april",   u"may",      u"june",
                                u"july",    u"august",   u"september", u"october", u"november", u"december"};

/// One of the three parts of a date: a number as it stands, or the number of a named month.
struct Part {
    int number = 0;
    int digits = 0; ///< 0 for a month's name

    bool isName() const { return digits == 0; }
    bool isYear() const { return digits > 2; }
};

using Parts = std::array<Part, partCount>;

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isLetter(QChar character)
{
    const QChar lower = character.toLower();
    return lower >= u'a' && lower <= u'z';
}

bool isSeparator(QChar character)
{
    return character == u'/' || character == u'-' || character == u'.' || character == u',' ||
           character == u' ';
}

/// The month that `name` begins, with three letters at least; 0 for any other word.
int monthOf(QStringView name)
{
    if (name.size() < 3)
        return 0;
    for (std::size_t i = 0; i < monthNames.size(); ++i)
        if (QStringView(monthNames[i]).startsWith(name, Qt::CaseInsensitive))
            return int(i) + 1;
    return name.compare("sept"_L1, Qt::CaseInsensitive) == 0 ? 9 : 0;
}

/// The part of `text` from `at` on, which moves behind it.
std::optional<Part> takePart(QStringView text, qsizetype &at)
{
    const qsizetype start = at;
    Part part;
    if (isLetter(text[at])) {
        while (at < text.size() && isLetter(text[at]))
            ++at;
        part.number = monthOf(text.sliced(start, at - start));
        return part.number > 0 ? std::optional(part) : std::nullopt;
    }
    for (; at < text.size() && isDigit(text[at]); ++at) {
        if (++part.digits > 4)
            return {};
        part.number = part.number * 10 + (text[at].unicode() - u'0');
    }
    return part.digits > 0 && part.digits != 3 ? std::optional(part) : std::nullopt;
}

/// The three parts of `text`; nothing when there are more or fewer, or anything else stands between them.
std::optional<Parts> partsOf(QStringView text)
{
    text = text.trimmed();
    Parts parts;
    std::size_t count = 0;
    for (qsizetype at = 0; at < text.size();) {
        const std::optional<Part> part = count < partCount ? takePart(text, at) : std::nullopt;
        if (!part)
            return {};
        parts[count++] = *part;
        if (at < text.size() && !isSeparator(text[at]) && isLetter(text[at]) == part->isName())
            return {};
        while (at < text.size() && isSeparator(text[at]))
            ++at;
    }
    return count == partCount ? std::optional(parts) : std::nullopt;
}

int fullYear(const Part &year, QDate today)
{
    if (year.isYear())
        return year.number;
    const int last = today.isValid() ? today.year() + yearsAhead : lastTwoDigitYear;
    return last - ((last - year.number) % 100 + 100) % 100;
}

std::optional<QDate> dateOf(const Part &year, int month, const Part &day, QDate today)
{
    if (year.isName() || day.isName() || day.isYear() || (year.isYear() && year.number == 0))
        return {};
    const QDate date(fullYear(year, today), month, day.number);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

std::optional<QDate> namedMonth(const Parts &parts, QDate today)
{
    if (parts[0].isName()) // Nov 24 1978
        return dateOf(parts[2], parts[0].number, parts[1], today);
    if (!parts[1].isName())
        return {};
    return parts[0].isYear() ? dateOf(parts[0], parts[1].number, parts[2], today)  // 1978 Nov 24
                             : dateOf(parts[2], parts[1].number, parts[0], today); // 24 Nov 1978
}

std::optional<QDate> numbersOnly(const Parts &parts, DateStyle style, QDate today)
{
    if (parts[0].isYear()) // 1978-11-24
        return parts[1].isYear() ? std::nullopt : dateOf(parts[0], parts[1].number, parts[2], today);
    const Part &first = parts[0], &second = parts[1], &year = parts[2];
    const Part &month = style == DateStyle::Usa ? first : second;
    const Part &day = style == DateStyle::Usa ? second : first;
    if (month.isYear() || day.isYear())
        return {};
    const bool fitsOnlySwapped = month.number > 12 && day.number <= 12;
    return fitsOnlySwapped ? dateOf(year, day.number, month, today) : dateOf(year, month.number, day, today);
}

QString english(QDate date, QStringView format)
{
    return QLocale::c().toString(date, format);
}

} // namespace

DateStyle Dates::styleOf(const QLocale &locale)
{
    return styleOfShortDate(locale.toString(QDate(2006, 9, 30), QLocale::ShortFormat));
}

DateStyle Dates::styleOfShortDate(QStringView shortDate)
{
    int number = 0;
    for (const QChar character : shortDate.first(std::min<qsizetype>(shortDate.size(), 8))) {
        if (!character.isDigit())
            break;
        number = number * 10 + character.digitValue();
    }
    return number == 9 ? DateStyle::Usa : DateStyle::Other;
}

std::optional<QDate> Dates::parse(QStringView text, DateStyle style, QDate today)
{
    if (text.size() > longestDate)
        return {};
    const auto parts = partsOf(text);
    if (!parts)
        return {};
    const bool hasName = (*parts)[0].isName() || (*parts)[1].isName() || (*parts)[2].isName();
    return hasName ? namedMonth(*parts, today) : numbersOnly(*parts, style, today);
}

QString Dates::boxText(QDate date, DateStyle style)
{
    return english(date, style == DateStyle::Usa ? u"MMM-dd-yyyy" : u"dd-MMM-yyyy");
}

QString Dates::numbers(QDate date, DateStyle style)
{
    return english(date, style == DateStyle::Usa ? u"MM/dd/yyyy" : u"dd/MM/yyyy");
}

QString Dates::longText(QDate date, DateStyle style)
{
    return english(date, style == DateStyle::Usa ? u"dddd, MMMM d, yyyy" : u"dddd, d MMMM yyyy");
}

QString Dates::monthDayYear(QDate date, DateStyle style)
{
    return english(date, style == DateStyle::Usa ? u"MMMM d, yyyy" : u"d MMMM yyyy");
}

QString Dates::statusText(QDate date, DateStyle style)
{
    return english(date, style == DateStyle::Usa ? u"ddd, MMM d, yyyy" : u"ddd, d MMM yyyy");
}

QDate Dates::nextAnniversary(QDate date, QDate today)
{
    if (!date.isValid() || !today.isValid())
        return {};
    const auto inYear = [date](int year) {
        const QDate day(year, date.month(), date.day());
        return day.isValid() ? day : QDate(year, 2, 28);
    };
    const QDate thisYear = inYear(today.year());
    return thisYear >= today ? thisYear : inYear(today.year() + 1);
}
