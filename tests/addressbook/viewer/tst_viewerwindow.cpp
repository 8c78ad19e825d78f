#include "addressbook/entry/entrywindow.h"
#include "addressbook/model/messages.h"
#include "addressbook/model/viewermessages.h"
#include "addressbook/viewer/pictureswindow.h"
#include "addressbook/viewer/viewerwindow.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/gridview.h"
#include "shell/core/area.h"
#include "shell/core/settingskeys.h"
#include "shell/preview/previewpane.h"
#include "tests/support/scriptedmodem.h"
#include "tests/support/testprogram.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

using namespace Qt::Literals::StringLiterals;

class TestAddbkdisplay : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void opensWithEveryName();
    void showsTheChosenInformation_data();
    void showsTheChosenInformation();
    void asksForAMonth_data();
    void asksForAMonth();
    void narrowsToAMonth_data();
    void narrowsToAMonth();
    void saysWhenAMonthHasNobody();
    void asksForASearchText();
    void searchesWhileTyping();
    void saysWhenASearchFindsNobody();
    void removesARowFromTheGridOnly();
    void followsTheAddressBook();
    void sortsByItsHeadings();
    void remembersTheNameColumn();
    void dialsTheHighlightedNumber();
    void neverOpensThePortWithoutANumber();
    void opensTheMailProgram();
    void opensTheEntry();
    void keepsAGuardedAddressBookClosed();
    void copiesTheRows();
    void exportsTheGrid();
    void keepsAnExportOnCancel();
    void saysWhenAnExportFails();
    void printsTheListAsChosen();
    void printsThePictureList();
    void makesLabels();
    void saysWhyACommandIsNotOffered();
    void keepsItsPanelColor();
    void walksThroughARowByTab();
    void showsALongBook();
    void survivesMissingAndBadFiles_data();
    void survivesMissingAndBadFiles();

private:
    void open(TestProgram::Content content = TestProgram::Household);
    void click(const char *name) { QTest::mouseClick(control<QPushButton>(*m_window, name), Qt::LeftButton); }
    void choose(Information information);
    void chooseRange(DisplayRange::Kind kind);
    void type(const QString &text);
    GridView *grid() const { return control<GridView>(*m_window, "VSFlexGrid1"); }
    QString cell(int row, int column) const { return grid()->model()->index(row, column).data().toString(); }
    QString heading(int column) const
    {
        return grid()->model()->headerData(column, Qt::Horizontal).toString();
    }
    QString caption(const char *name) const { return control<QPushButton>(*m_window, name)->text(); }
    QString count() const { return control<QLabel>(*m_window, "nameCount")->text(); }
    QString said() const { return m_window->findChild<ActivityBar *>()->message(); }
    QString printedPage();

    std::unique_ptr<TestProgram> m_test;
    QPointer<ADDBKDISPLAY> m_window;
    TelephoneLine m_line;
    QList<QUrl> m_mail;
};

void TestAddbkdisplay::init()
{
    m_test = std::make_unique<TestProgram>(TestProgram::Household);
    m_line = {};
    m_mail.clear();
}

void TestAddbkdisplay::cleanup()
{
    delete m_window;
    QVERIFY(m_test->dialogs.isDone());
    m_test.reset();
}

void TestAddbkdisplay::open(TestProgram::Content content)
{
    if (content == TestProgram::Empty)
        m_test = std::make_unique<TestProgram>(TestProgram::Empty);
    m_window = new ADDBKDISPLAY(m_test->program, nullptr,
                                {[this] { return std::make_unique<ScriptedModem>(m_line); },
                                 [this](const QUrl &url) {
                                     m_mail << url;
                                     return true;
                                 }});
    showActive(*m_window);
}

void TestAddbkdisplay::choose(Information information)
{
    const QString name = u"information_"_s + QString::number(int(information));
    control<QRadioButton>(*m_window, qPrintable(name))->click();
}

void TestAddbkdisplay::chooseRange(DisplayRange::Kind kind)
{
    control<QRadioButton>(*m_window, qPrintable(u"range_"_s + QString::number(kind)))->click();
}

