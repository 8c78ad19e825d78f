// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/budgetfiles.h"
#include "tests/budget/window/openbudget.h"
#include "tests/support/household.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QFileInfo>
#include <QMenu>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString file = u"2026.Fil"_s;

/// A year file with `values` of them, the first of which is an item.
QByteArray fileOf(int values)
{
    return "\"Rent\"\r\n" + QByteArray("\"\"\r\n").repeated(values - 1);
}

} // namespace

/// The window of the budget: its year, its incomes, its questions and refusals.
class TestBudget1 : public OpenBudget
{
    Q_OBJECT
private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void opensTheYearOfToday()
    {
        open(TestProgram::Household);
        QCOMPARE(cell(0, 0), u"Rent"_s);
        QCOMPARE(cell(0, 1), u"1,250.00"_s);
        QCOMPARE(place(), u"0,11"_s);
        QCOMPARE(grid()->model()->headerData(12, Qt::Horizontal).toString(), u"Dec"_s);
        QVERIFY(!m_window->isModified());
        auto *years = find<QComboBox>("Combo1");
        QCOMPARE(years->count(), 100);
        QCOMPARE(years->itemText(0) + years->currentText() + years->itemText(99), u"199020262089"_s);
        const QJsonObject months = expectedOf(u"budgets"_s)[u"2026"_s].toObject()[u"months"_s].toObject();
        const QJsonObject november = months[u"Nov"_s].toObject();
        QCOMPARE(labelText("Label3_10"), november[u"expenses"_s].toString());
        QCOMPARE(labelText("Label5_10"), november[u"income"_s].toString());
        QCOMPARE(labelText("Label7_10"), november[u"balance"_s].toString());
        QCOMPARE(labelText("budgetTitle"), u"November 2026: 1940.18 over"_s);
        QCOMPARE(labelText("Label7_5"), u".00"_s);
        QCOMPARE(inkOf("Label7_5"), inkOf("Label3_5"));
        QCOMPARE(inkOf("Label7_10"), QColor(128, 0, 0));
    }

    void writesWhatIsTyped()
    {
        enter(0, 0, u"Rent"_s);
        enter(0, 1, u"980"_s);
        // What stands in an open box is saved too.
        goTo(49, 12);
        type(u"7"_s);
        QVERIFY(m_window->isModified());
        click("saveBudget");
        QVERIFY(!m_window->isModified());
        const QByteArray expected = "\"Rent\"\r\n\"980.00\"\r\n" + QByteArray("\"\"\r\n").repeated(647) +
                                    "\"7.00\"\r\n" + QByteArray("\"\"\r\n").repeated(12);
        QCOMPARE(m_test->bytes(file), expected);
        trigger("mEUndo");
        QVERIFY(m_window->isModified());
        trigger("mERedo");
        QVERIFY(!m_window->isModified());
    }

    void asksBeforeUnsavedWorkGoes_data()
    {
        rows<Answer, bool>({{"another year, Yes", Answer::Yes, false},
                            {"another year, No", Answer::No, false},
                            {"another year, Cancel", Answer::Cancel, false},
                            {"exit, Yes", Answer::Yes, true},
                            {"exit, No", Answer::No, true},
                            {"exit, Cancel", Answer::Cancel, true}});
    }

    void asksBeforeUnsavedWorkGoes()
    {
        const auto [answer, exits] = row<Answer, bool>();
        enter(0, 0, u"Rent"_s);
        m_test->dialogs.willAnswer(answer);
        if (exits)
            click("Command3");
        else
            chooseYear(2025);
        QCOMPARE(asked(), {BudgetMessages::saveBeforeExiting(2026)});
        QCOMPARE(m_test->bytes(file).startsWith("\"Rent\""), answer == Answer::Yes);
        if (answer == Answer::Cancel) {
            QCOMPARE(find<QComboBox>("Combo1")->currentText(), u"2026"_s);
            QCOMPARE(cell(0, 0), u"Rent"_s);
        } else if (exits) {
            QVERIFY(!m_window || !m_window->isVisible());
        } else {
            QCOMPARE(cell(0, 0), QString());
            QVERIFY(!find<QAction>("mEUndo")->isEnabled());
            chooseYear(2026);
            QCOMPARE(cell(0, 0), answer == Answer::Yes ? u"Rent"_s : QString());
        }
    }

    void goesOnInTheSheetOfTheChosenYear()
    {
        auto *years = find<QComboBox>("Combo1");
        years->setFocus();
        QTest::keyClick(years, Qt::Key_Down);
        QCOMPARE(labelText("budgetTitle"), u"No budget for 2027 yet"_s);
        QVERIFY(years->hasFocus()); // another key may lead on
        years->showPopup();
        QTest::keyClick(years->view(), Qt::Key_Down);
        QTest::keyClick(years->view(), Qt::Key_Return);
        QCoreApplication::processEvents();
        QCOMPARE(years->currentText(), u"2028"_s);
        QCOMPARE(m_window->focusWidget(), grid());
        enter(0, 1, u"abc"_s);
        QCOMPARE(asked(), {BudgetMessages::onlyNumbers()});
        QCOMPARE(place(), u"0,1"_s); // to be typed into again
    }

