// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/valuefile.h"
#include "tests/support/household.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

class TestValueFile : public QObject
{
    Q_OBJECT
private slots:
    void writesValuesAsItReadsThem_data()
    {
        rows<QStringList, QByteArray>({
            {"none", {}, {}},
            {"one empty value", {u""_s}, "\"\"\r\n"},
            {"two", {u"Zoë"_s, u" a b "_s}, "\"Zo\xEB\"\r\n\" a b \"\r\n"},
            {"commas and line ends", {u"a,b"_s, u"x\r\ny\nz"_s}, "\"a,b\"\r\n\"x\r\ny\nz\"\r\n"},
            {"quotes inside", {u"the \"top\" shelf"_s}, "\"the \"top\" shelf\"\r\n"},
            {"quotes at both ends", {u"\"Swim\""_s, u"\""_s}, "\"\"Swim\"\"\r\n\"\"\"\r\n"},
            {"comma and line end first", {u",a"_s, u"\r\nb"_s}, "\",a\"\r\n\"\r\nb\"\r\n"},
            {"character 26 inside", {u"a\"\x1A"_s}, "\"a\"\x1A\"\r\n"},
        });
    }

    void writesValuesAsItReadsThem()
    {
        const auto [values, bytes] = row<QStringList, QByteArray>();
        QCOMPARE(ValueFile::encode(values), bytes);
        QCOMPARE(ValueFile::decode(bytes), values);
        // A quote that would close the text when it is read is written as two apostrophes.
        QCOMPARE(ValueFile::encode({u"5\", 7\"\n"_s}), "\"5'', 7''\n\"\r\n"_ba);
    }

    void readsWhatOthersWrote_data()
    {
        rows<QByteArray, QStringList>({
            {"commas", "\"a\",\"b\", \"c\"\r\n", {u"a"_s, u"b"_s, u"c"_s}},
            {"bare line feeds", "\"a\"\n\"b\"\n", {u"a"_s, u"b"_s}},
            {"bare carriage returns", "\"a\"\r\"b\"\r", {u"a"_s, u"b"_s}},
            {"no last line end", "\"a\"\r\n\"b\"", {u"a"_s, u"b"_s}},
            {"unquoted", "180.5\r\n-2 , x y\r\n", {u"180.5"_s, u"-2"_s, u"x y"_s}},
            {"a quote inside an unquoted value", "5\" nails\r\n", {u"5\" nails"_s}},
            {"final character 26", "\"a\"\r\n\x1A", {u"a"_s}},
            {"character 26 after the quote", "\"a\"\x1A", {u"a"_s}},
            {"only character 26", "\x1A", {}},
            {"ends inside a text", "\"a\"\r\n\"Zo\xEB Mar", {u"a"_s, u"Zoë Mar"_s}},
            {"ends behind the opening quote", "\"a\"\r\n\"", {u"a"_s, u""_s}},
            {"quote and blank do not close", "\"a\" ,\"b\"\r\n", {u"a\" ,\"b"_s}},
            {"empty places", "\"a\",,\r\n\r\n\"b\"\r\n", {u"a"_s, u""_s, u""_s, u""_s, u"b"_s}},
            {"zero bytes", "\"a\0b\"\r\n\0\0"_ba, {u"ab"_s, u""_s}},
        });
    }

    void readsWhatOthersWrote()
    {
        const auto [bytes, values] = row<QByteArray, QStringList>();
        QCOMPARE(ValueFile::decode(bytes), values);
    }

    void readsFiles()
    {
        const TestFolder files;
        files.put(u"List.Fil"_s, "\"Karin Holm\"\r\n\"Zo\xEB\"\r\n");
        QCOMPARE(ValueFile::read(files.path(u"List.Fil"_s)), (QStringList{u"Karin Holm"_s, u"Zoë"_s}));
        QCOMPARE(ValueFile::read(files.path(u"None.Fil"_s)), QStringList());
        QVERIFY(QDir().mkdir(files.path(u"Folder.Fil"_s)));
        expectWarning("^Cannot read .*Folder.Fil");
        QCOMPARE(ValueFile::read(files.path(u"Folder.Fil"_s)), QStringList());
    }

    void bringsBackTheHousehold()
    {
        const std::pair<QString, int> counts[]{{u"2025.Fil"_s, 662},  {u"WeightTrker.Fil"_s, 4},
                                               {u"ACar1.Fil"_s, 325}, {u"Nils Holm 2026.Fil"_s, 110},
                                               {u"ACar2.Fil"_s, 1},   {u"TODOActv.FIL"_s, 33}};
        for (const auto &[name, count] : counts) {
            const QStringList values = ValueFile::read(householdPath(name));
            QCOMPARE(int(values.size()), count);
            QCOMPARE(ValueFile::encode(values), contentOf(householdPath(name)));
        }
    }

    void readsALine_data()
    {
        rows<QByteArray, QString>({
            {"empty", {}, {}},
            {"CRLF", "C:\\Bilder\\Zo\xEB, 2\\\r\n", u"C:\\Bilder\\Zoë, 2\\"_s},
            {"no line end", "/home", u"/home"_s},
            {"bare CR, more lines", "a\rb\n", u"a"_s},
            {"character 26", "a\x1A", u"a"_s},
        });
    }

    void readsALine()
    {
        const auto [bytes, line] = row<QByteArray, QString>();
        const TestFolder files;
        files.put(u"Line.Fil"_s, bytes);
        QCOMPARE(ValueFile::readLine(files.path(u"Line.Fil"_s)), line);
        QCOMPARE(ValueFile::readLine(files.path(u"None.Fil"_s)), QString());
    }
};

QTEST_APPLESS_MAIN(TestValueFile)
#include "tst_valuefile.moc"
