// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journal.h"
#include "tests/support/failingdisk.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

class StandingClock final : public Clock
{
public:
    QDateTime now() const override { return m_now; }

private:
    QDateTime m_now{QDate(2026, 11, 23), QTime(8, 12, 40)};
};

const QString file = u"DJour2026.Fil"_s;
const QByteArray head = "Quillery journal 1\r\n";
const QDate day(2026, 3, 14);

JournalEntry written(QDate date, const QString &text)
{
    return {.date = date, .text = text};
}

} // namespace

/// The journal on files written out by hand.
class TestJournal final : public QObject
{
    Q_OBJECT

private:
    const StandingClock m_clock;

private slots:
    void keepsTheDayAsItWasBeforeTheSitting()
    {
        const TestFolder folder;
        Journal journal(folder.folder(), m_clock);
        const auto saved = [&] { return journal.save() ? folder.bytes(file) : QByteArray("not saved"); };
        QVERIFY(journal.put(written(day, u"One"_s)));
        QCOMPARE(saved(), head + "=== 2026-03-14\r\nwritten 2026-11-23 08:12\r\n\r\nOne\r\n");
        QVERIFY(journal.put(written(day, u"One, two"_s)));
        const QByteArray two = "written 2026-11-23 08:12\r\n\r\nOne, two\r\n";
        QCOMPARE(saved(), head + "=== 2026-03-14\r\n" + two);

        journal.beginSitting();
        QVERIFY(journal.put(written(day, u"x"_s)));
        QVERIFY(journal.put(written(day, u"y"_s)));
        QCOMPARE(saved(), head + "=== 2026-03-14\r\nwritten 2026-11-23 08:12\r\n\r\ny\r\n" +
                              "=== 2026-03-14 earlier\r\n" + two);
        QVERIFY(journal.put(written(day, {})));
        QCOMPARE(saved(), head + "=== 2026-03-14 earlier\r\n" + two);
        QVERIFY(!journal.entry(day));
        QVERIFY(journal.put(*journal.earlier(day)));
        QCOMPARE(saved(), head + "=== 2026-03-14\r\n" + two);

        QVERIFY(journal.deleteForGood(day));
        QVERIFY(journal.put(written(day, {})));
        QCOMPARE(saved(), head);
    }
};

QTEST_GUILESS_MAIN(TestJournal)
#include "tst_journal.moc"
