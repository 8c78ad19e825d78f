// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/csvcolumns.h"
#include "shell/core/csvfile.h"
#include "shell/core/csvtext.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// "2: Anne | 12": each line with its number and its cells; one that is not closed has a mark.
QStringList linesOf(const QByteArray &bytes, CsvFile::Cells cells = CsvFile::Cells::Tidied)
{
    CsvFile file(bytes, cells);
    QStringList lines;
    CsvFile::Line line;
    while (file.next(line))
        lines << QString::number(line.number) + u": "_s + line.cells.join(u" | "_s) +
                     (line.isClosed ? QString() : u" (not closed)"_s);
    return lines;
}

enum Column { Title, UserName, Password };

CsvColumns columnsOf(const QByteArray &bytes, int needed = -1)
{
    CsvFile file(bytes);
    return {file,
            {.count = 3,
             .names = {{UserName, {u"user name"_s, u"login"_s}},
                       {Title, {u"title"_s, u"name"_s}},
                       {Password, {u"password"_s}}},
             .needed = needed,
             .isOther = [](const QString &heading) { return heading.contains(u"old"_s); }}};
}

/// Where they were found: "1 0 -1".
QString places(const CsvColumns &columns)
{
    QStringList places;
    for (int column = 0; column < columns.count(); ++column)
        places << QString::number(columns.placeOf(column));
    return places.join(u' ');
}

} // namespace

