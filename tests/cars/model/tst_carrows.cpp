// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carrows.h"
#include "cars/model/historysums.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

class TestCarRows : public QObject
{
    Q_OBJECT

private slots:
    void givesTheNewestRowsFirst_data()
    {
        rows<QStringList, QList<qsizetype>>({
            {"no row", {}, {}},
            {"in the order of time", {u"03/01/2026"_s, u"03/02/2026"_s}, {1, 0}},
            {"entered later", {u"03/02/2026"_s, u"03/01/2026"_s}, {0, 1}},
            {"one day", {u"03/02/2026"_s, u"Mar-02-2026"_s}, {1, 0}},
            {"no dates at all", {{}, u"soon"_s, {}}, {2, 1, 0}},
            {"without a date, it goes with the row before",
             {u"03/02/2026"_s, {}, u"03/01/2026"_s},
             {1, 0, 2}},
        });
    }

    void givesTheNewestRowsFirst()
    {
        const auto [dates, order] = row<QStringList, QList<qsizetype>>();
        for (const CarPart part : {CarPart::Maintenance, CarPart::Repairs, CarPart::Fuel}) {
            CarRecord car;
            for (const QString &date : dates)
                CarRows::append(car, part, part == CarPart::Fuel ? QStringList{date} : QStringList{{}, date});
            QCOMPARE(CarRows::newestFirst(car, part, DateStyle::Usa), order);
        }
    }

    void addsAHistoryUp()
    {
        CarRecord car;
        car.repairs = {{u"100"_s, u"01/05/2026"_s, u"Battery"_s, u"80.50"_s},
                       {u"90"_s, u"12/30/2025"_s, u"Tires"_s, u"$1,200"_s},
                       {u"80"_s, u"long ago"_s, u"Radio"_s, u"10"_s}};
        const HistorySums sums = HistorySums::of(car, CarPart::Repairs, DateStyle::Usa, QDate(2026, 11, 21));
        QCOMPARE(sums, (HistorySums{3, 129050, 8050, 120000, QDate(2026, 1, 5), u"Battery"_s}));
    }
};

QTEST_GUILESS_MAIN(TestCarRows)
#include "tst_carrows.moc"
