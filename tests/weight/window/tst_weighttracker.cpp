// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/cellgrid.h"
#include "shell/core/place.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"
#include "weight/model/messages.h"
#include "weight/window/weighttracker.h"
#include "weight/window/windowlines.h"

#include <QHeaderView>
#include <QListView>
#include <QPlainTextEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString nils = u"Nils Holm 2026"_s;

} // namespace

/// The weight tracker on 21 November 2026: persons, their weigh-ins and what is asked.
class TestWeightTracker : public OpenWindow<WeightTracker>
{
    Q_OBJECT
private slots:
    void cleanup() { close(); }

    void showsThePersonsOfTheHousehold()
    {
        open(TestProgram::Household);
        QCOMPARE(names(), (QStringList{u"Karin Holm"_s, nils, u"Zo\u00eb Marsh"_s, u"Jos\u00e9 Ortega"_s}));
        QCOMPARE(labelText("weighInsTitle"), u"Karin Holm"_s);
        QVERIFY(find<QLabel>("noWeighIns")->isVisible());
        choose(1);
        QCOMPARE(cells(0), (QStringList{u"01/05/2026"_s, u"214.5"_s, u"N/A"_s, u"0"_s}));
        QCOMPARE(cells(48), (QStringList{u"08/10/2026"_s, u"192.2"_s, u"-0.9"_s, u"-22.3"_s}));
        QCOMPARE(labelText("todaysDate"), u"Today's Date: 11/21/2026"_s);
        trigger("mVPlan");
        QCOMPARE(text("Text1_0"), nils);
        QCOMPARE(text("Text1_1"), u"January 05, 2026"_s);
        QCOMPARE(
            find<QPlainTextEdit>("Text3")->toPlainText(),
            u"Knee is still weak, no running.\nSays the doctor: \"Swim\" instead.\nNext check in May."_s);
        QCOMPARE(labelText("commentsLength"), u"Length (Max. = 1000) : 85"_s);
    }

    void keepsInSightWhatAPersonNeeds_data()
    {
        rows<QSize>({{"small", QSize(784, 560)}, {"low", QSize(960, 540)}});
    }
    void keepsInSightWhatAPersonNeeds()
    {
        const auto [size] = row<QSize>();
        open(TestProgram::Household);
        m_window->setMinimumSize(400, 300);
        m_window->resize(size);
        choose(1);
        const auto isWhole = [this](const char *part) {
            const auto *shown = find<QWidget>(part);
            return shown->visibleRegion().boundingRect() == shown->rect();
        };
        QTRY_VERIFY(isWhole("Grid4")); // three rows at least
        for (const char *part : {"weighInWeight", "addRow", "Command10", "weighInsViewExit"})
            QVERIFY(isWhole(part));
        trigger("mVGraph");
        QTRY_VERIFY(isWhole("Chart2D1") && isWhole("graphViewSave") && isWhole("graphViewExit"));
        trigger("mVPlan");
        QTRY_VERIFY(isWhole("planViewSave") && isWhole("planViewExit"));
        trigger("mVPhotos");
        QTRY_VERIFY(isWhole("photosViewSave") && isWhole("photosViewExit"));
    }

    void entersTodaysWeightWithTwoKeys()
    {
        open(TestProgram::Household);
        const QByteArray before = file(nils);
        choose(1);
        QWidget *box = find<QLineEdit>("weighInWeight");
        box->setFocus();
        typeInto(box, u"191,4"_s);
        QCOMPARE(labelText("weighInFact").replace(u'\n', u", "_s),
                 u"-0.8 from the last entry, -23.1 from the beginning"_s);
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(cells(49), (QStringList{u"11/21/2026"_s, u"191.4"_s, u"-0.8"_s, u"-23.1"_s}));
        QCOMPARE(said(), u"Added and saved: 191.4, 11/21/2026"_s);
        QVERIFY(file(nils).startsWith("\"51\"\r\n"));
        QVERIFY(file(nils).endsWith("\"08/10/2026\"\r\n\"192.2\"\r\n\"11/21/2026\"\r\n\"191.4\"\r\n"));
        QVERIFY(box->hasFocus());
        QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(grid()->model()->rowCount(), 49);
        QCOMPARE(text("weighInWeight"), QString());
        QCOMPARE(said(), u"Undone: Row added: 191.4, 11/21/2026"_s);
        QCOMPARE(file(nils), before);
        QVERIFY(!m_window->isModified());
        trigger("mERedo");
        QVERIFY(file(nils).startsWith("\"51\"\r\n"));
        // What is not saved yet stays so, and the file keeps its row.
        enter(0, 1, u"215"_s);
        trigger("mEUndo");
        enter(1, 1, u"215"_s);
        trigger("mOSave");
        trigger("mEUndo");
        trigger("mEUndo");
        QVERIFY(file(nils).startsWith("\"51\"\r\n"));
        QCOMPARE(grid()->model()->rowCount(), 49);
        QVERIFY(m_window->isModified());
        m_test->dialogs.willAnswer(Answer::No);
        choose(0);
    }