    void takesAnIncome_data()
    {
        using Inputs = std::optional<QString>;
        rows<Inputs, Answer, QString, bool>(
            {{"a number, for this month", u"2480"_s, Answer::No, u"2480.00 0.00"_s, false},
             {"a number, for all", u"2,480.5"_s, Answer::Yes, u"2480.50 2480.50"_s, false},
             {"too much", u"100000"_s, Answer::No, u"99999.99 0.00"_s, true},
             {"the most", u"99999.99"_s, Answer::No, u"99999.99 0.00"_s, false},
             {"no number", u"none"_s, Answer::No, u"0.00 0.00"_s, false},
             {"nothing", u""_s, Answer::Ok, u"5.00 0.00"_s, false},
             {"Cancel", {}, Answer::Ok, u"5.00 0.00"_s, false}});
    }

    void takesAnIncome()
    {
        const auto [typed, answer, shown, isLimited] = row<std::optional<QString>, Answer, QString, bool>();
        m_test->dialogs.willInput(u"5"_s);
        m_test->dialogs.willAnswer(Answer::No);
        clickIncome(1);
        QCOMPARE(m_test->dialogs.takePrompts().join(u'|'),
                 u"Total Income|Enter Total Amount of Income That you will be receiving this month.|"_s);
        asked();
        m_test->dialogs.willInput(typed);
        QList<Message> expected;
        if (answer != Answer::Ok) {
            if (isLimited) {
                m_test->dialogs.willAnswer(Answer::Ok);
                expected << BudgetMessages::incomeLimit();
            }
            m_test->dialogs.willAnswer(answer);
            expected << BudgetMessages::copyIncomeToTheRight();
        }
        clickIncome(1);
        QCOMPARE(asked(), expected);
        QCOMPARE(labelText("Label5_1") + u' ' + labelText("Label5_11"), shown);
        QCOMPARE(labelText("Label5_0"), u"0.00"_s);
        if (shown.startsWith(u"5.00"_s))
            return;
        trigger("mEUndo"); // one step for all months
        QCOMPARE(labelText("Label5_1") + u' ' + labelText("Label5_11"), u"5.00 0.00"_s);
    }

    void warnsOfTheLimitOnce()
    {
        for (int row = 0; row < 11; ++row)
            enter(row, 1, u"9999"_s);
        QCOMPARE(asked(), {BudgetMessages::billsLimit()});
        enter(12, 2, u"1"_s);
        QCOMPARE(asked(), {BudgetMessages::billsLimit()});
        goTo(0, 1);
        trigger("mEClear");
        QCoreApplication::processEvents();
        QVERIFY(asked().isEmpty());
    }

    void copiesTheYear()
    {
        enter(0, 0, u"Rent"_s);
        m_test->setBytes(u"2027.Fil"_s, "\"Old\"");
        // Cancel; No copies what is saved, which is nothing; Yes saves first.
        for (const Answer answer : {Answer::Cancel, Answer::No}) {
            m_test->dialogs.willAnswer(answer);
            trigger("mECY");
            QCOMPARE(asked(), {BudgetMessages::saveBeforeCopying(2026)});
            QCOMPARE(said() == u"There is no saved budget of 2026 to copy"_s, answer == Answer::No);
        }
        QCOMPARE(m_test->bytes(u"2027.Fil"_s), "\"Old\"");
        QVERIFY(!QFileInfo::exists(m_test->path(file)));
        QVERIFY(m_window->isModified());
        m_test->dialogs.willAnswer(Answer::Yes);
        m_test->dialogs.willAnswer(Answer::Yes);
        click("Command7");
        QCOMPARE(asked()[1], BudgetMessages::copyYear(2026, 1));
        QVERIFY(BudgetMessages::copyYear(2026, 1).text.startsWith(u"Copy 2026 file to 2027?"_s));
        QCOMPARE(m_test->bytes(u"2027.Fil"_s), m_test->bytes(file));
        click("statusWay"); // to 2027
        QVERIFY(!find<QAbstractButton>("statusWay")->isVisible());
        QCOMPARE(cell(0, 0), u"Rent"_s);
        trigger("mEUndo");
        QCOMPARE(cell(0, 0), u"Old"_s);
        QCOMPARE(m_test->bytes(u"2027.Fil"_s), "\"Old\"");
    }

    void tellsOfOddFiles_data()
    {
        rows<int, bool>({{"short", 3, false}, {"whole", 662, false}, {"long", 670, true}});
    }

