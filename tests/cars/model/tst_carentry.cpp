// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carentry.h"
#include "cars/model/carmakes.h"
#include "cars/model/carnumbers.h"
#include "cars/model/lines.h"
#include "cars/model/messages.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

using Refusal = std::optional<Message>;

/// What is typed into the grids of a car, and how its numbers are read.
class TestCarEntry : public QObject
{
    Q_OBJECT
private slots:
    void readsNumbers_data()
    {
        rows<QString, double>({
            {"digits", u"84210"_s, 84210},
            {"thousands", u"84,210"_s, 84210},
            {"millions and decimals", u"1,084,210.5"_s, 1084210.5},
            {"thousands with blanks", u" 84 210 km"_s, 84210},
            {"money", u"$18,450.00"_s, 18450},
            {"a decimal comma", u"41,57"_s, 41.57},
            {"no digit before the point", u".5"_s, 0.5},
            {"a unit behind it", u"7.5 gallons"_s, 7.5},
            {"a comma behind it", u"12, new"_s, 12},
            {"nothing", {}, -1},
            {"words", u"about 5"_s, -1},
            {"below 0", u"-5"_s, -1},
            {"too many digits", u"12345678901"_s, -1},
            {"noise", QString(2000, u'9'), -1},
        });
    }

    void readsNumbers()
    {
        const auto [text, number] = row<QString, double>();
        QCOMPARE(CarNumbers::number(text).value_or(-1), number);
    }

    void writesNumbers()
    {
        QCOMPARE(CarNumbers::text(84210), u"84210"_s);
        QCOMPARE(CarNumbers::text(293.50), u"293.5"_s);
        QCOMPARE(CarNumbers::text(36.24, 1), u"36.2"_s);
        QCOMPARE(CarNumbers::cents(u"18,450.005"_s), 1845001);
        QCOMPARE(CarNumbers::costText(4990), u"49.90"_s);
        QCOMPARE(CarNumbers::months(u"6 months"_s), 6);
        QVERIFY(!CarNumbers::months(u"0"_s) && !CarNumbers::months(u"9999"_s));
    }

    void checksReadings_data()
    {
        const Refusal refusal =
            Message{u"Entry Error"_s, u"Mileage entry Cannot Exceed the Current Odometer Reading!"_s,
                    Message::Critical};
        rows<QString, QString, QString, Refusal>({
            {"below the current one", u"84,210"_s, u" 84209 "_s, u"84209"_s, {}},
            {"the current one", u"84,210"_s, u"84,210"_s, u"84210"_s, {}},
            {"above it", u"84,210"_s, u"84,211"_s, u"before"_s, refusal},
            {"no current one", {}, u"84,211"_s, u"84211"_s, {}},
            {"taken away", u"84,210"_s, {}, u""_s, {}},
        });
    }

    void checksReadings()
    {
        const auto [current, typed, text, refusal] = row<QString, QString, QString, Refusal>();
        VehicleSheet sheet;
        sheet.field(VehicleSheet::Odometer) = current;
        QCOMPARE(CarEntry::odometer(typed, u"before"_s, sheet), (CarEntry{text, refusal}));
        sheet.unit = DistanceUnit::Kilometers;
        const Refusal inKilometers = CarEntry::odometer(typed, {}, sheet).refusal;
        QCOMPARE(inKilometers.has_value(), refusal.has_value());
        QVERIFY(!inKilometers || inKilometers->text.startsWith(u"Kilometers entry Cannot"_s));
    }

