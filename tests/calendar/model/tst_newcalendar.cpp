// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/newcalendar.h"
#include "shell/core/settings.h"
#include "shell/core/settingskeys.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

class TestNewCalendar : public QObject
{
    Q_OBJECT
private slots:
    void isProposedForDayAndCountry_data()
    {
        rows<QDate, DateStyle, QLocale::Territory, QString, QString, QStringList>({
            {"the year that runs", QDate(2026, 8, 31), DateStyle::Other, QLocale::Germany,
             u"Family Calendar 2026"_s, u"A4"_s, QStringList{u"Germany"_s}},
            {"the next one in time", QDate(2026, 9, 1), DateStyle::Usa, QLocale::UnitedStates,
             u"Family Calendar 2027"_s, u"Letter"_s, QStringList{u"United States"_s}},
            {"Letter with days first", QDate(2026, 11, 21), DateStyle::Other, QLocale::Canada,
             u"Family Calendar 2027"_s, u"Letter"_s, QStringList{u"Canada"_s}},
            {"no holidays of ours", QDate(2026, 11, 21), DateStyle::Other, QLocale::Norway,
             u"Family Calendar 2027"_s, u"A4"_s, QStringList()},
            {"the last year", QDate(2199, 12, 31), DateStyle::Other, QLocale::France,
             u"Family Calendar 2199"_s, u"A4"_s, QStringList{u"France"_s}},
        });
    }

    void isProposedForDayAndCountry()
    {
        const auto [today, style, territory, title, paper, sets] =
            row<QDate, DateStyle, QLocale::Territory, QString, QString, QStringList>();
        const TestFolder folder;
        const WallCalendar calendar =
            NewCalendar::proposed(today, style, Settings(folder.folder()), territory);
        QCOMPARE(calendar.title, title);
        QCOMPARE(calendar.look.paper, paper);
        QCOMPARE(calendar.holidaySets, sets);
        QCOMPARE(calendar.from.month(), 1);
        QCOMPARE(calendar.months, 12);
    }

    void takesItsWeeksFromTheSettings()
    {
        const TestFolder folder;
        Settings settings(folder.folder());
        QVERIFY(settings.setNumber(SettingsKeys::calendarWeekStart, 2));
        QVERIFY(
            settings.setNumber(SettingsKeys::calendarWeekNumbers, SettingsKeys::calendarWeekNumbersHidden));
        const CalendarLook look = NewCalendar::proposed(QDate(2026, 11, 21), DateStyle::Other, settings).look;
        QCOMPARE(look.firstDay, Qt::Monday);
        QVERIFY(!look.hasWeekNumbers);
    }

    void isCalledAfterItsYears()
    {
        QCOMPARE(NewCalendar::title(QDate(2027, 8, 1), 5), u"Family Calendar 2027"_s);
        QCOMPARE(NewCalendar::title(QDate(2027, 8, 1), 12), u"Family Calendar 2027/28"_s);
        QCOMPARE(NewCalendar::title(QDate(2099, 12, 1), 2), u"Family Calendar 2099/00"_s);
    }
};

QTEST_APPLESS_MAIN(TestNewCalendar)
#include "tst_newcalendar.moc"
