// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressviewer.h"
#include "addressbook/model/labelsheet.h"
#include "tests/addressbook/model/addressrecords.h"
#include "tests/support/household.h"
#include "tests/support/pageitems.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

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

/// Labels and envelopes.
class TestLabelSheet : public QObject
{
    Q_OBJECT
private slots:
    void fitsEveryLabelOnItsSheet()
    {
        QCOMPARE(LabelSheet::all().size(), std::size_t(7));
        for (const LabelSheet &sheet : LabelSheet::all()) {
            QCOMPARE(sheet.setup().sheet(), sheet.paper);
            const QRectF paper({}, sheet.paper);
            for (int i = 0; i < sheet.count(); ++i) {
                QVERIFY2(paper.contains(sheet.place(i)), qPrintable(sheet.name));
                for (int j = 0; j < i; ++j)
                    QVERIFY(
                        !sheet.place(i).adjusted(0.001, 0.001, -0.001, -0.001).intersects(sheet.place(j)));
            }
        }
    }

    void namesPersonsTogether()
    {
        const auto names = [](const QString &persons) { // "last/first last/first"
            std::vector<LabelPerson> all;
            for (const QString &person : persons.split(u' '))
                all.push_back({person.section(u'/', 0, 0), person.section(u'/', 1)});
            return LabelPages::names(all);
        };
        QCOMPARE(names(u"Miller/Anne"_s), u"Anne Miller"_s);
        QCOMPARE(names(u"Miller/Anne Miller/Karl"_s), u"Anne & Karl Miller"_s);
        QCOMPARE(names(u"Miller/Anne MILLER/Karl"_s), u"Anne & Karl Miller"_s);
        QCOMPARE(names(u"Miller/Anne Holm/Karl"_s), u"Anne Miller & Karl Holm"_s);
        QCOMPARE(names(u"Miller/Anne Miller/Karl Miller/Ida"_s), u"Anne, Karl & Ida Miller"_s);
        QCOMPARE(names(u"Miller/Anne Miller/Karl Holm/Ida"_s), u"Anne & Karl Miller & Ida Holm"_s);
        QCOMPARE(names(u"Miller/ Miller/"_s), u"Miller"_s);
        QCOMPARE(names(u"/Anne"_s), u"Anne"_s);
    }

    void sharesLabelsByAddress()
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

