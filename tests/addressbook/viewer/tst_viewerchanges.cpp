#include "addressbook/model/addressviewer.h"
#include "addressbook/model/viewermessages.h"
#include "addressbook/viewer/viewerwindow.h"
#include "shell/controls/gridview.h"
#include "tests/support/testprogram.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>

using namespace Qt::Literals::StringLiterals;

/// The viewer while its files change, while something stands over its grid, and where it has little room.
class TestAddbkdisplayChanges : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void keepsToItsEntry_data();
    void keepsToItsEntry();
    void showsTheGridToItsCommands_data();
    void showsTheGridToItsCommands();
    void keepsTheInformationInSight();
    void fitsASmallWindow();
    void sortsByNothingUnseen();

private:
    void choose(Information information)
    {
        const QString name = u"information_"_s + QString::number(int(information));
        control<QRadioButton>(*m_window, qPrintable(name))->click();
    }
    void trigger(const char *name) { control<QAction>(*m_window, name)->trigger(); }
    GridView *grid() const { return control<GridView>(*m_window, "VSFlexGrid1"); }
    QString name(int row) const { return grid()->model()->index(row, 0).data().toString(); }
    bool isOffered(const char *button) const { return control<QPushButton>(*m_window, button)->isEnabled(); }

    std::unique_ptr<TestProgram> m_test;
    std::unique_ptr<ADDBKDISPLAY> m_window;
};

void TestAddbkdisplayChanges::init()
{
    m_test = std::make_unique<TestProgram>(TestProgram::Household);
    m_window = std::make_unique<ADDBKDISPLAY>(m_test->program);
    m_window->setAttribute(Qt::WA_DeleteOnClose, false);
    showActive(*m_window);
}

void TestAddbkdisplayChanges::cleanup()
{
    m_window.reset();
    QVERIFY(m_test->dialogs.isDone());
    m_test.reset();
}

void TestAddbkdisplayChanges::keepsToItsEntry_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("current");
    QTest::addColumn<QString>("count");
    QTest::newRow("renamed") << QByteArray("Ortiga, ") << u"Ortiga, José"_s << u"No. Of Names: 39"_s;
    QTest::newRow("deleted") << QByteArray("####ga, ") << QString() << u"No. Of Names: 38"_s;
}

/// Also to what was removed by hand.
void TestAddbkdisplayChanges::keepsToItsEntry()
{
    choose(Information::HomePhone);
    m_test->dialogs.willAnswer(Answer::Yes);
    QTest::keyClick(grid(), Qt::Key_Delete);
    m_test->dialogs.takeShown();
    int row = 0;
    while (!name(row).startsWith(u"Ortega"_s))
        ++row;
    grid()->setCurrentIndex(grid()->model()->index(row, 0));
    QWidget other;
    showActive(other);
    QFETCH(QByteArray, line);
    m_test->setBytes(u"Addbk2.Fil"_s, m_test->bytes(u"Addbk2.Fil"_s).replace("Ortega, ", line));
    QFile file(m_test->path(u"Addbk2.Fil"_s));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(QDateTime(QDate(2030, 1, 1), QTime()), QFileDevice::FileModificationTime));
    showActive(*m_window);
    QTEST(grid()->currentIndex().data().toString(), "current");
    QTEST(control<QLabel>(*m_window, "nameCount")->text(), "count");
    for (const char *button : {"Image2", "removeRow", "openEntry"})
        QCOMPARE(isOffered(button), grid()->currentIndex().isValid());
}

void TestAddbkdisplayChanges::showsTheGridToItsCommands_data()
{
    QTest::addColumn<bool>("isPreview");
    QTest::addColumn<QByteArray>("panel");
    QTest::addColumn<QByteArray>("command"); // none: the search
    QTest::newRow("delete, preview") << true << QByteArray("mOPrt") << QByteArray("mODel");
    QTest::newRow("delete, labels") << false << QByteArray("mOLab") << QByteArray("mEDel");
    QTest::newRow("mode, preview") << true << QByteArray("mOPrt") << QByteArray("mOM");
    QTest::newRow("sort, preview") << true << QByteArray("mOPrt") << QByteArray("mOSName");
    QTest::newRow("search, labels") << false << QByteArray("mOLab") << QByteArray();
    QTest::newRow("search, print options") << false << QByteArray("mOPrt") << QByteArray();
}

void TestAddbkdisplayChanges::showsTheGridToItsCommands()
{
    QFETCH(bool, isPreview);
    QFETCH(QByteArray, panel);
    QFETCH(QByteArray, command);
    trigger(panel);
    if (isPreview)
        QTest::mouseClick(control<QPushButton>(*m_window, "printList"), Qt::LeftButton);
    QVERIFY(!grid()->isVisible());
    if (command.isEmpty()) {
        auto *box = control<QLineEdit>(*m_window, "searchText");
        QTest::keyClicks(box, u"mill"_s);
        QTest::keyClick(box, Qt::Key_Return);
    } else {
        if (command.endsWith("Del"))
            m_test->dialogs.willAnswer(Answer::No);
        trigger(command);
        m_test->dialogs.takeShown();
    }
    QVERIFY(grid()->isVisible());
    QVERIFY(m_window->focusWidget()->isVisible());
}

void TestAddbkdisplayChanges::keepsTheInformationInSight()
{
    m_window->resize(1280, 800);
    QHeaderView *head = grid()->horizontalHeader();
    head->resizeSection(0, 5000);
    const int wide = grid()->columnWidth(0);
    QVERIFY(grid()->columnWidth(1) >= 100 && wide > grid()->columnWidth(1));
    m_window->resize(800, 600);
    QTRY_VERIFY(grid()->columnWidth(0) < wide);
    QVERIFY(grid()->columnViewportPosition(1) + 100 <= grid()->viewport()->width());
    m_window->resize(1280, 800);
    QTRY_COMPARE(grid()->columnWidth(0), wide); // what was wished for is not forgotten
}

void TestAddbkdisplayChanges::fitsASmallWindow()
{
    m_window->resize(800, 600);
    QCOMPARE(m_window->size(), QSize(800, 600));
    auto *choices = control<QScrollArea>(*m_window, "choicesScroll");
    QVERIFY(choices->viewport()->width() >= choices->widget()->minimumSizeHint().width());
    QTest::keyClicks(control<QLineEdit>(*m_window, "searchText"), u"a text longer than its button"_s);
    QCoreApplication::processEvents();
    auto *mode = control<QPushButton>(*m_window, "displayMode");
    QVERIFY(mode->text().contains(u"[a"_s) && mode->width() >= mode->sizeHint().width());
    control<QLineEdit>(*m_window, "searchText")->clear();
    trigger("mOLab");
    QCoreApplication::processEvents();
    QCOMPARE(m_window->size(), QSize(800, 600));
    auto *labels = control<QScrollArea>(*m_window, "labelChoices");
    QVERIFY(labels->viewport()->width() >= labels->widget()->minimumSizeHint().width());
}

/// The path of a picture is in the files only.
void TestAddbkdisplayChanges::sortsByNothingUnseen()
{
    trigger("mOSInfo");
    const QString first = name(0);
    choose(Information::Pictures);
    QCOMPARE(name(0), u"Kessler, Tessa"_s);
    QVERIFY(!control<QAction>(*m_window, "mOSInfo")->isEnabled());
    choose(Information::Address);
    QCOMPARE(name(0), first);
}

QTEST_MAIN(TestAddbkdisplayChanges)
#include "tst_viewerchanges.moc"
