// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressnews.h"

#include "addressbook/model/addressbook.h"
#include "shell/core/dates.h"

#include <QLocale>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

// As many as the main menu's panel shows. The last of them would bear the name of today.
constexpr int daysThisWeek = 7;
constexpr int daysAhead = 30;

enum class Kind { Birthday, Anniversary };

/// A birthday or an anniversary that comes round.
struct Occasion {
    Kind kind;
    QDate day; ///< when it comes next
    int years; ///< how many it completes
    QString name;
};

/// The first time that the date of `kind` comes round on or after `day`; nothing without a date that can be
/// read. The name is left out: of a full book nearly all days are far away.
std::optional<Occasion> nextOccasion(QByteArrayView record, Kind kind, DateStyle style, QDate day,
                                     QDate today)
{
    const qsizetype at = (kind == Kind::Birthday ? BirthDate : AnniversaryDate) * addressTextWidth;
    if (record.size() <= at)
        return {};
    const QString text =
        AnsiText::fieldText(record.sliced(at, std::min(addressTextWidth, record.size() - at)));
    const QDate latest = kind == Kind::Birthday ? today : QDate();
    const auto date = text.isEmpty() ? std::nullopt : Dates::parse(text, style, latest);
    if (!date)
        return {};
    const QDate next = Dates::nextAnniversary(*date, day);
    const int years = next.year() - date->year();
    // The day itself is no anniversary yet, and one to come even less.
    if (years < 1)
        return {};
    return Occasion{kind, next, years, {}};
}

QString nameOf(QByteArrayView record)
{
    return addressLayout.decode(record).fullName();
}

QString word(Kind kind, qsizetype count = 1)
{
    if (kind == Kind::Birthday)
        return count == 1 ? u"birthday"_s : u"birthdays"_s;
    return count == 1 ? u"anniversary"_s : u"anniversaries"_s;
}

/// "Sunday: Irene Frank's birthday". The name gives way where not all of it has room.
LiveLine lineOf(const QString &day, const Occasion &occasion, const QString &sentence)
{
    LiveLine line{day + u": "_s, LiveLine::Plain, sentence};
    line.nameAt = line.text.size();
    line.nameLength = occasion.name.size();
    line.text += occasion.name + u"'s "_s + word(occasion.kind);
    return line;
}

/// "Anne Lind turns 48"
QString noteText(const Occasion &occasion)
{
    if (occasion.kind == Kind::Anniversary && occasion.years < 1)
        return occasion.name + u": anniversary"_s;
    if (occasion.kind == Kind::Anniversary)
        return occasion.name + u": anniversary, "_s + QString::number(occasion.years) +
               (occasion.years == 1 ? u" year"_s : u" years"_s);
    return occasion.name + u" turns "_s + QString::number(occasion.years);
}

/// What the next days hold: everything of this week, and what comes first after it.
class Ahead
{
public:
    Ahead(DateStyle style, QDate today)
        : m_style(style)
        , m_today(today)
    {}

    void add(Kind kind, QByteArrayView record);
    std::optional<LiveLine> line() const;

private:
    QString dayText(QDate day) const;
    QString countText() const;
    QString sentence() const;

    DateStyle m_style;
    QDate m_today;
    std::vector<Occasion> m_thisWeek;
    std::optional<Occasion> m_later;
};

void Ahead::add(Kind kind, QByteArrayView record)
{
    std::optional<Occasion> occasion = nextOccasion(record, kind, m_style, m_today, m_today);
    const qint64 days = occasion ? m_today.daysTo(occasion->day) : daysAhead + 1;
    if (days > daysAhead)
        return;
    occasion->name = nameOf(record);
    if (days <= daysThisWeek)
        m_thisWeek.push_back(std::move(*occasion));
    else if (!m_later || occasion->day < m_later->day)
        m_later = std::move(occasion);
}

std::optional<LiveLine> Ahead::line() const
{
    if (m_thisWeek.size() > 1)
        return LiveLine{countText(), LiveLine::Plain, sentence()};
    if (m_thisWeek.size() == 1) {
        const Occasion &only = m_thisWeek.front();
        return lineOf(only.day == m_today ? u"Today"_s : dayText(only.day), only, sentence());
    }
    if (m_later)
        return lineOf(Dates::shortText(m_later->day, m_style), *m_later, {});
    return std::nullopt;
}

QString Ahead::dayText(QDate day) const
{
    return m_today.daysTo(day) < daysThisWeek ? QLocale::c().dayName(day.dayOfWeek())
                                              : Dates::shortText(day, m_style);
}

QString Ahead::countText() const
{
    QStringList parts;
    for (const Kind kind : {Kind::Birthday, Kind::Anniversary}) {
        const auto count = std::ranges::count(m_thisWeek, kind, &Occasion::kind);
        if (count > 0)
            parts << QString::number(count) + u' ' + word(kind, count);
    }
    return parts.join(u", "_s) + u" this week"_s;
}

/// Of the first occasion: "Turning 48 today: Anne Lind.", "Birthday on Tuesday: Anne Lind."
QString Ahead::sentence() const
{
    const Occasion &first = *std::ranges::min_element(m_thisWeek, {}, &Occasion::day);
    if (m_thisWeek.size() == 1 && m_today.daysTo(first.day) == daysThisWeek)
        return {};
    const bool isBirthday = first.kind == Kind::Birthday;
    const QString what = isBirthday ? u"Birthday"_s : u"Anniversary"_s;
    if (first.day != m_today)
        return what + u" on "_s + dayText(first.day) + u": "_s + first.name + u'.';
    return (isBirthday ? u"Turning "_s + QString::number(first.years) : what) + u" today: "_s + first.name +
           u'.';
}

} // namespace

std::optional<LiveLine> AddressNews::liveLine(const DataFolder &folder, DateStyle style, QDate today)
{
    Ahead ahead(style, today);
    AddressBook(folder).forEachLiveRecord([&ahead](int, QByteArrayView record) {
        ahead.add(Kind::Birthday, record);
        ahead.add(Kind::Anniversary, record);
        return true;
    });
    return ahead.line();
}

QList<DayNote> AddressNews::dayNotes(const DataFolder &folder, DateStyle style, QDate from, QDate to,
                                     QDate today)
{
    QList<DayNote> notes;
    if (!from.isValid() || !to.isValid())
        return notes;
    const auto add = [&](int number, QByteArrayView record, Kind kind) {
        const NoteKind noteKind = kind == Kind::Birthday ? NoteKind::Birthday : NoteKind::Anniversary;
        for (QDate day = from; day <= to; day = day.addDays(1)) {
            auto occasion = nextOccasion(record, kind, style, day, today);
            if (!occasion || occasion->day > to)
                return;
            day = occasion->day;
            occasion->name = nameOf(record);
            notes.append({day,
                          noteText(*occasion),
                          u"Address Book"_s,
                          noteKind,
                          {},
                          {.record = number},
                          occasion->name.size()});
        }
    };
    AddressBook(folder).forEachLiveRecord([&add](int number, QByteArrayView record) {
        add(number, record, Kind::Birthday);
        add(number, record, Kind::Anniversary);
        return true;
    });
    std::ranges::stable_sort(notes, {}, &DayNote::date);
    return notes;
}
