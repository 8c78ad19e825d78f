// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/rows.h"
#include "todo/model/repeat.h"
#include "todo/model/repeatwords.h"
#include "todo/model/typeddate.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QDate dayOf(const char *text)
{
    return QDate::fromString(QString::fromLatin1(text), Qt::ISODate);
}

using Text = const char *;

} // namespace

/// Rules by which things come back, and dates, as files have them and as people type them.
class TestRepeat : public QObject
{
    Q_OBJECT
private slots:
    void comesBackOn_data()
    {
        // rule, due, done, the next date, dates missed. 22 November 2026 is a Sunday.
        rows<Text, Text, Text, Text, int>({
            {"on time", "day 3", "2026-11-22", "2026-11-22", "2026-11-25", 0},
            {"late, on the rule's days", "day 3", "2026-11-10", "2026-11-22", "2026-11-25", 4},
            {"early, not on the same day again", "week 1 wed", "2026-11-25", "2026-11-22", "2026-12-02", 0},
            {"a thousand years late", "day 1", "1026-11-22", "2026-11-22", "2026-11-23", 365243},
            {"from the day it was done", "day 3 after", "2026-11-10", "2026-11-22", "2026-11-25", 0},
            {"several days a week", "week 1 mon,thu", "2026-11-19", "2026-11-19", "2026-11-23", 0},
            {"every second week", "week 2 mon,thu", "2026-11-19", "2026-11-19", "2026-11-30", 0},
            {"every second week, missed", "week 2 mon,thu", "2026-11-05", "2026-11-22", "2026-11-30", 2},
            {"the 31st in a short month", "month 1 31", "2026-10-31", "2026-11-02", "2026-11-30", 0},
            {"and in a long one", "month 1 31", "2026-11-30", "2026-11-30", "2026-12-31", 0},
            {"the 31st in February", "month 1 31", "2027-01-31", "2027-01-31", "2027-02-28", 0},
            {"every quarter, missed", "month 3 15", "2026-02-15", "2026-11-22", "2027-02-15", 3},
            {"29 February", "year 1 02-29", "2028-02-29", "2028-03-02", "2029-02-28", 0},
            {"29 February when there is one", "year 4 02-29", "2028-02-29", "2028-02-29", "2032-02-29", 0},
            {"a year, missed", "year 1 03-15", "2024-03-15", "2026-11-22", "2027-03-15", 2},
            {"a month from the day it was done", "month 1 15 after", "2026-11-15", "2026-11-22", "2026-12-15",
             0},
            {"the nearest such day", "month 1 1 after", "2026-11-01", "2026-11-30", "2027-01-01", 0},
            {"a week from the day it was done", "week 1 mon after", "2026-11-16", "2026-11-22", "2026-11-30",
             0},
            {"a year from a day just before", "year 1 12-15 after", "2025-12-15", "2026-01-03", "2026-12-15",
             0},
            {"no date yet", "day 2", "", "2026-11-22", "2026-11-24", 0},
            {"no date yet, a weekday", "week 1 sun", "", "2026-11-22", "2026-11-29", 0},
            {"where the calendar ends", "day 1", "9999-12-31", "2026-11-22", "", 0},
            {"behind the end of the calendar", "day 2 after", "2026-11-22", "9999-12-30", "", 0},
        });
    }
    void comesBackOn()
    {
        const auto [rule, due, done, next, missed] = row<Text, Text, Text, Text, int>();
        const auto repeat = Repeat::ofFile(QString::fromLatin1(rule));
        QVERIFY(repeat);
        QCOMPARE(repeat->toFile(), QString::fromLatin1(rule));
        QCOMPARE(repeat->next(dayOf(due), dayOf(done), dayOf(done)), dayOf(next));
        QCOMPARE(repeat->missed(dayOf(due), dayOf(done)), missed);
    }

    void takesNoOtherRuleFromAFile()
    {
        for (const QString &text :
             {u""_s, u"day"_s, u"day 0"_s, u"day -1"_s, u"day 4000"_s, u"day 1 2"_s, u"week 1"_s,
              u"week 1 mon,"_s, u"week 1 noon"_s, u"month 1 32"_s, u"month 1 0"_s, u"year 1 02-30"_s,
              u"year 1 2-3"_s, u"after"_s, u"day 1 after after"_s, u"moon 1 1"_s})
            QVERIFY2(!Repeat::ofFile(text), qPrintable(text));
    }

