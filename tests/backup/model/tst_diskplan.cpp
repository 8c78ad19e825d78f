// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/diskplan.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 kib = 1024;
constexpr qint64 gib = kib * kib * kib;

/// "0 1:1 | 1:2": items and, behind a colon, their pieces; a bar between disks.
QString drawn(const DiskPlan &plan)
{
    QStringList disks;
    for (const PlannedDisk &disk : plan.disks) {
        QStringList parts;
        for (const PlannedPart &part : disk.parts)
            parts += part.piece > 0 ? u"%1:%2"_s.arg(part.item).arg(part.piece) : QString::number(part.item);
        disks += parts.join(u' ');
    }
    return disks.join(u" | "_s);
}

} // namespace

/// Which file goes on which disk.
class TestDiskPlan : public QObject
{
    Q_OBJECT

private slots:
    void keepsWhatTheFileSystemTakesWithinALimit()
    {
        const DiskRoom fat{32 * gib, 512, 4 * gib - 1};
        QCOMPARE(fat.within({}), fat);
        QCOMPARE(fat.within(DiskRoom{8 * gib, 4096}), (DiskRoom{8 * gib, 4096, 4 * gib - 1}));
        QCOMPARE(fat.within(DiskRoom{64 * gib, 4096}).bytes, fat.bytes);
    }

    void places_data()
    {
        using Sizes = QList<qint64>;
        // Sizes of the files, room of the first disk and of the others, the largest file, and the plan.
        rows<Sizes, qint64, qint64, qint64, QString>(
            {{"all on one", {kib, 0, 50 * kib}, 100 * kib, 100 * kib, gib, u"0 1 2"_s},
             {"what has no room goes on",
              {60 * kib, 50 * kib, 30 * kib},
              100 * kib,
              100 * kib,
              gib,
              u"0 2 | 1"_s},
             {"cut where it is larger than a disk",
              {10 * kib, 150 * kib},
              100 * kib,
              100 * kib,
              gib,
              u"0 1:1 | 1:2"_s},
             {"cut over three disks", {200 * kib, kib}, 100 * kib, 100 * kib, gib, u"0:1 | 0:2 | 0:3 1"_s},
             {"a first disk that is nearly full", {50 * kib, kib}, 30 * kib, 100 * kib, gib, u"1 | 0"_s},
             {"a first disk without room", {50 * kib}, 0, 100 * kib, gib, u" | 0"_s},
             {"FAT", {9 * gib}, 32 * gib, 32 * gib, 4 * gib - 1, u"0:1 0:2 0:3"_s},
             {"disks without room", {kib}, kib, kib, gib, {}}});
    }
    void places()
    {
        const auto [sizes, first, next, largest, wanted] =
            row<QList<qint64>, qint64, qint64, qint64, QString>();
        QList<PlannedItem> items;
        for (const qint64 size : sizes)
            items.append({u"File%1.dat"_s.arg(items.size()), size});
        const DiskPlan plan = DiskPlan::of(items, {first, 512, largest}, {next, 512, largest});
        QCOMPARE(plan.isPossible, !wanted.isEmpty());
        if (!plan.isPossible)
            return;
        QCOMPARE(drawn(plan), wanted);
        QMap<int, qint64> ends;
        for (qsizetype disk = 0; disk < plan.disks.size(); ++disk) {
            QVERIFY(plan.disks[disk].bytes <= (disk == 0 ? first : next));
            for (const PlannedPart &part : plan.disks[disk].parts) {
                QCOMPARE(part.offset, ends.value(part.item));
                QVERIFY(part.bytes <= largest);
                ends[part.item] += part.bytes;
            }
        }
        for (qsizetype i = 0; i < sizes.size(); ++i)
            QCOMPARE(ends.value(int(i)), sizes[i]);
    }

    void takesNoRoomForAPictureThatIsThere()
    {
        const QList<PlannedItem> items{{u"x.jpg"_s, gib, 0, 0, true}, {u"y.jpg"_s, 20 * kib, 0, 0, false}};
        const DiskPlan plan = DiskPlan::of(items, {40 * kib, 512}, {40 * kib, 512});
        QCOMPARE(drawn(plan), u"0 1"_s);
        QCOMPARE(plan.bytes(), 20 * kib);
    }
};

QTEST_GUILESS_MAIN(TestDiskPlan)
#include "tst_diskplan.moc"
