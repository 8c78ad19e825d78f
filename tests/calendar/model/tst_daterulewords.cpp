// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/daterulewords.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

class TestDateRuleWords : public QObject
{
    Q_OBJECT
private slots:
    void sayARule_data()
    {
        rows<QString, QString>({
            {"a date", u"12-25"_s, u"25 December"_s},
            {"a weekday of a month", u"nth 4 thu 11"_s, u"The fourth Thursday of November"_s},
            {"of every month", u"nth 1 thu"_s, u"The first Thursday of every month"_s},
            {"the last of one", u"last mon 05"_s, u"The last Monday of May"_s},
            {"before a date", u"before mon 05-25"_s, u"The last Monday before 25 May"_s},
            {"from a date on", u"from sat 06-20"_s, u"The first Saturday from 20 June on"_s},
            {"Easter", u"easter 0"_s, u"Easter Sunday"_s},
            {"a day after it", u"easter 1"_s, u"The day after Easter Sunday"_s},
            {"days before the Orthodox one", u"orthodox -48"_s, u"48 days before Orthodox Easter Sunday"_s},
            {"every week", u"every 1 weeks 2027-01-05"_s, u"Every Tuesday from 5 January 2027 on"_s},
            {"every second week", u"every 2 weeks 2027-01-05"_s,
             u"Every second Tuesday from 5 January 2027 on"_s},
            {"every third", u"every 3 weeks 2027-01-05"_s,
             u"Every 3 weeks on Tuesday from 5 January 2027 on"_s},
            {"every tenth day", u"every 10 days 2027-01-05"_s, u"Every 10 days from 5 January 2027 on"_s},
            {"since a year", u"06-19 years 2021-"_s, u"19 June, since 2021"_s},
            {"until a year", u"06-19 years -2021"_s, u"19 June, until 2021"_s},
            {"for some years", u"06-19 years 2021-2030"_s, u"19 June, 2021 to 2030"_s},
            {"once", u"06-19 years 2021"_s, u"19 June, in 2021 only"_s},
            {"a day off", u"07-04 observed sat-1 sun+1"_s,
             u"4 July; on a Saturday the day before, on a Sunday the day after is off too"_s},
            {"a day off later", u"12-26 observed next"_s,
             u"26 December; on a weekend the next weekday is off too"_s},
            {"moved", u"02-01 moved tue+6"_s, u"1 February; on a Tuesday 6 days after instead"_s},
        });
    }

    void sayARule()
    {
        const auto [text, words] = row<QString, QString>();
        QCOMPARE(DateRuleWords::of(*DateRule::parse(text), DateStyle::Other), words);
    }

    void sayDatesAsTheCountryDoes()
    {
        QCOMPARE(DateRuleWords::of(*DateRule::parse(u"12-25"), DateStyle::Usa), u"December 25"_s);
        QCOMPARE(DateRuleWords::of(*DateRule::parse(u"every 2 days 2027-01-05"), DateStyle::Usa),
                 u"Every second day from January 5, 2027 on"_s);
    }
};

QTEST_APPLESS_MAIN(TestDateRuleWords)
#include "tst_daterulewords.moc"
