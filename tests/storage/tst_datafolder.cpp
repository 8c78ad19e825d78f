// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/datafolder.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

class TestDataFolder : public QObject
{
    Q_OBJECT
private slots:
    void findsAFileUnderAnySpelling_data()
    {
        rows<QString, QString, QString, bool>({
            {"exact spelling first", u"HINVNAME.FIL HInvName.Fil"_s, u"HInvName.Fil"_s, u"HInvName.Fil"_s,
             true},
            {"else the first match", u"hinvname.fil HInvName.Fil Hinvname.Fil"_s, u"HINVNAME.FIL"_s,
             u"HInvName.Fil"_s, true},
            {"accents", u"ZOË.FIL"_s, u"Zoë.Fil"_s, u"ZOË.FIL"_s, true},
            {"a leading blank counts", u"2026.Cal"_s, u" 2026.Cal"_s, u" 2026.Cal"_s, false},
            {"nothing there", u"GColor1.Fil"_s, u"GColor2.Fil"_s, u"GColor2.Fil"_s, false},
            {"no pattern", u"GColor1.Fil"_s, u"gcolor?.fil"_s, u"gcolor?.fil"_s, false},
        });
    }

    void findsAFileUnderAnySpelling()
    {
        const auto [files, name, found, exists] = row<QString, QString, QString, bool>();
        const TestFolder disk;
        for (const QString &file : files.split(u' '))
            disk.put(file, "x");
        const bool isOneSpelling = QFileInfo::exists(disk.path(files.section(u' ', 0, 0).toLower())) &&
                                   QFileInfo::exists(disk.path(files.section(u' ', 0, 0).toUpper()));
        const DataFolder folder(disk.folder().path() + u'/');
        if (isOneSpelling) { // any spelling is that of the file, which the disk finds by itself
            QCOMPARE(spelt(folder.filePath(name)), spelt(disk.path(found)));
        } else {
            QCOMPARE(folder.filePath(name), disk.path(found));
            QCOMPARE(folder.filePaths({name, u"missing"_s, name}),
                     QStringList({disk.path(found), disk.path(u"missing"_s), disk.path(found)}));
        }
        QCOMPARE(folder.exists(name), exists);
    }

    void findsFilesOfASubfolder()
    {
        const TestFolder disk;
        QVERIFY(QDir().mkpath(disk.path(u"pictures/Photo02.jpg"_s)));
        disk.put(u"pictures/PHOTO01.JPG"_s, "x");
        disk.put(u"Own.jpg"_s, "x");
        const DataFolder &folder = disk.folder();
        QCOMPARE(spelt(folder.existingFile(u"Pictures"_s, u"photo01.jpg"_s)),
                 spelt(disk.path(u"pictures/PHOTO01.JPG"_s)));
        QCOMPARE(folder.existingFile(u"Pictures"_s, u"photo02.jpg"_s), QString());
        QCOMPARE(folder.existingFile(u"Pictures"_s, u"photo03.jpg"_s), QString());
        QCOMPARE(folder.existingFile(u"Pictures"_s, QString()), QString());
        QCOMPARE(folder.existingFile(u"Albums"_s, u"photo01.jpg"_s), QString());
        QCOMPARE(spelt(folder.existingFile(QString(), u"own.JPG"_s)), spelt(disk.path(u"Own.jpg"_s)));
    }

    void writabilityIsTried()
    {
        const TestFolder disk;
        QVERIFY(disk.folder().isWritable());
        QVERIFY(QDir(disk.path({})).isEmpty());
        QVERIFY(!DataFolder(disk.path(u"missing"_s)).isWritable());
        disk.put(u"file"_s, "x");
        QVERIFY(!DataFolder(disk.path(u"file"_s)).isWritable());
    }
};

QTEST_APPLESS_MAIN(TestDataFolder)
#include "tst_datafolder.moc"
