// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/usualtime.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

class TestUsualTime : public QObject
{
    Q_OBJECT
private slots:
    void readsWhatIsMeant_data()
    {
        rows<QString, QString>({
            {"digits", u"930"_s, u"9:30 AM"_s},
            {"four digits", u"1430"_s, u"2:30 PM"_s},
            {"a letter", u"8a"_s, u"8:00 AM"_s},
            {"an afternoon", u"8 P.M."_s, u"8:00 PM"_s},
            {"long clock", u"14:30"_s, u"2:30 PM"_s},
            {"an hour", u"10"_s, u"10:00 AM"_s},
            {"after noon", u"5.15"_s, u"5:15 PM"_s},
            {"noon", u"12"_s, u"12:00 PM"_s},
            {"midnight", u"12:30a"_s, u"12:30 AM"_s},
            {"early", u"0530"_s, u"5:30 AM"_s},
            {"blanks", u" 9 30 pm "_s, u"9:30 PM"_s},
            {"small letters", u"9:30 am"_s, u"9:30 AM"_s},
            {"usual", u"9:30 AM"_s, {}},
            {"nothing", {}, {}},
            {"not begun", u"0"_s, {}},
            {"no minute", u"9:75"_s, {}},
            {"no hour", u"25"_s, {}},
            {"no such half", u"14 pm"_s, {}},
            {"words", u"9 or 10"_s, {}},
            {"all day", u"all day"_s, {}},
        });
    }

    void readsWhatIsMeant()
    {
        const auto [typed, usual] = row<QString, QString>();
        QCOMPARE(UsualTime::of(typed), usual);
    }

    void tellsWhatHasNoHalf()
    {
        QVERIFY(UsualTime::hasNoHalf(u"14:30 "_s) && UsualTime::hasNoHalf(u"all day"_s));
        QVERIFY(!UsualTime::hasNoHalf(u"9:30 pm "_s) && !UsualTime::hasNoHalf(u"8am"_s));
        QVERIFY(!UsualTime::hasNoHalf(u" "_s));
    }
};

QTEST_GUILESS_MAIN(TestUsualTime)
#include "tst_usualtime.moc"
