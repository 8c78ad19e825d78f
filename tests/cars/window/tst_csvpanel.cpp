// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/automaint.h"
#include "cars/window/cargrid.h"
#include "shell/look/theme.h"
#include "tests/support/openwindow.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

/// Files that come into the histories and the fuel tracker of the household's van, on 21 November 2026.
class TestCsvPanel : public OpenWindow<AutoMaint>
{
    Q_OBJECT

    QAbstractItemModel *lines() const { return find<QTableView>("carImportList")->model(); }
    QStringList cells(const char *list, int row) const
    {
        const QAbstractItemModel *model = find<CarGrid>(list)->model();
        QStringList cells;
        for (int column = 0; column < model->columnCount(); ++column)
            cells << model->index(row, column).data().toString();
        return cells;
    }
    void bringIn(const char *view, const QByteArray &bytes)
    {
        trigger(view);
        QCoreApplication::processEvents();
        const QString path = m_test->temporary.filePath(u"log.csv"_s);
        QVERIFY(makeFile(path, bytes));
        m_test->dialogs.willChooseFile(path);
        trigger("mUBringIn");
        QTRY_COMPARE(lines()->rowCount(), 2);
    }
    /// Says that a column of the grid is the `place`-th of the file.
    void choose(int column, int place)
    {
        click("carImportColumns");
        auto *menu = find<QMenu>("carImportColumnsMenu");
        menu->actions()[column]->menu()->actions()[place]->trigger();
        menu->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QTRY_COMPARE(lines()->rowCount(), 2);
    }

private slots:
    void initTestCase() { Theme::apply(*qApp); }

    void init()
    {
        m_test = std::make_unique<TestProgram>(TestProgram::Household);
        m_window = new AutoMaint(m_test->program);
        showActive(*m_window);
    }

    void cleanup()
    {
        delete m_window; // without its questions
        QVERIFY(m_test->dialogs.isDone());
    }

    void takesWhatAColumnIsSaidToBe()
    {
        bringIn("mVMaint", "Datum;Was;Betrag\n02.01.2026;Reifen;12,50\n03.01.2026;;\n");
        QVERIFY(labelText("carImportHint").contains(u"Not used: Was, Betrag."_s));
        QVERIFY(!isOffered("carImportTake"));
        choose(2, 2);
        choose(3, 3);
        QVERIFY(!labelText("carImportHint").contains(u"Not used"_s));
        click("carImportTake");
        QCOMPARE(said(), u"Brought in: 1 entry"_s);
        QCOMPARE(cells("maintenanceList", 0), QStringList({{}, u"01/02/2026"_s, u"Reifen"_s, u"12.50"_s}));
    }

    void offersTheColumnsAtAHeading()
    {
        bringIn("mVMaint", "Datum;Was;Betrag\n02.01.2026;Reifen;12,50\n03.01.2026;;\n");
        QHeaderView *heading = find<QTableView>("carImportList")->horizontalHeader();
        const auto pressAt = [heading](int section) {
            QTest::mouseClick(heading->viewport(), Qt::LeftButton, {},
                              {heading->sectionViewportPosition(section) + 4, heading->height() / 2});
        };
        pressAt(0); // the number of the line is in no file
        QVERIFY(!QApplication::activePopupWidget());
        pressAt(3);
        auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(menu);
        QCOMPARE(menu->actions()[2]->text(), u"Was (Reifen)"_s);
        menu->actions()[2]->trigger();
        menu->close();
        QTRY_COMPARE(lines()->rowCount(), 2);
        QCOMPARE(lines()->headerData(3, Qt::Horizontal, Qt::ToolTipRole), u"Description: Was"_s);
        QCOMPARE(lines()->index(0, 3).data(), u"Reifen"_s);
    }

    void takesTheTickedLines()
    {
        bringIn("mVMaint",
                "Date,Mileage,Description,Cost\n2026-01-02,10000,Tires,30.00\n2026-01-03,10100,Wash,5.00\n");
        auto *list = find<QTableView>("carImportList");
        list->selectRow(0);
        QTest::keyClick(list, Qt::Key_Space);
        QCOMPARE(lines()->index(0, 5).data(), u"Left out"_s);
        list->selectRow(1);
        QTest::keyClick(list, Qt::Key_Space);
        QVERIFY(!isOffered("carImportTake"));
        QTest::keyClick(list, Qt::Key_Space);
        click("carImportTake");
        QCOMPARE(said(), u"Brought in: 1 entry"_s);
        QCOMPARE(cells("maintenanceList", 0),
                 QStringList({u"10100"_s, u"01/03/2026"_s, u"Wash"_s, u"5.00"_s}));
    }

    /// The sheet's reading follows what comes in, and what goes again.
    void movesThePresentReading()
    {
        // The sheet is up to date when it is shown.
        const auto present = [this] {
            trigger("mVInfo");
            return find<QLineEdit>("Text1_22")->text();
        };
        bringIn("mVFuel", "Date,Reading,Gallons\n2026-11-05,84400,9\n2026-11-13,84700,10\n");
        click("carImportTake");
        QCOMPARE(present(), u"84700"_s);
        QCOMPARE(cells("fuelGrid", 0).mid(1, 4), QStringList({u"84400"_s, u"84700"_s, u"300"_s, u"10"_s}));
        trigger("mOSave"); // the reading that was typed is not forgotten
        const auto *list = find<CarGrid>("fuelGrid");
        for (const QString &reading : {u"84400"_s, u"84210"_s}) {
            trigger("mVFuel");
            QCoreApplication::processEvents();
            find<CarGrid>("fuelGrid")->setCurrentIndex(list->model()->index(0, 0));
            click("fuelDelete");
            QVERIFY(said().endsWith(u"The current odometer reading went back to "_s + reading));
            QCOMPARE(present(), reading);
        }
        trigger("mEUndo");
        QCOMPARE(present(), u"84400"_s);
    }
};

QTEST_MAIN(TestCsvPanel)
#include "tst_csvpanel.moc"
