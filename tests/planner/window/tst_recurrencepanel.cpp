#include "planner/model/lines.h"
#include "planner/model/messages.h"
#include "planner/model/plannerfiles.h"
#include "planner/window/plannerwindow.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/controls/flowtoolbar.h"
#include "shell/controls/monthview.h"
#include "tests/support/filesizelimit.h"
#include "tests/support/testprogram.h"

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QPointer>
#include <QProgressBar>
#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The planner with the recurrence panel open for "9:00 AM Yoga" of 21 November 2026.
class Panel
{
public:
    explicit Panel(TestProgram &test)
        : m_test(test)
        , m_window(new Zcalandar1(test.program))
    {
        showActive(*m_window);
        QTest::keyClicks(control<FieldBox>(*m_window, "Text1_0"), u"9:00 AM"_s);
        QTest::keyClicks(control<FieldBox>(*m_window, "Text2_0"), u"Yoga"_s);
        m_test.dialogs.willAnswer(Answer::No);
        control<QAction>(*m_window, "mERec")->trigger();
        m_test.dialogs.takeShown();
    }
    ~Panel() { delete m_window.data(); }

    Zcalandar1 &window() const { return *m_window; }
    void choose(const char *name) const
    {
        QTest::mouseClick(control<QRadioButton>(*m_window, name), Qt::LeftButton);
    }
    void set(const char *name, const QString &text) const
    {
        auto *box = control<QLineEdit>(*m_window, name);
        box->selectAll();
        QTest::keyClicks(box, text);
    }
    void until(const QString &date) const { set("endDate", date); }
    void click(const char *name) const
    {
        QTest::mouseClick(control<QPushButton>(*m_window, name), Qt::LeftButton);
    }
    bool isRunning() const { return control<QWidget>(*m_window, "progressPanel")->isVisible(); }
    void finish() const { QTRY_VERIFY_WITH_TIMEOUT(!isRunning(), 20000); }
    bool isOpen() const { return control<QWidget>(*m_window, "recurrencePanel")->isVisible(); }
    QString said() const { return m_window->findChild<ActivityBar *>()->message(); }

private:
    TestProgram &m_test;
    QPointer<Zcalandar1> m_window;
};

PlannerDay fullDay()
{
    PlannerDay day;
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row)
        day.texts[row] = u"entry %1"_s.arg(row);
    return day;
}

} // namespace

class TestRecurrencePanel : public QObject
{
    Q_OBJECT
private slots:
    void asksForAKind();
    void refusesQuietly_data();
    void refusesQuietly();
    void insertsEachKind_data();
    void insertsEachKind();
    void reportsFullDates_data();
    void reportsFullDates();
    void removesAfterAQuestion();
    void saysWhenNoDateIsOfTheKind();
    void staysWithinTenYears();
    void setsDatesByTheCalendar();
    void livesAndStopsDuringAWalk();
    void endsWhereTheDiskRefuses();
    void opensForTheRowOfTheFocus();
};

void TestRecurrencePanel::asksForAKind()
{
    TestProgram test;
    const Panel panel(test);
    panel.click("recurrenceOk");
    QCOMPARE(test.dialogs.takeShown(), QList<Message>{PlannerMessages::noRecurrenceSelected()});
    QVERIFY(panel.isOpen());
    panel.click("recurrenceCancel");
    QVERIFY(!panel.isOpen());
    QCOMPARE(test.bytes(u" 2026.Cal"_s), QByteArray());
}

void TestRecurrencePanel::refusesQuietly_data()
{
    QTest::addColumn<QByteArray>("kind");
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<QString>("text");
    QTest::newRow("an interval of nothing") << "kind_0"_ba
                                            << "dailyInterval"_ba << u"0"_s;
    QTest::newRow("an interval that is no number") << "kind_2"_ba
                                                   << "weeklyInterval"_ba << u"two"_s;
    QTest::newRow("a day that no month has") << "kind_3"_ba
                                             << "dayOfMonth"_ba << u"32"_s;
    QTest::newRow("a date of the year that is none") << "kind_5"_ba
                                                     << "yearDay"_ba << u"soon"_s;
    QTest::newRow("a beginning that is no date") << "kind_1"_ba
                                                 << "beginningDate"_ba << u"soon"_s;
    QTest::newRow("an end that is no date") << "kind_1"_ba
                                            << "endDate"_ba << u"later"_s;
    QTest::newRow("an end before the beginning") << "kind_1"_ba
                                                 << "endDate"_ba << u"11/20/2026"_s;
    QTest::newRow("no occurrences") << "kind_1"_ba
                                    << "occurrences"_ba << u"0"_s;
}

