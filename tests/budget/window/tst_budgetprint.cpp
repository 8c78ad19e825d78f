// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/budgetentry.h"
#include "budget/model/messages.h"
#include "budget/model/papermessages.h"
#include "openbudget.h"
#include "shell/core/shellmessages.h"

#include <QClipboard>
#include <QDialog>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QMenu>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

/// What leaves the budget's window: pages, the clipboard's text, the spreadsheet file.
class TestBudgetPrint final : public OpenBudget
{
    Q_OBJECT
private slots:
    void init() { open(TestProgram::Household); }

    void cleanup() { close(); }

    void showsItsPages_data()
    {
        rows<QByteArray, QString>(
            {{"the sheet", "mOPrt", u"\n Personal Budget For 2026\tPrinted: "_s},
             {"the totals", "mOPTotals", u"\nBUDGET TOTALS FOR 2026\tPrinted: "_s},
             {"the sheet to discuss", "mOPDiscuss", u"\nBudget to Discuss For 2026\t"_s}});
    }

    void showsItsPages()
    {
        const auto [command, begin] = row<QByteArray, QString>();
        trigger(command.constData());
        QVERIFY(m_window->isPreviewShown());
        m_test->dialogs.willAnswer(Answer::Ok);
        click("SSCommand80_3");
        QCOMPARE(asked().value(0).text, u"Current Page has been copied to the Windows Clipboard."_s);
        QVERIFY(QGuiApplication::clipboard()->text().startsWith(begin));
    }

    void aWideSheetLiesOnItsSide()
    {
        trigger("mOPrt");
        QCOMPARE(labelText("Panel3D80"), u" Landscape"_s);
        click("SSCommand80_1");
        QCOMPARE(labelText("Panel3D80"), u" Portrait"_s);
    }

    void theTotalsHaveTheirChartInItsFrame()
    {
        const auto shape = [this] {
            const QSizeF size = QImage(m_test->path(u"Chartxxx.jpg"_s)).size();
            return size.width() / size.height();
        };
        trigger("mOPTotals");
        QVERIFY(qAbs(shape() - 7.3 / 4.15) < 0.01);
        click("SSCommand80_1");
        QVERIFY(qAbs(shape() - 9.9 / 4.4) < 0.01);
    }

    void copiesWhatIsShown()
    {
        m_test->dialogs.willAnswer(Answer::Ok);
        trigger("mECopyBudget");
        QCOMPARE(asked(), {BudgetPaper::copied()});
        QVERIFY(QGuiApplication::clipboard()->text().startsWith(u" Budget\t2026\nItem\tJan\tFeb\t"_s));
    }

    void refusesTotalsOfNothing()
    {
        open(TestProgram::Empty);
        m_test->dialogs.willAnswer(Answer::Ok);
        trigger("mOPTotals");
        QCOMPARE(asked(), {BudgetMessages::noFirstRow()});
        QVERIFY(!m_window->isPreviewShown());
        emit find<QMenu>("mU")->aboutToShow();
        QVERIFY(!find<QAction>("mUExcel")->isEnabled());
    }

    void exportsToTheProgramsFolder()
    {
        m_test->setBytes(u"BUDGET2026.XLS"_s, "what was there");
        drive([&](QDialog &box) {
            QCOMPARE(control<QLineEdit>(box, "exportName")->text(), u"Budget2026.xls"_s);
            QCOMPARE(control<QLineEdit>(box, "exportFolder")->text(),
                     QDir::toNativeSeparators(m_test->folder.path()));
            m_test->dialogs.willAnswer(Answer::Ok);
            control<QPushButton>(box, "exportOk")->click();
        });
        QCOMPARE(asked(), {BudgetPaper::exported()});
        QVERIFY(m_test->bytes(u"BUDGET2026.XLS"_s).startsWith("Item\tJan\tFeb\tMar\t"));
        QCOMPARE(QDir(m_test->folder.path()).entryList({u"*.xls"_s}).size(), 1);
    }

    void exportsToAChosenFolder()
    {
        const QTemporaryDir elsewhere;
        m_test->dialogs.willChooseFile(elsewhere.path());
        drive([&](QDialog &box) {
            control<QPushButton>(box, "exportBrowse")->click();
            QCOMPARE(control<QLineEdit>(box, "exportName")->text(), u"Budget2026.XLS"_s);
            m_test->dialogs.willAnswer(Answer::Ok);
            control<QPushButton>(box, "exportOk")->click();
        });
        QVERIFY(QFileInfo(elsewhere.filePath(u"Budget2026.XLS"_s)).size() > 500);
        QVERIFY(!m_test->folder.exists(u"Budget2026.xls"_s));
    }

    void saysWhyItDoesNotExport_data()
    {
        rows<QString, QString, Message>({
            {"no name", u" "_s, {}, BudgetPaper::exportNameWrong()},
            {"a name that is none", u"a/b"_s, {}, BudgetPaper::exportNameWrong()},
            {"a folder that is not there", u"Budget"_s, u"/nowhere/at/all"_s,
             ShellMessages::driveUnavailable()},
            {"a folder that takes nothing", u"Budget"_s, u"/proc"_s, ShellMessages::deviceUnavailable()},
        });
    }

    void saysWhyItDoesNotExport()
    {
        const auto [name, folder, message] = row<QString, QString, Message>();
        if (folder == u"/proc"_s)
            expectWarning("Cannot write");
        drive([&, name = name, folder = folder](QDialog &box) {
            if (!folder.isEmpty())
                control<QLineEdit>(box, "exportFolder")->setText(folder);
            control<QLineEdit>(box, "exportName")->setText(name);
            m_test->dialogs.willAnswer(Answer::Ok);
            control<QPushButton>(box, "exportOk")->click();
            QVERIFY(box.isVisible()); // to be tried again
        });
        QCOMPARE(asked(), {message});
    }

private:
    void drive(const std::function<void(QDialog &)> &work)
    {
        m_test->dialogs.willRun([&](QDialog &box) {
            work(box);
            return int(box.result());
        });
        trigger("mUExcel");
    }
};

QTEST_MAIN(TestBudgetPrint)
#include "tst_budgetprint.moc"
