// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/historylines.h"
#include "cars/model/lines.h"
#include "cars/model/messages.h"
#include "cars/window/automaint.h"
#include "cars/window/cargrid.h"
#include "shell/controls/monthview.h"
#include "shell/look/theme.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

/// The histories and the fuel tracker of the household's van, on 21 November 2026.
class TestHistories : public OpenWindow<AutoMaint>
{
    Q_OBJECT

    CarGrid *grid(const char *name) const { return find<CarGrid>(name); }
    QString cell(const char *name, int row, int column) const
    {
        return grid(name)->model()->index(row, column).data().toString();
    }
    QStringList cells(const char *name, int row) const
    {
        QStringList cells;
        for (int column = 0; column < grid(name)->model()->columnCount(); ++column)
            cells << cell(name, row, column);
        return cells;
    }
    /// The grid, or the box in one of its cells.
    QWidget *typingPlace(const char *name) const
    {
        for (auto *box : grid(name)->findChildren<QLineEdit *>(u"cellBox"_s)) {
            if (!box->isHidden())
                return box;
        }
        return grid(name);
    }
    void press(const char *name, int key) const
    {
        QTest::keyClick(typingPlace(name), Qt::Key(key));
        QCoreApplication::processEvents();
    }
    void type(const char *name, int row, int column, const QString &text) const
    {
        grid(name)->setCurrentIndex(grid(name)->model()->index(row, column));
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, typingPlace(name), Qt::Key_unknown, QString(character),
                                Qt::NoModifier);
    }
    void enter(const char *name, int row, int column, const QString &text) const
    {
        type(name, row, column, text);
        press(name, Qt::Key_Return);
    }
    QByteArray before(const QString &file) const { return m_before.value(file); }
    void open(const char *view)
    {
        trigger(view);
        QCoreApplication::processEvents();
    }

    QHash<QString, QByteArray> m_before;

