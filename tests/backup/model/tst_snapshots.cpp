// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/snapshots.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate today(2026, 11, 23);

/// A snapshot of each of these days, of 10 bytes.
QList<Snapshot> snapshotsOf(const QList<QDate> &days)
{
    QList<Snapshot> snapshots;
    for (const QDate day : days)
        snapshots.append({day.toString(Qt::ISODate), day.startOfDay(), 10});
    return snapshots;
}

QList<QDate> eachDay(QDate newest, int count, int step = 1)
{
    QList<QDate> days;
    for (int i = 0; i < count; ++i)
        days.append(newest.addDays(-i * step));
    return days;
}

QStringList goingOf(const QList<QDate> &days, qint64 limit)
{
    QStringList going;
    for (const Snapshot &snapshot : Snapshots::outdated(snapshotsOf(days), today, limit))
        going.append(snapshot.path);
    return going;
}

} // namespace

/// Which snapshots there are, and which of them are kept.
class TestSnapshots : public QObject
{
    Q_OBJECT
private slots:
    void thoseThatAreThere()
    {
        const TestFolder folder;
        for (const char *name :
             {"2026-11-22.zip", "2026-11-23 14.05.09.zip", "2026-11-23.zip", "2026-02-30.zip",
              "2026-11-23.zip.quillery-part", "2026-11-23 x.zip", "holiday.zip"})
            folder.put(QString::fromLatin1(name), "12345");
        QStringList names;
        const QList<Snapshot> found = Snapshots::in(folder.path({}));
        for (const Snapshot &snapshot : found)
            names.append(QFileInfo(snapshot.path).fileName());
        QCOMPARE(names,
                 QStringList({u"2026-11-23 14.05.09.zip"_s, u"2026-11-23.zip"_s, u"2026-11-22.zip"_s}));
        QCOMPARE(Snapshots::bytes(found), 15);
    }

    void eachHasANameOfItsOwn()
    {
        const TestFolder folder;
        QStringList names;
        for (int i = 0; i < 3; ++i) {
            const QString path = Snapshots::pathFor(folder.path({}), QDateTime(today, QTime(14, 5, 9)));
            QVERIFY(makeFile(path, "x"));
            names.append(QFileInfo(path).fileName());
        }
        QCOMPARE(names, QStringList({u"2026-11-23.zip"_s, u"2026-11-23 14.05.09.zip"_s,
                                     u"2026-11-23 14.05.10.zip"_s}));
    }

    void someAreKept_data()
    {
        rows<QList<QDate>, qint64, QStringList>(
            {{"none", {}, 0, {}},
             {"30 days", eachDay(today, 30), 0, {}},
             {"beyond them the newest of each month",
              eachDay(today, 40),
              0,
              // 31 October is in the 30 days; of October the newest is there already.
              {u"2026-10-15"_s, u"2026-10-16"_s, u"2026-10-17"_s, u"2026-10-18"_s, u"2026-10-19"_s,
               u"2026-10-20"_s, u"2026-10-21"_s, u"2026-10-22"_s, u"2026-10-23"_s, u"2026-10-24"_s}},
             {"12 months, then each year",
              {today, QDate(2026, 11, 2), QDate(2026, 11, 1), QDate(2026, 10, 30), QDate(2026, 9, 30),
               QDate(2026, 1, 31), QDate(2025, 12, 31), QDate(2025, 12, 1), QDate(2025, 11, 30),
               QDate(2024, 12, 3), QDate(2024, 6, 1), QDate(2019, 3, 3)},
              0,
              {u"2024-06-01"_s, u"2025-11-30"_s, u"2025-12-01"_s}},
             {"the newest seven, however old", eachDay(QDate(2020, 3, 31), 8), 0, {u"2020-03-24"_s}},
             {"the newest seven, whatever they take",
              eachDay(today, 9),
              30,
              {u"2026-11-15"_s, u"2026-11-16"_s}},
             {"as many as there is space for",
              eachDay(today, 12),
              90,
              {u"2026-11-12"_s, u"2026-11-13"_s, u"2026-11-14"_s}},
             {"of a clock that was wrong", {QDate(2030, 1, 1), today}, 0, {}}});
    }
    void someAreKept()
    {
        const auto [days, limit, going] = row<QList<QDate>, qint64, QStringList>();
        QCOMPARE(goingOf(days, limit), going);
    }
};

QTEST_GUILESS_MAIN(TestSnapshots)
#include "tst_snapshots.moc"
