// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/photodatewords.h"
#include "tests/support/rows.h"

#include <QTest>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 21);

PhotoDate date(const QByteArray &edtf)
{
    return PhotoDate::fromEdtf(edtf);
}

} // namespace

class TestPhotoDate : public QObject
{
    Q_OBJECT
private slots:
    void readsWhatIsTyped_data()
    {
        rows<QString, QByteArray, QString>({
            {"a year", u"1974"_s, "1974", u"1974"_s},
            {"a small year", u"74"_s, "1974", u"1974"_s},
            {"a small year of this century", u"'19"_s, "2019", u"2019"_s},
            {"about a year", u"About 1974"_s, "1974~", u"about 1974"_s},
            {"circa", u"ca. 1974"_s, "1974~", u"about 1974"_s},
            {"a season", u"summer 82"_s, "1982-22", u"summer 1982"_s},
            {"a season of", u"Fall of 1982"_s, "1982-23", u"autumn 1982"_s},
            {"about a season", u"around winter 1982"_s, "1982-24~", u"about winter 1982"_s},
            {"a winter of two years", u"winter 1982/83"_s, "1982-24", u"winter 1982"_s},
            {"a month", u"July 1974"_s, "1974-07", u"July 1974"_s},
            {"a month in ISO", u"1974-07"_s, "1974-07", u"July 1974"_s},
            {"a month in numbers", u"7/1974"_s, "1974-07", u"July 1974"_s},
            {"a day", u"July 4, 1974"_s, "1974-07-04", u"July 4, 1974"_s},
            {"a day in numbers", u"7/4/74"_s, "1974-07-04", u"July 4, 1974"_s},
            {"a moment", u"11/21/2026 2:03 pm"_s, "2026-11-21T14:03:00", u"November 21, 2026, 2:03 PM"_s},
            {"a moment in ISO", u"2026-11-21T14:03:27"_s, "2026-11-21T14:03:27",
             u"November 21, 2026, 2:03 PM"_s},
            {"yesterday", u"yesterday"_s, "2026-11-20", u"November 20, 2026"_s},
            {"a decade", u"the 1980s"_s, "198X", u"the 1980s"_s},
            {"a small decade", u"80's"_s, "198X", u"the 1980s"_s},
            {"a decade by name", u"the eighties"_s, "198X", u"the 1980s"_s},
            {"a decade in EDTF", u"198x"_s, "198X", u"the 1980s"_s},
            {"a century", u"19th century"_s, "18XX", u"the 19th century"_s},
            {"before", u"before 1950"_s, "../1950", u"before 1950"_s},
            {"since", u"after May 1950"_s, "1950-05/..", u"since May 1950"_s},
            {"from", u"from 1950"_s, "1950/..", u"since 1950"_s},
            {"years", u"1970 to 1975"_s, "1970/1975", u"1970 to 1975"_s},
            {"years with a dash", u"1970-75"_s, "1970/1975", u"1970 to 1975"_s},
            {"between", u"between about 1970 and 1975"_s, "1970~/1975", u"about 1970 to 1975"_s},
            {"from and to", u"from summer 1970 to 1971"_s, "1970-22/1971", u"summer 1970 to 1971"_s},
            {"nothing", u"  "_s, "", u""_s},
        });
    }
    void readsWhatIsTyped()
    {
        const auto [typed, edtf, words] = row<QString, QByteArray, QString>();
        const auto read = PhotoDateWords::read(typed, DateStyle::Usa, today);
        QVERIFY(read);
        QCOMPARE(read->edtf(), edtf);
        QCOMPARE(PhotoDateWords::words(*read, DateStyle::Usa), words);
        // What is shown can be typed again.
        for (const DateStyle style : {DateStyle::Usa, DateStyle::Other}) {
            const auto again = PhotoDateWords::read(PhotoDateWords::words(*read, style), style, today);
            QVERIFY(again);
            QCOMPARE(again->first(), read->first());
            QCOMPARE(again->last(), read->last());
        }
    }

