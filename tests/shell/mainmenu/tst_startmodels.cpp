// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/backgroundchoice.h"
#include "shell/mainmenu/listfile.h"
#include "shell/mainmenu/mainmenumessages.h"
#include "shell/mainmenu/menunews.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

using namespace Qt::Literals::StringLiterals;

class TestStartModels : public QObject
{
    Q_OBJECT
private slots:
    void readsABackgroundRecord_data()
    {
        rows<QString, int, QString>({
            {"never written", {}, -1, {}},
            {"default", u"Def"_s, -1, {}},
            {"first", u"WP1"_s, 0, u"WP1.jpg"_s},
            {"last", u"WP16"_s, 15, u"WP16.jpg"_s},
            {"no such slot, but a picture", u"WP17"_s, -1, u"WP17.jpg"_s},
            {"no number", u"WP"_s, -1, u"WP.jpg"_s},
            {"number that overflows", u"WP9999"_s, -1, u"WP9999.jpg"_s},
            {"number that ends early", u"WP3b"_s, 2, u"WP3b.jpg"_s},
            {"path", u"WP/../"_s, -1, {}},
            {"other word", u"XP1"_s, -1, {}},
        });
    }

    void readsABackgroundRecord()
    {
        const auto [record, slot, file] = row<QString, int, QString>();
        const BackgroundChoice choice = BackgroundChoice::ofRecord(record);
        QCOMPARE(choice.slot().value_or(-1), slot);
        QCOMPARE(choice.fileName(), file);
        QCOMPARE(choice.recordText(), choice.isPlain() ? u"Def"_s : record);
    }

    void findsUsableLines_data()
    {
        rows<QByteArray, bool>({
            {"empty file", {}, false},
            {"empty lines", "\r\n\r\n\n", false},
            {"marked lines", "N*one\r\nN*\r\n", false},
            {"one name among them", "N*one\r\n\r\nKitchen\r\n", true},
            {"mark behind a blank is none", " N*one\r\n", true},
            {"last line without an end", "N*one\r\nKitchen", true},
            {"end-of-file character", "N*one\r\n\x1a", false},
        });
    }

    void findsUsableLines()
    {
        const auto [content, usable] = row<QByteArray, bool>();
        const TestFolder files;
        files.put(u"HINV2.Fil"_s, content);
        QCOMPARE(ListFile::hasUsableLine(files.path(u"HINV2.Fil"_s)), usable);
        for (const QString &none : {files.path({}), QString()}) // a folder; no file
            QVERIFY(!ListFile::hasUsableLine(none));
    }

    void composesTheSentence_data()
    {
        const LiveLine quiet{u"6 albums"_s, LiveLine::Overdue, {}};
        const LiveLine plain{u"a"_s, LiveLine::Plain, u"It is a birthday."_s};
        const LiveLine other{u"b"_s, LiveLine::Plain, u"Three appointments today."_s};
        const LiveLine due{u"c"_s, LiveLine::Due, u"An oil change is due."_s};
        rows<QTime, QList<LiveLine>, QString>({
            {"no news", {10, 24}, {}, u"Good morning. Have a pleasant Saturday."_s},
            {"no sentence", {12, 0}, {quiet}, u"Good afternoon. Have a pleasant Saturday."_s},
            {"the first among equals", {18, 0}, {quiet, plain, other}, u"Good evening. It is a birthday."_s},
            {"the most urgent", {11, 59}, {plain, due}, u"Good morning. An oil change is due."_s},
        });
    }

    void composesTheSentence()
    {
        const auto [time, lines, sentence] = row<QTime, QList<LiveLine>, QString>();
        QCOMPARE(MenuNews::sentence(QDateTime(QDate(2026, 11, 21), time), lines), sentence);
    }

    void checksTheScreen_data()
    {
        rows<QSize, bool>({
            {"just enough", {800, 600}, false},
            {"too small", {799, 599}, true},
            {"too narrow", {799, 1200}, true},
            {"too low", {1280, 599}, true},
        });
    }

    void checksTheScreen()
    {
        const auto [pixels, isTooSmall] = row<QSize, bool>();
        QCOMPARE(StartMessages::screenCheck(pixels).has_value(), isTooSmall);
    }
};

QTEST_APPLESS_MAIN(TestStartModels)
#include "tst_startmodels.moc"