    void addsAndDeletesRowsAndSaysSo()
    {
        open(TestProgram::Household);
        const QByteArray before = file(nils);
        choose(1);
        click("addRow");
        QCoreApplication::processEvents();
        QCOMPARE(asked(), {WeightMessages::rowAdded()});
        QCOMPARE(said(), u"Added and saved: weigh-in, 11/21/2026"_s);
        QCOMPARE(cells(49), (QStringList{u"11/21/2026"_s, {}, {}, {}}));
        QVERIFY(file(nils).endsWith("\"192.2\"\r\n\"11/21/2026\"\r\n\"\"\r\n"));
        grid()->setCurrentIndex(grid()->model()->index(49, 0));
        m_test->dialogs.willAnswer(Answer::No);
        click("deleteRow");
        QCOMPARE(grid()->model()->rowCount(), 50);
        m_test->dialogs.willAnswer(Answer::Yes);
        click("deleteRow");
        QCoreApplication::processEvents();
        QCOMPARE(asked(), (QList<Message>{WeightMessages::deleteRow(), WeightMessages::deleteRow(),
                                          WeightMessages::rowDeleted()}));
        QCOMPARE(file(nils), before);
    }

    void takesWeighInsOutAndIn()
    {
        open(TestProgram::Household);
        choose(1);
        const QString path = m_test->temporary.filePath(u"scales.csv"_s);
        m_test->dialogs.willChooseFile(m_test->temporary.filePath(u"missing/scales.csv"_s));
        trigger("mUExcel");
        QCOMPARE(said(), u"scales.csv could not be saved there"_s);
        m_test->dialogs.willChooseFile({});
        trigger("mUExcel");
        m_test->dialogs.willChooseFile(path);
        trigger("mUExcel");
        QCOMPARE(said(), u"Saved: scales.csv"_s);
        const QByteArray out = contentOf(path);
        QVERIFY(out.endsWith("2026-08-10,192.2\r\n"));
        QVERIFY(makeFile(path, out + "2026-08-12,191.9\r\n"));
        const auto bringIn = [&] {
            m_test->dialogs.willChooseFile(path);
            trigger("mUBringIn");
        };
        bringIn();
        QTRY_VERIFY(isOffered("weightImportTake"));
        click("weightImportTake");
        QCOMPARE(said(), u"Brought in: 1 weigh-in"_s);
        QCOMPARE(cells(49), (QStringList{u"08/12/2026"_s, u"191.9"_s, u"-0.3"_s, u"-22.6"_s}));
        trigger("mEUndo");
        QCOMPARE(grid()->model()->rowCount(), 49);
        QVERIFY(!m_window->isModified());
        // The preview is about this person.
        bringIn();
        QTRY_VERIFY(isOffered("weightImportTake"));
        choose(0);
        QVERIFY(!find<QWidget>("weightImportPanel")->isVisible());
    }

    void checksWhatIsTypedIntoTheTable_data()
    {
        rows<int, QString, QString, QList<Message>>({
            {"a day to come", 0, u"11/22/2026"_s, u"08/10/2026"_s, {WeightMessages::dateToCome()}},
            {"today", 0, u"Nov-21-2026"_s, u"11/21/2026"_s, {}},
            {"no date", 0, u"13/45/2026"_s, u"08/10/2026"_s, {WeightMessages::invalidDate()}},
            {"a weight", 1, u"180"_s, u"180."_s, {}},
            {"no weight", 1, u"much"_s, u"192.2"_s, {WeightMessages::invalidWeight()}},
        });
    }
    void checksWhatIsTypedIntoTheTable()
    {
        const auto [column, typed, shown, messages] = row<int, QString, QString, QList<Message>>();
        open(TestProgram::Household);
        choose(1);
        enter(48, column, typed);
        QCOMPARE(asked(), messages);
        QCOMPARE(cells(48)[column], shown);
        if (m_window->isModified())
            trigger("mEUndo");
    }