/// Files of spreadsheets and of other programs, cut into cells, and what their columns are taken for.
class TestCsvFile final : public QObject
{
    Q_OBJECT
private slots:
    void cutsLinesIntoCells_data()
    {
        const QByteArray unclosed = "a,\"" + QByteArray(200'000, 'x') + "\nb,2\n";
        const QString longCell(200'000, u'x');
        rows<QByteArray, QStringList>({
            {"nothing", "", {}},
            {"blank lines", "\r\n  \r\na,1\r\n\r\nb,2", {u"3: a | 1"_s, u"5: b | 2"_s}},
            {"semicolons", "a;1,5\nb;2,5\n", {u"1: a | 1,5"_s, u"2: b | 2,5"_s}},
            {"tabs", "a, b\t1\nc\t2\n", {u"1: a, b | 1"_s, u"2: c | 2"_s}},
            {"line ends of long ago", "a,1\rb,2\r", {u"1: a | 1"_s, u"2: b | 2"_s}},
            {"quotes",
             "\"a,b\",\"say \"\"no\"\"\"\n c , \"d\" \n",
             {u"1: a,b | say \"no\""_s, u"2: c | d"_s}},
            {"a quote in a cell", "5\" pipe,1\nb,2\n", {u"1: 5\" pipe | 1"_s, u"2: b | 2"_s}},
            {"a line end in quotes", "\"a\nb\",1\nc,2\n", {u"1: a b | 1"_s, u"3: c | 2"_s}},
            {"empty cells at the end", "a,1,,\nb,2,,\n", {u"1: a | 1 |  | "_s, u"2: b | 2 |  | "_s}},
            {"a quote without an end",
             unclosed,
             {u"1: a | "_s + longCell + u" (not closed)"_s, u"2: b | 2"_s}},
            {"UTF-16",
             QByteArray("\xFF\xFE"
                        "\xE9\0,\0"
                        "1\0\n\0",
                        10),
             {u"1: \u00e9 | 1"_s}},
            {"UTF-16 without a mark",
             QByteArray("a\0,\0"
                        "1\0\n\0"
                        "\xE9\0,\0"
                        "2\0\n\0",
                        16),
             {u"1: a | 1"_s, u"2: \u00e9 | 2"_s}},
            {"Windows-1252", "caf\xE9,\x80 5\n", {u"1: caf\u00e9 | \u20ac 5"_s}},
            {"a mark in front",
             "\xEF\xBB\xBF"
             "a,1\n",
             {u"1: a | 1"_s}},
        });
    }

    void cutsLinesIntoCells()
    {
        const auto [bytes, lines] = row<QByteArray, QStringList>();
        QCOMPARE(linesOf(bytes), lines);
    }

    void keepsBlanksThatCount()
    {
        QCOMPARE(linesOf("t, p  w ,\" x\r\ny \"\n  \"q\",\"\",\n \n", CsvFile::Cells::AsWritten),
                 (QStringList{u"1: t |  p  w  |  x\ny "_s, u"3: q |  | "_s}));
        const QByteArray note(60'000, 'n');
        CsvFile file("t,\"" + note + "\"\n", CsvFile::Cells::AsWritten);
        CsvFile::Line line;
        QVERIFY(file.next(line) && line.isClosed);
        QCOMPARE(line.cells[1].size(), note.size());
    }

    void goesOnBehindALineOfAMillionCells()
    {
        CsvFile file("a,1\n" + QByteArray(1'000'000, ',') + "\nb,2\n");
        CsvFile::Line line;
        QVERIFY(file.next(line) && !line.hasMore);
        QVERIFY(file.next(line) && line.hasMore);
        QCOMPARE(line.cells.size(), CsvFile::mostCells);
        QVERIFY(file.next(line) && !line.hasMore);
        QCOMPARE(line.number, 3);
        QCOMPARE(line.cells, (QStringList{u"b"_s, u"2"_s}));
        QVERIFY(!file.next(line));
    }

    void writesWhatItReads()
    {
        const QStringList cells{u"a,b"_s, u" \"c\" "_s, {}, u"d\ne"_s, u"\u00e9;"_s};
        CsvFile file(CsvText::file(CsvText::line(cells) + CsvText::line(cells)), CsvFile::Cells::AsWritten);
        CsvFile::Line line;
        for (const int number : {1, 3}) {
            QVERIFY(file.next(line));
            QCOMPARE(line.number, number);
            QCOMPARE(line.cells, cells);
        }
    }

    void guessesWhatColumnsAre_data()
    {
        rows<QByteArray, int, QString, int>({
            {"by names, the surest first", "Name,User Name,Password\nBank,anne,x\n", -1, u"0 1 2"_s, 1},
            {"in any order and case", "PASSWORD;login;Title;URL\nx;anne;Bank;\n", -1, u"2 1 0"_s, 1},
            {"behind other lines", "Export of today\n\nTitle,Password\nBank,x\n", -1, u"0 -1 1"_s, 3},
            {"not by what means something else", "Title,old password,login\nBank,x,y\n", -1, u"0 2 -1"_s, 1},
            {"one name is none", "Title,Geheim\nBank,x\n", -1, u"-1 -1 -1"_s, 0},
            {"without the needed one", "Title,login\nBank,anne\n", Password, u"-1 -1 -1"_s, 0},
            {"in another language", "Titel,Geheim,Password\nBank,x1,y2\n", -1, u"-1 -1 2"_s, 1},
            {"as many without names", "Bank 1,anne,x\nShop 2,anne,y\n", -1, u"0 1 2"_s, 0},
            {"others without names", "Bank 1,anne\nShop 2,anne\n", -1, u"-1 -1 -1"_s, 0},
            {"in nothing", "", -1, u"-1 -1 -1"_s, 0},
        });
    }

    void guessesWhatColumnsAre()
    {
        const auto [bytes, needed, found, heading] = row<QByteArray, int, QString, int>();
        const CsvColumns columns = columnsOf(bytes, needed);
        QCOMPARE(places(columns), found);
        QCOMPARE(columns.headingNumber(), heading);
        QCOMPARE(columns.isComplete(), found != u"-1 -1 -1");
    }

    void isToldWhatColumnsAre()
    {
        CsvColumns columns = columnsOf("Title,,Geheim und noch mehr als drei\xC3\x9Fig Zeichen,Password\n"
                                       "Bank,,,x\nShop,,a secret of more than thirty letters,y\n");
        const QString cut = u"Geheim und noch mehr als drei\u00df"_s;
        QCOMPARE(columns.fileNames(), (QStringList{u"Title"_s, u"Column 2"_s, cut, u"Password"_s}));
        QCOMPARE(columns.notUsed(), QStringList(cut));
        QCOMPARE(columns.example(1), QString());
        QCOMPARE(columns.example(2), u"a secret of more than thirty l\u2026"_s);
        // A column of the file is one thing only.
        columns.setPlace(UserName, 3);
        QCOMPARE(places(columns), u"0 3 -1"_s);
        QCOMPARE(columns.cell({u"a"_s, u"b"_s, u"c"_s, u"d"_s}, UserName), u"d"_s);
        QCOMPARE(columns.cell({u"a"_s}, UserName), QString());
        columns.setPlace(UserName, -1);
        columns.setPlace(Title, -1);
        QVERIFY(!columns.isComplete());
        QCOMPARE(columns.cell({u"a"_s}, Title), QString());
    }
};

QTEST_APPLESS_MAIN(TestCsvFile)
#include "tst_csvfile.moc"
