// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/page.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDate printedOn(2026, 11, 21);

Page phoneList()
{
    Page page(u"Phone List"_s, u"Nov-21-2026"_s);
    page.columns({3, 1}, {u"Name"_s, u"Phone"_s}).row({u"Miller, Anne"_s, u"555-1234"_s});
    page.row({u"Zoë, Émile"_s, u"555-9876"_s}).close(printedOn, DateStyle::Usa);
    return page;
}

} // namespace

class TestPage final : public QObject
{
    Q_OBJECT

private slots:
    void readsAsText_data();
    void readsAsText();
    void endsWithTheDayOfPrinting();
    void readsInPartsAsSheetsHoldThem_data();
    void readsInPartsAsSheetsHoldThem();
};

void TestPage::readsAsText_data()
{
    QTest::addColumn<Page>("page");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << Page() << u""_s;
    QTest::newRow("only closed") << Page().close(printedOn, DateStyle::Usa)
                                 << u"\nQuillery\nPrinted on 11/21/2026"_s;
    QTest::newRow("a table") << phoneList()
                             << u"\nPhone List\tNov-21-2026\n\nName\tPhone\nMiller, Anne\t555-1234\n"
                                "Zoë, Émile\t555-9876\n\nQuillery\nPrinted on 11/21/2026"_s;
    QTest::newRow("a table without headings") << Page().columns({1, 1}).row({u"a"_s, u"b"_s}) << u"a\tb"_s;
    QTest::newRow("what is no text leaves no line") << Page(u"T"_s)
                                                           .picture(u"a.jpg"_s, {1, 1})
                                                           .rule()
                                                           .placePicture({1, 1, 1, 1}, u"b.jpg"_s)
                                                           .line(u"end"_s)
                                                    << u"\nT\n\nend"_s;
    QTest::newRow("placed texts, blanks and breaks") << Page()
                                                            .placeText({1, 1, 2, 2}, u"Anne"_s)
                                                            .breakPage()
                                                            .blank(u"Last Name:"_s)
                                                            .blankLine()
                                                            .line(u"x"_s)
                                                     << u"Anne\n\nLast Name:\n\nx"_s;
}

void TestPage::readsAsText()
{
    QFETCH(Page, page);
    QTEST(page.toText(), "text");
}

void TestPage::endsWithTheDayOfPrinting()
{
    const Page page = Page(u"T"_s).close(printedOn, DateStyle::Other).line(u"written after closing"_s);
    QVERIFY(page.isClosed());
    QCOMPARE(page.printedLine(), u"Printed on 21/11/2026"_s);
    QVERIFY(page.toText().endsWith(u"\nQuillery\nPrinted on 21/11/2026"_s));
}

void TestPage::readsInPartsAsSheetsHoldThem_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("text");
    const QString title = u"\nPhone List\tNov-21-2026\n\n"_s;
    QTest::newRow("the beginning") << 0 << 2 << title + u"Name\tPhone\nMiller, Anne\t555-1234"_s;
    QTest::newRow("inside the table: headings again, no closing")
        << 2 << 3 << title + u"Name\tPhone\nZoë, Émile\t555-9876"_s;
    QTest::newRow("the closing lines alone") << 3 << 4 << title + u"\nQuillery\nPrinted on 11/21/2026"_s;
    QTest::newRow("far past the end") << 3 << 99 << title + u"\nQuillery\nPrinted on 11/21/2026"_s;
}

void TestPage::readsInPartsAsSheetsHoldThem()
{
    QFETCH(int, first);
    QFETCH(int, end);
    QTEST(phoneList().toText(std::size_t(first), std::size_t(end)), "text");
}

QTEST_APPLESS_MAIN(TestPage)
#include "tst_page.moc"
