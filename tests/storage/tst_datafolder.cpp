// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/datafolder.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestDataFolder : public QObject
{
    Q_OBJECT

private slots:
    void findsAFileUnderAnySpelling_data();
    void findsAFileUnderAnySpelling();
    void findsFilesOfASubfolder();
    void writabilityIsTried();
};

void TestDataFolder::findsAFileUnderAnySpelling_data()
{
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("found");
    QTest::addColumn<bool>("exists");
    QTest::newRow("exact spelling first") << QStringList{u"HINVNAME.FIL"_s, u"HInvName.Fil"_s}
                                          << u"HInvName.Fil"_s << u"HInvName.Fil"_s << true;
    QTest::newRow("else the first match")
        << QStringList{u"hinvname.fil"_s, u"HInvName.Fil"_s, u"Hinvname.Fil"_s} << u"HINVNAME.FIL"_s
        << u"HInvName.Fil"_s << true;
    QTest::newRow("accents") << QStringList{u"ZOË MARSH.FIL"_s} << u"Zoë Marsh.Fil"_s << u"ZOË MARSH.FIL"_s
                             << true;
    QTest::newRow("a leading blank counts")
        << QStringList{u"2026.Cal"_s} << u" 2026.Cal"_s << u" 2026.Cal"_s << false;
    QTest::newRow("nothing there") << QStringList{u"GColor1.Fil"_s} << u"GColor2.Fil"_s << u"GColor2.Fil"_s
                                   << false;
    QTest::newRow("no pattern") << QStringList{u"GColor1.Fil"_s} << u"gcolor?.fil"_s << u"gcolor?.fil"_s
                                << false;
}

void TestDataFolder::findsAFileUnderAnySpelling()
{
    QFETCH(QStringList, files);
    QFETCH(QString, name);
    QFETCH(QString, found);
    const QTemporaryDir dir;
    for (const QString &file : files)
        QVERIFY(makeFile(dir.filePath(file), "x"));
    if (QDir(dir.path()).entryList(QDir::Files).size() != files.size())
        QSKIP("this disk keeps one spelling of a name");
    const DataFolder folder(dir.path() + u'/');
    QCOMPARE(folder.filePath(name), QString(dir.path() + u'/' + found));
    QTEST(folder.exists(name), "exists");
}

void TestDataFolder::findsFilesOfASubfolder()
{
    const QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkpath(u"pictures/Photo02.jpg"_s));
    QVERIFY(makeFile(dir.filePath(u"pictures/PHOTO01.JPG"_s), "x"));
    QVERIFY(makeFile(dir.filePath(u"Own.jpg"_s), "x"));
    const DataFolder folder(dir.path());
    QCOMPARE(folder.existingFile(u"Pictures"_s, u"photo01.jpg"_s), dir.filePath(u"pictures/PHOTO01.JPG"_s));
    QCOMPARE(folder.existingFile(u"Pictures"_s, u"photo02.jpg"_s), QString());
    QCOMPARE(folder.existingFile(u"Pictures"_s, u"photo03.jpg"_s), QString());
    QCOMPARE(folder.existingFile(u"Pictures"_s, QString()), QString());
    QCOMPARE(folder.existingFile(u"Albums"_s, u"photo01.jpg"_s), QString());
    QCOMPARE(folder.existingFile(QString(), u"own.JPG"_s), dir.filePath(u"Own.jpg"_s));
}

void TestDataFolder::writabilityIsTried()
{
    const QTemporaryDir dir;
    QVERIFY(DataFolder(dir.path()).isWritable());
    QCOMPARE(QDir(dir.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    QVERIFY(!DataFolder(dir.filePath(u"missing"_s)).isWritable());
    QVERIFY(makeFile(dir.filePath(u"file"_s), "x"));
    QVERIFY(!DataFolder(dir.filePath(u"file"_s)).isWritable());
}

QTEST_APPLESS_MAIN(TestDataFolder)
#include "tst_datafolder.moc"
