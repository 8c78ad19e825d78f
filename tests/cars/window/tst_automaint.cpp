// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/lines.h"
#include "cars/model/messages.h"
#include "cars/model/vehiclefiles.h"
#include "cars/model/vehiclelist.h"
#include "cars/window/automaint.h"
#include "cars/window/cargrid.h"
#include "shell/core/framelines.h"
#include "shell/core/place.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"

#include <QComboBox>
#include <QDir>
#include <QDropEvent>
#include <QListView>
#include <QMimeData>
#include <QScrollBar>

using namespace Qt::Literals::StringLiterals;

/// The automobile tracker on 21 November 2026: whole cars, their sheet and their schedule.
class TestAutoMaint : public OpenWindow<AutoMaint>
{
    Q_OBJECT
private slots:
    void cleanup() { close(); }

    void showsTheCarsOfTheHousehold()
    {
        open(TestProgram::Household);
        QCOMPARE(names(), (QStringList{u"Family van"_s, u"Karin's Saab"_s, u"Zo\u00eb's first car"_s}));
        QCOMPARE(slots_(), (QList<int>{1, 3, 4}));
        QCOMPARE(labelText("dueTitle"), u"Two things are overdue"_s);
        QCOMPARE(cells("Grid4", 0).first(6), (QStringList{u"Change Oil and Filter"_s, u"5000"_s, u"6"_s,
                                                          u"81210"_s, u"03/02/2026"_s, u"49.90"_s}));
        trigger("mVInfo");
        QCOMPARE(text("Text1_0"), u"Family van"_s);
        QCOMPARE(text("Text1_1"), u"7JGNA7AY3VGNKLSRA"_s);
        QCOMPARE(text("Text1_19"), u"Spare key: blue tin, \"top\" shelf"_s);
        QCOMPARE(text("Text1_22"), u"84210"_s);
    }

    void keepsWhatIsTypedUntilItIsSaved()
    {
        open(TestProgram::Household);
        const QByteArray sheet = m_test->bytes(u"ACar1.Fil"_s);
        trigger("mVInfo");
        fill("Text1_1", u"1HGCM82633A004352"_s);
        QCOMPARE(m_test->bytes(u"ACar1.Fil"_s), sheet);
        m_test->dialogs.willAnswer(Answer::Cancel);
        choose(1);
        QCOMPARE(asked(), {CarMessages::saveChanges()});
        QCOMPARE(text("Text1_0"), u"Family van"_s);
        m_test->dialogs.willAnswer(Answer::Yes);
        choose(1);
        QCOMPARE(asked(), {CarMessages::saveChanges()});
        QCOMPARE(text("Text1_0"), u"Karin's Saab"_s);
        QByteArray wanted = sheet;
        QCOMPARE(m_test->bytes(u"ACar1.Fil"_s), wanted.replace("7JGNA7AY3VGNKLSRA", "1HGCM82633A004352"));
        QVERIFY(!m_window->isModified());
    }

    void takesEditsBackStepByStep()
    {
        open(TestProgram::Household);
        enter("Grid4", 0, 1, u"4000"_s);
        trigger("mVInfo");
        fill("Text1_22", u"90,000"_s);
        trigger("mVDue");
        QCOMPARE(cells("Grid4", 0)[6], u"-4790"_s);
        trigger("mEUndo");
        QCOMPARE(cells("Grid4", 0)[6], u"1000"_s);
        trigger("mEUndo");
        QVERIFY(!m_window->isModified());
        trigger("mERedo");
        QCOMPARE(cells("Grid4", 0)[1], u"4000"_s);
        trigger("mEUndo");
    }

    void checksTheSchedule_data()
    {
        rows<int, QString, QString, QList<Message>>({
            {"above the present reading",
             3,
             u"84211"_s,
             u"81210"_s,
             {CarMessages::aboveCurrentReading(DistanceUnit::Miles)}},
            {"the present reading", 3, u"84,210"_s, u"84210"_s, {}},
            {"no date", 4, u"13/45/2026"_s, u"03/02/2026"_s, {CarMessages::invalidDate()}},
            {"tomorrow", 4, u"11/22/2026"_s, u"03/02/2026"_s, {CarMessages::dateToCome()}},
            {"today", 4, u"Nov-21-2026"_s, u"11/21/2026"_s, {}},
        });
    }
    void checksTheSchedule()
    {
        const auto [column, typed, shown, messages] = row<int, QString, QString, QList<Message>>();
        open(TestProgram::Household);
        enter("Grid4", 0, column, typed);
        QCoreApplication::processEvents();
        QCOMPARE(asked(), messages);
        QCOMPARE(cells("Grid4", 0)[column], shown);
        if (m_window->isModified())
            trigger("mEUndo");
    }