void TestRecurrencePanel::refusesQuietly()
{
    QFETCH(QByteArray, kind);
    QFETCH(QByteArray, box);
    QFETCH(QString, text);
    TestProgram test;
    const Panel panel(test);
    panel.choose(kind.constData());
    panel.set(box.constData(), text);
    panel.click("recurrenceOk");
    QVERIFY(!panel.said().isEmpty());
    QVERIFY(!panel.isRunning());
    QVERIFY(panel.isOpen());
    QVERIFY(test.dialogs.takeShown().isEmpty());
    QCOMPARE(test.bytes(u" 2026.Cal"_s), QByteArray());
}

void TestRecurrencePanel::insertsEachKind_data()
{
    QTest::addColumn<QByteArrayList>("choices");
    QTest::addColumn<QStringList>("boxes");
    QTest::addColumn<QString>("dates");
    const QByteArrayList after{"endBy_1"};
    QTest::newRow("every third day") << QByteArrayList{"kind_0"}
                                     << QStringList{u"dailyInterval=3"_s, u"occurrences=3"_s}
                                     << u"2026-11-21 2026-11-24 2026-11-27"_s;
    QTest::newRow("weekdays") << QByteArrayList{"kind_1"} << QStringList{u"endDate=11/24/2026"_s}
                              << u"2026-11-23 2026-11-24"_s;
    QTest::newRow("every second Tuesday")
        << QByteArrayList{"kind_2", "weekday_2"} << QStringList{u"weeklyInterval=2"_s, u"occurrences=2"_s}
        << u"2026-11-24 2026-12-08"_s;
    QTest::newRow("the last day of every month")
        << QByteArrayList{"kind_3"} << QStringList{u"dayOfMonth=31"_s, u"occurrences=4"_s}
        << u"2026-11-30 2026-12-31 2027-01-31 2027-02-28"_s;
    QTest::newRow("every year") << QByteArrayList{"kind_4"} << QStringList{u"endDate=11/21/2028"_s}
                                << u"2026-11-21 2027-11-21 2028-11-21"_s;
    QTest::newRow("a date of every second year")
        << QByteArrayList{"kind_5"}
        << QStringList{u"yearDay=2/29/2024"_s, u"yearDayInterval=2"_s, u"occurrences=2"_s}
        << u"2027-02-28 2029-02-28"_s;
}

void TestRecurrencePanel::insertsEachKind()
{
    QFETCH(QByteArrayList, choices);
    QFETCH(QStringList, boxes);
    QFETCH(QString, dates);
    TestProgram test;
    const Panel panel(test);
    for (const QByteArray &choice : choices)
        panel.choose(choice.constData());
    for (const QString &box : boxes)
        panel.set(box.section(u'=', 0, 0).toLatin1().constData(), box.section(u'=', 1));
    panel.click("recurrenceOk");
    panel.finish();
    const QStringList expected = dates.split(u' ');
    QCOMPARE(test.dialogs.takeShown(),
             QList<Message>{*PlannerMessages::recurrenceReport(int(expected.size()), 0)});
    QVERIFY(!panel.isOpen());

    QStringList found;
    PlannerFiles files(test.folder);
    for (const auto &[date, day] : files.days(QDate(2026, 1, 1), QDate(2036, 12, 31))) {
        QCOMPARE(day.texts[0], u"Yoga"_s);
        found << date.toString(Qt::ISODate);
    }
    QCOMPARE(found, expected);
}

void TestRecurrencePanel::reportsFullDates_data()
{
    QTest::addColumn<int>("fullDates");
    QTest::addColumn<QString>("report");
    QTest::newRow("one")
        << 1
        << u"There was 1 date that was full and this Appointment\ncould not entered for that "
           u"date!\n\nThe recurrence option did make 2 entry(ies).\n[Note: If Appointment already "
           u"exists it was not entered again!]"_s;
    QTest::newRow("two")
        << 2
        << u"There were 2 dates that were full and this Appointment\ncould not entered for those "
           u"dates!\n\nThe recurrence option did make 1 entry(ies).\n[Note: If Appointment already "
           u"exists it was not entered again!]"_s;
}

