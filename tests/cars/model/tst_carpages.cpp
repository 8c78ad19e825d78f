// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carfiles.h"
#include "cars/model/carpages.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 22);

/// The household's van.
CarRecord van()
{
    const DataFolder household(QStringLiteral(QUILLERY_TEST_DATA "/household/data"));
    return CarFiles(household, DateStyle::Usa).all().first();
}

QStringList linesOf(const Page &page)
{
    return page.toText().trimmed().split(u'\n');
}

PageContext context()
{
    return {.today = today};
}

} // namespace

/// What is printed of the cars.
class TestCarPages : public QObject
{
    Q_OBJECT
private slots:
    void printsTheSchedule()
    {
        const QStringList lines = linesOf(CarPages::schedule(van(), context()));
        QCOMPARE(lines.first(), u"Family van: Maintenance Schedule\t84,210 miles"_s);
        QVERIFY(lines.contains(u"Change Oil and Filter\tOverdue since Sep 2\t2,000 miles left"_s));
        QVERIFY(
            lines.contains(u"Change Oil and Filter\t5000\t6\t81210\t03/02/2026\t49.90\t2000\t-81 days"_s));
        QVERIFY(lines.contains(u"Replace Timing Belt\t\t\t\t\t\t\t"_s));
    }

    void printsFillUpsWithWhatTheyComeTo()
    {
        CarRecord car = van();
        car.fuel.append({u"09/14/2026"_s, u"83000"_s, u"83300"_s, {}, u"10"_s, {}, u"34"_s});
        const QStringList lines = linesOf(CarPages::fuel(car, {}, context()));
        QCOMPARE(lines.first(), u"Family van: Fuel Mileage Tracker\t84,210 miles"_s);
        QCOMPARE(lines[2], u"27.8 miles per gallon on average, 17.9 at worst, 39.9 at best"_s);
        QVERIFY(lines.contains(u"08/31/2026\t82595\t82820\t225\t7.8\t28.8\t26.52"_s));
        QVERIFY(lines.contains(u"09/14/2026\t83000\t83300\t300\t10\t30.0 *\t34"_s));
    }

    void printsTheCostsOfYears()
    {
        const QStringList lines = linesOf(CarPages::costs(van(), {}, context()));
        QVERIFY(lines.contains(u"2024\t\t1,424.04\t780.34\t2,204.38\t19,348\t0.11"_s));
        QVERIFY(lines.contains(u"2025, until Nov 22\t\t937.04\t\t937.04\t7,011\t0.13"_s));
        QVERIFY(lines.contains(u"Difference\t\t\t\t-372.98\t\t"_s));
    }

    void putsAHistoryInOrder()
    {
        CarRecord car = van();
        std::ranges::reverse(car.repairs);
        const QStringList lines = linesOf(CarPages::repairs(car, context()));
        QCOMPARE(lines.mid(2, 5),
                 (QStringList{u"Date\tMileage\tDescription\tCost"_s, u"03/25/2024\t56355\tBattery\t517.55"_s,
                              u"05/22/2024\t57285\tNew tires, front\t167.61"_s,
                              u"08/14/2024\t66234\tBrake light bulb\t95.18"_s, u"Together\t\t\t780.34"_s}));
    }

    void tellsABuyerWhatConcernsHim_data()
    {
        rows<QString, bool>({{"the number of the car", u"7JGNA7AY3VGNKLSRA"_s, true},
                             {"what was done", u"Replace Air Filter"_s, true},
                             {"consumption", u"27.8 miles per gallon"_s, true},
                             {"the chart of the odometer", u"Odometer"_s, true},
                             {"the price", u"18,450.00"_s, false},
                             {"where the spare key is", u"Spare key"_s, false},
                             {"the policy", u"HM-640350"_s, false},
                             {"the insurance", u"Insurance"_s, false},
                             {"the costs of a year", u"2,204.38"_s, false}});
    }

    void tellsABuyerWhatConcernsHim()
    {
        const auto [text, isTold] = row<QString, bool>();
        const CarPages::Pictures pictures{
            .car = u"a"_s, .consumption = u"b"_s, .costs = u"c"_s, .odometer = u"d"_s};
        QCOMPARE(
            CarPages::record(van(), CarPages::Reader::Buyer, pictures, context()).toText().contains(text),
            isTold);
        QVERIFY(
            CarPages::record(van(), CarPages::Reader::Family, pictures, context()).toText().contains(text));
    }

    void printsPagesOfAnEmptyCar()
    {
        const CarRecord empty{
            .vehicle = {7, u"New"_s}, .sheet = {}, .maintenance = {}, .repairs = {}, .fuel = {}};
        for (const Page &page :
             {CarPages::information(empty, {}, context()), CarPages::schedule(empty, context()),
              CarPages::maintenance(empty, context()), CarPages::fuel(empty, {}, context()),
              CarPages::costs(empty, {}, context()),
              CarPages::record(empty, CarPages::Reader::Buyer, {}, context()),
              CarPages::household({empty}, context()), CarPages::household({}, context())})
            QVERIFY(page.isClosed());
    }
};

QTEST_APPLESS_MAIN(TestCarPages)
#include "tst_carpages.moc"