    void takesDatesToComeWhileTheCheckerIsOff()
    {
        open(TestProgram::Household);
        choose(1);
        QCOMPARE(find<QPushButton>("dateChecker")->text(), u"Turn OFF Date Checker"_s);
        click("dateChecker");
        QCOMPARE(find<QAction>("mODate")->text(), u"Turn ON Date Checker"_s);
        enter(48, 0, u"12/24/2026"_s);
        QCOMPARE(cells(48)[0], u"12/24/2026"_s);
        trigger("mEUndo");
    }

    void showsTheRowsByWeight()
    {
        open(TestProgram::Household);
        const QByteArray before = file(nils);
        choose(1);
        const auto clickHeading = [this](int column) {
            QHeaderView *heading = grid()->horizontalHeader();
            QTest::mouseClick(heading->viewport(), Qt::LeftButton, {},
                              {heading->sectionViewportPosition(column) + 20, heading->height() / 2});
        };
        grid()->setCurrentIndex(grid()->model()->index(48, 1));
        clickHeading(1);
        QCOMPARE(cells(0), (QStringList{u"08/10/2026"_s, u"192.2"_s, u"-0.9"_s, u"-22.3"_s}));
        QCOMPARE(grid()->currentIndex().row(), 0);
        trigger("mEWeight");
        QCOMPARE(cells(0)[1], u"215.6"_s);
        enter(0, 1, u"190"_s); // it stays where it is typed
        QCOMPARE(cells(0)[3], u"-24.5"_s);
        trigger("mEUndo");
        QVERIFY(!m_window->isModified());
        grid()->setCurrentIndex(grid()->model()->index(48, 1));
        m_test->dialogs.willAnswer(Answer::Yes);
        click("deleteRow");
        QCoreApplication::processEvents();
        QVERIFY(!file(nils).contains("\"08/10/2026\""));
        QCOMPARE(cells(0)[1], u"215.6"_s);
        trigger("mEUndo");
        QCOMPARE(file(nils), before);
        clickHeading(0);
        QCOMPARE(cells(48)[0], u"08/10/2026"_s);
        QVERIFY(!m_window->isModified());

        enter(48, 0, u"01/01/2020"_s);
        grid()->setCurrentIndex(grid()->model()->index(48, 1));
        clickHeading(0); // sorts the file, and the weigh-in stays the one that is chosen
        QCOMPARE(cells(0)[0], u"01/01/2020"_s);
        QCOMPARE(grid()->currentIndex().row(), 0);
    }

    void savesWhatWasChanged()
    {
        open(TestProgram::Household);
        choose(1);
        QByteArray wanted = file(nils);
        click("Command10");
        QCOMPARE(asked(), {WeightMessages::nothingToSave()});
        trigger("mVPlan");
        fill("Text1_3", u"188"_s);
        trigger("mVPhotos");
        fill("Text1_8", u"8/12/2026"_s);
        trigger("mOSave");
        QCOMPARE(asked(), {WeightMessages::saved()});
        wanted.replace("\"190.\"", "\"188.\"");
        wanted.replace("\"January 05, 2026\"\r\n\"\"\r\n", "\"January 05, 2026\"\r\n\"August 12, 2026\"\r\n");
        QCOMPARE(file(nils), wanted);
        QVERIFY(!m_window->isModified());
    }

    void createsPersonsAndKeepsYearsApart()
    {
        open(TestProgram::Empty);
        QVERIFY(find<QWidget>("emptyCreate")->isVisible());
        trigger("mVFile");
        QCOMPARE(asked(), {WeightMessages::noFiles()});
        click("emptyCreate");
        click("Command11");
        QCOMPARE(asked(), {WeightMessages::nameMissing()});
        for (const auto &[name, refusal] : {std::pair(u"con"_s, WeightMessages::nameReserved(u"con.Fil"_s)),
                                            {u"A/B"_s, WeightMessages::nameNoFile(u"/"_s)}}) {
            fill("Text1_0", name);
            click("Command11");
            QCOMPARE(asked(), {refusal});
        }
        fill("Text1_0", u"Anne 2026"_s);
        fill("Text1_2", u"70"_s);
        click("Command11");
        QCOMPARE(asked(), {WeightMessages::newSaved()});
        QCOMPARE(m_test->bytes(u"WeightTrker.Fil"_s), "\"Anne 2026\"\r\n");
        QVERIFY(file(u"Anne 2026"_s).startsWith("\"1\"\r\n\"\"\r\n\"70.\"\r\n"));
        trigger("mVPlan");
        fill("Text1_0", u"anne 2026"_s);
        click("Command11");
        QCOMPARE(asked(), {WeightMessages::nameTaken(u"anne 2026"_s)});
        fill("Text1_0", u"Anne 2027"_s);
        click("Command11");
        QCOMPARE(asked(), {WeightMessages::newSaved()});
        QCOMPARE(names(), (QStringList{u"Anne 2026"_s, u"Anne 2027"_s}));
        QCOMPARE(file(u"Anne 2027"_s), file(u"Anne 2026"_s));
    }