    void readsWhatIsTyped_data()
    {
        rows<Text, Text, Text>({
            {"days", "every 3 days", "day 3", "every 3 days"},
            {"short", "3d", "day 3", "every 3 days"},
            {"in words", "Every other day", "day 2", "every 2 days"},
            {"one word", "daily", "day 1", "every day"},
            {"done", "every 2 weeks after it is done", "week 2 fri after",
             "every 2 weeks on Fri after it is done"},
            {"short done", "monthly after done", "month 1 27 after",
             "every month on the 27th after it is done"},
            {"only after", "10 days after", "day 10 after", "every 10 days after it is done"},
            {"weekday", "every tuesday", "week 1 tue", "every week on Tue"},
            {"weekdays", "Mon, thu & sat", "week 1 mon,thu,sat", "every week on Mon, Thu and Sat"},
            {"working days", "every weekday", "week 1 mon,tue,wed,thu,fri", "every weekday"},
            {"second week", "every 2 weeks on mon and thu", "week 2 mon,thu", "every 2 weeks on Mon and Thu"},
            {"month", "every month", "month 1 27", "every month on the 27th"},
            {"ordinal", "every 31st", "month 1 31", "every month on the last day"},
            {"last", "every 3 months on the last day", "month 3 31", "every 3 months on the last day"},
            {"first", "monthly on the 1st", "month 1 1", "every month on the 1st"},
            {"year", "yearly", "year 1 11-27", "every year on 27 November"},
            {"year day", "every year on 15 March", "year 1 03-15", "every year on 15 March"},
            {"leap", "every year on Feb 29", "year 1 02-29", "every year on 29 February"},
            {"nothing", "", "", ""},
            {"a number", "3", "", ""},
            {"too often", "every 0 days", "", ""},
            {"too rarely", "every 99999 days", "", ""},
            {"no rule", "every now and then", "", ""},
            {"no such day", "monthly on the 32nd", "", ""},
            {"after something else", "every day after lunch", "", ""},
        });
    }
    void readsWhatIsTyped()
    {
        const auto [typed, file, words] = row<Text, Text, Text>();
        const QDate start(2026, 11, 27);
        const auto repeat = RepeatWords::read(QString::fromLatin1(typed), start);
        QCOMPARE(repeat ? repeat->toFile() : QString(), QString::fromLatin1(file));
        if (!repeat)
            return;
        QCOMPARE(RepeatWords::of(*repeat, DateStyle::Other), QString::fromLatin1(words));
        QCOMPARE(RepeatWords::read(RepeatWords::of(*repeat, DateStyle::Usa), start), repeat);
    }

    void readsTypedDates_data()
    {
        rows<Text, Text, Text>({
            {"today", "Today", "2026-11-22", "2026-11-22"},
            {"tomorrow", " tomorrow ", "2026-11-23", "2026-11-23"},
            {"weekday", "fri", "2026-11-27", "2026-11-27"},
            {"this weekday is the next one", "sunday", "2026-11-29", "2026-11-29"},
            {"days", "+3", "2026-11-25", "2026-11-25"},
            {"week", "next  week", "2026-11-29", "2026-11-29"},
            {"month", "next month", "2026-12-22", "2026-12-22"},
            {"as in a record", "Mar-15-2027", "2027-03-15", "2027-03-15"},
            {"by the style", "3/4/2027", "2027-03-04", "2027-04-03"},
            {"without a year", "12 July", "2027-07-12", "2027-07-12"},
            {"this year still", "Nov 30", "2026-11-30", "2026-11-30"},
            {"numbers without a year", "12/7", "2026-12-07", "2027-07-12"},
            {"29 February", "29 feb", "2028-02-29", "2028-02-29"},
            {"a number", "3", "", ""},
            {"nothing", "", "", ""},
            {"a word", "some day", "", ""},
            {"two letters", "su", "", ""},
            {"before the calendar", "0999-01-01", "", ""},
            {"far ahead", "+99999", "", ""},
            {"days that are none", "+-3", "", ""},
        });
    }
    void readsTypedDates()
    {
        const auto [typed, usa, other] = row<Text, Text, Text>();
        const QDate today(2026, 11, 22);
        const QString text = QString::fromLatin1(typed);
        QCOMPARE(TypedDate::read(text, DateStyle::Usa, today).value_or(QDate()), dayOf(usa));
        QCOMPARE(TypedDate::read(text, DateStyle::Other, today).value_or(QDate()), dayOf(other));
    }

    void asksAboutAYearThatIsUnlikely()
    {
        const QDate today(2026, 11, 22);
        for (const auto &[date, isAsked] : {std::pair{"2028-11-22", false},
                                            {"2028-11-23", true},
                                            {"2025-11-22", false},
                                            {"2025-11-21", true}})
            QCOMPARE(TypedDate::question(dayOf(date), today), isAsked ? u"Is the year right?"_s : QString());
        QCOMPARE(TypedDate::readOffset(u"-7"), std::optional(-7));
        QCOMPARE(TypedDate::readOffset(u"+3"), std::optional(3));
        QCOMPARE(TypedDate::readOffset(u"fri"), std::nullopt);
    }
};

QTEST_GUILESS_MAIN(TestRepeat)
#include "tst_repeat.moc"