    void tellsOfOddFiles()
    {
        const auto [values, asks] = row<int, bool>();
        m_test->setBytes(file, fileOf(values));
        show();
        QCOMPARE(said().contains(file), values != 662);
        QCOMPARE(cell(0, 0), u"Rent"_s);
        if (asks) {
            m_test->dialogs.willAnswer(Answer::No);
            click("saveBudget");
            QCOMPARE(asked(), {BudgetMessages::dropSurplus(file, 8)});
            QCOMPARE(m_test->bytes(file), fileOf(values));
            m_test->dialogs.willAnswer(Answer::Yes);
        }
        click("saveBudget");
        QCOMPARE(asked().size(), asks ? 1 : 0);
        QCOMPARE(m_test->bytes(file), fileOf(662));
        click("saveBudget"); // nothing to drop any more
        QVERIFY(asked().isEmpty());
    }

    void keepsOddItems()
    {
        const QByteArray odd = "\"two\r\nlines \"here\" \x01\"\r\n" + fileOf(662).sliced(8);
        m_test->setBytes(file, odd);
        show();
        QCOMPARE(cell(0, 0), u"two  lines \"here\"  "_s);
        enter(5, 3, u"1"_s);
        trigger("mEUndo");
        goTo(0, 0);
        press(Qt::Key_F2);
        press(Qt::Key_Home);
        type(u"A "_s);
        press(Qt::Key_Return);
        click("saveBudget");
        QCOMPARE(m_test->bytes(file), QByteArray(odd).insert(1, "A "));
    }

    void refusesToWrite_data() { rows<bool>({{"for reading only", true}, {"the disk refuses", false}}); }

    void refusesToWrite()
    {
        const auto [isReadOnly] = row<bool>();
        if (isReadOnly) {
            open(TestProgram::Household, u"Only to be read"_s);
            type(u"G"_s);
            QCOMPARE(said(), u"Only to be read"_s);
            enter(0, 0, u"Gas"_s);
            QCOMPARE(cell(0, 0), u"Rent"_s);
            clickIncome(0);
            QCOMPARE(said(), u"Only to be read"_s);
            for (const char *button : {"Command6", "Command7", "saveBudget"})
                QVERIFY(!isOffered(button));
            QVERIFY(isOffered("Command8"));
            return;
        }
        QVERIFY(QDir().mkdir(m_test->path(file)));
        enter(0, 0, u"Gas"_s);
        expectWarning("2026");
        click("saveBudget");
        QVERIFY(said().contains(u"could not be saved"_s));
        QCOMPARE(cell(0, 0), u"Gas"_s);
        QVERIFY(m_window->isModified());
    }

    void seesWhatOthersWrite_data() { rows<bool>({{"nothing typed", false}, {"something typed", true}}); }

    void seesWhatOthersWrite()
    {
        const auto [isTyped] = row<bool>();
        if (isTyped)
            enter(0, 0, u"Gas"_s);
        goTo(4, 4);
        changeElsewhere(file, fileOf(662));
        QCOMPARE(cell(0, 0), isTyped ? u"Gas"_s : u"Rent"_s);
        QVERIFY(said().startsWith(file));
        QCOMPARE(place(), u"4,4"_s);
    }

    void offersABackup()
    {
        m_test->functions.add(Function::Backup, {.open = [](Program &) { return new QWidget; }});
        auto *backup = find<QAction>("mUB");
        openUtilities();
        QVERIFY(!backup->isEnabled());
        m_test->setBytes(file, fileOf(662));
        openUtilities();
        QVERIFY(backup->isEnabled());
        enter(0, 0, u"Gas"_s);
        m_test->dialogs.willAnswer(Answer::Cancel);
        backup->trigger();
        QCOMPARE(asked(), {BudgetMessages::saveBeforeBackup(2026)});
        QVERIFY(m_window->isModified());
    }

    void refusesTotalsOfAnEmptySheet()
    {
        click("Command8");
        QCOMPARE(asked(), {BudgetMessages::noFirstRow()});
        enter(0, 1, u"5"_s);
        click("Command8");
        QCOMPARE(asked(), {BudgetMessages::noAmountOrIncome()});
    }

private:
    void chooseYear(int year) const
    {
        auto *years = find<QComboBox>("Combo1");
        years->setCurrentText(QString::number(year));
        emit years->activated(years->currentIndex());
        QCoreApplication::processEvents();
    }
    void clickIncome(int month) const
    {
        QTest::mouseClick(find<QLabel>("Label5_" + QByteArray::number(month)), Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    void openUtilities() const { emit find<QMenu>("mU")->aboutToShow(); }
    QColor inkOf(const char *name) const { return find<QLabel>(name)->palette().windowText().color(); }
};

QTEST_MAIN(TestBudget1)
#include "tst_budgetwindow.moc"
