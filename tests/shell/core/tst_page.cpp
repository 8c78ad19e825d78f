// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/page.h"
#include "tests/support/rows.h"

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
    void readsAsText_data()
    {
        rows<Page, QString>({
            {"nothing", Page(), {}},
            {"only closed", Page().close(printedOn, DateStyle::Usa), u"\nQuillery\nPrinted on 11/21/2026"_s},
            {"a line written after closing", Page(u"T"_s).close(printedOn, DateStyle::Other).line(u"late"_s),
             u"\nT\n\nlate\n\nQuillery\nPrinted on 21/11/2026"_s},
            {"a table", phoneList(),
             u"\nPhone List\tNov-21-2026\n\nName\tPhone\nMiller, Anne\t555-1234\nZoë, Émile\t555-9876\n\n"
             "Quillery\nPrinted on 11/21/2026"_s},
            {"a table without headings", Page().columns({1, 1}).row({u"a"_s, u"b"_s}), u"a\tb"_s},
            {"what is no text leaves no line",
             Page(u"T"_s)
                 .picture(u"a.jpg"_s, {1, 1})
                 .rule()
                 .placePicture({1, 1, 1, 1}, u"b.jpg"_s)
                 .line(u"end"_s),
             u"\nT\n\nend"_s},
            {"placed texts, blanks and breaks",
             Page()
                 .placeText({1, 1, 2, 2}, u"Anne"_s)
                 .breakPage()
                 .blank(u"Last Name:"_s)
                 .blankLine()
                 .line(u"x"_s),
             u"Anne\n\nLast Name:\n\nx"_s},
        });
    }

    void readsAsText()
    {
        const auto [page, text] = row<Page, QString>();
        QCOMPARE(page.toText(), text);
    }

    void readsInPartsAsSheetsHoldThem_data()
    {
        const QString title = u"\nPhone List\tNov-21-2026\n\n"_s,
                      closing = u"\nQuillery\nPrinted on 11/21/2026"_s;
        rows<std::size_t, std::size_t, QString>({
            {"the beginning", 0, 2, title + u"Name\tPhone\nMiller, Anne\t555-1234"_s},
            {"headings again, no closing", 2, 3, title + u"Name\tPhone\nZoë, Émile\t555-9876"_s},
            {"the closing lines alone", 3, 4, title + closing},
            {"far past the end", 3, 99, title + closing},
        });
    }

    void readsInPartsAsSheetsHoldThem()
    {
        const auto [first, end, text] = row<std::size_t, std::size_t, QString>();
        QCOMPARE(phoneList().toText(first, end), text);
    }
};

QTEST_APPLESS_MAIN(TestPage)
#include "tst_page.moc"