    void renamesAPersonOnSave()
    {
        open(TestProgram::Household);
        const QByteArray before = file(nils);
        choose(1);
        trigger("mVPlan");
        fill("Text1_0", u"Nils"_s);
        trigger("mOSave");
        QCOMPARE(asked(), {WeightMessages::saved()});
        QCOMPARE(names()[1], u"Nils"_s);
        QCOMPARE(file(u"Nils"_s), before);
        QVERIFY(!m_test->folder.exists(nils + u".Fil"_s));
    }

    /// A weigh-in saves whatever else was typed.
    void renamesAPersonWithAWeighIn()
    {
        open(TestProgram::Household);
        choose(1);
        const auto weighAs = [this](const QString &name) {
            trigger("mVPlan");
            fill("Text1_0", name);
            trigger("mVWeigh");
            typeInto(find<QLineEdit>("weighInWeight"), u"191"_s);
            QTest::keyClick(find<QLineEdit>("weighInWeight"), Qt::Key_Return);
        };
        weighAs(u"karin holm"_s);
        QCOMPARE(asked(), {WeightMessages::nameTaken(u"karin holm"_s)});
        QVERIFY(file(nils).startsWith("\"50\""));
        QVERIFY(m_window->isModified());
        weighAs(u"Nils"_s);
        QCOMPARE(names()[1], u"Nils"_s);
        QCOMPARE(list()->currentIndex().row(), 1);
        QVERIFY(file(u"Nils"_s).startsWith("\"52\""));
        QVERIFY(!m_test->folder.exists(nils + u".Fil"_s));
        QVERIFY(!m_window->isModified());
        QCOMPARE(said(), u"Added and saved: 191., 11/21/2026"_s);
        trigger("mEUndo");
        QVERIFY(file(u"Nils"_s).startsWith("\"51\""));
        QVERIFY(!m_window->isModified());
    }

    void deletesAPersonAndBringsThemBack()
    {
        open(TestProgram::Household);
        const QByteArray before = file(nils);
        choose(1);
        m_test->dialogs.willAnswer(Answer::No);
        trigger("mODel");
        QCOMPARE(file(nils), before);
        m_test->dialogs.willAnswer(Answer::Yes);
        trigger("mODel");
        QCOMPARE(asked(),
                 (QList<Message>{WeightMessages::deleteFile(nils), WeightMessages::deleteFile(nils)}));
        QVERIFY(!m_test->folder.exists(nils + u".Fil"_s));
        QCOMPARE(names().size(), 3);
        trigger("mEUndo");
        QCOMPARE(file(nils), before);
        QCOMPARE(labelText("weighInsTitle"), nils);
    }

    void asksBeforeAnotherPersonTakesThePlace()
    {
        open(TestProgram::Household);
        choose(1);
        enter(48, 1, u"192.0"_s);
        m_test->dialogs.willAnswer(Answer::Cancel);
        choose(2);
        QCOMPARE(labelText("weighInsTitle"), nils);
        m_test->dialogs.willAnswer(Answer::Yes);
        choose(2);
        QCOMPARE(labelText("weighInsTitle"), u"Zo\u00eb Marsh"_s);
        QVERIFY(file(nils).endsWith("\"08/10/2026\"\r\n\"192.\"\r\n"));
        QCOMPARE(asked(), (QList<Message>{WeightMessages::saveChanges(), WeightMessages::saveChanges()}));
        m_window->showPlace({.record = 4});
        QCOMPARE(labelText("weighInsTitle"), u"Jos\u00e9 Ortega"_s);
    }

    void saysOnEveryPageWhatIsWrongWithAFile_data()
    {
        rows<QByteArray, QString>(
            {{"noise", "\x01\x02", u"Karin Holm.Fil is no file of a person; it is left as it is"_s},
             {"cut", "\"5\"\r\n\"\"\r\n", u"Karin Holm.Fil ends early; the rest of it is blank here"_s}});
    }
    void saysOnEveryPageWhatIsWrongWithAFile()
    {
        const auto [bytes, trouble] = row<QByteArray, QString>();
        m_test = std::make_unique<TestProgram>(TestProgram::Household);
        m_test->setBytes(u"Karin Holm.Fil"_s, bytes);
        show();
        QVERIFY(!find<QLabel>("noWeighIns")->isVisible());
        for (const auto &[command, label] : {std::pair("mVWeigh", "weighInsTrouble"),
                                             {"mVGraph", "graphTrouble"},
                                             {"mVPlan", "planTrouble"},
                                             {"mVPhotos", "photosTrouble"}}) {
            trigger(command);
            QVERIFY(find<QLabel>(label)->isVisible());
            QCOMPARE(labelText(label), trouble);
        }
        choose(1);
        QVERIFY(!find<QLabel>("photosTrouble")->isVisible());
    }

