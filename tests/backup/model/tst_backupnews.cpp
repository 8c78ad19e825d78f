// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/backupnews.h"
#include "backup/model/diskrecords.h"
#include "shell/core/settings.h"
#include "shell/core/settingskeys.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

/// What the card says of the last backup on 21 November 2026.
class TestBackupNews : public QObject
{
    Q_OBJECT
private slots:
    void tellsOfTheLastBackup_data()
    {
        rows<int, QDate, int, QString, LiveLine::Urgency, QString>({
            {"none", 0, {}, 30, u"No backup yet"_s, LiveLine::Due, {}},
            {"none, and never reminded", 0, {}, -1, u"No backup yet"_s, LiveLine::Plain, {}},
            {"of today", 2, {2026, 11, 21}, 7, u"Last backup today, on SILVER"_s, LiveLine::Plain, {}},
            {"of yesterday",
             2,
             {2026, 11, 20},
             7,
             u"Last backup yesterday, on SILVER"_s,
             LiveLine::Plain,
             {}},
            {"nine days ago",
             2,
             {2026, 11, 12},
             30,
             u"Last backup 9 days ago, on SILVER"_s,
             LiveLine::Plain,
             {}},
            {"seven of seven",
             2,
             {2026, 11, 14},
             7,
             u"No backup for 7 days"_s,
             LiveLine::Overdue,
             u"No backup for 7 days."_s},
            {"the usual, as nothing is set",
             2,
             {2026, 10, 18},
             0,
             u"No backup for 34 days"_s,
             LiveLine::Overdue,
             u"No backup for 34 days."_s},
            {"a number that is not offered",
             2,
             {2026, 10, 23},
             3,
             u"Last backup 29 days ago, on SILVER"_s,
             LiveLine::Plain,
             {}},
            {"long ago, and never reminded",
             2,
             {2026, 10, 18},
             -1,
             u"Last backup 34 days ago, on SILVER"_s,
             LiveLine::Plain,
             {}},
            {"not finished",
             1,
             {2026, 11, 21},
             30,
             u"The last backup is not finished"_s,
             LiveLine::Overdue,
             u"The last backup is not finished."_s},
        });
    }
    void tellsOfTheLastBackup()
    {
        const auto [state, day, remind, line, urgency, sentence] =
            row<int, QDate, int, QString, LiveLine::Urgency, QString>();
        const TestFolder folder;
        Settings settings(folder.folder());
        if (remind != 0)
            QVERIFY(settings.setNumber(SettingsKeys::backupReminderDays, remind));
        if (state > 0) {
            SetRecord record;
            record.set = QByteArray(16, 's');
            record.begun = QDateTime(day, QTime(12, 0)).toUTC();
            record.ended = state == 2 ? record.begun.addSecs(60) : QDateTime();
            record.drive = u"SILVER"_s;
            folder.put(SetRecord::fileName, DiskRecords::encoded(record));
        }
        const BackupNews news = BackupNews::of(folder.folder(), settings);
        const LiveLine told = news.liveLine({2026, 11, 21});
        QCOMPARE(told.text, line);
        QCOMPARE(told.shorter.isEmpty(), state != 1);
        QCOMPARE(told.urgency, urgency);
        QCOMPARE(told.sentence, sentence);
    }

    void tellsWhatIsNotInIt_data()
    {
        // The files in the backup; what is in the household since, or was already; the line.
        rows<QStringList, QString, int, QString>(
            {{"all", {u"Desk.conf"_s, u"Addbk1.Fil"_s}, {}, 0, u"Last backup today"_s},
             {"one that came since",
              {u"Desk.conf"_s, u"Addbk1.Fil"_s},
              u"2027.Cal"_s,
              60,
              u"Last backup today"_s},
             {"no file of the household's",
              {u"Desk.conf"_s, u"Addbk1.Fil"_s},
              u"Quillery.lock"_s,
              -60,
              u"Last backup today"_s},
             {"one that was not ticked",
              {u"Desk.conf"_s, u"Addbk1.Fil"_s},
              u"2026.Cal"_s,
              -60,
              u"1 file is not in the last backup"_s},
             {"one function: another, and the settings, changed since",
              {u"Addbk1.Fil"_s},
              u"2026.Cal"_s,
              60,
              u"2 files are not in the last backup"_s}});
    }
    void tellsWhatIsNotInIt()
    {
        const auto [names, name, seconds, line] = row<QStringList, QString, int, QString>();
        const TestFolder folder;
        SetRecord record;
        record.set = QByteArray(16, 's');
        record.begun = QDateTime({2026, 11, 21}, {12, 0}).toUTC();
        record.ended = record.begun.addSecs(30);
        for (const QString &each : names)
            record.files.append({.name = each, .changed = record.begun, .hash = QByteArray(32, 'h')});
        folder.put(SetRecord::fileName, DiskRecords::encoded(record));
        folder.put(u"Addbk1.Fil"_s, "changed since");
        if (!name.isEmpty()) {
            folder.put(name, "x");
            QFile file(folder.path(name));
            QVERIFY(file.open(QIODevice::ReadWrite) &&
                    file.setFileTime(record.begun.addSecs(seconds), QFile::FileModificationTime));
        }
        const BackupNews news = BackupNews::of(folder.folder(), Settings(folder.folder()));
        QCOMPARE(news.line({2026, 11, 21}), line);
        QCOMPARE(news.isDue({2026, 11, 21}), news.missing > 0);
    }

    void takesADamagedRecordForNone()
    {
        const TestFolder folder;
        folder.put(SetRecord::fileName, "\"QUILLERY SET\"\r\n\"1\"\r\n\"");
        QCOMPARE(BackupNews::of(folder.folder(), Settings(folder.folder())).line({2026, 11, 21}),
                 u"No backup yet"_s);
    }
};

QTEST_GUILESS_MAIN(TestBackupNews)
#include "tst_backupnews.moc"