    void storesPlainNumbers_data()
    {
        const auto none = [](const QString &typed) { return CarLines::noNumber(typed); };
        rows<QString, QString, QString, QString>({
            {"digits", u" 84210 "_s, u"84210"_s, u"84210.00"_s, {}},
            {"decimals as they are typed", u"10.530"_s, u"10.530"_s, u"10.53"_s, {}},
            {"thousands", u"12,345"_s, u"12345"_s, u"12345.00"_s, {}},
            {"a decimal comma", u"52,40"_s, u"52.4"_s, u"52.40"_s, {}},
            {"a sum", u"5+4.5"_s, u"9.5"_s, u"9.50"_s, {}},
            {"a sum of tenths", u"0.1 + 0.2"_s, u"0.3"_s, u"0.30"_s, {}},
            {"a unit and a currency", u"$1,240.5 each"_s, u"1240.5"_s, u"1240.50"_s, {}},
            {"taken away", u" "_s, {}, {}, {}},
            {"a word", u"abc"_s, u"before"_s, u"before"_s, none(u"abc"_s)},
            {"a date", u"11/20/2026"_s, u"before"_s, u"before"_s, none(u"11/20/2026"_s)},
            {"two numbers", u"5000 or 6000"_s, u"before"_s, u"before"_s, none(u"5000 or 6000"_s)},
            {"thousands and decimals the other way round", u"1.234,56"_s, u"before"_s, u"before"_s,
             none(u"1.234,56"_s)},
            {"half a sum", u"5+"_s, u"before"_s, u"before"_s, none(u"5+"_s)},
        });
    }

    void storesPlainNumbers()
    {
        const auto [typed, number, money, reason] = row<QString, QString, QString, QString>();
        QCOMPARE(CarEntry::number(typed, u"before"_s), (CarEntry{number, {}, reason}));
        QCOMPARE(CarEntry::money(typed, u"before"_s), (CarEntry{money, {}, reason}));
    }

    void refusesReadingsThatCannotBe_data()
    {
        rows<QString, QString, bool>({
            {"further on", u"84210"_s, u"90,000"_s, true},
            {"typed into the other one", u"84210"_s, u"8421084300"_s, false},
            {"ten times", u"84,210"_s, u"842100"_s, false},
            {"of a new car", u"12"_s, u"310"_s, true},
            {"no current one", {}, u"842100"_s, true},
            {"more digits than any", {}, u"10000000"_s, false},
        });
    }

    void refusesReadingsThatCannotBe()
    {
        const auto [current, typed, isTaken] = row<QString, QString, bool>();
        VehicleSheet sheet;
        sheet.field(VehicleSheet::Odometer) = current;
        const CarEntry entry = CarEntry::reading(typed, u"before"_s, sheet);
        QCOMPARE(entry.isRefused(), !isTaken);
        QCOMPARE(entry.text == u"before"_s, !isTaken);
    }

    void checksDates_data()
    {
        rows<QString, DateStyle, QString, Refusal>({
            {"today", u"11/22/2026"_s, DateStyle::Usa, u"11/22/2026"_s, {}},
            {"tomorrow", u"11/23/2026"_s, DateStyle::Usa, u"before"_s, CarMessages::dateToCome()},
            {"tomorrow in two digits", u"11/23/26"_s, DateStyle::Usa, u"before"_s, CarMessages::dateToCome()},
            {"another form", u"Feb 3, 2024"_s, DateStyle::Usa, u"02/03/2024"_s, {}},
            {"day first", u"3/2/2024"_s, DateStyle::Other, u"03/02/2024"_s, {}},
            {"no leap year", u"02/29/2025"_s, DateStyle::Usa, u"before"_s, CarMessages::invalidDate()},
            {"words", u"last week"_s, DateStyle::Usa, u"before"_s, CarMessages::invalidDate()},
            {"taken away", u" "_s, DateStyle::Usa, {}, {}},
        });
    }

    void checksDates()
    {
        const auto [typed, style, text, refusal] = row<QString, DateStyle, QString, Refusal>();
        QCOMPARE(CarEntry::date(typed, u"before"_s, style, QDate(2026, 11, 22)), (CarEntry{text, refusal}));
    }

    void offersMakesAndTheirModels()
    {
        const QStringList makes = CarMakes::makes();
        QCOMPARE(makes.size(), 43);
        QCOMPARE(makes.first() + u", "_s + makes.last(), u"Acura, Volvo"_s);
        for (const QString &make : makes)
            QVERIFY2(!CarMakes::models(make).isEmpty(), qPrintable(make));
        QVERIFY(CarMakes::models(u"saab "_s).contains(u"9-3"_s));
        QVERIFY(CarMakes::models(u"Saa"_s).isEmpty() && CarMakes::models({}).isEmpty());
    }
};

QTEST_APPLESS_MAIN(TestCarEntry)
#include "tst_carentry.moc"