        const auto texts = [&viewer](LabelSharing sharing) {
            const LabelTexts labels = LabelTexts::of(viewer, sharing);
            return QStringList(labels.texts.begin(), labels.texts.end());
        };
        const QString anne = u"Anne Miller\n9 Oak Lane\nAshford, NL 75944"_s;
        const QString ida = u"Ida Miller\n9 Oak Lane\nFlat 2\nAshford, NL 75944"_s;
        const QString karl = u"Karl Miller\n9 OAK Lane\nAshford, NL 75944"_s;
        QCOMPARE(texts(LabelSharing::EachTheirOwn), QStringList({anne, ida, karl}));
        QCOMPARE(texts(LabelSharing::OneForAnAddress),
                 QStringList({QString(anne).replace(u"Anne"_s, u"Anne & Karl"_s), ida}));
        QCOMPARE(LabelTexts::of(viewer, LabelSharing::EachTheirOwn).leftOut, 2);
        QCOMPARE(LabelTexts::of(viewer, LabelSharing::OneForAnAddress).leftOut, 2);
    }

    /// Of two lines that lead to one entry only its own gets a label, whichever is ticked.
    void printsTheTickedRows_data()
    {
        rows<QString, int, QString>({
            {"an entry", u"Kessler, Tessa"_s, 2, u"Tessa Kessler"_s},
            {"a number that the name ran into", u"Featherstone-Brookfield, Louis Vera Xenia 2nd"_s, 2, {}},
            {"the second of one name", u"Miller, Anne"_s, 8, u"Anne Miller"_s},
            {"a name that the index has otherwise", u"Quillington, David"_s, 3, u"David Quill"_s},
            {"a line that leads nowhere", u"Lindqvist-Rosenbaum, Walter Nils Yvonne Isidor Bert"_s, 0, {}},
        });
    }

    void printsTheTickedRows()
    {
        const auto [name, record, person] = row<QString, int, QString>();
        const DataFolder folder(householdPath());
        AddressViewer viewer(folder, DateStyle::Usa);
        viewer.load(Information::HomePhone, {});
        const int line = viewer.line(viewer.rowOf(name, record));
        QCOMPARE(viewer.rowOf(u"Nobody"_s, 0), -1);
        const LabelTexts labels = LabelTexts::of(viewer, LabelSharing::OneForAnAddress,
                                                 [line](int other) { return other == line; });
        QCOMPARE(labels.leftOut, person.isEmpty() ? 1 : 0);
        QCOMPARE(labels.texts.size(), std::size_t(1 - labels.leftOut));
        if (!labels.texts.empty())
            QCOMPARE(labels.texts.front().section(u'\n', 0, 0), person);
    }

    void neverLosesTheTown_data()
    {
        rows<QString, QString, TextRole, bool>({
            {"all fits", u"Anne\nOak Lane 9 B\nAshford"_s, u"Anne\nOak Lane 9\n B\nAshford"_s, TextRole::Body,
             false},
            {"in small type", u"Anne Miller\nOak Lane 123\nFlat 2\nAshford"_s,
             u"Anne Miller\nOak Lane 123\nFlat 2\nAshford"_s, TextRole::Small, false},
            {"names too long", u"Anne, Karl, Ida, Bo & Jo Miller\nOak Lane 123\nFlat 2\nAshford"_s,
             u"Anne, Karl, \nIda, Bo & J~\nOak Lane 123\nFlat 2\nAshford"_s, TextRole::Small, true},
            {"names give way", u"Anne, Karl & Ida\nOak Lane 123\nFlat 2\nAshford, NL 75944"_s,
             u"Anne, Karl ~\nOak Lane 123\nFlat 2\nAshford, NL \n75944"_s, TextRole::Small, true},
            {"the street, too", u"Anne, Karl & Ida\nOak Lane 12345\nFlat 2\nAshford, NL 75944"_s,
             u"Anne, Karl ~\nOak Lane 12~\nFlat 2\nAshford, NL \n75944"_s, TextRole::Small, true},
        });
    }

    void neverLosesTheTown()
    {
        const auto [text, set, role, isShortened] = row<QString, QString, TextRole, bool>();
        const SetLabel label = LabelPages::fitted(text, smallRoom());
        QCOMPARE(label.text, set);
        QCOMPARE(label.role, role);
        QCOMPARE(label.isShortened, isShortened);
    }

    void startsOnAUsedSheet_data()
    {
        rows<int, int, int>({
            {"a full sheet", 21, 0, 1},
            {"one more", 22, 0, 2},
            {"the last place", 1, 20, 1},
            {"over the edge", 2, 20, 2},
            {"none", 0, 0, 1},
        });
    }

    void startsOnAUsedSheet()
    {
        const auto [labels, used, sheets] = row<int, int, int>();
        const LabelSheet sheet = sheetNamed(u"3 x 7"_s);
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
        options.offset = {0.1, -0.2};
        const auto moved =
            itemsOf<PageItem::PlacedText>(LabelPages::sheets(sheet, ::labels(labels), options));
        for (int i = 0; i < labels; ++i)
            QCOMPARE(moved[i].place, placed[i].place.translated(options.offset));
        QVERIFY(all.sheetNumbers() == SheetNumbers::None && !all.isClosed());
    }

    void writesEnvelopes()
    {
        LabelPages::Options options;
        options.returnAddress = u"Holm\n1 Elm Street"_s;
        const LabelSheet sheet = sheetNamed(u"DL"_s);
        const auto placed = itemsOf<PageItem::PlacedText>(LabelPages::sheets(sheet, labels(2), options));
        QCOMPARE(placed.size(), 4);
        QCOMPARE(placed[2].text, options.returnAddress);
        QCOMPARE(placed[3].text, u"2"_s);
        QVERIFY(placed[3].place.top() > sheet.paper.height() * 0.4);
        QVERIFY(!placed[2].place.intersects(placed[3].place));
    }
};

QTEST_GUILESS_MAIN(TestLabelSheet)
#include "tst_labelsheet.moc"
