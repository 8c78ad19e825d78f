// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/papermessages.h"
#include "openbudget.h"
#include "shell/charts/barchartview.h"
#include "tests/support/failingdisk.h"

#include <QImageReader>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

/// The year's totals over the sheet, with their chart, and its picture for the page.
class TestTotalsView final : public OpenBudget
{
    Q_OBJECT
private slots:
    /// Rent 900 a year, fuel 120.50, and a row without an item; an income of 2000.
    void init()
    {
        open();
        enter(0, 0, u"Fuel"_s);
        enter(0, 1, u"120.50"_s);
        enter(1, 0, u"Rent"_s);
        enter(1, 1, u"450"_s);
        enter(1, 2, u"450"_s);
        enter(2, 1, u"29.50"_s);
        m_test->dialogs.willInput(u"2000"_s);
        m_test->dialogs.willAnswer(Answer::No);
        QTest::mouseClick(find<QLabel>("Label5_0"), Qt::LeftButton);
        asked();
    }
    void cleanup()
    {
        if (m_window->isModified())
            trigger("mOSave");
        close();
    }

    void refusesWhereThereAreNone_data()
    {
        rows<QString, Message>({{"no first row", u""_s, BudgetMessages::noFirstRow()},
                                {"no income", u"Rent"_s, BudgetMessages::noAmountOrIncome()}});
    }

    void refusesWhereThereAreNone()
    {
        const auto [item, message] = row<QString, Message>();
        open();
        if (!item.isEmpty())
            enter(0, 0, item);
        m_test->dialogs.willAnswer(Answer::Ok);
        click("Command8");
        QCOMPARE(asked(), {message});
        QVERIFY(!m_window->findChild<QWidget *>(u"totalsPanel"_s));
    }

    void showsTheYear()
    {
        click("Command8");
        QCOMPARE(labelText("totalsTitle"), u"Totals For Year 2026"_s);
        QCOMPARE(labelText("Label13"), u"2000.00 "_s);
        QCOMPARE(labelText("Label14"), u"1050.00 "_s);
        QCOMPARE(labelText("Label15"), u"950.00 "_s);
        QCOMPARE(labelText("Label16"), u"52.50%"_s);
        QCOMPARE(labelText("Label17"), u"47.50%"_s);
        QCOMPARE(labelText("Label18"), u"100.00%"_s);
        QCOMPARE(table(), (QStringList{u"Item|Total|%"_s, u"Fuel|120.50|6.03%"_s, u"Rent|900.00|45.00%"_s}));
    }

    void switchesTheBasis()
    {
        click("Command8");
        const auto caption = [&] { return find<QPushButton>("Command12")->text(); };
        QCOMPARE(caption(), u"% = Item Totals divided by Total Income"_s);
        QCOMPARE(labelText("totalsChartCaption"), u"Percentage of Total Income"_s);
        click("Command12");
        QCOMPARE(caption(), u"% = Item Totals divided by Total Expenses"_s);
        QCOMPARE(labelText("totalsChartCaption"), u"Percentage of Total Expenses"_s);
        QCOMPARE(labelText("Label16"), u"100.00%"_s);
        QCOMPARE(table().last(), u"Rent|900.00|85.71%"_s);
        QCOMPARE(chart().bars.first().text(), u"Rent: $900, 85.71%"_s);
    }

    void drawsTheDearestFirst()
    {
        click("Command8");
        QCOMPARE(chart().title, u"Where the money goes in 2026"_s);
        QCOMPARE(chart().bars.size(), 2);
        QCOMPARE(chart().bars[0].text(), u"Rent: $900, 45.00%"_s);
        QCOMPARE(chart().bars[1].text(), u"Fuel: $121, 6.03%"_s);
    }

    void aNegativeBalanceIsRed()
    {
        enter(0, 3, u"3000"_s);
        click("Command8");
        QCOMPARE(labelText("Label15"), u"-2050.00 "_s);
        QCOMPARE(find<QLabel>("Label15")->palette().color(QPalette::WindowText), QColor(0x80, 0, 0));
        QCOMPARE(labelText("Label17"), u"-102.50%"_s);
    }

    void followsTheSheet()
    {
        click("Command8");
        trigger("mEUndo"); // the income
        QCOMPARE(labelText("Label13"), u".00 "_s);
        QCOMPARE(table().last(), u"Rent|900.00|"_s);
        trigger("mERedo");
        QCOMPARE(labelText("Label13"), u"2000.00 "_s);
    }

    void keysReachEverythingAndLeaveIt()
    {
        grid()->setFocus();
        trigger("mVTotals");
        QStringList reached;
        for (int i = 0; i < 6; ++i) {
            reached << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(reached, (QStringList{u"Grid2"_s, u"totalsChart"_s, u"Command12"_s, u"totalsPrint"_s,
                                       u"totalsClose"_s, reached.last()}));
        find<QWidget>("totalsChart")->setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QCOMPARE(labelText("totalsChartReading"), u"Fuel: $121, 6.03%"_s);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(!find<QWidget>("totalsPanel")->isVisible());
        QVERIFY(grid()->hasFocus());
        click("Command8");
        click("Command12");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(!find<QWidget>("totalsPanel")->isVisible());
        QVERIFY(find<QWidget>("sheetView")->isVisible());
        QVERIFY(find<QAction>("mECY")->isEnabled());
        QCOMPARE(QApplication::focusWidget()->objectName(), u"Command8"_s);
    }

    void keepsTheChartForThePage()
    {
        click("Command8");
        click("totalsPrint");
        QVERIFY(m_window->isPreviewShown());
        QCOMPARE(QImageReader(m_test->path(u"Chartxxx.jpg"_s)).size(), QSize(2190, 1245));
        click("SSCommand80_1");
        QCOMPARE(QImageReader(m_test->path(u"Chartxxx.jpg"_s)).size(), QSize(2970, 1320));
    }

    void saysThatTheDiskRefusesThePicture()
    {
        expectWarning("Chartxxx.jpg");
        {
            const FailingDisk disk(DiskFailure::OneStep, 1);
            trigger("mOPTotals");
        }
        QCOMPARE(said(), BudgetPaper::chartNotSaved());
        QVERIFY(m_window->isPreviewShown());
        QVERIFY(!m_test->folder.exists(u"Chartxxx.jpg"_s));
    }

private:
    BarChart chart() const { return find<BarChartView>("totalsChart")->chart(); }
    QStringList table() const
    {
        const QAbstractItemModel &model = *find<QTableView>("Grid2")->model();
        QStringList lines(QStringList{model.headerData(0, Qt::Horizontal).toString(),
                                      model.headerData(1, Qt::Horizontal).toString(),
                                      model.headerData(2, Qt::Horizontal).toString()}
                              .join(u'|'));
        for (int row = 0; row < model.rowCount(); ++row)
            lines << QStringList{model.index(row, 0).data().toString(), model.index(row, 1).data().toString(),
                                 model.index(row, 2).data().toString()}
                         .join(u'|');
        return lines;
    }
};

QTEST_MAIN(TestTotalsView)
#include "tst_totalsview.moc"
