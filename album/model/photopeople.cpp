// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/photopeople.h"

#include "storage/foldedtext.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int monthsPerYear = 12;

bool isCalled(const KnownPerson &person, const QString &name)
{
    return person.name.simplified().compare(name.simplified(), Qt::CaseInsensitive) == 0;
}

/// Whole months from one day to another.
int monthsBetween(QDate from, QDate to)
{
    const int months = monthsPerYear * (to.year() - from.year()) + to.month() - from.month();
    return from.addMonths(months) > to ? months - 1 : months;
}

QString counted(qint64 count, const QString &what)
{
    return u"%1 %2%3 old"_s.arg(count).arg(what, count == 1 ? QString() : u"s"_s);
}

QString exactAge(QDate born, QDate day)
{
    constexpr int monthsOfBabies = 24;
    const int months = monthsBetween(born, day);
    if (months >= monthsOfBabies)
        return counted(months / monthsPerYear, u"year"_s);
    return months > 0 ? counted(months, u"month"_s) : counted(born.daysTo(day), u"day"_s);
}

/// Whether `name` begins with what is typed, or a word of it does; both are folded.
enum class Match { None, Word, Beginning };
Match matchOf(const QByteArray &name, const QByteArray &typed)
{
    if (name.startsWith(typed))
        return Match::Beginning;
    return name.contains(QByteArray(' ' + typed)) ? Match::Word : Match::None;
}

} // namespace

QList<PhotoPerson> PhotoPeople::linked(const Photo &photo, const QList<KnownPerson> &persons)
{
    QList<PhotoPerson> people = photo.persons();
    for (PhotoPerson &one : people) {
        const bool isSame = std::ranges::any_of(persons, [&one](const KnownPerson &person) {
            return person.record == one.record && isCalled(person, one.name);
        });
        if (!isSame)
            one.record = 0;
    }
    return people;
}

PhotoPerson PhotoPeople::ofName(const QString &name, const QList<KnownPerson> &persons)
{
    const auto isOne = [&name](const KnownPerson &person) { return isCalled(person, name); };
    const auto found = std::ranges::find_if(persons, isOne);
    if (found == persons.end() || std::ranges::count_if(persons, isOne) > 1)
        return {name.simplified(), 0};
    return {found->name.simplified(), found->record};
}

QList<PhotoPerson> PhotoPeople::offered(const QString &typed, const QList<KnownPerson> &persons,
                                        const QStringList &otherNames, int most)
{
    const QByteArray sought = FoldedText::of(typed.simplified());
    QList<PhotoPerson> all;
    for (const KnownPerson &person : persons)
        all.append({person.name.simplified(), person.record});
    for (const QString &name : otherNames) {
        if (std::ranges::none_of(persons,
                                 [&name](const KnownPerson &person) { return isCalled(person, name); }))
            all.append({name.simplified(), 0});
    }
    QList<PhotoPerson> found;
    for (const Match wanted : {Match::Beginning, Match::Word}) {
        for (const PhotoPerson &person : all) {
            if (int(found.size()) < most && matchOf(FoldedText::of(person.name), sought) == wanted)
                found.append(person);
        }
    }
    return found;
}

QString PhotoPeople::age(QDate born, const PhotoDate &date)
{
    const QDate first = date.first();
    const QDate last = date.last();
    if (!born.isValid() || !first.isValid() || !last.isValid() || last < born)
        return {};
    const bool isExact = date.day().isValid();
    if (isExact)
        return exactAge(born, first);
    const int youngest = monthsBetween(born, std::max(first, born)) / monthsPerYear;
    const int oldest = monthsBetween(born, last) / monthsPerYear;
    const QString about = date.parts().from.isAbout || date.parts().to.isAbout ? u"about "_s : QString();
    if (oldest == 0)
        return about + u"less than 1 year old"_s;
    if (youngest == oldest)
        return about + counted(oldest, u"year"_s);
    const QString between = oldest == youngest + 1 ? u"%1 or %2 years old"_s : u"%1 to %2 years old"_s;
    return about + between.arg(youngest).arg(oldest);
}

QString PhotoPeople::words(const Photo &photo, const QList<KnownPerson> &persons)
{
    QStringList all;
    for (const PhotoPerson &one : linked(photo, persons)) {
        const auto person = std::ranges::find(persons, one.record, &KnownPerson::record);
        const QString years =
            one.record != 0 && person != persons.end() ? age(person->born, photo.date) : QString();
        all.append(years.isEmpty() ? one.name : u"%1 (%2)"_s.arg(one.name, years));
    }
    return all.join(u", "_s);
}
