// SPDX-License-Identifier: GPL-3.0-or-later
#include "previewwindow.h"
#include "tests/support/rows.h"
#include "tests/support/sheettools.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QPrinter>
#include <QStandardPaths>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;
using namespace SheetTools;

namespace {

/// The numbers that "Page n of m" gives to the sheets of a PDF, in its order.
QList<int> pageNumbers(const QString &pdf)
{
    QList<int> numbers;
    for (const QString &sheet : pdfSheets(pdf))
        numbers << sheet.mid(sheet.lastIndexOf(u"Page "_s) + 5).section(u' ', 0, 0).toInt();
    return numbers;
}

} // namespace

class TestPrintJob final : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        if (!hasPdfTools())
            QSKIP("needs poppler's tools");
        QStandardPaths::setTestModeEnabled(true);
    }
    void init() { m_window.emplace(); }
    void cleanup() { QVERIFY(m_window->dialogs.isDone()); }

    void savesAPdfWithoutAPrinter_data()
    {
        const QString title = u"Name List"_s, proposed = u"Name List.pdf"_s, pdf = u"names.pdf"_s;
        rows<QString, QString, QString, QString>({
            {"as typed", title, proposed, pdf, pdf},
            {"without the suffix", title, proposed, u"names"_s, pdf},
            {"another spelling of it", title, proposed, u"names.PDF"_s, u"names.PDF"_s},
            {"a dot in the name", title, proposed, u"names 11.2026"_s, u"names 11.2026.pdf"_s},
            {"a title that no file system takes", u"../Miller/Anne: \"list\"\n"_s,
             u"-Miller-Anne- -list--.pdf"_s, pdf, pdf},
        });
    }

    void savesAPdfWithoutAPrinter()
    {
        const auto [title, proposed, typed, written] = row<QString, QString, QString, QString>();
        m_window->showList(60, title);
        m_window->dialogs.willChooseFile(path(typed));
        m_window->click("SSCommand80_4");
        const QStringList asked = m_window->dialogs.takePrompts();
        QCOMPARE(asked.value(0), u"Print to File (PDF)"_s);
        QCOMPARE(
            asked.value(1),
            QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)).filePath(proposed));
        QCOMPARE(m_window->activity->message(), u"Saved as "_s + QDir::toNativeSeparators(path(written)));
        QCOMPARE(pageNumbers(path(written)), (QList<int>{1, 2}));
        QVERIFY(m_window->dialogs.takeShown().isEmpty());

        m_window->dialogs.willChooseFile({});
        QVERIFY(!m_window->pane->print());
        QCOMPARE(m_window->activity->message(), u""_s);
    }

    void leavesAFileAloneThatNobodyAgreedToReplace()
    {
        QVERIFY(makeFile(path(u"names.pdf"_s), "mine"));
        m_window->showList(1);
        m_window->dialogs.willChooseFile(path(u"names"_s));
        QVERIFY(m_window->pane->print());
        QCOMPARE(contentOf(path(u"names.pdf"_s)), "mine");
        QCOMPARE(pdfSheets(path(u"names (2).pdf"_s)).size(), 1);
    }

    void saysQuietlyThatAPdfCannotBeSaved()
    {
        m_window->showList(1);
        QVERIFY(QDir(m_window->test.temporary.path()).mkdir(u"folder.pdf"_s));
        for (const QString &name : {u"missing/folder/names.pdf"_s, u"folder.pdf"_s}) {
            m_window->dialogs.willChooseFile(path(name));
            QVERIFY(!m_window->pane->print());
            QVERIFY(m_window->activity->message().startsWith(u"Could not save "_s +
                                                             QDir::toNativeSeparators(path(name))));
            QVERIFY(m_window->dialogs.takeShown().isEmpty());
        }
    }

    void printsWhatTheDialogAskedFor_data()
    {
        using Choice = std::function<void(QPrinter &)>;
        const auto range = [](const QString &pages) {
            return [pages](QPrinter &printer) {
                printer.setPrintRange(QPrinter::PageRange);
                printer.setPageRanges(QPageRanges::fromString(pages));
            };
        };
        const auto copies = [](bool collated) {
            return [collated](QPrinter &printer) {
                printer.setCopyCount(2);
                printer.setCollateCopies(collated);
            };
        };
        rows<Choice, QList<int>>({
            {"everything", [](QPrinter &) {}, {1, 2, 3}},
            {"a range", range(u"2-3"_s), {2, 3}},
            {"several ranges", range(u"1,3-9"_s), {1, 3}},
            {"the current page", [](QPrinter &p) { p.setPrintRange(QPrinter::CurrentPage); }, {2}},
            {"backwards", [](QPrinter &p) { p.setPageOrder(QPrinter::LastPageFirst); }, {3, 2, 1}},
            {"two copies", copies(true), {1, 2, 3, 1, 2, 3}},
            {"two copies, page by page", copies(false), {1, 1, 2, 2, 3, 3}},
            {"pages that do not exist", range(u"8-9"_s), {}},
        });
    }

    void printsWhatTheDialogAskedFor()
    {
        const auto [choice, numbers] = row<std::function<void(QPrinter &)>, QList<int>>();
        m_window->showSheets(3);
        m_window->click("nextPage");
        const bool isPrinted = print(choice);
        QCOMPARE(isPrinted, !numbers.isEmpty());
        QVERIFY(m_window->dialogs.takeShown().isEmpty());
        if (isPrinted)
            QCOMPARE(pageNumbers(path(m_printed)), numbers);
        else
            QCOMPARE(m_window->activity->message(), PreviewMessages::noSuchPage());
    }

    void paginatesAnewForThePaperOfTheDialog()
    {
        m_window->showList(60);
        QPageSize preset;
        QVERIFY(print([&preset](QPrinter &printer) {
            preset = printer.pageLayout().pageSize();
            printer.setPageSize(QPageSize(QPageSize::A4));
            printer.setPageOrientation(QPageLayout::Landscape);
        }));
        QCOMPARE(preset.id(), QPageSize::Letter);
        QCOMPARE(m_window->builtFor.constLast().orientation, PageSetup::Landscape);
        QCOMPARE(pdfSheets(path(m_printed)).size(), 3);
        QCOMPARE(m_window->pane->setup().orientation, PageSetup::Portrait); // the preview stays as it is
        QCOMPARE(m_window->pane->sheetCount(), 2);
    }

    void cancellingThePrintDialogPrintsNothing()
    {
        m_window->showList(1);
        QVERIFY(!print([](QPrinter &) {}, false));
        QVERIFY(!QFile::exists(path(m_printed)));
        QCOMPARE(m_window->activity->message(), u""_s);
    }

    void printingManySheetsCanBeStopped_data()
    {
        QTest::addColumn<QKeySequence>("key");
        QTest::newRow("click") << QKeySequence();
        QTest::newRow("Esc") << QKeySequence(Qt::Key_Escape);
        QTest::newRow("access key") << QKeySequence(u"Alt+T"_s);
    }

    void printingManySheetsCanBeStopped()
    {
        QFETCH(const QKeySequence, key);
        m_window->showList(2000);
        auto *stop = control<QPushButton>(m_window->window, "statusStop");
        QTimer::singleShot(0, stop, [&] {
            if (key.isEmpty())
                stop->click();
            else
                QTest::keyClick(&m_window->window, Qt::Key(key[0].key()), key[0].keyboardModifiers());
        });
        m_window->dialogs.willChooseFile(path(u"names.pdf"_s));
        QVERIFY(!m_window->pane->print());
        QCOMPARE(m_window->activity->message(), PreviewMessages::printingStopped());
        QVERIFY(!QFile::exists(path(u"names.pdf"_s)));
        QVERIFY(!stop->isVisible());
    }

    void aPageThatIsTakenAwayIsNotPrinted()
    {
        const auto takeAway = [this] { m_window->showSheets(1); };
        m_window->showList(1);
        QVERIFY(!print([&](QPrinter &) { takeAway(); }));
        QVERIFY(!QFile::exists(path(m_printed)));
        m_window->dialogs.setPrinter(false);
        m_window->showList(2000);
        QTimer::singleShot(0, this, takeAway);
        m_window->dialogs.willChooseFile(path(u"names.pdf"_s));
        QVERIFY(!m_window->pane->print());
        QVERIFY(!QFile::exists(path(u"names.pdf"_s)));
    }

    void nothingButStopListensWhilePrinting()
    {
        m_window->showList(1000);
        bool isClosed = true;
        QTimer::singleShot(0, this, [&] {
            m_window->click("SSCommand80_1");
            QTest::keyClick(&m_window->view(), Qt::Key_End);
            isClosed = m_window->window.close();
        });
        m_window->dialogs.willChooseFile(path(u"names.pdf"_s));
        QVERIFY(m_window->pane->print());
        QVERIFY(!isClosed);
        QCOMPARE(m_window->label("Panel3D80"), u" Portrait"_s);
        QCOMPARE(m_window->pane->currentSheet(), 0);
        QCOMPARE(pdfSheets(path(u"names.pdf"_s)).size(), m_window->pane->sheetCount());
        m_window->click("SSCommand80_1"); // and all is as before
        QCOMPARE(m_window->label("Panel3D80"), u" Landscape"_s);
    }

private:
    QString path(const QString &name) const { return m_window->test.temporary.filePath(name); }
    /// Prints into a file, with what `choose` does in the printer's dialog.
    bool print(const std::function<void(QPrinter &)> &choose, bool isConfirmed = true)
    {
        m_window->dialogs.setPrinter(true);
        m_window->dialogs.willChoosePrinter([&](QPrinter &printer) {
            printer.setOutputFileName(path(m_printed));
            choose(printer);
            return isConfirmed;
        });
        return m_window->pane->print();
    }

    const QString m_printed = u"printed.pdf"_s;
    std::optional<PreviewWindow> m_window;
};

QTEST_MAIN(TestPrintJob)
#include "tst_printjob.moc"
