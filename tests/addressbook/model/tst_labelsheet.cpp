// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressviewer.h"
#include "addressbook/model/labelsheet.h"
#include "tests/addressbook/model/addressrecords.h"
#include "tests/support/pageitems.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Labels and envelopes.
class TestLabelSheet : public QObject
{
    Q_OBJECT

private slots:
    void fitsEveryLabelOnItsSheet();
    void namesPersonsTogether_data();
    void namesPersonsTogether();
    void sharesLabelsByAddress_data();
    void sharesLabelsByAddress();
    void neverLosesTheTown_data();
    void neverLosesTheTown();
    void startsOnAUsedSheet_data();
    void startsOnAUsedSheet();
    void writesEnvelopes();
};

namespace {

const LabelSheet &sheetNamed(const QString &part)
{
    return *std::ranges::find_if(LabelSheet::all(),
                                 [&part](const LabelSheet &sheet) { return sheet.name.contains(part); });
}

std::vector<SetLabel> labels(int count)
{
    std::vector<SetLabel> labels;
    for (int i = 1; i <= count; ++i)
        labels.push_back({QString::number(i)});
    return labels;
}

/// A room of four lines of ten characters, or of five lines of twelve small ones; lines break anywhere.
LabelType smallRoom()
{
    const auto width = [](TextRole role) { return role == TextRole::Small ? 12 : 10; };
    const auto wrapped = [width](const QString &line, TextRole role) {
        QStringList lines;
        for (qsizetype at = 0; at < line.size(); at += width(role))
            lines << line.mid(at, width(role));
        return lines;
    };
    const auto elided = [width](const QString &line, TextRole role) {
        return line.size() <= width(role) ? line : line.left(width(role) - 1) + u'~';
    };
    return {wrapped, elided, [](TextRole role) { return role == TextRole::Small ? 5 : 4; }};
}

} // namespace

void TestLabelSheet::fitsEveryLabelOnItsSheet()
{
    QCOMPARE(LabelSheet::all().size(), std::size_t(7));
    for (const LabelSheet &sheet : LabelSheet::all()) {
        QCOMPARE(sheet.setup().sheet(), sheet.paper);
        const QRectF paper({}, sheet.paper);
        for (int i = 0; i < sheet.count(); ++i) {
            QVERIFY2(paper.contains(sheet.place(i)), qPrintable(sheet.name));
            for (int j = 0; j < i; ++j)
                QVERIFY(!sheet.place(i).adjusted(0.001, 0.001, -0.001, -0.001).intersects(sheet.place(j)));
        }
    }
}

void TestLabelSheet::namesPersonsTogether_data()
{
    QTest::addColumn<QStringList>("persons"); // "last/first"
    QTest::addColumn<QString>("names");
    QTest::newRow("one") << QStringList{u"Miller/Anne"_s} << u"Anne Miller"_s;
    QTest::newRow("one family") << QStringList{u"Miller/Anne"_s, u"Miller/Karl"_s} << u"Anne & Karl Miller"_s;
    QTest::newRow("typed otherwise") << QStringList{u"Miller/Anne"_s, u"MILLER/Karl"_s}
                                     << u"Anne & Karl Miller"_s;
    QTest::newRow("two families") << QStringList{u"Miller/Anne"_s, u"Holm/Karl"_s}
                                  << u"Anne Miller & Karl Holm"_s;
    QTest::newRow("with a child") << QStringList{u"Miller/Anne"_s, u"Miller/Karl"_s, u"Miller/Ida"_s}
                                  << u"Anne, Karl & Ida Miller"_s;
    QTest::newRow("a lodger") << QStringList{u"Miller/Anne"_s, u"Miller/Karl"_s, u"Holm/Ida"_s}
                              << u"Anne & Karl Miller & Ida Holm"_s;
    QTest::newRow("without first names") << QStringList{u"Miller/"_s, u"Miller/"_s} << u"Miller"_s;
    QTest::newRow("without last name") << QStringList{u"/Anne"_s} << u"Anne"_s;
}

void TestLabelSheet::namesPersonsTogether()
{
    QFETCH(QStringList, persons);
    std::vector<LabelPerson> all;
    for (const QString &person : persons)
        all.push_back({person.section(u'/', 0, 0), person.section(u'/', 1)});
    QTEST(LabelPages::names(all), "names");
}

void TestLabelSheet::sharesLabelsByAddress_data()
{
    QTest::addColumn<LabelSharing>("sharing");
    QTest::addColumn<QStringList>("labels");
    const QString oak = u"9 Oak Lane\nAshford, NL 75944"_s;
    QTest::newRow("shared") << LabelSharing::OneForAnAddress
                            << QStringList{u"Anne & Karl Miller\n"_s + oak,
                                           u"Ida Miller\n9 Oak Lane\nFlat 2\nAshford, NL 75944"_s};
    QTest::newRow("each") << LabelSharing::EachTheirOwn
                          << QStringList{u"Anne Miller\n"_s + oak,
                                         u"Ida Miller\n9 Oak Lane\nFlat 2\nAshford, NL 75944"_s,
                                         u"Karl Miller\n9 OAK Lane\nAshford, NL 75944"_s};
}