void TestAddbkdisplay::type(const QString &text)
{
    auto *box = control<QLineEdit>(*m_window, "searchText");
    box->selectAll();
    QTest::keyClicks(box, text);
}

/// The text of the page that the preview shows.
QString TestAddbkdisplay::printedPage()
{
    click("SSCommand80_3");
    m_test->dialogs.takeShown();
    return QApplication::clipboard()->text();
}

void TestAddbkdisplay::opensWithEveryName()
{
    open();
    QCOMPARE(m_window->windowTitle(), u"Family/Friends Data Viewer"_s);
    QCOMPARE(count(), u"No. Of Names: 40"_s);
    QCOMPARE(grid()->model()->rowCount(), 40);
    QCOMPARE(cell(0, 0), u"Kessler, Tessa"_s);
    QCOMPARE(cell(0, 1), u"160 High Street, Marburg, Germany, 35037"_s);
    QCOMPARE(caption("displayMode"), u"Current Display Mode: &View All"_s);
    QVERIFY(grid()->hasFocus());
    QCOMPARE(grid()->currentIndex(), grid()->model()->index(0, 0));
}

void TestAddbkdisplay::showsTheChosenInformation_data()
{
    QTest::addColumn<int>("choice");
    QTest::addColumn<QString>("heading");
    QTest::addColumn<QString>("text");
    QTest::newRow("State") << 1 << u"State"_s << u"Germany"_s;
    QTest::newRow("Home Phone") << 2 << u"Home Phone"_s << u"(440) 555-0100"_s;
    QTest::newRow("Date of Birth") << 6 << u"Date of Birth"_s << u"Apr-21-1997"_s;
    QTest::newRow("Pictures - Print Only") << 8 << QString() << QString();
}

void TestAddbkdisplay::showsTheChosenInformation()
{
    QFETCH(int, choice);
    open();
    grid()->setCurrentIndex(grid()->model()->index(4, 1));
    choose(Information(choice));
    QCOMPARE(grid()->model()->columnCount(), choice == 8 ? 1 : 2);
    QTEST(heading(1), "heading");
    QTEST(cell(0, 1), "text");
    QCOMPARE(control<QLabel>(*m_window, "informationChip")->text(),
             QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(grid()->currentIndex().row(), 4);
}

void TestAddbkdisplay::asksForAMonth_data()
{
    QTest::addColumn<DisplayRange::Kind>("kind");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("question");
    const QString birth = u"Please enter Birthday Month!"_s,
                  anniversary = u"Please enter Anniversary Month!"_s;
    QTest::newRow("birthday") << DisplayRange::BirthMonth << QString() << birth;
    QTest::newRow("anniversary") << DisplayRange::AnniversaryMonth << QString() << anniversary;
    QTest::newRow("no month") << DisplayRange::BirthMonth << u"Foo"_s << birth;
}

void TestAddbkdisplay::asksForAMonth()
{
    QFETCH(DisplayRange::Kind, kind);
    QFETCH(QString, typed);
    QFETCH(QString, question);
    open();
    auto *month =
        control<QComboBox>(*m_window, kind == DisplayRange::BirthMonth ? "birthMonth" : "anniversaryMonth");
    month->setEditText(typed);
    chooseRange(kind);
    click("updateDisplay");
    QCOMPARE(m_test->dialogs.takeShown(), {(Message{u"Display Option"_s, question})});
    QVERIFY(month->hasFocus());
    QCOMPARE(count(), u"No. Of Names: 40"_s);
}

void TestAddbkdisplay::narrowsToAMonth_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("three letters") << u"Apr"_s;
    QTest::newRow("its name") << u"april"_s;
    QTest::newRow("its number") << u"4"_s;
}