    void emptiesCellsOfTheSchedule()
    {
        open(TestProgram::Household);
        grid("Grid4")->setFocus();
        grid("Grid4")->setCurrentIndex(grid("Grid4")->model()->index(0, 2));
        grid("Grid4")->selectionModel()->select(
            QItemSelection(grid("Grid4")->model()->index(0, 1), grid("Grid4")->model()->index(0, 7)),
            QItemSelectionModel::ClearAndSelect);
        QTest::keyClick(grid("Grid4"), Qt::Key_Delete);
        QCOMPARE(said(), u"5 cells cleared"_s);
        QCOMPARE(cells("Grid4", 0).first(6), (QStringList{u"Change Oil and Filter"_s, {}, {}, {}, {}, {}}));
        trigger("mEUndo");
        QVERIFY(!m_window->isModified());
        // What is no number is not taken.
        enter("Grid4", 0, 1, u"abc"_s);
        QCOMPARE(said(), CarLines::noNumber(u"abc"_s));
        enter("Grid4", 0, 5, u"52,40"_s);
        QCOMPARE(cells("Grid4", 0)[1], u"5000"_s);
        QCOMPARE(cells("Grid4", 0)[5], u"52.40"_s);
    }

    void looksAtTheReadingsOfASheet()
    {
        open(TestProgram::Household);
        trigger("mVInfo");
        fill("Text1_22", u"84,300"_s);
        QTest::keyClick(find<QLineEdit>("Text1_22"), Qt::Key_Tab);
        QCOMPARE(text("Text1_22"), u"84300"_s);
        // A click and typing put a new number in place of the old one.
        trigger("mEUndo");
        auto *box = find<QLineEdit>("Text1_22");
        find<QLineEdit>("Text1_0")->setFocus();
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(20, box->height() / 2));
        QTest::keyClicks(box, u"84250"_s);
        QTest::keyClick(box, Qt::Key_Tab);
        QCOMPARE(text("Text1_22"), u"84250"_s);
        fill("Text1_22", u"8421084300"_s);
        QTest::keyClick(box, Qt::Key_Tab);
        QCOMPARE(said(), CarLines::beyondOdometers(8421084300));
        QCOMPARE(text("Text1_22"), u"84250"_s);
        fill("Text1_4", u"Toy"_s);
        QTest::keyClick(find<QLineEdit>("Text1_4"), Qt::Key_Tab);
        QCOMPARE(said(), CarLines::noDate(u"Toy"_s));
        QCOMPARE(text("Text1_4"), u"Toy"_s);
    }

    void takesAPictureThatIsDropped()
    {
        open(TestProgram::Household);
        trigger("mVInfo");
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(Qt::red);
        const QString path = m_test->path(u"van.jpg"_s);
        QVERIFY(image.save(path, "JPG"));
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        for (QDropEvent *event : {static_cast<QDropEvent *>(&enter), &drop})
            QApplication::sendEvent(find<QWidget>("Image1"), event);
        QCOMPARE(text("Text1_7"), QDir::toNativeSeparators(path));
        QVERIFY(m_window->isModified());
    }

    void entersWhatWasDone()
    {
        open(TestProgram::Household);
        click("done_0");
        fill("doneOdometer", u"8421084300"_s);
        click("doneEnter");
        QCOMPARE(said(), CarLines::beyondOdometers(8421084300));
        fill("doneOdometer", u"84,300"_s);
        fill("doneCost", u"55"_s);
        click("doneEnter");
        QCOMPARE(said(), u"Change Oil and Filter entered"_s);
        QCOMPARE(labelText("dueTitle"), u"One thing is overdue"_s);
        QCOMPARE(cells("Grid4", 0).mid(3, 3), (QStringList{u"84300"_s, u"11/21/2026"_s, u"55.00"_s}));
        trigger("mOSave");
        QVERIFY(m_test->bytes(u"MCar1.Fil"_s)
                    .endsWith("\"84300\"\r\n\"11/21/2026\"\r\n\"Change Oil and Filter\"\r\n\"55.00\"\r\n"));
        QVERIFY(m_test->bytes(u"ACar1.Fil"_s).contains("\"84300\"\r\n\"5000\""));
    }

    void createsACarInTheFirstFreeSlot()
    {
        open(TestProgram::Household);
        trigger("mONew");
        QCOMPARE(labelText("informationTitle"), CarLines::newCar());
        const auto refused = [this](const Message &refusal) {
            QTest::keyClick(find<QLineEdit>("Text1_0"), Qt::Key_N, Qt::AltModifier);
            QCOMPARE(asked(), {refusal});
        };
        refused(CarMessages::nameMissing());
        fill("Text1_0", u" Coup\u00e9 "_s);
        refused(CarMessages::makeMissing());
        fill("Text1_21", u"P1800"_s);
        refused(CarMessages::odometerMissing());
        fill("Text1_22", u"61,300"_s);
        m_test->dialogs.willAnswer(Answer::Yes);
        click("informationViewNext");
        QCOMPARE(asked(), {CarMessages::createFile()});
        QCOMPARE(slots_(), (QList<int>{1, 2, 3, 4}));
        QCOMPARE(m_test->bytes(u"CARMNT1.FIL"_s).mid(150, 102),
                 QByteArray("\x64\x00", 2) + QByteArray("Coup\xe9").leftJustified(100, ' '));
        QCOMPARE(cells("Grid4", 6).front(), u"Replace Timing Belt"_s);
        // What is typed next is an interval, and no action's name.
        QCOMPARE(grid("Grid4")->currentIndex(), grid("Grid4")->model()->index(0, 1));
        QVERIFY(grid("Grid4")->hasFocus());
        click("dueViewSaveExit");
        QVERIFY(m_test->bytes(u"ACar2.Fil"_s).startsWith("\"NEWW\"\r\n\"\"\r\n"));
        trigger("mEUndo");
        QCOMPARE(slots_(), (QList<int>{1, 3, 4}));
    }

    void createsTheFirstCar()
    {
        open(TestProgram::Empty);
        trigger("mVDue");
        QCOMPARE(asked(), {CarMessages::noFiles()});
        for (const char *command : {"mOSave", "mOPrt", "mOPRecord"}) {
            trigger(command);
            QCOMPARE(asked(), {CarMessages::noneSelected()});
        }
        trigger("mOProgKilo");
        QCOMPARE(said(), CarLines::firstUnit(DistanceUnit::Kilometers));
        click("emptyCreate");
        QCOMPARE(labelText("informationViewStep"), u"Step 1 of 5"_s);
        fill("Text1_0", u"Van"_s);
        fill("Text1_20", u"Toyota"_s);
        QVERIFY(find<QComboBox>("Combo7")->findText(u"Sienna"_s) >= 0);
        fill("Text1_22", u"5"_s);
        // Tab goes on to the lists, and what is typed there is finished from them.
        QTest::keyClick(find<QLineEdit>("Text1_22"), Qt::Key_Tab);
        QVERIFY(find<QComboBox>("carMake")->hasFocus() || find<QLineEdit>("Text1_20")->hasFocus());
        m_test->dialogs.willAnswer(Answer::Yes);
        click("informationViewSaveExit");
        QCOMPARE(asked(), {CarMessages::createFile()});
        QCOMPARE(slots_(), QList<int>{1});
        for (const QString &name : {u"ACar1.Fil"_s, u"MCar1.Fil"_s, u"RCar1.Fil"_s})
            QVERIFY2(m_test->folder.exists(name), qPrintable(name));
        QCOMPARE(m_test->bytes(u"MCar1.Fil"_s), QByteArray());
        QVERIFY(m_test->bytes(u"ACar1.Fil"_s).contains("\r\n\"1\"\r\n"));
        QVERIFY(find<QAction>("mOProgKilo")->isChecked());
    }

    void leavesTheRoutineWithoutACar()
    {
        open(TestProgram::Household);
        trigger("mONew");
        fill("Text1_0", u"Nobody's"_s);
        m_test->dialogs.willAnswer(Answer::No);
        click("informationViewCancel");
        QCOMPARE(asked(), {CarMessages::saveChanges()});
        QCOMPARE(names().size(), 3);
        QCOMPARE(labelText("dueTitle"), u"Two things are overdue"_s);
    }

    void goesThroughTheFormInReadingOrder()
    {
        open(TestProgram::Household);
        trigger("mVInfo");
        find<QLineEdit>("Text1_0")->setFocus();
        QStringList way;
        while (way.size() < 30 && m_window->focusWidget()->objectName() != u"Text1_19"_s) {
            way << m_window->focusWidget()->objectName();
            QTest::keyClick(m_window->focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(way.join(u' '),
                 u"Text1_0 Text1_22 carMake Combo7 Text1_1 Text1_2 registrationMonth Text1_4 Text1_5 "
                 "Text1_6 Text1_7 carPicture Text1_8 Text1_9 Text1_10 Text1_11 Text1_12 "
                 "Text1_13 Text1_14 Text1_15 Text1_16 Text1_17 Text1_18"_s);
    }

    void deletesACarAndBringsItBack()
    {
        open(TestProgram::Household);
        const QByteArray sheet = m_test->bytes(u"ACar3.Fil"_s);
        choose(1);
        m_test->dialogs.willAnswer(Answer::No);
        trigger("mODel");
        QCOMPARE(asked(), {CarMessages::deleteFile(u"Karin's Saab"_s)});
        QCOMPARE(names().size(), 3);
        m_test->dialogs.willAnswer(Answer::Yes);
        trigger("mODel");
        asked();
        QCOMPARE(slots_(), (QList<int>{1, 4}));
        for (const QString &name : {u"ACar3.Fil"_s, u"MCar3.Fil"_s, u"RCar3.Fil"_s, u"GCar3.Fil"_s})
            QCOMPARE(m_test->bytes(name), QByteArray("\" \"\r\n"));
        QCOMPARE(m_test->bytes(u"CARMNT1.FIL"_s).mid(2 * 150 + 2, 100),
                 QByteArray(95, ' ') + QByteArray("EMPTY"));
        trigger("mEUndo");
        QCOMPARE(m_test->bytes(u"ACar3.Fil"_s), sheet);
        QCOMPARE(slots_(), (QList<int>{1, 3, 4}));
    }

    void countsAllCarsInTheOtherUnit()
    {
        open(TestProgram::Household);
        trigger("mOProgKilo");
        QVERIFY(find<QAction>("mOProgKilo")->isChecked());
        for (const QString &name : {u"ACar1.Fil"_s, u"ACar3.Fil"_s, u"ACar4.Fil"_s})
            QVERIFY2(m_test->bytes(name).contains("\r\n\"1\"\r\n") ||
                         m_test->bytes(name).contains("\r\n1\r\n"),
                     m_test->bytes(name).right(40).constData());
        QCOMPARE(grid("Grid4")->model()->headerData(3, Qt::Horizontal).toString(), u"Kilometers"_s);
        trigger("mEUndo");
        QVERIFY(find<QAction>("mOProgMiles")->isChecked());
    }

    void givesACarAnotherName()
    {
        open(TestProgram::Household);
        trigger("mVInfo");
        fill("Text1_0", u"Empty tank"_s);
        trigger("mOSave");
        QCOMPARE(asked(), {CarMessages::nameReserved()});
        fill("Text1_0", u"Old van"_s);
        trigger("mOSave");
        QCOMPARE(names().first(), u"Old van"_s);
        QVERIFY(m_test->bytes(u"CARMNT1.FIL"_s).mid(2).startsWith("Old van  "));
    }

    void showsAPlaceOfAnotherCar()
    {
        open(TestProgram::Household);
        m_window->showPlace({.record = 4, .row = 1});
        QCOMPARE(text("Combo1"), u"Zo\u00eb's first car"_s);
        QCOMPARE(grid("Grid4")->currentIndex().row(), 1);
    }

    void keepsInSightWhatAPersonNeeds_data()
    {
        rows<QSize>({{"small", QSize(800, 600)}, {"low", QSize(960, 540)}});
    }
    void keepsInSightWhatAPersonNeeds()
    {
        const auto [size] = row<QSize>();
        open(TestProgram::Household);
        m_window->setMinimumSize(400, 300);
        m_window->resize(size);
        QCoreApplication::processEvents();
        for (const char *part : {"dueTitle", "done_0", "done_1", "Grid4", "dueViewSave", "dueViewExit"}) {
            const auto *shown = find<QWidget>(part);
            QCOMPARE(shown->visibleRegion().boundingRect(), shown->rect());
        }
        auto *schedule = find<CarGrid>("Grid4");
        QVERIFY(schedule->rowAt(schedule->viewport()->height() - 1) >= 2);
        const auto rect = [schedule](int column) {
            return schedule->visualRect(schedule->model()->index(0, column));
        };
        schedule->setFocus();
        schedule->setCurrentIndex(schedule->model()->index(0, 7));
        QVERIFY(schedule->horizontalScrollBar()->value() > 0);
        QVERIFY(rect(7).right() <= schedule->viewport()->width());
        QCOMPARE(schedule->indexAt(rect(0).center()).column(), 0);
        QCOMPARE(rect(0).left(), 0);
        schedule->setCurrentIndex(schedule->model()->index(0, 1));
        QVERIFY(rect(1).left() >= rect(0).right());
    }

    void leavesAForeignSheetAlone()
    {
        m_test = std::make_unique<TestProgram>(TestProgram::Household);
        m_test->setBytes(u"ACar1.Fil"_s, "something else\r\n");
        show();
        QCOMPARE(said(), CarLines::stateOf(u"ACar1.Fil"_s, VehicleFiles::State::Foreign));
        enter("Grid4", 0, 0, u"Wash"_s);
        QCOMPARE(cells("Grid4", 0).front(), QString());
        QVERIFY(!m_window->isModified());
        QCOMPARE(m_test->bytes(u"ACar1.Fil"_s), QByteArray("something else\r\n"));
    }

    void showsWhatWasChangedElsewhere()
    {
        open(TestProgram::Household);
        QByteArray sheet = m_test->bytes(u"ACar1.Fil"_s);
        changeElsewhere(u"ACar1.Fil"_s, sheet.replace("QLA 947", "QLB 100"));
        trigger("mVInfo");
        QCOMPARE(text("Text1_2"), u"QLB 100"_s);
    }

private:
    void open(TestProgram::Content content)
    {
        m_test = std::make_unique<TestProgram>(content);
        show();
    }
    void show()
    {
        m_window = new AutoMaint(m_test->program);
        showActive(*m_window);
        QCoreApplication::processEvents();
    }

    QListView *list() const { return find<QListView>("Combo1"); }
    QStringList names() const
    {
        QStringList names;
        for (int row = 0; row < list()->model()->rowCount(); ++row)
            names << list()->model()->index(row, 0).data().toString();
        return names;
    }
    QList<int> slots_() const
    {
        QList<int> numbers;
        for (int row = 0; row < list()->model()->rowCount(); ++row)
            numbers << list()->model()->index(row, 0).data(Qt::UserRole).toInt();
        return numbers;
    }
    void choose(int row) const
    {
        list()->setCurrentIndex(list()->model()->index(row, 0));
        QCoreApplication::processEvents();
    }
    QString text(const char *name) const
    {
        if (const auto *view = m_window->findChild<QListView *>(QString::fromLatin1(name)))
            return view->currentIndex().data().toString();
        return find<QLineEdit>(name)->text();
    }
    void fill(const char *name, const QString &text) const
    {
        auto *box = find<QLineEdit>(name);
        box->setFocus();
        box->selectAll();
        typeInto(box, text);
    }
    CarGrid *grid(const char *name) const { return find<CarGrid>(name); }
    QStringList cells(const char *name, int row) const
    {
        QStringList cells;
        for (int column = 0; column < grid(name)->model()->columnCount(); ++column)
            cells << grid(name)->model()->index(row, column).data().toString();
        return cells;
    }
    void enter(const char *name, int row, int column, const QString &text) const
    {
        CarGrid *grid = this->grid(name);
        grid->setCurrentIndex(grid->model()->index(row, column));
        const auto place = [grid]() -> QWidget * {
            for (auto *box : grid->findChildren<QLineEdit *>(u"cellBox"_s)) {
                if (!box->isHidden())
                    return box;
            }
            return grid;
        };
        for (const QChar character : text)
            QTest::sendKeyEvent(QTest::Click, place(), Qt::Key_unknown, QString(character), Qt::NoModifier);
        QTest::keyClick(place(), Qt::Key_Return);
        QCoreApplication::processEvents();
    }
};

QTEST_MAIN(TestAutoMaint)

#include "tst_automaint.moc"
