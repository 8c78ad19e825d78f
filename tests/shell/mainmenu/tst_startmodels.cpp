// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/backgroundchoice.h"
#include "shell/mainmenu/listfile.h"
#include "shell/mainmenu/mainmenumessages.h"
#include "shell/mainmenu/menunews.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestStartModels : public QObject
{
    Q_OBJECT

private slots:
    void readsABackgroundRecord_data();
    void readsABackgroundRecord();
    void findsUsableLines_data();
    void findsUsableLines();
    void survivesAListFileThatIsAFolder();
    void composesTheSentence_data();
    void composesTheSentence();
    void checksTheScreen_data();
    void checksTheScreen();
};

void TestStartModels::readsABackgroundRecord_data()
{
    QTest::addColumn<QString>("record");
    QTest::addColumn<int>("slot"); // -1: none is marked
    QTest::addColumn<QString>("file");
    QTest::newRow("never written") << QString() << -1 << QString();
    QTest::newRow("default") << u"Def"_s << -1 << QString();
    QTest::newRow("first") << u"WP1"_s << 0 << u"WP1.jpg"_s;
    QTest::newRow("last") << u"WP16"_s << 15 << u"WP16.jpg"_s;
    QTest::newRow("no such slot, but a picture") << u"WP17"_s << -1 << u"WP17.jpg"_s;
    QTest::newRow("no number") << u"WP"_s << -1 << u"WP.jpg"_s;
    QTest::newRow("number that overflows") << u"WP9999"_s << -1 << u"WP9999.jpg"_s;
    QTest::newRow("number that ends early") << u"WP3b"_s << 2 << u"WP3b.jpg"_s;
    QTest::newRow("path") << u"WP/../"_s << -1 << QString();
    QTest::newRow("other word") << u"XP1"_s << -1 << QString();
}

void TestStartModels::readsABackgroundRecord()
{
    QFETCH(QString, record);
    const BackgroundChoice choice = BackgroundChoice::ofRecord(record);
    QTEST(choice.slot().value_or(-1), "slot");
    QTEST(choice.fileName(), "file");
    QCOMPARE(choice.recordText(), choice.isPlain() ? u"Def"_s : record);
}

void TestStartModels::findsUsableLines_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("usable");
    QTest::newRow("empty file") << QByteArray() << false;
    QTest::newRow("empty lines") << QByteArray("\r\n\r\n\n") << false;
    QTest::newRow("marked lines") << QByteArray("N*one\r\nN*\r\n") << false;
    QTest::newRow("one name among them") << QByteArray("N*one\r\n\r\nKitchen\r\n") << true;
    QTest::newRow("mark behind a blank is none") << QByteArray(" N*one\r\n") << true;
    QTest::newRow("last line without an end") << QByteArray("N*one\r\nKitchen") << true;
    QTest::newRow("end-of-file character") << QByteArray("N*one\r\n\x1a") << false;
}

void TestStartModels::findsUsableLines()
{
    QFETCH(QByteArray, content);
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"HINV2.Fil"_s));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
    file.close();
    QTEST(ListFile::hasUsableLine(file.fileName()), "usable");
}

void TestStartModels::survivesAListFileThatIsAFolder()
{
    const QTemporaryDir folder;
    QVERIFY(!ListFile::hasUsableLine(folder.path()));
    QVERIFY(!ListFile::hasUsableLine(QString()));
}

void TestStartModels::composesTheSentence_data()
{
    QTest::addColumn<QTime>("time");
    QTest::addColumn<QList<LiveLine>>("lines");
    QTest::addColumn<QString>("sentence");
    const LiveLine quiet{u"6 albums"_s, LiveLine::Overdue, {}};
    const LiveLine plain{u"a"_s, LiveLine::Plain, u"Anne Lind has a birthday on Tuesday."_s};
    const LiveLine other{u"b"_s, LiveLine::Plain, u"Three appointments today."_s};
    const LiveLine due{u"c"_s, LiveLine::Due, u"An oil change is due."_s};
    using Lines = QList<LiveLine>;
    QTest::newRow("no news") << QTime(10, 24) << Lines{} << u"Good morning. Have a pleasant Saturday."_s;
    QTest::newRow("no sentence") << QTime(12, 0) << Lines{quiet}
                                 << u"Good afternoon. Have a pleasant Saturday."_s;
    QTest::newRow("the first among equals") << QTime(18, 0) << Lines{quiet, plain, other}
                                            << u"Good evening. Anne Lind has a birthday on Tuesday."_s;
    QTest::newRow("the most urgent") << QTime(11, 59) << Lines{plain, due}
                                     << u"Good morning. An oil change is due."_s;
}

void TestStartModels::composesTheSentence()
{
    QFETCH(QTime, time);
    QFETCH(QList<LiveLine>, lines);
    QTEST(MenuNews::sentence(QDateTime(QDate(2026, 11, 21), time), lines), "sentence");
}

void TestStartModels::checksTheScreen_data()
{
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<bool>("notice");
    QTest::newRow("just enough") << QSize(800, 600) << false;
    QTest::newRow("too small") << QSize(799, 599) << true;
    QTest::newRow("too narrow") << QSize(799, 1200) << true;
    QTest::newRow("too low") << QSize(1280, 599) << true;
}

void TestStartModels::checksTheScreen()
{
    QFETCH(QSize, pixels);
    const auto notice = StartMessages::screenCheck(pixels);
    QTEST(notice.has_value(), "notice");
    if (notice)
        QCOMPARE(*notice, StartMessages::screenTooSmall());
}

QTEST_APPLESS_MAIN(TestStartModels)
#include "tst_startmodels.moc"
