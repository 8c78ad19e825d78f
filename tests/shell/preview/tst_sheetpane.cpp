// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/theme.h"
#include "shell/pages/pagepainter.h"
#include "shell/preview/sheetpane.h"
#include "tests/support/testprogram.h"

#include <QLabel>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

class TestSheetPane : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Theme::apply(*qApp); }
    void init() { m_laidOut.clear(); }

    void laysOutTheSheetsThatAreShown()
    {
        SheetPane pane(u"view"_s, {u"previous"_s, u"number"_s, u"next"_s});
        pane.resize(400, 500);
        showActive(pane);
        pane.setSheets(3, noting());
        auto *previous = control<QPushButton>(pane, "previous");
        auto *next = control<QPushButton>(pane, "next");
        QCOMPARE(control<QLabel>(pane, "number")->text(), u"Page 1 of 3"_s);
        QCOMPARE(previous->toolTip(), u"This is the first page"_s);
        next->click();
        pane.view()->handleKey(Qt::Key_PageDown);
        pane.view()->handleKey(Qt::Key_PageDown); // there is none behind the last
        QCOMPARE(control<QLabel>(pane, "number")->text(), u"Page 3 of 3"_s);
        QCOMPARE(next->toolTip(), u"This is the last page"_s);
        QCOMPARE(previous->toolTip(), u"Previous page"_s);
        pane.view()->handleKey(Qt::Key_Home);
        QCOMPARE(m_laidOut, (QList{0, 1, 2, 0}));
    }

    void staysWhereItWasAsFarAsThereAreSheets()
    {
        SheetPane pane(u"view"_s, {u"previous"_s, u"number"_s, u"next"_s});
        pane.setSheets(5, noting());
        pane.showSheet(4);
        pane.setSheets(9, noting());
        QCOMPARE(pane.sheet(), 4);
        pane.setSheets(2, noting());
        QCOMPARE(pane.sheet(), 1);
        pane.startOver();
        pane.setSheets(0, noting()); // nothing to print is one empty sheet
        QCOMPARE(control<QLabel>(pane, "number")->text(), u"Page 1 of 1"_s);
        QCOMPARE(m_laidOut, (QList{0, 4, 4, 1, 0}));
    }

private:
    /// Notes the number of each sheet that is laid out.
    SheetPane::LayOut noting()
    {
        return [this](int sheet) {
            m_laidOut.append(sheet);
            return PagePainter(Page(), {{8.5, 11}, PageSetup::Portrait}, {QApplication::font(), Qt::black});
        };
    }

    QList<int> m_laidOut;
};

QTEST_MAIN(TestSheetPane)
#include "tst_sheetpane.moc"
