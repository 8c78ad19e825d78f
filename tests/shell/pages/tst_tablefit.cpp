// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/tablefit.h"
#include "tests/support/rows.h"
#include "tests/support/sheettools.h"

#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;
using namespace SheetTools;

namespace {

const QStringList months{u"Jan"_s, u"Feb"_s, u"Mar"_s, u"Apr"_s, u"May"_s, u"Jun"_s,
                         u"Jul"_s, u"Aug"_s, u"Sep"_s, u"Oct"_s, u"Nov"_s, u"Dec"_s};
constexpr QSizeF upright(540, 700), onItsSide(720, 500), narrow(100, 500);

Page budget(const QString &item, const QString &amount, int rows = 3)
{
    Page page(u"Budget"_s);
    PageItem::Columns columns;
    columns.widths = TableWidths::ForNumbers;
    columns.headings = QStringList(u"Item"_s) + months;
    page.table(columns);
    for (int row = 0; row < rows; ++row)
        page.row(QStringList(item) + QStringList(12, amount));
    return page.rule().row(QStringList(u"Total"_s) + QStringList(12, amount), TextRole::Strong);
}

/// The tables that are left, with the lines under their headings.
QStringList tables(const Page &page)
{
    QStringList found;
    for (const Page::Item &item : page.items()) {
        if (const auto *columns = std::get_if<PageItem::Columns>(&item))
            found << columns->headings.value(1) + u'-' + columns->headings.constLast();
    }
    return found;
}

} // namespace

/// Tables of numbers, made to fit.
class TestTableFit final : public QObject
{
    Q_OBJECT
private slots:
    void shrinksAndCuts_data()
    {
        const QString item = u"Rent"_s;
        rows<Page, QSizeF, double, QStringList>({
            {"small amounts", budget(item, u"9.50"_s), upright, 11, {u"Jan-Dec"_s}},
            {"large ones on the side", budget(item, u"1250.00"_s), onItsSide, 11, {u"Jan-Dec"_s}},
            {"larger ones, upright", budget(item, u"99999.99"_s), upright, 11, {u"Jan-Jun"_s, u"Jul-Dec"_s}},
            {"a long item is broken first",
             budget(u"water and "_s.repeated(30), u"1.50"_s),
             upright,
             11,
             {u"Jan-Dec"_s}},
            {"hardly any room", budget(item, u"9.50"_s), narrow, 11, {}},
        });
    }

    void shrinksAndCuts()
    {
        const auto [page, room, points, cut] = row<Page, QSizeF, double, QStringList>();
        const PageTypes types(bodyFont());
        TableFit fit(types, room);
        const Page fitted = fit.fitted(page);
        const QStringList found = tables(fitted);
        QCOMPARE(fit.isCut(), found.size() > 1);
        if (cut.isEmpty()) // as many as its font needs
            QVERIFY(found.size() > 2 && found.constFirst().startsWith(u"Jan"_s));
        else
            QCOMPARE(found, cut);
        double smallest = 99;
        for (const Page::Item &item : fitted.items()) {
            if (const auto *columns = std::get_if<PageItem::Columns>(&item))
                smallest = std::min(smallest, columns->points);
        }
        QVERIFY2(smallest >= 9 && smallest <= points, qPrintable(QString::number(smallest)));
    }

    void noNumberIsEverBroken_data()
    {
        rows<QString, double, PageSetup::Orientation>({
            {"usual", u"1250.00"_s, 11, PageSetup::Portrait},
            {"wide", u"-99999.99"_s, 11, PageSetup::Portrait},
            {"wide, on its side", u"-99999.99"_s, 11, PageSetup::Landscape},
            {"a large font", u"1250.00"_s, 24, PageSetup::Landscape},
            {"a small font", u"99999.99"_s, 6, PageSetup::Portrait},
        });
    }

    void noNumberIsEverBroken()
    {
        if (!hasPdfTools())
            QSKIP("needs poppler's tools");
        const auto [amount, points, orientation] = row<QString, double, PageSetup::Orientation>();
        const PageSetup setup{PageMetrics::letter, orientation};
        const PagePainter painter(budget(u"Electricity"_s, amount, 25), setup, bodyFont(points));
        const QTemporaryDir folder;
        QPdfWriter writer(folder.filePath(u"budget.pdf"_s));
        QVERIFY(painter.print(writer));
        const QString text = pdfSheets(folder.filePath(u"budget.pdf"_s)).join(u'\n');
        QCOMPARE(text.count(amount), 26 * 12);
        for (const QString &month : months)
            QVERIFY(text.contains(month));
    }
};

QTEST_MAIN(TestTableFit)
#include "tst_tablefit.moc"