    void refusesWhatIsNoDate_data()
    {
        rows<QString>({{"a word", u"lake"_s},
                       {"a month alone", u"July"_s},
                       {"no day of its month", u"February 30, 1974"_s},
                       {"no month", u"1974-13"_s},
                       {"no time", u"2026-11-21T25:00:00"_s},
                       {"the wrong way round", u"1975 to 1970"_s},
                       {"half", u"before "_s},
                       {"three digits", u"974"_s},
                       {"no year of four digits", u"0974"_s},
                       {"before there were photographs", u"1820"_s},
                       {"to come", u"2030"_s},
                       {"tomorrow", u"2026-11-22"_s},
                       {"too long", QString(5000, u'9')}});
    }
    void refusesWhatIsNoDate()
    {
        const auto [typed] = row<QString>();
        QVERIFY(!PhotoDateWords::read(typed, DateStyle::Usa, today));
    }

    void standsInOrder()
    {
        const QList<QByteArray> order{"18XX",
                                      "../1950",
                                      "1950/..",
                                      "1970/1975",
                                      "197X",
                                      "1970",
                                      "1974",
                                      "1974-22",
                                      "1974-07",
                                      "1974-07-04",
                                      "198X",
                                      "1982-22",
                                      "1982-07",
                                      "1982-07-04",
                                      "1982-07-04T08:00:00",
                                      "1982-07-04T08:00:01",
                                      ""};
        QList<QByteArray> sorted = order;
        std::ranges::reverse(sorted);
        std::ranges::sort(sorted, {}, [](const QByteArray &edtf) { return date(edtf).sortKey(); });
        QCOMPARE(sorted, order);
    }

    void findsWhatMayBeMeant_data()
    {
        rows<QByteArray, QString, bool>({
            {"a day in its year", "1974-07-04", u"1974"_s, true},
            {"a day in its summer", "1982-07-04", u"summer 82"_s, true},
            {"a day before its summer", "1982-05-31", u"summer 82"_s, false},
            {"a year in its decade", "1984", u"the 1980s"_s, true},
            {"a decade that may be the year", "198X", u"1984"_s, true},
            {"about the next year", "1974~", u"1975"_s, true},
            {"not about so many years later", "1974~", u"1977"_s, false},
            {"before", "../1950", u"1949"_s, true},
            {"not before", "../1950", u"1950"_s, false},
            {"since", "1950/..", u"2020"_s, true},
            {"in between", "1970/1975", u"July 1972"_s, true},
            {"no date", "", u"1974"_s, false},
            {"nothing that is known", "nobody knows", u"1974"_s, false},
        });
    }
    void findsWhatMayBeMeant()
    {
        const auto [edtf, typed, isFound] = row<QByteArray, QString, bool>();
        const auto sought = PhotoDateWords::readSought(typed, DateStyle::Usa, today);
        QVERIFY(sought);
        QCOMPARE(PhotoDateWords::mayBe(date(edtf), *sought), isFound);
    }

    void takesNoSmallNumberForAYearThatIsSought()
    {
        QVERIFY(!PhotoDateWords::readSought(u"12", DateStyle::Usa, today));
    }

    void movesByHoursAndDays_data()
    {
        rows<QByteArray, qint64, QByteArray>({
            {"a moment", "2026-11-21T14:03:00", -3 * 3600, "2026-11-21T11:03:00"},
            {"over midnight", "2026-12-31T23:30:00", 3600, "2027-01-01T00:30:00"},
            {"a day by hours", "2026-11-21", 3 * 3600, "2026-11-21"},
            {"a day by a day", "2026-11-21", -86400, "2026-11-20"},
            {"a year stays", "1974", 86400, "1974"},
            {"about a day stays", "1974-07-04~", 86400, "1974-07-04~"},
        });
    }
    void movesByHoursAndDays()
    {
        const auto [edtf, seconds, moved] = row<QByteArray, qint64, QByteArray>();
        QCOMPARE(date(edtf).shifted(seconds).edtf(), moved);
    }

    void keepsWhatItDoesNotUnderstand()
    {
        const QByteArray foreign = "{1667,1668,1670..1672}?%";
        const PhotoDate kept = PhotoDate::fromEdtf(foreign);
        QCOMPARE(kept.edtf(), foreign);
        QVERIFY(!kept.isUnderstood() && !kept.isNone());
        QCOMPARE(PhotoDateWords::words(kept, DateStyle::Usa), QString::fromLatin1(foreign));
    }
};

QTEST_APPLESS_MAIN(TestPhotoDate)
#include "tst_photodate.moc"