void TestRecurrencePanel::reportsFullDates()
{
    QFETCH(int, fullDates);
    QFETCH(QString, report);
    TestProgram test;
    for (int i = 0; i < fullDates; ++i)
        QVERIFY(PlannerFiles(test.folder).write(QDate(2026, 11, 22).addDays(i), fullDay()));
    const Panel panel(test);
    panel.choose("kind_0");
    panel.set("occurrences", u"3"_s);
    panel.click("recurrenceOk");
    panel.finish();
    const Message expected{u"Recurrence Option"_s, report};
    QCOMPARE(test.dialogs.takeShown(), QList<Message>{expected});
    // The day of the calendar shows its new entry at once.
    QCOMPARE(control<FieldBox>(panel.window(), "Text2_0")->text(), u"Yoga"_s);
}

void TestRecurrencePanel::removesAfterAQuestion()
{
    TestProgram test;
    PlannerFiles files(test.folder);
    PlannerDay day;
    day.times = {u"9:00 AM"_s, u"9:00 AM"_s, u"9:00 AM"_s};
    day.texts = {u"Yoga"_s, u"Yoga"_s, u"Stays"_s};
    QVERIFY(files.write(QDate(2026, 12, 1), day));
    QVERIFY(files.write(QDate(2026, 12, 8), day));
    const Panel panel(test);
    panel.until(u"12/5/2026"_s);
    for (const Answer answer : {Answer::No, Answer::Cancel, Answer::Yes}) {
        QCOMPARE(files.peek(QDate(2026, 12, 1)).entryCount(), 3);
        test.dialogs.willAnswer(answer);
        panel.click("recurrenceRemove"); // without a kind: each day
        QCOMPARE(test.dialogs.takeShown(), QList<Message>{PlannerMessages::removeRecurrence()});
    }
    panel.finish();
    QCOMPARE(files.peek(QDate(2026, 12, 1)).entryCount(), 2);
    QCOMPARE(files.peek(QDate(2026, 12, 8)).entryCount(), 3);
    QCOMPARE(panel.said(), u"1 entry removed"_s);
}

void TestRecurrencePanel::saysWhenNoDateIsOfTheKind()
{
    TestProgram test;
    const Panel panel(test); // on a Saturday
    panel.choose("kind_1");
    panel.set("occurrences", u"1"_s);
    panel.click("recurrenceOk");
    panel.finish();
    QVERIFY(test.dialogs.takeShown().isEmpty());
    QVERIFY(panel.isOpen());
    QCOMPARE(panel.said(), PlannerLines::noDateInRange());
}

void TestRecurrencePanel::staysWithinTenYears()
{
    TestProgram test;
    const Panel panel(test);
    panel.set("occurrences", u"3652"_s);
    panel.choose("kind_0");
    QVERIFY(test.dialogs.takeShown().isEmpty());
    panel.set("occurrences", u"3653"_s);
    panel.choose("kind_1");
    panel.choose("kind_0");
    QCOMPARE(test.dialogs.takeShown(),
             QList<Message>{PlannerMessages::tenYearLimit()}); // the weekdays brought it down already
    QCOMPARE(control<QLineEdit>(panel.window(), "occurrences")->text(), u"2608"_s);

    panel.until(u"1/1/2060"_s);
    panel.choose("kind_4");
    QCOMPARE(test.dialogs.takeShown(), QList<Message>{PlannerMessages::tenYearLimit()});
    QCOMPARE(control<QLineEdit>(panel.window(), "endDate")->text(), u"Nov-20-2036"_s);
}