private slots:
    void initTestCase() { Theme::apply(*qApp); }

    void init()
    {
        m_test = std::make_unique<TestProgram>(TestProgram::Household);
        for (const QString &file : {u"ACar1.Fil"_s, u"MCar1.Fil"_s, u"RCar1.Fil"_s, u"GCar1.Fil"_s})
            m_before[file] = m_test->bytes(file);
        m_window = new AutoMaint(m_test->program);
        showActive(*m_window);
    }

    void cleanup()
    {
        delete m_window; // without its questions
        QVERIFY(m_test->dialogs.isDone());
    }

    void takesWhatIsTypedInTheRowOfSomethingNew()
    {
        open("mVRep");
        QCOMPARE(cells("Grid3", 0), QStringList({u"84210"_s, u"11/21/2026"_s, u"What was paid for?"_s, {}}));
        type("Grid3", 0, 2, u"Winter tires"_s);
        press("Grid3", Qt::Key_Tab);
        for (const QChar character : u"312.40"_s)
            QTest::keyClick(typingPlace("Grid3"), character.toLatin1());
        press("Grid3", Qt::Key_Return);
        QCOMPARE(cells("Grid1", 0),
                 QStringList({u"84210"_s, u"11/21/2026"_s, u"Winter tires"_s, u"312.40"_s}));
        QCOMPARE(said(), u"Added: Winter tires, Nov 21, 2026"_s);
        QCOMPARE(labelText("repairsTitle"), u"Last: Winter tires, Nov 21, 2026"_s);
        QCOMPARE(m_test->bytes(u"RCar1.Fil"_s), before(u"RCar1.Fil"_s));
        trigger("mOSave");
        QCOMPARE(m_test->bytes(u"RCar1.Fil"_s),
                 before(u"RCar1.Fil"_s) +
                     "\"84210\"\r\n\"11/21/2026\"\r\n\"Winter tires\"\r\n\"312.40\"\r\n");
        trigger("mEUndo");
        QCOMPARE(cell("Grid1", 0, 2), u"Brake light bulb"_s);
    }

    void keepsWhatWasTypedWhenTheViewIsLeft()
    {
        open("mVRep");
        type("Grid3", 0, 2, u"Wash"_s);
        open("mVFuel");
        open("mVRep");
        QCOMPARE(cell("Grid1", 0, 2), u"Wash"_s);
        QVERIFY(m_window->isModified());
        // Esc gives it up.
        type("Grid3", 0, 2, u"Polish"_s);
        press("Grid3", Qt::Key_Escape);
        enter("Grid3", 0, 2, u"Polish"_s);
        grid("Grid3")->setFocus();
        press("Grid3", Qt::Key_Escape);
        press("Grid3", Qt::Key_Escape);
        open("mVFuel");
        open("mVRep");
        QCOMPARE(cell("Grid1", 0, 2), u"Wash"_s);
    }

    void checksWhatIsTypedIntoACell_data()
    {
        const Message above = CarMessages::aboveCurrentReading(DistanceUnit::Miles);
        rows<QByteArray, QByteArray, int, QString, QList<Message>, QString>({
            {"a reading beyond the present one",
             "mVMaint",
             "maintenanceList",
             0,
             u"84,211"_s,
             {above},
             u"80569"_s},
            {"the present reading", "mVMaint", "maintenanceList", 0, u"84,210"_s, {}, u"84210"_s},
            {"something new, too", "mVMaint", "Grid2", 0, u"90000"_s, {above}, u"84210"_s},
            {"no date", "mVRep", "Grid1", 1, u"soon"_s, {CarMessages::invalidDate()}, u"08/14/2024"_s},
            {"tomorrow", "mVRep", "Grid3", 1, u"11/22/2026"_s, {CarMessages::dateToCome()}, u"11/21/2026"_s},
            {"today in another form", "mVRep", "Grid1", 1, u"Nov-21-2026"_s, {}, u"11/21/2026"_s},
            {"a date of a fill-up",
             "mVFuel",
             "fuelGrid",
             0,
             u"2/30/2026"_s,
             {CarMessages::invalidDate()},
             u"08/31/2026"_s},
            {"a fill-up further on", "mVFuel", "fuelGrid", 2, u"90000"_s, {}, u"90000"_s},
        });
    }

    void checksWhatIsTypedIntoACell()
    {
        const auto [view, name, column, typed, messages, shown] =
            row<QByteArray, QByteArray, int, QString, QList<Message>, QString>();
        open(view);
        for (qsizetype i = 0; i < messages.size(); ++i)
            m_test->dialogs.willAnswer(Answer::Ok);
        enter(name, 0, column, typed);
        QCOMPARE(m_test->dialogs.takeShown(), messages);
        QCOMPARE(cell(name, 0, column), shown);
    }

    void tellsInAQuietLineWhatIsOdd_data()
    {
        rows<QByteArray, QByteArray, int, QString, QString, QString>({
            {"no number", "mVFuel", "fuelGrid", 4, u"abc"_s, CarLines::noNumber(u"abc"_s), u"7.8"_s},
            {"a sum", "mVFuel", "fuelGrid", 4, u"5+4.5"_s, {}, u"9.5"_s},
            {"a cost", "mVRep", "Grid1", 3, u"240"_s, {}, u"240.00"_s},
            {"a reading typed into another", "mVFuel", "fuelEntry", 1, u"8282083100"_s,
             CarLines::beyondOdometers(8282083100), u"82820"_s},
            {"a reading far away",
             "mVFuel",
             "fuelEntry",
             2,
             u"842,100"_s,
             CarLines::tooFar(842100, 84210),
             {}},
            {"a reading below the one before", "mVFuel", "fuelEntry", 2, u"82000"_s,
             HistoryLines::below(u"82000"_s, u"82820"_s), u"82000"_s},
            {"a distance that the readings tell", "mVFuel", "fuelGrid", 3, u"5"_s,
             HistoryLines::workedOut(u"Miles Driven"_s), u"225"_s},
        });
    }

    void tellsInAQuietLineWhatIsOdd()
    {
        const auto [view, name, column, typed, line, shown] =
            row<QByteArray, QByteArray, int, QString, QString, QString>();
        open(view);
        enter(name, 0, column, typed);
        QCOMPARE(cell(name, 0, column), shown);
        if (!line.isEmpty())
            QCOMPARE(said(), line);
    }

    void entersAFillUpWithThreeReturns()
    {
        open("mVFuel");
        for (const QString &typed : {u"84300"_s, u"48"_s, u"33"_s}) {
            for (const QChar character : typed)
                QTest::keyClick(typingPlace("fuelEntry"), character.toLatin1());
            press("fuelEntry", Qt::Key_Return);
        }
        QCOMPARE(cells("fuelGrid", 0).mid(1),
                 QStringList({u"82820"_s, u"84300"_s, u"1480"_s, u"48"_s, u"30.8"_s, u"33.00"_s}));
        QCOMPARE(grid("fuelEntry")->currentIndex().column(), 2);
        // A click into a number and typing put another in its place.
        const QRect previous = grid("fuelEntry")->visualRect(grid("fuelEntry")->model()->index(0, 1));
        QTest::mouseClick(grid("fuelEntry")->viewport(), Qt::LeftButton, {}, previous.center());
        for (const char character : {'8', '4', '3', '0', '5'})
            QTest::keyClick(typingPlace("fuelEntry"), character);
        press("fuelEntry", Qt::Key_Return);
        QCOMPARE(cell("fuelEntry", 0, 1), u"84305"_s);
        // What is left half typed is added, and told.
        open("mVRep");
        QCOMPARE(said(), u"Added: fill-up, Nov 21, 2026, without its reading and fuel and cost"_s);
    }

    void keepsInSightWhereOneTypes()
    {
        m_window->resize(800, 600);
        open("mVFuel");
        CarGrid *list = grid("fuelGrid");
        for (CarGrid *table : {list, grid("fuelEntry")})
            table->setColumnWidth(1, 200); // so that no font makes room for all
        QVERIFY(list->horizontalScrollBar()->maximum() > 0);
        grid("fuelEntry")->setCurrentIndex(grid("fuelEntry")->model()->index(0, 6));
        QCoreApplication::processEvents();
        QVERIFY(list->visualRect(list->model()->index(0, 6)).right() < list->viewport()->width());
    }

    void takesADateFromTheCalendar()
    {
        open("mVMaint");
        CarGrid *list = grid("maintenanceList");
        list->setCurrentIndex(list->model()->index(9, 1));
        press("maintenanceList", Qt::Key_F2);
        auto *month = find<MonthView>("MonthView1");
        QVERIFY(month->isVisible());
        QCOMPARE(month->selectedDate(), QDate(2024, 2, 3));
        emit month->clicked(QDate(2026, 11, 20));
        QVERIFY(!month->isVisible());
        // The row goes where its day belongs, and stays the current one.
        QCOMPARE(list->currentIndex().row(), 0);
        QCOMPARE(cells("maintenanceList", 0).mid(1, 2),
                 QStringList({u"11/20/2026"_s, u"Inspect Brake Linings"_s}));
    }

    void pastesCells()
    {
        open("mVMaint");
        grid("maintenanceList")->setFocus();
        grid("maintenanceList")->setCurrentIndex(grid("maintenanceList")->model()->index(8, 2));
        QGuiApplication::clipboard()->setText(u"Valves\t10.00\tand more\nBelt\t20\nlost\n"_s);
        trigger("mEPasteCells");
        QCOMPARE(said(), HistoryLines::pastedInPart(4, 2));
        QCOMPARE(cells("maintenanceList", 9).mid(2), QStringList({u"Belt"_s, u"20.00"_s}));
        trigger("mECopyCells");
        QCOMPARE(QGuiApplication::clipboard()->text(), u"Valves\n"_s);
        trigger("mEUndo");
        QVERIFY(!m_window->isModified());
    }

    void tellsTheScheduleWhatWasDone_data() { rows<Answer>({{"yes", Answer::Yes}, {"no", Answer::No}}); }

    void tellsTheScheduleWhatWasDone()
    {
        const auto [answer] = row<Answer>();
        open("mVMaint");
        m_test->dialogs.willAnswer(answer);
        type("Grid2", 0, 2, u"change oil and filter"_s);
        click("maintenanceAdd");
        const QList<Message> messages = asked();
        QCOMPARE(messages.size(), 1);
        QCOMPARE(messages.first().title, u"Maintenance Schedule"_s);
        trigger("mOSave");
        const bool isTold = m_test->bytes(u"ACar1.Fil"_s) != before(u"ACar1.Fil"_s);
        QCOMPARE(isTold, answer == Answer::Yes);
        QCOMPARE(cell("maintenanceList", 0, 2), u"change oil and filter"_s);
    }

    void refusesMoreFillUpsThanFit()
    {
        QByteArray full;
        for (int row = 0; row < 3000; ++row)
            full += "\"01/05/2026\"\r\n\"1\"\r\n\"2\"\r\n\"1\"\r\n\"1\"\r\n\"1\"\r\n\"1\"\r\n";
        delete m_window;
        m_test->setBytes(u"GCar1.Fil"_s, full);
        m_window = new AutoMaint(m_test->program);
        showActive(*m_window);
        open("mVFuel");
        m_test->dialogs.willAnswer(Answer::Ok);
        type("fuelEntry", 0, 2, u"3"_s);
        click("fuelAdd");
        QCoreApplication::processEvents();
        QCOMPARE(asked(), {CarMessages::fuelFull()});
        grid("fuelEntry")->setFocus();
        press("fuelEntry", Qt::Key_Escape);
        QVERIFY(!m_window->isModified());
    }

    void calculatesAndEntersAFillUp()
    {
        open("mVFuel");
        click("fuelCalculator");
        QCOMPARE(find<QLineEdit>("calculatorPrevious")->text(), u"82820"_s);
        m_test->dialogs.willAnswer(Answer::Ok);
        click("calculatorCalculate");
        QCOMPARE(asked(), {CarMessages::calculatorIncomplete(DistanceUnit::Miles)});
        typeInto(find<QLineEdit>("calculatorCurrent"), u"83120"_s);
        typeInto(find<QLineEdit>("calculatorUsed"), u"6+4"_s);
        typeInto(find<QLineEdit>("calculatorCost"), u"33"_s);
        click("calculatorCalculate");
        QCOMPARE(labelText("calculatorDrive"), u"30.0 miles per gallon: 300 miles, 0.11 a mile"_s);
        typeInto(find<QLineEdit>("calculatorDistance"), u"278"_s);
        QCOMPARE(labelText("calculatorTrip"), u"10.0 gallons, 34.00"_s);
        click("calculatorEnter");
        QCOMPARE(cells("fuelEntry", 0), QStringList({u"11/21/2026"_s, u"82820"_s, u"83120"_s, u"300"_s,
                                                     u"10"_s, u"30.0"_s, u"33.00"_s}));
    }

    void takesRowsOutAndIn()
    {
        open("mVRep");
        const QString path = m_test->temporary.filePath(u"repairs.csv"_s);
        m_test->dialogs.willChooseFile(path);
        trigger("mUExcel");
        QByteArray file = contentOf(path);
        QVERIFY(file.contains("Battery"));
        file.replace("03/25/2024", "04/26/2024");
        QVERIFY(makeFile(path, file));
        m_test->dialogs.willChooseFile(path);
        trigger("mUBringIn");
        QTRY_VERIFY(isOffered("carImportTake"));
        click("carImportTake");
        QCOMPARE(said(), u"Brought in: 1 entry"_s);
        QCOMPARE(cells("Grid1", 2).mid(1, 2), QStringList({u"04/26/2024"_s, u"Battery"_s}));
        trigger("mEUndo");
        QVERIFY(!m_window->isModified());
    }

    void keepsAnEntryThatTheDiskKeeps()
    {
        open("mVRep");
        grid("Grid1")->setCurrentIndex(grid("Grid1")->model()->index(1, 2));
        const QString path = m_test->folder.filePath(u"RCar1.Fil"_s);
        QVERIFY(QFile::remove(path) && QDir().mkdir(path));
        m_test->dialogs.willAnswer(Answer::Yes);
        click("Command19_1");
        asked();
        QCOMPARE(cell("Grid1", 1, 2), u"New tires, front"_s);
        QVERIFY(!m_window->isModified());
        QCOMPARE(said(), CarLines::notDeleted());
    }

    void showsWhatItCosts()
    {
        open("mVFuel");
        click("fuelCosts");
        const auto *table = find<QTableView>("costsTable")->model();
        QCOMPARE(table->index(0, 1).data().toString(), u"564.06"_s);
        QStringList years;
        for (int row = 0; row < table->rowCount(); ++row)
            years << table->index(row, 0).data().toString();
        QCOMPARE(years, (QStringList{u"2026, until Nov 21"_s, u"2025, until Nov 21"_s,
                                     u"2025, the whole year"_s, u"2024"_s}));
        QVERIFY(find<QWidget>("costsLines")->palette().color(QPalette::Window).alpha() == 255);
        QTest::keyClick(find<QWidget>("costsTable"), Qt::Key_Escape);
        QVERIFY(grid("fuelGrid")->isVisible());
    }

    void printsWhatIsShown_data()
    {
        rows<QByteArray, QByteArray>({{"schedule", "mVDue", "mOPrt"},
                                      {"information", "mVInfo", "mOPrt"},
                                      {"maintenance", "mVMaint", "mOPrt"},
                                      {"repairs", "mVRep", "mOPrt"},
                                      {"fuel", "mVFuel", "mOPrt"},
                                      {"costs", "mVFuel", "mOPCosts"},
                                      {"record", "mVFuel", "mOPRecord"},
                                      {"for a buyer", "mVFuel", "mOPBuyer"},
                                      {"all cars", "mVFuel", "mOPAll"}});
    }

    void printsWhatIsShown()
    {
        const auto [view, command] = row<QByteArray, QByteArray>();
        open(view);
        trigger(command);
        QVERIFY(m_window->isPreviewShown());
    }

    void deletesAnEntryAtOnce()
    {
        open("mVRep");
        grid("Grid1")->setFocus();
        grid("Grid1")->setCurrentIndex(grid("Grid1")->model()->index(1, 2));
        m_test->dialogs.willAnswer(Answer::No);
        press("Grid1", Qt::Key_Delete);
        QCOMPARE(asked(), {CarMessages::deleteEntry()});
        QCOMPARE(m_test->bytes(u"RCar1.Fil"_s), before(u"RCar1.Fil"_s));
        m_test->dialogs.willAnswer(Answer::Yes);
        click("Command19_1");
        QCOMPARE(asked(), {CarMessages::deleteEntry()});
        QCOMPARE(said(), u"Deleted: New tires, front, May 22, 2024"_s);
        const QByteArray left = "\"56355\"\r\n\"03/25/2024\"\r\n\"Battery\"\r\n\"517.55\"\r\n"
                                "\"66234\"\r\n\"08/14/2024\"\r\n\"Brake light bulb\"\r\n\"95.18\"\r\n";
        QCOMPARE(m_test->bytes(u"RCar1.Fil"_s), left);
        QVERIFY(!m_window->isModified());
        trigger("mEUndo");
        QCOMPARE(m_test->bytes(u"RCar1.Fil"_s), before(u"RCar1.Fil"_s));
        trigger("mERedo");
        QCOMPARE(m_test->bytes(u"RCar1.Fil"_s), left);
        trigger("mEUndo");
        QCOMPARE(m_test->bytes(u"RCar1.Fil"_s), before(u"RCar1.Fil"_s));
        QVERIFY(!m_window->isModified());
    }

    void deletesInTheHistoriesAlone()
    {
        open("mVFuel");
        trigger("mEDelete");
        QCOMPARE(asked(), {CarMessages::noEntryToDelete()});
        grid("fuelGrid")->setCurrentIndex(grid("fuelGrid")->model()->index(0, 0));
        click("fuelDelete");
        QCOMPARE(said(), u"Deleted: fill-up, Aug 31, 2026"_s);
        QCOMPARE(cell("fuelGrid", 0, 0), u"08/17/2026"_s);
        QCOMPARE(m_test->bytes(u"GCar1.Fil"_s), before(u"GCar1.Fil"_s));
    }

    void worksOutAFillUp()
    {
        open("mVFuel");
        type("fuelEntry", 0, 2, u"84260"_s);
        press("fuelEntry", Qt::Key_Tab);
        QCOMPARE(cells("fuelEntry", 0),
                 QStringList({u"11/21/2026"_s, u"82820"_s, u"84260"_s, u"1440"_s, {}, {}, {}}));
        press("fuelEntry", Qt::Key_Escape);
        enter("fuelEntry", 0, 4, u"48"_s);
        click("fuelAdd");
        QCOMPARE(cells("fuelGrid", 0),
                 QStringList({u"11/21/2026"_s, u"82820"_s, u"84260"_s, u"1440"_s, u"48"_s, u"30.0"_s, {}}));
        // The sheet's reading follows, in the same step.
        trigger("mOSave");
        QVERIFY(m_test->bytes(u"ACar1.Fil"_s).contains("\"84260\""));
        enter("fuelGrid", 0, 2, u"84276"_s);
        QCOMPARE(cells("fuelGrid", 0).mid(2, 4), QStringList({u"84276"_s, u"1456"_s, u"48"_s, u"30.3"_s}));
        trigger("mEUndo");
        trigger("mEUndo");
        QCOMPARE(cell("fuelGrid", 0, 0), u"08/31/2026"_s);
        QVERIFY(m_window->isModified());
    }
};

QTEST_MAIN(TestHistories)
#include "tst_histories.moc"
