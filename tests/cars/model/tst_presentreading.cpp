// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/presentreading.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

/// What becomes of the sheet's reading when a fill-up turns out to be mistaken.
class TestPresentReading : public QObject
{
    Q_OBJECT
private slots:
    void goesBack_data()
    {
        rows<QString, QString, QString, QString>({
            {"to what the file has", u"84620"_s, u"84620"_s, u"84,210"_s, u"84,210"_s},
            {"to the highest of the histories", u"84620"_s, u"84620"_s, u"84620"_s, u"84000"_s},
            {"to the highest, beyond what the file has", u"84,620"_s, u"84620"_s, u"83000"_s, u"84000"_s},
            {"not where it was another", u"84700"_s, u"84620"_s, u"84210"_s, u"84700"_s},
            {"not where something else has as much", u"84000"_s, u"84000"_s, u"83000"_s, u"84000"_s},
            {"not from nothing", u"84620"_s, {}, u"84210"_s, u"84620"_s},
        });
    }

    void goesBack()
    {
        const auto [present, mistaken, saved, wanted] = row<QString, QString, QString, QString>();
        CarRecord car;
        car.sheet.field(VehicleSheet::Odometer) = present;
        car.fuel = {{{}, u"82595"_s, u"82820"_s, {}, {}, {}, {}}};
        car.maintenance = {{u"84,000"_s, {}, u"Oil"_s, {}}};
        CarRecord before = car;
        before.fuel.append({{}, {}, mistaken, {}, {}, {}, {}});
        QCOMPARE(PresentReading::goBack(car, before, saved), present != wanted);
        QCOMPARE(car.sheet.field(VehicleSheet::Odometer), wanted);
        // Nobody types over what was typed in the same step.
        before.sheet.field(VehicleSheet::Odometer) = u"1"_s;
        QVERIFY(!PresentReading::goBack(car, before, saved));
    }

    void knowsTheCarsOwnReading_data()
    {
        rows<QString, QString, QString>(
            {{"a fill-up raised it", u"84,620"_s, u"84210"_s, u"84210"_s},
             {"it was typed", u"84500"_s, u"84210"_s, u"84500"_s},
             {"it was typed, below a fill-up", u"84000"_s, u"84210"_s, u"84000"_s},
             {"a fill-up was the first", u"84620"_s, {}, {}}});
    }

    void knowsTheCarsOwnReading()
    {
        const auto [present, before, wanted] = row<QString, QString, QString>();
        CarRecord car;
        car.sheet.field(VehicleSheet::Odometer) = present;
        car.fuel = {{{}, {}, u"84620"_s, {}, {}, {}, {}}};
        QCOMPARE(PresentReading::withoutFillUps(car, before), wanted);
    }

    void followsAHigherReading_data()
    {
        rows<QString, QString, QString>({{"a higher one", u"84,210"_s, u"84500 mi"_s, u"84500"_s},
                                         {"the first one", {}, u"84500"_s, u"84500"_s},
                                         {"a lower one", u"84,210"_s, u"84209"_s, u"84,210"_s},
                                         {"none", u"84,210"_s, u"soon"_s, u"84,210"_s}});
    }

    void followsAHigherReading()
    {
        const auto [present, reading, wanted] = row<QString, QString, QString>();
        CarRecord car;
        car.sheet.field(VehicleSheet::Odometer) = present;
        QCOMPARE(PresentReading::follow(car, reading), present != wanted);
        QCOMPARE(car.sheet.field(VehicleSheet::Odometer), wanted);
    }
};

QTEST_APPLESS_MAIN(TestPresentReading)
#include "tst_presentreading.moc"
