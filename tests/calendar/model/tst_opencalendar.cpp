// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarfiles.h"
#include "calendar/model/opencalendar.h"
#include "shell/core/clock.h"
#include "tests/support/failingdisk.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QLoggingCategory>
#include <QSignalSpy>

#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

class TestClock final : public Clock
{
public:
    QDateTime now() const override { return QDate(2026, 11, 23).startOfDay(); }
};

const QByteArray headLines = "Quillery calendar 1\r\ntitle\tFamily\r\nfrom\t2027-01\r\nmonths\t12\r\n"
                             "layout\tmonth\r\nstyle\tclassic\r\npaper\tA4\tlandscape\r\nweek\tmonday\r\n";
const QByteArray concert = "day\t2027-03-14\ttyped\t\t\tAnne's concert\r\n";
const QByteArray choir = "day\t2027-03-14\ttyped\t\t\tChoir\r\n";
const QDate day(2027, 3, 14);

WallCalendar with(WallCalendar calendar, const QString &text)
{
    calendar.days[day].append(DayLine{.shown = text});
    return calendar;
}

} // namespace

/// A calendar that is changed, saved, and taken back.
class TestOpenCalendar : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        QDir folder(m_test.folder().path());
        QVERIFY(folder.removeRecursively() && folder.mkpath(u"."_s));
        m_test.put(u"CalMk1.Fil"_s, headLines);
        m_steps.clear();
        m_said.clear();
    }

    void savesASecondAfterTheLastChange()
    {
        const std::unique_ptr<OpenCalendar> open = opened();
        QSignalSpy changed(open.get(), &OpenCalendar::changed);
        QVERIFY(open->change(u"Typed"_s, with(open->calendar(), u"Anne's concert"_s)));
        QVERIFY(!open->isSaved());
        QCOMPARE(changed.count(), 1);
        QCOMPARE(m_test.bytes(u"CalMk1.Fil"_s), headLines);
        QTRY_COMPARE_WITH_TIMEOUT(m_test.bytes(u"CalMk1.Fil"_s), headLines + concert, 5000);
        QVERIFY(open->isSaved());

        QCOMPARE(m_steps.size(), std::size_t(1));
        QCOMPARE(m_steps[0].undo(), ChangeResult::Done);
        QVERIFY(open->save());
        QCOMPARE(m_test.bytes(u"CalMk1.Fil"_s), headLines);
        QCOMPARE(m_steps[0].undo(), ChangeResult::Outdated);
        QCOMPARE(m_steps[0].redo(), ChangeResult::Done);
        QVERIFY(open->save());
        QCOMPARE(m_test.bytes(u"CalMk1.Fil"_s), headLines + concert);
    }

    void makesOneStepOfWhatIsTyped()
    {
        const std::unique_ptr<OpenCalendar> open = opened();
        const WallCalendar before = open->calendar();
        open->endDraft(u"Nothing"_s);
        QVERIFY(open->draft(with(before, u"A"_s)));
        QVERIFY(open->draft(with(before, u"Anne's concert"_s)));
        QVERIFY(m_steps.empty());
        QVERIFY(open->save());
        QCOMPARE(m_test.bytes(u"CalMk1.Fil"_s), headLines + concert);
        open->endDraft(u"Typed"_s);
        QCOMPARE(m_steps.size(), std::size_t(1));
        QCOMPARE(m_steps[0].undo(), ChangeResult::Done);
        QCOMPARE(open->calendar(), before);
        // What was drafted and is as it was before is no step.
        QVERIFY(open->draft(with(before, u"A"_s)));
        QVERIFY(open->change(u"Typed"_s, before));
        QCOMPARE(m_steps.size(), std::size_t(1));
    }

    void keepsWhatSomebodyElseHasWritten()
    {
        const std::unique_ptr<OpenCalendar> open = opened();
        m_test.put(u"CalMk1.Fil"_s, headLines + choir);
        QSignalSpy kept(open.get(), &OpenCalendar::keptBeside);
        QVERIFY(open->change(u"Typed"_s, with(open->calendar(), u"Anne's concert"_s)));
        QVERIFY(open->save());
        QCOMPARE(m_test.bytes(u"CalMk1.Fil"_s), headLines + concert);
        QCOMPARE(m_test.bytes(u"CalMk2.Fil"_s), headLines + choir);
        QCOMPARE(kept, (QList<QVariantList>{{2}}));
        // A file that has gone is made anew.
        QVERIFY(QFile::remove(m_test.path(u"CalMk1.Fil"_s)));
        QVERIFY(open->change(u"Typed"_s, with(open->calendar(), u"Choir"_s)));
        QVERIFY(open->save());
        QCOMPARE(m_test.bytes(u"CalMk1.Fil"_s), headLines + concert + choir);
    }

    void leavesFilesAloneThatItDoesNotKnow_data()
    {
        rows<QByteArray, QString, qsizetype>({
            {"noise", noiseOf(3'000),
             u"CalMk1.Fil is not a file of this calendar maker: it is left as it is."_s, 0},
            {"a later version", QByteArray(headLines).replace("calendar 1", "calendar 2") + choir,
             u"Written by a later version of Quillery: it can be read, but not changed."_s, 1},
        });
    }
    void leavesFilesAloneThatItDoesNotKnow()
    {
        const auto [bytes, why, days] = row<QByteArray, QString, qsizetype>();
        m_test.put(u"CalMk1.Fil"_s, bytes);
        const std::unique_ptr<OpenCalendar> open = opened();
        QCOMPARE(open->whyLocked(), why);
        QCOMPARE(open->calendar().days.size(), days);
        QVERIFY(!open->change(u"Typed"_s, with(open->calendar(), u"Choir"_s)));
        QVERIFY(!open->draft(with(open->calendar(), u"Choir"_s)));
        QCOMPARE(m_said, (QStringList{why, why}));
        QVERIFY(open->save());
        QCOMPARE(m_test.bytes(u"CalMk1.Fil"_s), bytes);
    }

    void opensWhateverIsThere()
    {
        m_test.put(u"CalMk1.Fil"_s, "Quillery cal");
        const std::unique_ptr<OpenCalendar> open = opened();
        QCOMPARE(open->calendar().from, QDate(2026, 1, 1));
        QVERIFY(open->whyLocked().isEmpty());
        QCOMPARE(m_test.bytes(u"CalMk1.Fil"_s), "Quillery cal");

        QVERIFY(QFile::remove(m_test.path(u"CalMk1.Fil"_s)) && QDir().mkpath(m_test.path(u"CalMk1.Fil"_s)));
        expectWarning("Cannot read .*CalMk1.Fil");
        open->load();
        QCOMPARE(open->whyLocked(), u"CalMk1.Fil cannot be read: nothing can be changed."_s);

        const DataFolder readOnly(m_test.folder().path(), u"It is locked."_s);
        OpenCalendar locked(readOnly, m_clock, 2);
        locked.load();
        QCOMPARE(locked.whyLocked(), u"It is locked."_s);
        QVERIFY(!QFile::exists(m_test.path(u"CalMk2.Fil"_s)));
    }

    void losesNothingToADiskThatRefuses()
    {
        QLoggingCategory::setFilterRules(u"*.warning=false"_s);
        for (const DiskFailure failure : {DiskFailure::OneStep, DiskFailure::TheEnd}) {
            for (int step = 1; step <= 3; ++step) {
                m_test.put(u"CalMk1.Fil"_s, headLines);
                const std::unique_ptr<OpenCalendar> open = opened();
                QVERIFY(open->change(u"Typed"_s, with(open->calendar(), u"Anne's concert"_s)));
                bool isSaved = false;
                {
                    const FailingDisk disk(failure, step);
                    isSaved = open->save();
                }
                const QByteArray there = m_test.bytes(u"CalMk1.Fil"_s);
                QVERIFY(there == headLines + concert || (!isSaved && there == headLines));
                QVERIFY(isSaved || !m_said.isEmpty());
                QVERIFY(open->save());
                QCOMPARE(m_test.bytes(u"CalMk1.Fil"_s), headLines + concert);
                QCOMPARE(CalendarFiles::numbers(m_test.folder()), QList<int>{1});
            }
        }
        QLoggingCategory::setFilterRules({});
    }

private:
    std::unique_ptr<OpenCalendar> opened()
    {
        auto open = std::make_unique<OpenCalendar>(m_test.folder(), m_clock, 1);
        connect(open.get(), &OpenCalendar::edited, this,
                [this](const UndoStep &step) { m_steps.push_back(step); });
        connect(open.get(), &OpenCalendar::said, this, [this](const QString &line) { m_said.append(line); });
        open->load();
        return open;
    }

    TestFolder m_test;
    TestClock m_clock;
    std::vector<UndoStep> m_steps;
    QStringList m_said;
};

QTEST_GUILESS_MAIN(TestOpenCalendar)
#include "tst_opencalendar.moc"