void TestAddbkdisplay::narrowsToAMonth()
{
    QFETCH(QString, typed);
    open();
    auto *month = control<QComboBox>(*m_window, "birthMonth");
    month->setFocus();
    QTest::keyClicks(month->lineEdit(), typed); // which chooses the range, too
    QTest::keyClick(month->lineEdit(), Qt::Key_Return);
    QCOMPARE(count(), u"No. Of Names: 7"_s);
    QCOMPARE(cell(0, 0), u"Kessler, Tessa"_s);
    QCOMPARE(cell(6, 0), u"Drummond, Leonora"_s);
    choose(Information::BirthDate); // within the same month
    QCOMPARE(cell(6, 1), u"Apr-16-1958"_s);
    chooseRange(DisplayRange::All);
    QCOMPARE(count(), u"No. Of Names: 7"_s);
    click("updateDisplay");
    QCOMPARE(count(), u"No. Of Names: 40"_s);
}

void TestAddbkdisplay::saysWhenAMonthHasNobody()
{
    open();
    control<QComboBox>(*m_window, "anniversaryMonth")->setCurrentText(u"Dec"_s);
    click("updateDisplay");
    QCOMPARE(grid()->model()->rowCount(), 1);
    QCOMPARE(cell(0, 0), u"No Names Found with Info..."_s);
    QCOMPARE(count(), u"No. Of Names: 0"_s);
    QVERIFY(!control<QPushButton>(*m_window, "removeRow")->isEnabled());
}

void TestAddbkdisplay::asksForASearchText()
{
    open();
    type(u"  "_s);
    click("searchButton");
    QCOMPARE(m_test->dialogs.takeShown(),
             {(Message{u"Search"_s, u"Please Enter Search Text then press Search!"_s})});
    QVERIFY(control<QLineEdit>(*m_window, "searchText")->hasFocus());
}

void TestAddbkdisplay::searchesWhileTyping()
{
    open();
    choose(Information::HomePhone);
    type(u"mil"_s);
    QCOMPARE(count(), u"No. Of Matches Found: 3"_s);
    type(u"mill"_s);
    QCOMPARE(count(), u"No. Of Matches Found: 2"_s);
    QCOMPARE(caption("displayMode"), u"Current Display Mode: &Search For: [mill]"_s);
    QCOMPARE(cell(1, 0), u"Miller, Anne"_s);
    click("searchButton");
    QVERIFY(grid()->hasFocus());
    QCOMPARE(count(), u"No. Of Matches Found: 2"_s);
    choose(Information::Address); // the search goes through what is shown
    QVERIFY(count() != u"No. Of Matches Found: 2"_s);
    click("displayMode");
    QCOMPARE(count(), u"No. Of Names: 40"_s);
    QCOMPARE(caption("displayMode"), u"Current Display Mode: &View All"_s);
}

void TestAddbkdisplay::saysWhenASearchFindsNobody()
{
    open();
    type(u"a & b"_s);
    QCOMPARE(cell(0, 0), u"No Matches were Found!"_s);
    QCOMPARE(count(), u"No. Of Matches Found: 0"_s);
    QCOMPARE(caption("displayMode"), u"Current Display Mode: &Search For: [a && b]"_s);
    QTest::keyClick(control<QLineEdit>(*m_window, "searchText"), Qt::Key_Escape);
    QCOMPARE(grid()->model()->rowCount(), 40);
}

void TestAddbkdisplay::removesARowFromTheGridOnly()
{
    open();
    const QByteArray entries = m_test->bytes(u"Addbk1.Fil"_s), lines = m_test->bytes(u"Addbk2.Fil"_s);
    grid()->setCurrentIndex(grid()->model()->index(1, 0));
    m_test->dialogs.willAnswer(Answer::No);
    click("removeRow");
    QCOMPARE(m_test->dialogs.takeShown(), {ViewerMessages::removeRow()});
    QCOMPARE(count(), u"No. Of Names: 40"_s);
    m_test->dialogs.willAnswer(Answer::Yes);
    QTest::keyClick(grid(), Qt::Key_Delete);
    QCOMPARE(count(), u"No. Of Names: 39"_s);
    QCOMPARE(cell(1, 0), u"Miller, Anne"_s);
    QCOMPARE(m_test->bytes(u"Addbk1.Fil"_s), entries);
    QCOMPARE(m_test->bytes(u"Addbk2.Fil"_s), lines);
    delete m_window;
    m_test->dialogs.takeShown();
    open();
    QCOMPARE(count(), u"No. Of Names: 40"_s);
}

