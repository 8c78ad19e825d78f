// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/recurrencewords.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

class TestRecurrenceWords : public QObject
{
    Q_OBJECT
private slots:
    /// For an appointment of a Saturday, 21 November 2026; the kinds by their place in the panel.
    void tellTheKind_data()
    {
        rows<QString, QString>({
            {"a birthday", u"Bo's BIRTHDAY every Sunday"_s, u"4 x1"_s},
            {"in short", u"B'day Ida"_s, u"4 x1"_s},
            {"an anniversary", u"Anniversary"_s, u"4 x1"_s},
            {"annual", u"Annual check"_s, u"4 x1"_s},
            {"ten years", u"Passports, every 10 years"_s, u"4 x10"_s},
            {"each month", u"pay Bo each month"_s, u"3 x1 on 21"_s},
            {"rent", u"Rent"_s, u"3 x1 on 21"_s},
            {"parents", u"Parents evening"_s, {}},
            {"quarterly", u"Quarterly taxes"_s, u"3 x3 on 21"_s},
            {"half-yearly", u"half-yearly dentist"_s, u"3 x6 on 21"_s},
            {"three months", u"filter every three months"_s, u"3 x3 on 21"_s},
            {"a weekday", u"Choir  every Tuesday"_s, u"2 x1 on 2"_s},
            {"Sundays", u"Church Sundays 10"_s, u"2 x1 on 7"_s},
            {"weekly", u"Weekly review"_s, u"2 x1 on 6"_s},
            {"weekly on a day", u"weekly, Mondays"_s, u"2 x1 on 1"_s},
            {"every other week", u"bins every other week"_s, u"2 x2 on 6"_s},
            {"every other Friday", u"pay every other Friday"_s, u"2 x2 on 5"_s},
            {"two weeks", u"every 2 weeks"_s, u"2 x2 on 6"_s},
            {"biweekly", u"Bi-weekly call"_s, u"2 x2 on 6"_s},
            {"weekdays", u"School bus weekdays"_s, u"1 x1"_s},
            {"Monday to Friday", u"Bus Mon-Fri"_s, u"1 x1"_s},
            {"daily", u"Pills daily"_s, u"0 x1"_s},
            {"every other day", u"water every other day"_s, u"0 x2"_s},
            {"every morning", u"Run every morning"_s, u"0 x1"_s},
            {"one weekday", u"Dinner on Friday"_s, {}},
            {"two weekdays", u"every Tuesday and Thursday"_s, {}},
            {"a weekday of the month", u"first Monday of every month"_s, {}},
            {"part of a word", u"Everyday things, monthlyish"_s, {}},
            {"no number", u"every 0 days"_s, {}},
            {"nothing", {}, {}},
        });
    }

    void tellTheKind()
    {
        const auto [text, told] = row<QString, QString>();
        const auto found = RecurrenceWords::recurrence(text, QDate(2026, 11, 21));
        QString words;
        if (found)
            words = u"%1 x%2"_s.arg(found->kind).arg(found->interval);
        if (found && found->kind == Recurrence::Weekly)
            words += u" on %1"_s.arg(int(found->weekday));
        if (found && found->kind == Recurrence::Monthly)
            words += u" on %1"_s.arg(found->dayOfMonth);
        QCOMPARE(words, told);
    }
};

QTEST_GUILESS_MAIN(TestRecurrenceWords)
#include "tst_recurrencewords.moc"