void TestLabelSheet::sharesLabelsByAddress()
{
    const TestFolder files;
    QByteArray lines = neverWritten(60), entries = neverWritten(724);
    const auto add = [&](const QByteArray &first, const QByteArray &street, const QByteArray &flat) {
        const int record = int(lines.size() / 60) + 1;
        lines += lineBytes(lineOf("Miller, " + first, record));
        entries += street.isEmpty()
                       ? entryBytes({"Miller", first})
                       : entryBytes({"Miller", first, "", street, flat, "Ashford", "NL", "75944"});
    };
    add("Anne", "9 Oak Lane", "");
    add("Ida", "9 Oak Lane", "Flat 2");
    add("Nobody", "", "");
    add("Karl", "9 OAK  Lane", "");
    lines += lineBytes(lineOf("Miller, Whose Number Was Cut Off", 2));
    files.put(u"Addbk2.Fil"_s, lines);
    files.put(u"Addbk1.Fil"_s, entries);
    AddressViewer viewer(files.folder(), DateStyle::Usa);
    viewer.load(Information::HomePhone, {});

    QFETCH(LabelSharing, sharing);
    const LabelTexts labels = LabelTexts::of(viewer, sharing);
    QTEST(QStringList(labels.texts.begin(), labels.texts.end()), "labels");
    QCOMPARE(labels.leftOut, 2);
}

void TestLabelSheet::neverLosesTheTown_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("set");
    QTest::addColumn<TextRole>("role");
    QTest::addColumn<bool>("isShortened");
    const auto row = [](const char *name, const QString &text, const QString &set, TextRole role,
                        bool isShortened) { QTest::newRow(name) << text << set << role << isShortened; };
    row("all fits", u"Anne\nOak Lane 9 B\nAshford"_s, u"Anne\nOak Lane 9\n B\nAshford"_s, TextRole::Body,
        false);
    row("in small type", u"Anne Miller\nOak Lane 123\nFlat 2\nAshford"_s,
        u"Anne Miller\nOak Lane 123\nFlat 2\nAshford"_s, TextRole::Small, false);
    row("names too long", u"Anne, Karl, Ida, Bo & Jo Miller\nOak Lane 123\nFlat 2\nAshford"_s,
        u"Anne, Karl, \nIda, Bo & J~\nOak Lane 123\nFlat 2\nAshford"_s, TextRole::Small, true);
    row("names give way", u"Anne, Karl & Ida\nOak Lane 123\nFlat 2\nAshford, NL 75944"_s,
        u"Anne, Karl ~\nOak Lane 123\nFlat 2\nAshford, NL \n75944"_s, TextRole::Small, true);
    row("the street, too", u"Anne, Karl & Ida\nOak Lane 12345\nFlat 2\nAshford, NL 75944"_s,
        u"Anne, Karl ~\nOak Lane 12~\nFlat 2\nAshford, NL \n75944"_s, TextRole::Small, true);
}

void TestLabelSheet::neverLosesTheTown()
{
    QFETCH(QString, text);
    const SetLabel label = LabelPages::fitted(text, smallRoom());
    QTEST(label.text, "set");
    QTEST(label.role, "role");
    QTEST(label.isShortened, "isShortened");
}

void TestLabelSheet::startsOnAUsedSheet_data()
{
    QTest::addColumn<int>("labels");
    QTest::addColumn<int>("used");
    QTest::addColumn<int>("sheets");
    QTest::newRow("a full sheet") << 21 << 0 << 1;
    QTest::newRow("one more") << 22 << 0 << 2;
    QTest::newRow("the last place") << 1 << 20 << 1;
    QTest::newRow("over the edge") << 2 << 20 << 2;
    QTest::newRow("none") << 0 << 0 << 1;
}

void TestLabelSheet::startsOnAUsedSheet()
{
    QFETCH(int, labels);
    QFETCH(int, used);
    QFETCH(int, sheets);
    const LabelSheet &sheet = sheetNamed(u"3 x 7"_s);
    LabelPages::Options options;
    options.used = used;
    const Page all = LabelPages::sheets(sheet, ::labels(labels), options);
    const auto placed = itemsOf<PageItem::PlacedText>(all);
    QCOMPARE(LabelPages::sheetCount(sheet, labels, used), sheets);
    QCOMPARE(int(placed.size()), labels);
    QCOMPARE(int(itemsOf<PageItem::Break>(all).size()), sheets); // the first does nothing
    for (int i = 0; i < labels; ++i) {
        QCOMPARE(placed[i].text, QString::number(i + 1));
        QVERIFY(sheet.place((i + used) % sheet.count()).contains(placed[i].place));
    }
    // The sheet alone is the same as among all.
    const auto last =
        itemsOf<PageItem::PlacedText>(LabelPages::sheet(sheet, ::labels(labels), options, sheets - 1));
    QCOMPARE(last, placed.mid(placed.size() - last.size()));
    QVERIFY(all.sheetNumbers() == SheetNumbers::None && !all.isClosed());
}

void TestLabelSheet::writesEnvelopes()
{
    LabelPages::Options options;
    options.returnAddress = u"Holm\n1 Elm Street"_s;
    const LabelSheet &sheet = sheetNamed(u"DL"_s);
    const auto placed = itemsOf<PageItem::PlacedText>(LabelPages::sheets(sheet, labels(2), options));
    QCOMPARE(placed.size(), 4);
    QCOMPARE(placed[2].text, options.returnAddress);
    QCOMPARE(placed[3].text, u"2"_s);
    QVERIFY(placed[3].place.top() > sheet.paper.height() * 0.4);
    QVERIFY(!placed[2].place.intersects(placed[3].place));
}

QTEST_GUILESS_MAIN(TestLabelSheet)
#include "tst_labelsheet.moc"