void TestAddbkdisplay::followsTheAddressBook()
{
    open();
    choose(Information::State);
    type(u"Kessler"_s);
    grid()->setCurrentIndex(grid()->model()->index(1, 1));
    QWidget other;
    showActive(other);
    QByteArray entries = m_test->bytes(u"Addbk1.Fil"_s);
    entries.replace(724 + 6 * 40, 7, "Austria");
    m_test->setBytes(u"Addbk1.Fil"_s, entries);
    QFile file(m_test->path(u"Addbk1.Fil"_s));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime(QDate(2030, 1, 1), QTime()), QFileDevice::FileModificationTime));
    QCOMPARE(cell(0, 1), u"Germany"_s);
    showActive(*m_window);
    QCOMPARE(cell(0, 1), u"Austria"_s);
    QCOMPARE(grid()->currentIndex(), grid()->model()->index(1, 1));
    QCOMPARE(caption("displayMode"), u"Current Display Mode: &Search For: [Kessler]"_s);
}

void TestAddbkdisplay::sortsByItsHeadings()
{
    open();
    QHeaderView *head = grid()->horizontalHeader();
    const auto clickHeading = [head](int column) {
        const QPoint place(head->sectionViewportPosition(column) + 20, head->height() / 2);
        QTest::mouseClick(head->viewport(), Qt::LeftButton, {}, place);
    };
    grid()->setCurrentIndex(grid()->model()->index(0, 0));
    clickHeading(0);
    QCOMPARE(cell(0, 0), u"Ångström, Bjørn"_s);
    QCOMPARE(grid()->currentIndex().data().toString(), u"Kessler, Tessa"_s);
    clickHeading(0);
    QCOMPARE(cell(0, 0), u"Ziegler, Louis"_s);
    clickHeading(0);
    QCOMPARE(cell(0, 0), u"Kessler, Tessa"_s);
    clickHeading(1);
    QCOMPARE(cell(0, 1).left(2), u"10"_s);
    // The same by the menu.
    control<QAction>(*m_window, "mOSName")->trigger();
    QCOMPARE(cell(0, 0), u"Ångström, Bjørn"_s);
    control<QAction>(*m_window, "mOSName")->trigger();
    QCOMPARE(cell(0, 0), u"Ziegler, Louis"_s);
    control<QAction>(*m_window, "mOSRec")->trigger();
    QCOMPARE(cell(0, 0), u"Kessler, Tessa"_s);
}

void TestAddbkdisplay::remembersTheNameColumn()
{
    open();
    grid()->horizontalHeader()->resizeSection(0, 217);
    choose(Information::Pictures);
    choose(Information::State);
    QCOMPARE(grid()->columnWidth(0), 217);
    delete m_window;
    open();
    QCOMPARE(grid()->columnWidth(0), 217);
}

void TestAddbkdisplay::dialsTheHighlightedNumber()
{
    open();
    choose(Information::HomePhone);
    grid()->setCurrentIndex(grid()->model()->index(0, 1));
    m_test->dialogs.willAnswer(Answer::Ok);
    click("Image2");
    QCOMPARE(m_line.log, QStringList({u"open 3"_s, u"ATDT (440) 555-0100;\r"_s, u"ATH\r"_s, u"close"_s}));
    QCOMPARE(m_test->dialogs.takeShown(), {AddressMessages::numberDialed(u"(440) 555-0100"_s)});
}

void TestAddbkdisplay::neverOpensThePortWithoutANumber()
{
    open();
    choose(Information::FaxNumber);
    int row = 0;
    while (!cell(row, 1).isEmpty())
        ++row;
    QVERIFY(row < 40);
    grid()->setCurrentIndex(grid()->model()->index(row, 1));
    click("Image2");
    QCOMPARE(m_test->dialogs.takeShown(), {AddressMessages::telephoneNumberMissing()});
    QVERIFY(m_line.log.isEmpty());
}

