// SPDX-License-Identifier: GPL-3.0-or-later
#include "previewwindow.h"
#include "tests/support/sheettools.h"

#include <QDir>
#include <QPrinter>
#include <QStandardPaths>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList sheetsOf(const QString &pdf)
{
    return SheetTools::output(u"pdftotext"_s, {u"-layout"_s, pdf, u"-"_s}).split(u'\f', Qt::SkipEmptyParts);
}

/// The numbers that "Page n of m" gives to the sheets of a PDF, in its order.
QList<int> pageNumbers(const QString &pdf)
{
    QList<int> numbers;
    for (const QString &sheet : sheetsOf(pdf))
        numbers << sheet.mid(sheet.lastIndexOf(u"Page "_s) + 5).section(u' ', 0, 0).toInt();
    return numbers;
}

} // namespace

class TestPrintJob final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void savesAPdfWithoutAPrinter_data();
    void savesAPdfWithoutAPrinter();
    void leavesAFileAloneThatNobodyAgreedToReplace();
    void proposesANameThatFileSystemsTake();
    void saysQuietlyThatAPdfCannotBeSaved();
    void printsWhatTheDialogAskedFor_data();
    void printsWhatTheDialogAskedFor();
    void paginatesAnewForThePaperOfTheDialog();
    void cancellingThePrintDialogPrintsNothing();
    void printingManySheetsCanBeStopped();
    void nothingButStopListensWhilePrinting();

private:
    QString path(const QString &name) const { return m_test->temporary.filePath(name); }

    std::unique_ptr<TestProgram> m_test;
    std::unique_ptr<PreviewWindow> m_window;
};

void TestPrintJob::initTestCase()
{
    QStandardPaths::setTestModeEnabled(true);
}

void TestPrintJob::init()
{
    m_test = std::make_unique<TestProgram>();
    m_window = std::make_unique<PreviewWindow>(*m_test);
    showActive(*m_window);
}

void TestPrintJob::cleanup()
{
    QVERIFY(m_test->dialogs.isDone());
    m_window.reset();
    m_test.reset();
}

void TestPrintJob::savesAPdfWithoutAPrinter_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("written");
    QTest::newRow("as typed") << u"names.pdf"_s << u"names.pdf"_s;
    QTest::newRow("without the suffix") << u"names"_s << u"names.pdf"_s;
    QTest::newRow("another spelling of it") << u"names.PDF"_s << u"names.PDF"_s;
    QTest::newRow("a dot in the name") << u"names 11.2026"_s << u"names 11.2026.pdf"_s;
}

void TestPrintJob::savesAPdfWithoutAPrinter()
{
    QFETCH(QString, typed);
    QFETCH(QString, written);
    m_window->showList(60, u"Name List"_s);
    m_test->dialogs.willChooseFile(path(typed));
    m_window->click("SSCommand80_4");
    const QStringList asked = m_test->dialogs.takePrompts();
    QCOMPARE(asked.value(0), u"Print to File (PDF)"_s);
    QCOMPARE(asked.value(1), QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
                                 .filePath(u"Name List.pdf"_s));
    QCOMPARE(m_window->activity->message(), u"Saved as "_s + QDir::toNativeSeparators(path(written)));
    QCOMPARE(pageNumbers(path(written)), (QList<int>{1, 2}));
    QVERIFY(m_test->dialogs.takeShown().isEmpty());

    m_test->dialogs.willChooseFile({});
    QVERIFY(!m_window->pane->print());
    QCOMPARE(m_window->activity->message(), u""_s);
}

void TestPrintJob::leavesAFileAloneThatNobodyAgreedToReplace()
{
    QFile file(path(u"names.pdf"_s));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("mine") == 4);
    file.close();
    m_window->showList(1);
    m_test->dialogs.willChooseFile(path(u"names"_s));
    QVERIFY(m_window->pane->print());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), "mine");
    QCOMPARE(sheetsOf(path(u"names (2).pdf"_s)).size(), 1);
}

void TestPrintJob::proposesANameThatFileSystemsTake()
{
    m_window->showList(1, u"../Miller/Anne: \"list\"\n"_s);
    m_test->dialogs.willChooseFile({});
    m_window->click("SSCommand80_4");
    QCOMPARE(QFileInfo(m_test->dialogs.takePrompts().value(1)).fileName(), u"-Miller-Anne- -list--.pdf"_s);
}

void TestPrintJob::saysQuietlyThatAPdfCannotBeSaved()
{
    m_window->showList(1);
    QVERIFY(QDir(m_test->temporary.path()).mkdir(u"folder.pdf"_s));
    for (const QString &name : {u"missing/folder/names.pdf"_s, u"folder.pdf"_s}) {
        m_test->dialogs.willChooseFile(path(name));
        QVERIFY(!m_window->pane->print());
        QVERIFY(m_window->activity->message().startsWith(u"Could not save "_s +
                                                         QDir::toNativeSeparators(path(name))));
        QVERIFY(m_test->dialogs.takeShown().isEmpty());
    }
}