void TestRecurrencePanel::setsDatesByTheCalendar()
{
    TestProgram test;
    const Panel panel(test);
    auto *month = control<MonthView>(panel.window(), "MonthView2");
    QCOMPARE(month->selectedDate(), QDate(2026, 11, 21));
    month->setSelectedDate(QDate(2026, 11, 25));
    QCOMPARE(control<QLineEdit>(panel.window(), "beginningDate")->text(), u"Nov-25-2026"_s);
    panel.choose("endBy_1");
    panel.choose("calendarSets_1");
    QCOMPARE(month->selectedDate(), QDate(2027, 11, 21));
    month->setSelectedDate(QDate(2027, 12, 1));
    QCOMPARE(control<QLineEdit>(panel.window(), "endDate")->text(), u"Dec-01-2027"_s);
    QVERIFY(control<QRadioButton>(panel.window(), "endBy_0")->isChecked());
}

void TestRecurrencePanel::livesAndStopsDuringAWalk()
{
    TestProgram test;
    const Panel panel(test);
    panel.choose("kind_0");
    panel.until(u"11/20/2036"_s);
    panel.click("recurrenceOk");
    QVERIFY(panel.isRunning());
    for (const char *name : {"recurrenceOk", "recurrenceRemove", "recurrenceCancel"})
        QVERIFY(!control<QPushButton>(panel.window(), name)->isEnabled());
    QVERIFY(!control<FlowToolBar>(panel.window(), "toolbar")->isEnabled());
    QVERIFY(!panel.window().close());
    QVERIFY(panel.isRunning());

    // The click comes as soon as the first progress is shown; no date is worked on after it.
    const auto days = [&test] {
        return PlannerFiles(test.folder).days(QDate(2026, 1, 1), QDate(2037, 1, 1));
    };
    std::size_t atClick = 0;
    connect(control<QProgressBar>(panel.window(), "updateProgress"), &QProgressBar::valueChanged, this, [&] {
        if (atClick > 0)
            return;
        atClick = days().size();
        QTest::mouseClick(control<QCheckBox>(panel.window(), "stopUpdating"), Qt::LeftButton);
    });
    panel.finish();
    QVERIFY(atClick > 0 && atClick < 3653);
    QCOMPARE(days().size(), atClick);
    QCOMPARE(test.dialogs.takeShown(), QList<Message>{PlannerMessages::recurrenceStopped(
                                           days().rbegin()->first, RecurrenceAction::Insert)});
    QVERIFY(control<QPushButton>(panel.window(), "recurrenceOk")->isEnabled());
    QVERIFY(control<FlowToolBar>(panel.window(), "toolbar")->isEnabled());
    QVERIFY(panel.isOpen());
}

void TestRecurrencePanel::endsWhereTheDiskRefuses()
{
#ifdef Q_OS_UNIX
    TestProgram test;
    const Panel panel(test);
    panel.choose("kind_0");
    panel.until(u"12/31/2026"_s);
    {
        // Records up to 4 December fit; 5 December is record 405.
        const FileSizeLimit fullDisk(404 * 900);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Cannot write"_s));
        panel.click("recurrenceOk");
        panel.finish();
    }
    QVERIFY(test.dialogs.takeShown().isEmpty());
    QCOMPARE(panel.said(),
             u"The disk refused 12/05/2026: the update ended there. Before it, 14 entries made."_s);
    QCOMPARE(PlannerFiles(test.folder).peek(QDate(2026, 12, 4)).texts[0], u"Yoga"_s);
    QVERIFY(PlannerFiles(test.folder).peek(QDate(2026, 12, 5)).isEmpty());
#endif
}

void TestRecurrencePanel::opensForTheRowOfTheFocus()
{
    TestProgram test;
    Zcalandar1 *window = new Zcalandar1(test.program);
    showActive(*window);
    control<FieldBox>(*window, "Text2_3")->setFocus();
    control<QAction>(*window, "mERec")->trigger();
    QVERIFY(!control<QWidget>(*window, "recurrencePanel")->isVisible());

    QTest::keyClicks(control<FieldBox>(*window, "Text2_5"), u"Later"_s);
    QTest::keyClicks(control<FieldBox>(*window, "Text2_3"), u"Ferns"_s);
    control<FieldBox>(*window, "Text1_3")->setFocus();
    test.dialogs.willAnswer(Answer::Yes); // saved, it stands in another row
    control<QAction>(*window, "mERec")->trigger();
    QVERIFY(control<QLabel>(*window, "recurrenceTitle")->text().contains("Ferns"_L1));
    delete window;
}

QTEST_MAIN(TestRecurrencePanel)
#include "tst_recurrencepanel.moc"
