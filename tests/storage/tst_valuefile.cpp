// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/valuefile.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestValueFile : public QObject
{
    Q_OBJECT

private slots:
    void writesValues_data();
    void writesValues();
    void readsBackWhatItWrote_data() { writesValues_data(); }
    void readsBackWhatItWrote();
    void readsValues_data();
    void readsValues();
    void readsFiles();
    void readsALine_data();
    void readsALine();
};

void TestValueFile::writesValues_data()
{
    QTest::addColumn<QStringList>("values");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("none") << QStringList() << QByteArray();
    QTest::newRow("one empty value") << QStringList{u""_s} << "\"\"\r\n"_ba;
    QTest::newRow("two") << QStringList{u"Zoë"_s, u" a b "_s} << "\"Zo\xEB\"\r\n\" a b \"\r\n"_ba;
    QTest::newRow("commas and line ends")
        << QStringList{u"a,b"_s, u"x\r\ny\nz"_s} << "\"a,b\"\r\n\"x\r\ny\nz\"\r\n"_ba;
    QTest::newRow("quotes inside") << QStringList{u"the \"top\" shelf"_s} << "\"the \"top\" shelf\"\r\n"_ba;
    QTest::newRow("quotes at both ends")
        << QStringList{u"\"Swim\""_s, u"\""_s} << "\"\"Swim\"\"\r\n\"\"\"\r\n"_ba;
    QTest::newRow("comma and line end first")
        << QStringList{u",a"_s, u"\r\nb"_s} << "\",a\"\r\n\"\r\nb\"\r\n"_ba;
    QTest::newRow("character 26 inside") << QStringList{u"a\"\x1A"_s} << "\"a\"\x1A\"\r\n"_ba;
}

void TestValueFile::writesValues()
{
    QFETCH(QStringList, values);
    QTEST(ValueFile::encode(values), "bytes");
}

void TestValueFile::readsBackWhatItWrote()
{
    QFETCH(QByteArray, bytes);
    QTEST(ValueFile::decode(bytes), "values");
}

void TestValueFile::readsValues_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("values");
    QTest::newRow("commas") << "\"a\",\"b\", \"c\"\r\n"_ba << QStringList{u"a"_s, u"b"_s, u"c"_s};
    QTest::newRow("bare line feeds") << "\"a\"\n\"b\"\n"_ba << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("bare carriage returns") << "\"a\"\r\"b\"\r"_ba << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("no last line end") << "\"a\"\r\n\"b\""_ba << QStringList{u"a"_s, u"b"_s};
    QTest::newRow("unquoted") << "180.5\r\n-2 , x y\r\n"_ba << QStringList{u"180.5"_s, u"-2"_s, u"x y"_s};
    QTest::newRow("a quote inside an unquoted value") << "5\" nails\r\n"_ba << QStringList{u"5\" nails"_s};
    QTest::newRow("final character 26") << "\"a\"\r\n\x1A"_ba << QStringList{u"a"_s};
    QTest::newRow("character 26 after the quote") << "\"a\"\x1A"_ba << QStringList{u"a"_s};
    QTest::newRow("only character 26") << "\x1A"_ba << QStringList();
    QTest::newRow("ends inside a text") << "\"a\"\r\n\"Zo\xEB Mar"_ba << QStringList{u"a"_s, u"Zoë Mar"_s};
    QTest::newRow("ends behind the opening quote") << "\"a\"\r\n\""_ba << QStringList{u"a"_s, u""_s};
    QTest::newRow("ends between CR and LF") << "\"a\"\r"_ba << QStringList{u"a"_s};
    QTest::newRow("quote and blank do not close") << "\"a\" ,\"b\"\r\n"_ba << QStringList{u"a\" ,\"b"_s};
    QTest::newRow("empty places") << "\"a\",,\r\n\r\n\"b\"\r\n"_ba
                                  << QStringList{u"a"_s, u""_s, u""_s, u""_s, u"b"_s};
    QTest::newRow("zero bytes") << QByteArray("\"a\0b\"\r\n\0\0", 9) << QStringList{u"ab"_s, u""_s};
}

void TestValueFile::readsValues()
{
    QFETCH(QByteArray, bytes);
    QTEST(ValueFile::decode(bytes), "values");
}

void TestValueFile::readsFiles()
{
    const QTemporaryDir dir;
    QVERIFY(makeFile(dir.filePath(u"List.Fil"_s), "\"Karin Holm\"\r\n\"Zo\xEB\"\r\n"));
    QCOMPARE(ValueFile::read(dir.filePath(u"List.Fil"_s)), (QStringList{u"Karin Holm"_s, u"Zoë"_s}));
    QCOMPARE(ValueFile::read(dir.filePath(u"None.Fil"_s)), QStringList());
    QCOMPARE(ValueFile::readLine(dir.filePath(u"None.Fil"_s)), QString());
    QVERIFY(QDir(dir.path()).mkdir(u"Folder.Fil"_s));
    expectWarning("^Cannot read .*Folder.Fil");
    QCOMPARE(ValueFile::read(dir.filePath(u"Folder.Fil"_s)), QStringList());
}

void TestValueFile::readsALine_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("line");
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("CRLF") << "C:\\Bilder\\Zo\xEB, 2\\\r\n"_ba << u"C:\\Bilder\\Zoë, 2\\"_s;
    QTest::newRow("no line end") << "/home"_ba << u"/home"_s;
    QTest::newRow("bare CR, more lines") << "a\rb\n"_ba << u"a"_s;
    QTest::newRow("character 26") << "a\x1A"_ba << u"a"_s;
}

void TestValueFile::readsALine()
{
    QFETCH(QByteArray, bytes);
    const QTemporaryDir dir;
    QVERIFY(makeFile(dir.filePath(u"Line.Fil"_s), bytes));
    QTEST(ValueFile::readLine(dir.filePath(u"Line.Fil"_s)), "line");
}

QTEST_APPLESS_MAIN(TestValueFile)
#include "tst_valuefile.moc"