void TestAddbkdisplay::opensTheMailProgram()
{
    open();
    choose(Information::EmailAddress);
    int row = 0;
    while (!cell(row, 1).contains(u'@'))
        ++row;
    const QModelIndex address = grid()->model()->index(row, 1);
    grid()->setCurrentIndex(address);
    grid()->scrollTo(address);
    click("writeMail");
    const QRect place = grid()->visualRect(address);
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {},
                      place.topLeft() + QPoint(14, place.height() / 2));
    // Beside the text nothing is followed.
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {},
                      place.topRight() + QPoint(-3, place.height() / 2));
    const QUrl expected(u"mailto:"_s + cell(row, 1));
    QCOMPARE(m_mail, QList({expected, expected}));
}

void TestAddbkdisplay::opensTheEntry()
{
    m_test->functions.add(Function::AddressBook,
                          {[](Program &program) { return new ADDBKVIEW(program); }, {}, {}, {}, {}});
    open();
    const QModelIndex row = grid()->model()->index(4, 0);
    QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, grid()->visualRect(row).center());
    QTest::mouseDClick(grid()->viewport(), Qt::LeftButton, {}, grid()->visualRect(row).center());
    const QList<QWidget *> windows = m_test->functions.openWindows();
    QCOMPARE(windows.size(), 1);
    QCOMPARE(control<QLineEdit>(*windows.first(), "Text1_0")->text(), u"Jarvis"_s);
    grid()->setCurrentIndex(grid()->model()->index(5, 0));
    click("openEntry");
    QCOMPARE(control<QLineEdit>(*windows.first(), "Text1_0")->text(), u"Ortega"_s);
    delete windows.first();
}

void TestAddbkdisplay::keepsAGuardedAddressBookClosed()
{
    m_test->functions.add(Function::AddressBook,
                          {[](Program &program) { return new ADDBKVIEW(program); }, {}, {}, {}, {}});
    m_test->gate = AccessGate(
        [](Program &program, QWidget *) { program.state.passwordGateResult = PasswordGateResult::Refused; });
    m_test->state.protectedAreas.setFlag(Area::AddressBook, u"YES"_s);
    open();
    click("openEntry");
    QVERIFY(m_test->functions.openWindows().isEmpty());
}

void TestAddbkdisplay::copiesTheRows()
{
    open();
    choose(Information::State);
    type(u"Holm"_s);
    type(u"Ortega"_s);
    control<QAction>(*m_window, "mOCopy")->trigger();
    QCOMPARE(m_test->dialogs.takeShown(), {AddressMessages::dataCopied()});
    QCOMPARE(QApplication::clipboard()->text(), u"Name\tState\nOrtega, José\tOH\n"_s);
}

void TestAddbkdisplay::exportsTheGrid()
{
    open();
    const QString name = u"Family-Friends Data Viewer.xls"_s;
    m_test->setBytes(name, "an older file of the name");
    choose(Information::State);
    type(u"ortega"_s);
    m_test->dialogs.willAnswer(Answer::Ok);
    control<QAction>(*m_window, "mOExp")->trigger();
    const Message notice = m_test->dialogs.takeShown().constFirst();
    QCOMPARE(notice.title, u"Export File in Excel/Spreadsheet Format"_s);
    QVERIFY(notice.text.contains(m_test->folder.path()) && notice.text.contains(name));
    QCOMPARE(m_test->bytes(name), "Name\tState\r\nOrtega, Jos\xE9\tOH\r\n");
    QVERIFY(said().contains(name));
}

void TestAddbkdisplay::keepsAnExportOnCancel()
{
    open();
    m_test->dialogs.willAnswer(Answer::Cancel);
    control<QAction>(*m_window, "mOExp")->trigger();
    QVERIFY(!m_test->folder.exists(u"Family-Friends Data Viewer.xls"_s));
}

void TestAddbkdisplay::saysWhenAnExportFails()
{
    open();
    QVERIFY(QDir(m_test->folder.path()).mkdir(u"Family-Friends Data Viewer.xls"_s));
    m_test->dialogs.willAnswer(Answer::Ok);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Family-Friends"_s));
    control<QAction>(*m_window, "mOExp")->trigger();
    QCOMPARE(said(), u"The file Family-Friends Data Viewer.xls could not be saved"_s);
}