    void asksAboutRowsThatTheFileDoesNotCount_data()
    {
        const auto save = [](TestWeightTracker &test) {
            test.enter(0, 1, u"214.6"_s);
            test.trigger("mOSave");
        };
        const auto weigh = [](TestWeightTracker &test) {
            typeInto(test.find<QLineEdit>("weighInWeight"), u"191"_s);
            QTest::keyClick(test.find<QLineEdit>("weighInWeight"), Qt::Key_Return);
        };
        const auto take = [save](TestWeightTracker &test) {
            test.click("takeUncounted");
            save(test);
        };
        const QByteArray last = "\"08/10/2026\"\r\n\"192.2\"\r\n";
        const QByteArray added = "\"11/21/2026\"\r\n\"191.\"\r\n";
        using Hands = std::function<void(TestWeightTracker &)>;
        rows<Hands, std::optional<Answer>, QByteArray, QByteArray>({
            {"taken in with a save", save, Answer::Yes, "\"50\"", last},
            {"left out by a save", save, Answer::No, "\"48\"", "\"192.7\"\r\n"},
            {"not saved", save, Answer::Cancel, "\"48\"", last},
            {"before today's weight", weigh, Answer::Yes, "\"51\"", last + added},
            {"left out for today's weight", weigh, Answer::No, "\"49\"", "\"192.7\"\r\n" + added},
            {"not weighed", weigh, Answer::Cancel, "\"48\"", last},
            {"taken in by the line", take, {}, "\"50\"", last},
        });
    }
    void asksAboutRowsThatTheFileDoesNotCount()
    {
        using Hands = std::function<void(TestWeightTracker &)>;
        const auto [hands, answer, count, end] = row<Hands, std::optional<Answer>, QByteArray, QByteArray>();
        m_test = std::make_unique<TestProgram>(TestProgram::Household);
        QByteArray bytes = file(nils);
        m_test->setBytes(nils + u".Fil"_s, bytes.replace("\"50\"", "\"48\""));
        show();
        choose(1);
        QCOMPARE(grid()->model()->rowCount(), 47);
        QVERIFY(find<QWidget>("uncounted")->isVisible());
        if (answer)
            m_test->dialogs.willAnswer(*answer);
        hands(*this);
        QCOMPARE(asked().contains(WeightMessages::takeUncounted(2)), answer.has_value());
        QVERIFY(file(nils).startsWith(count));
        QVERIFY(file(nils).endsWith(end));
        QCOMPARE(find<QWidget>("uncounted")->isVisible(), answer == Answer::Cancel);
    }

private:
    void open(TestProgram::Content content)
    {
        m_test = std::make_unique<TestProgram>(content);
        show();
    }
    void show()
    {
        m_window = new WeightTracker(m_test->program);
        showActive(*m_window);
        QCoreApplication::processEvents();
    }

    QByteArray file(const QString &name) const { return m_test->bytes(name + u".Fil"_s); }
    QListView *list() const { return find<QListView>("Combo1"); }
    QStringList names() const
    {
        QStringList names;
        for (int row = 0; row < list()->model()->rowCount(); ++row)
            names << list()->model()->index(row, 0).data().toString();
        return names;
    }
    void choose(int row) const
    {
        list()->setCurrentIndex(list()->model()->index(row, 0));
        QCoreApplication::processEvents();
    }
    QString text(const char *name) const { return find<QLineEdit>(name)->text(); }
    void fill(const char *name, const QString &text) const
    {
        auto *box = find<QLineEdit>(name);
        box->setFocus();
        box->selectAll();
        typeInto(box, text);
    }
    CellGrid *grid() const { return find<CellGrid>("Grid4"); }
    QStringList cells(int row) const
    {
        QStringList cells;
        for (int column = 0; column < grid()->model()->columnCount(); ++column)
            cells << grid()->model()->index(row, column).data().toString();
        return cells;
    }
    void enter(int row, int column, const QString &text) const
    {
        CellGrid *grid = this->grid();
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

QTEST_MAIN(TestWeightTracker)

#include "tst_weighttracker.moc"