void TestPrintJob::printsWhatTheDialogAskedFor_data()
{
    using Choice = std::function<void(QPrinter &)>;
    QTest::addColumn<Choice>("choice");
    QTest::addColumn<QList<int>>("numbers");
    const auto row = [](const char *name, Choice choice, QList<int> numbers) {
        QTest::newRow(name) << choice << numbers;
    };
    row("everything", [](QPrinter &) {}, {1, 2, 3});
    row("a range",
        [](QPrinter &printer) {
            printer.setPrintRange(QPrinter::PageRange);
            printer.setFromTo(2, 3);
        },
        {2, 3});
    row("several ranges",
        [](QPrinter &printer) {
            printer.setPrintRange(QPrinter::PageRange);
            printer.setPageRanges(QPageRanges::fromString(u"1,3-9"_s));
        },
        {1, 3});
    row("the current page", [](QPrinter &printer) { printer.setPrintRange(QPrinter::CurrentPage); }, {2});
    row("backwards", [](QPrinter &printer) { printer.setPageOrder(QPrinter::LastPageFirst); }, {3, 2, 1});
    row("two copies",
        [](QPrinter &printer) {
            printer.setCopyCount(2);
            printer.setCollateCopies(true);
        },
        {1, 2, 3, 1, 2, 3});
    row("two copies, page by page",
        [](QPrinter &printer) {
            printer.setCopyCount(2);
            printer.setCollateCopies(false);
        },
        {1, 1, 2, 2, 3, 3});
    row("pages that do not exist",
        [](QPrinter &printer) {
            printer.setPrintRange(QPrinter::PageRange);
            printer.setFromTo(8, 9);
        },
        {});
}

void TestPrintJob::printsWhatTheDialogAskedFor()
{
    QFETCH(std::function<void(QPrinter &)>, choice);
    QFETCH(QList<int>, numbers);
    m_test->dialogs.setPrinter(true);
    m_window->showSheets(3);
    m_window->click("nextPage");
    m_test->dialogs.willChoosePrinter([&](QPrinter &printer) {
        printer.setOutputFileName(path(u"printed.pdf"_s));
        choice(printer);
        return true;
    });
    QCOMPARE(m_window->pane->print(), !numbers.isEmpty());
    QVERIFY(m_test->dialogs.takeShown().isEmpty());
    if (numbers.isEmpty())
        QCOMPARE(m_window->activity->message(), PreviewMessages::noSuchPage());
    else
        QCOMPARE(pageNumbers(path(u"printed.pdf"_s)), numbers);
}

void TestPrintJob::paginatesAnewForThePaperOfTheDialog()
{
    m_test->dialogs.setPrinter(true);
    m_window->showList(60);
    m_test->dialogs.willChoosePrinter([this](QPrinter &printer) {
        if (printer.pageLayout().pageSize().id() != QPageSize::Letter)
            QTest::qFail("the dialog does not start with the preview's paper", __FILE__, __LINE__);
        printer.setOutputFileName(path(u"printed.pdf"_s));
        printer.setPageSize(QPageSize(QPageSize::A4));
        printer.setPageOrientation(QPageLayout::Landscape);
        return true;
    });
    QVERIFY(m_window->pane->print());
    QCOMPARE(m_window->builtFor.constLast().orientation, PageSetup::Landscape);
    QCOMPARE(sheetsOf(path(u"printed.pdf"_s)).size(), 3);
    QCOMPARE(m_window->pane->setup().orientation, PageSetup::Portrait); // the preview stays as it is
    QCOMPARE(m_window->pane->sheetCount(), 2);
}

void TestPrintJob::cancellingThePrintDialogPrintsNothing()
{
    m_test->dialogs.setPrinter(true);
    m_window->showList(1);
    m_test->dialogs.willChoosePrinter([this](QPrinter &printer) {
        printer.setOutputFileName(path(u"printed.pdf"_s));
        return false;
    });
    QVERIFY(!m_window->pane->print());
    QVERIFY(!QFile::exists(path(u"printed.pdf"_s)));
    QCOMPARE(m_window->activity->message(), u""_s);
}

void TestPrintJob::printingManySheetsCanBeStopped()
{
    m_window->showList(2000);
    QTimer::singleShot(0, this, [this] {
        const QList<QPushButton *> buttons = m_window->activity->findChildren<QPushButton *>();
        for (QPushButton *button : buttons) {
            if (button->isVisible())
                QTest::mouseClick(button, Qt::LeftButton);
        }
    });
    m_test->dialogs.willChooseFile(path(u"names.pdf"_s));
    QVERIFY(!m_window->pane->print());
    QCOMPARE(m_window->activity->message(), PreviewMessages::printingStopped());
    QVERIFY(!QFile::exists(path(u"names.pdf"_s)));
    for (const QPushButton *button : m_window->activity->findChildren<QPushButton *>())
        QVERIFY(!button->isVisible());
}

void TestPrintJob::nothingButStopListensWhilePrinting()
{
    m_window->showList(1000);
    bool isClosed = true;
    QTimer::singleShot(0, this, [&] {
        m_window->click("SSCommand80_1");
        QTest::keyClick(&m_window->view(), Qt::Key_End);
        isClosed = m_window->close();
    });
    m_test->dialogs.willChooseFile(path(u"names.pdf"_s));
    QVERIFY(m_window->pane->print());
    QVERIFY(!isClosed);
    QCOMPARE(m_window->label("Panel3D80"), u" Portrait"_s);
    QCOMPARE(m_window->pane->currentSheet(), 0);
    QCOMPARE(sheetsOf(path(u"names.pdf"_s)).size(), m_window->pane->sheetCount());
    m_window->click("SSCommand80_1"); // and all is as before
    QCOMPARE(m_window->label("Panel3D80"), u" Landscape"_s);
}

QTEST_MAIN(TestPrintJob)
#include "tst_printjob.moc"
