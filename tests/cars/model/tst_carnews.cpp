// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carfiles.h"
#include "cars/model/carnews.h"
#include "cars/model/carplace.h"
#include "cars/model/carsource.h"
#include "cars/model/duewords.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 22);

} // namespace

/// What the cars say to the rest of the house.
class TestCarNews : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_test = std::make_unique<TestFolder>();
        m_car = {};
        m_car.vehicle.name = u"Family car"_s;
        m_car.sheet.field(VehicleSheet::Make) = u"Toyota"_s;
        m_car.sheet.field(VehicleSheet::Odometer) = u"10000"_s;
        m_car.fuel = {{u"08/13/2026"_s, u"8700"_s, u"9000"_s, {}, u"10"_s, {}, {}},
                      {u"11/21/2026"_s, u"9712"_s, u"10000"_s, u"288"_s, u"10"_s, u"28.8"_s, {}}};
        // The reading before does not follow, unless this one was filled up as well.
        m_car.fuel.insert(1, {u"11/11/2026"_s, u"9000"_s, u"9712"_s, {}, u"24"_s, {}, {}});
    }

    void tellsWhatIsMostUrgent_data()
    {
        rows<ScheduledAction, QString, LiveLine::Urgency>(
            {{"overdue",
              {u"Change Oil and Filter"_s, {}, u"6"_s, {}, u"03/02/2026"_s, {}},
              u"oil change overdue"_s,
              LiveLine::Overdue},
             {"due",
              {u"Inspect Brake Linings"_s, {}, u"6"_s, {}, u"06/04/2026"_s, {}},
              u"brakes on Dec 4"_s,
              LiveLine::Due},
             {"due by distance",
              {u"Wiper blades"_s, u"120"_s, {}, u"10000"_s, u"11/21/2026"_s, {}},
              u"wiper blades on Dec 3"_s,
              LiveLine::Due},
             {"due today",
              {u"ABS check"_s, {}, u"6"_s, {}, u"05/22/2026"_s, {}},
              u"ABS check today"_s,
              LiveLine::Due},
             {"nothing is near",
              {u"Rotate Tires"_s, {}, u"60"_s, {}, u"06/04/2026"_s, {}},
              u"28.8 miles per gallon"_s,
              LiveLine::Plain}});
    }

    void tellsWhatIsMostUrgent()
    {
        const auto [action, words, urgency] = row<ScheduledAction, QString, LiveLine::Urgency>();
        m_car.sheet.actions[0] = action;
        create();
        const std::optional<LiveLine> line = CarNews::liveLine(m_test->folder(), DateStyle::Usa, today);
        QVERIFY(line);
        QCOMPARE(line->text, u"Family car: "_s + words);
        QCOMPARE(line->urgency, urgency);
        QCOMPARE(line->nameLength, 10);
        QCOMPARE(line->shorter.last(),
                 urgency == LiveLine::Plain ? u"28.8 mpg"_s : words.first(1).toUpper() + words.sliced(1));
    }

    void tellsOfTheMostUrgentCar()
    {
        QVERIFY(!CarNews::liveLine(m_test->folder(), DateStyle::Usa, today));
        for (const auto &[name, expiration] :
             {std::pair(u"Van"_s, u"12/01/2026"_s), std::pair(u"Saab"_s, u"11/21/2026"_s),
              std::pair(u"Mini"_s, u"11/30/2026"_s)}) {
            m_car.vehicle.name = name;
            m_car.sheet.field(VehicleSheet::InsuranceExpiration) = expiration;
            create();
        }
        const auto line = CarNews::liveLine(m_test->folder(), DateStyle::Usa, today);
        QCOMPARE(line->text, u"Saab: insurance ran out"_s);
        QVERIFY(line->shorter.isEmpty()); // nobody would know which car
        QStringList notes;
        for (const DayNote &note :
             CarNews::dayNotes(m_test->folder(), DateStyle::Usa, today, QDate(2026, 11, 30), today))
            notes << note.date.toString(Qt::ISODate) + u' ' + note.text + u' ' +
                         QString::number(note.place.record);
        QCOMPARE(notes, (QStringList{u"2026-11-22 Saab: insurance ran out Nov 21 2"_s,
                                     u"2026-11-30 Mini: insurance runs out 3"_s}));
    }

    void notesWhatIsDue_data()
    {
        const QDate first(2026, 9, 1);
        const QDate last(2027, 1, 31);
        const ScheduledAction oil{u"Change Oil and Filter"_s, {}, u"6"_s, {}, u"03/02/2026"_s, {}};
        rows<ScheduledAction, QDate, QDate, QDate, NoteKind, QString>(
            {{"overdue on its day", oil, first, last, QDate(2026, 9, 2), NoteKind::Overdue,
              u"oil change overdue"_s},
             {"overdue today", oil, today, last, today, NoteKind::Overdue,
              u"oil change overdue since Sep 2"_s},
             {"overdue, in days to come", oil, today.addDays(1), last, {}, NoteKind::Other, {}},
             {"by time",
              {u"Coolant"_s, {}, u"9"_s, {}, u"04/01/2026"_s, {}},
              first,
              last,
              QDate(2027, 1, 1),
              NoteKind::Due,
              u"coolant due"_s},
             {"by distance",
              {u"Coolant"_s, u"500"_s, {}, u"10000"_s, u"11/21/2026"_s, {}},
              first,
              last,
              QDate(2027, 1, 10),
              NoteKind::Due,
              u"coolant due at about 10,500 miles"_s},
             {"without a last time",
              {u"Coolant"_s, u"500"_s, u"6"_s, {}, {}, {}},
              first,
              last,
              {},
              NoteKind::Other,
              {}}});
    }

    void notesWhatIsDue()
    {
        const auto [action, from, to, date, kind, words] =
            row<ScheduledAction, QDate, QDate, QDate, NoteKind, QString>();
        m_car.sheet.actions[4] = action;
        create();
        const QList<DayNote> notes = CarNews::dayNotes(m_test->folder(), DateStyle::Usa, from, to, today);
        QCOMPARE(notes.size(), words.isEmpty() ? 0 : 1);
        if (words.isEmpty())
            return;
        QCOMPARE(notes[0].date, date);
        QCOMPARE(notes[0].kind, kind);
        QCOMPARE(notes[0].text, u"Family car: "_s + words);
        QCOMPARE(CarPlace::of(notes[0].place), (CarPlace{1, CarPart::Sheet, 4}));
    }

    void putsWhatIsOverdueIntoOneNote()
    {
        for (std::size_t row = 0; row < 5; ++row)
            m_car.sheet.actions[row] = {
                u"Work "_s + QString::number(row), {}, u"1"_s, {}, u"03/02/2026"_s, {}};
        create();
        const QList<DayNote> notes = CarNews::dayNotes(m_test->folder(), DateStyle::Usa, today, today, today);
        QCOMPARE(notes.size(), 1);
        QCOMPARE(notes[0].text, u"Family car: work 0, work 1, work 2, 2 more overdue"_s);
        QCOMPARE(CarPlace::of(notes[0].place), CarPlace{.slot = 1});
    }

    void saysWhatTheHouseholdsCarsNeed()
    {
        const DataFolder household(QStringLiteral(QUILLERY_TEST_DATA "/household/data"));
        const CarRecord van = CarFiles(household, DateStyle::Usa).all().first();
        const DrivingLog log = CarNeeds::drivingLog(van, DateStyle::Usa, today);
        const QList<CarNeed> needs = CarNeeds::of(van, log, DateStyle::Usa, today);
        QStringList said{DueWords::title(needs), DueWords::rate(log, van.sheet.unit, DateStyle::Usa, today)};
        for (const CarNeed &need : CarNeeds::byUrgency(needs).first(3))
            said << DueWords::shortName(need) + u": "_s +
                        DueWords::when(need, van.sheet.unit, DateStyle::Usa, today) + u", "_s +
                        DueWords::howFar(need, van.sheet.unit) + u", "_s +
                        DueWords::remainingTime(need, today);
        QCOMPARE(said, (QStringList{u"Two things are overdue"_s, u"18 miles a day since Mar 16, 2026"_s,
                                    u"oil change: Overdue since Sep 2, 2,000 miles left, -81 days"_s,
                                    u"tires: Overdue since Nov 20, 3,000 miles left, -2 days"_s,
                                    u"registration: Runs out Aug 31, 2027, , 9 months"_s}));
    }

    void findsCarsAndWhatWasDone()
    {
        m_car.sheet.field(VehicleSheet::License) = u"QLA 947"_s;
        m_car.maintenance = {{u"9000"_s, u"08/13/2025"_s, u"Wash"_s, {}},
                             {u"9100"_s, u"08/13/2026"_s, u"Café stop, wash"_s, u"5"_s}};
        m_car.repairs = {{u"9050"_s, {}, u"Bulb"_s, {}}};
        create();
        CarSource source(m_test->folder(), DateStyle::Usa);
        while (source.prepare()) {}
        QCOMPARE(source.matches(u"qla", 9),
                 QList<SearchHit>({{u"Family car"_s, u"Toyota, QLA 947"_s, {.record = 1}}}));
        const QList<SearchHit> washed = source.matches(u"wash", 9);
        QCOMPARE(washed.size(), 2);
        QCOMPARE(washed[0].context, u"Family car, Aug 13, 2026, 5"_s);
        QCOMPARE(CarPlace::of(washed[0].place), (CarPlace{1, CarPart::Maintenance, 1}));
        QCOMPARE(CarPlace::of(source.matches(u"bulb", 9)[0].place), (CarPlace{1, CarPart::Repairs, 0}));
        QCOMPARE(CarPlace::of({.record = 1, .row = -1}), CarPlace{.slot = 1});

        m_car.vehicle.name = u"Bulb car"_s;
        create();
        while (source.prepare()) {}
        QCOMPARE(source.matches(u"bulb car", 9).first().title, u"Bulb car"_s);
    }

private:
    void create() const
    {
        QVERIFY(
            CarFiles(m_test->folder(), DateStyle::Usa).create(m_car, QDateTime(today, QTime(9, 0))).isDone);
    }

    std::unique_ptr<TestFolder> m_test;
    CarRecord m_car;
};

QTEST_APPLESS_MAIN(TestCarNews)
#include "tst_carnews.moc"