void TestAddbkdisplay::printsTheListAsChosen()
{
    open();
    choose(Information::State);
    control<QAction>(*m_window, "mOPrt")->trigger();
    control<QRadioButton>(*m_window, "twoColumns")->click();
    click("printList");
    QVERIFY(m_window->isPreviewShown());
    auto *preview = m_window->findChild<PreviewPane *>();
    QCOMPARE(preview->sheetCount(), 1); // forty names in two columns
    const QString names = printedPage();
    QVERIFY(names.contains(u"Family/Friends State List - Page No. 1\n"_s));
    QVERIFY(names.contains(u"Kessler, Tessa\tGermany"_s));
    QVERIFY(names.endsWith(u"Quillery\nPrinted on 11/21/2026"_s));

    QTest::keyClick(preview, Qt::Key_Escape);
    QVERIFY(!m_window->isPreviewShown());
    for (const char *option : {"printTelephones", "printAsOf", "printGridLines"})
        control<QCheckBox>(*m_window, option)->click();
    control<QRadioButton>(*m_window, "oneColumn")->click();
    click("printList");
    const QString text = printedPage();
    QVERIFY(text.contains(u"Family/Friends State List - Page No. 1\tAs of  Saturday, November 21, 2026"_s));
    QVERIFY(text.contains(u"Kessler, Tessa    Phone: (440) 555-0100\tGermany"_s));
}

void TestAddbkdisplay::printsThePictureList()
{
    open();
    choose(Information::Pictures);
    control<QAction>(*m_window, "mOPrt")->trigger();
    QTRY_VERIFY_WITH_TIMEOUT(m_window->isPreviewShown(), 30000);
    QCOMPARE(m_window->findChild<PreviewPane *>()->sheetCount(), 2);
    const QString text = printedPage();
    QVERIFY(text.contains(u"Family/Friends Picture List - Saturday, November 21, 2026"_s));
    QVERIFY(text.contains(u"Vance, Ulrich"_s)); // whose picture is not there
    QVERIFY(!text.contains(u"Quill, David"_s));
}

void TestAddbkdisplay::makesLabels()
{
    open();
    type(u"Drummond"_s);
    control<QAction>(*m_window, "mOLab")->trigger();
    auto *sheets = control<QComboBox>(*m_window, "labelSheet");
    QVERIFY(sheets->currentText().contains(u"US Letter"_s));
    const auto words = [this] { return control<QLabel>(*m_window, "labelCount")->text(); };
    QCOMPARE(words(), u"4 labels on 1 sheet"_s);
    type(u"Drummond, F"_s); // the labels follow the grid
    QTRY_COMPARE(words(), u"1 label on 1 sheet"_s);
    type(u"Drummond"_s);
    QTRY_COMPARE(words(), u"4 labels on 1 sheet"_s);
    control<QSpinBox>(*m_window, "startPosition")->setValue(28);
    QCOMPARE(words(), u"4 labels on 2 sheets"_s);
    m_test->dialogs.willChooseFile(m_test->temporary.filePath(u"labels.pdf"_s));
    click("printLabels");
    QVERIFY(QFile::exists(m_test->temporary.filePath(u"labels.pdf"_s)));
    sheets->setCurrentText(u"Envelope DL, 220 x 110 mm"_s);
    QCOMPARE(words(), u"4 envelopes"_s);
    QVERIFY(!control<QSpinBox>(*m_window, "startPosition")->isVisible());
    QTest::keyClick(sheets, Qt::Key_Escape);
    QVERIFY(grid()->isVisible());
}

void TestAddbkdisplay::saysWhyACommandIsNotOffered()
{
    open();
    for (const char *name : {"Image2", "writeMail"}) {
        QVERIFY(!control<QPushButton>(*m_window, name)->isEnabled());
        QVERIFY(control<QPushButton>(*m_window, name)->toolTip().startsWith(u"Choose"_s));
    }
    int unreadable = 0; // a name too long for its line leads to no entry
    while (!cell(unreadable, 0).endsWith(u"Xenia"_s))
        ++unreadable;
    grid()->setCurrentIndex(grid()->model()->index(unreadable, 0));
    QVERIFY(!control<QPushButton>(*m_window, "openEntry")->isEnabled());
    QVERIFY(control<QPushButton>(*m_window, "removeRow")->isEnabled());
}

