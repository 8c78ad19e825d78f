// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/timeofday.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

/// Times as people type them, alone and in front of a text.
class TestTimeOfDay : public QObject
{
    Q_OBJECT
private slots:
    void readsTimesOfDay_data()
    {
        rows<QString, QTime, QTime>({
            {"morning", u"9:30 AM"_s, {9, 30}, {9, 30}},
            {"noon", u"12:00 PM"_s, {12, 0}, {12, 0}},
            {"midnight", u"12:15am"_s, {0, 15}, {0, 15}},
            {"24 hours", u"14:05"_s, {14, 5}, {14, 5}},
            {"hour alone", u" 8 "_s, {8, 0}, {}},
            {"hour and half", u"8 pm"_s, {20, 0}, {20, 0}},
            {"no hour", u"25:00"_s, {}, {}},
            {"13 PM", u"13:00 PM"_s, {}, {}},
            {"three digits", u"9:305"_s, {}, {}},
            {"one digit", u"9:3"_s, {}, {}},
            {"a number", u"120"_s, {}, {}},
            {"words", u"noon"_s, {}, {}},
            {"empty", {}, {}, {}},
            {"before a text", u"9.30 am Dentist"_s, {}, {9, 30}},
            {"before a comma", u"14:30, choir"_s, {}, {14, 30}},
            {"a number of things", u"3 apples"_s, {}, {}},
            {"a word that begins with am", u"9 amber beads"_s, {}, {}},
        });
    }
    void readsTimesOfDay()
    {
        const auto [text, time, leading] = row<QString, QTime, QTime>();
        QCOMPARE(TimeOfDay::of(text), time);
        QCOMPARE(TimeOfDay::leading(text), leading);
    }

    void tellsWhatStandsBehindTheTime()
    {
        QCOMPARE(TimeOfDay::behindLeading(u"9:30 am  Dentist"), u"Dentist");
        QCOMPARE(TimeOfDay::behindLeading(u"3 apples"), u"3 apples");
        QCOMPARE(TimeOfDay::behindLeading(u"14:30"), u"");
    }
};

QTEST_GUILESS_MAIN(TestTimeOfDay)
#include "tst_timeofday.moc"