void TestAddbkdisplay::keepsItsPanelColor()
{
    open();
    m_test->dialogs.willAnswer(Answer::Yes);
    m_test->dialogs.willChooseColor(QColor(1, 2, 3));
    m_test->dialogs.willAnswer(Answer::Yes); // save it
    m_test->dialogs.willAnswer(Answer::No);  // but not for every window
    control<QAction>(*m_window, "mOC")->trigger();
    QCOMPARE(m_test->bytes(u"GColor3.Fil"_s).mid(203 * 20, 8), QByteArray("\x06\0"
                                                                          "197121",
                                                                          8));
    delete m_window;
    open();
    QCOMPARE(control<QWidget>(*m_window, "Panel3D1")->palette().color(QPalette::Window), QColor(1, 2, 3));
}

void TestAddbkdisplay::walksThroughARowByTab()
{
    open();
    grid()->setFocus();
    QTest::keyClick(grid(), Qt::Key_Tab);
    QCOMPARE(grid()->currentIndex().column(), 1);
    QTest::keyClick(grid(), Qt::Key_Tab);
    QVERIFY(!grid()->hasFocus());
}

void TestAddbkdisplay::showsALongBook()
{
    QByteArray lines(60, '\0'), entries(724, '\0');
    for (int record = 2; record < 1002; ++record) {
        const QByteArray line = QByteArray("Lind, Anne").leftJustified(47) + QByteArray::number(record);
        const QByteArray bytes = QByteArray(1, char(line.size())) + '\0' + line;
        lines += bytes.leftJustified(60, ' ');
        entries += QByteArray("Lind").leftJustified(40) + QByteArray("Anne").leftJustified(684);
    }
    m_test = std::make_unique<TestProgram>(TestProgram::Empty);
    m_test->setBytes(u"Addbk1.Fil"_s, entries);
    m_test->setBytes(u"Addbk2.Fil"_s, lines);
    m_window = new ADDBKDISPLAY(m_test->program);
    QVERIFY(grid()->model()->rowCount() < 1000); // the first rows are there before the window is
    showActive(*m_window);
    QTRY_COMPARE(count(), u"No. Of Names: 1000"_s);
    grid()->setCurrentIndex(grid()->model()->index(900, 0));
    choose(Information::State);
    QCOMPARE(count(), u"No. Of Names: 1000"_s);
    QCOMPARE(grid()->currentIndex().row(), 900);
}

void TestAddbkdisplay::survivesMissingAndBadFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("missing") << QByteArray();
    QTest::newRow("noise") << QByteArray("\x03\x00zzz\xFF\xFE\x01", 8).repeated(999);
    QTest::newRow("zeros") << QByteArray(5000, '\0');
}

void TestAddbkdisplay::survivesMissingAndBadFiles()
{
    QFETCH(QByteArray, bytes);
    m_test = std::make_unique<TestProgram>(TestProgram::Empty);
    if (!bytes.isEmpty()) {
        m_test->setBytes(u"Addbk1.Fil"_s, bytes);
        m_test->setBytes(u"Addbk2.Fil"_s, bytes);
    }
    m_window = new ADDBKDISPLAY(m_test->program);
    showActive(*m_window);
    for (int choice = 0; choice < informationCount; ++choice) {
        choose(Information(choice));
        grid()->selectAll();
        type(u"z"_s);
        control<QLineEdit>(*m_window, "searchText")->clear();
    }
    if (bytes.isEmpty())
        QCOMPARE(cell(0, 0), u"No Names Found with Info..."_s);
    QVERIFY(!bytes.isEmpty() || !m_test->folder.exists(u"Addbk2.Fil"_s));
}

QTEST_MAIN(TestAddbkdisplay)
#include "tst_viewerwindow.moc"
