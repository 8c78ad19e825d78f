// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/entrywindow.h"
#include "addressbook/model/messages.h"
#include "addressbook/model/viewermessages.h"
#include "shell/core/area.h"
#include "tests/addressbook/viewer/openviewer.h"

#include <QComboBox>
#include <QScrollArea>

using namespace Qt::Literals::StringLiterals;

/// What the viewer's side pane, menus and buttons do.
class TestAddbkdisplay : public OpenViewer
{
    Q_OBJECT

private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void opensWithEveryName()
    {
        QCOMPARE(m_window->windowTitle(), u"Family/Friends Data Viewer"_s);
        QCOMPARE(count(), u"No. Of Names: 40"_s);
        QCOMPARE(grid()->model()->rowCount(), 40);
        QCOMPARE(cell(0, 0), u"Kessler, Tessa"_s);
        QCOMPARE(cell(0, 1), u"160 High Street, Marburg, Germany, 35037"_s);
        QCOMPARE(mode(), u"Current Display Mode: &View All"_s);
        QVERIFY(grid()->hasFocus());
        QCOMPARE(grid()->currentIndex(), grid()->model()->index(0, 0));
    }

    void showsTheChosenInformation()
    {
        const std::tuple<Information, QString, QString> choices[]{
            {Information::State, u"State"_s, u"Germany"_s},
            {Information::HomePhone, u"Home Phone"_s, u"(440) 555-0100"_s},
            {Information::BirthDate, u"Date of Birth"_s, u"Apr-21-1997"_s},
            {Information::Pictures, {}, {}}};
        select(4, 1);
        for (const auto &[information, head, text] : choices) {
            choose(information);
            QCOMPARE(grid()->model()->columnCount(), head.isEmpty() ? 1 : 2);
            QCOMPARE(grid()->model()->headerData(1, Qt::Horizontal).toString(), head);
            QCOMPARE(cell(0, 1), text);
            QCOMPARE(labelText("informationChip"), head.isEmpty() ? u"Pictures - Print Only"_s : head);
            QCOMPARE(grid()->currentIndex().row(), 4);
        }
    }

    void asksForAMonth()
    {
        const auto asks = [this](DisplayRange::Kind kind, const char *box, const QString &typed) {
            find<QComboBox>(box)->setEditText(typed);
            chooseRange(kind);
            click("updateDisplay");
            return find<QComboBox>(box)->hasFocus() && count() == u"No. Of Names: 40"_s ? asked()
                                                                                        : QList<Message>();
        };
        const Message birth{u"Display Option"_s, u"Please enter Birthday Month!"_s};
        const Message anniversary{u"Display Option"_s, u"Please enter Anniversary Month!"_s};
        QCOMPARE(asks(DisplayRange::BirthMonth, "birthMonth", {}), {birth});
        QCOMPARE(asks(DisplayRange::AnniversaryMonth, "anniversaryMonth", {}), {anniversary});
        QCOMPARE(asks(DisplayRange::BirthMonth, "birthMonth", u"Foo"_s), {birth});
    }

    void narrowsToAMonth()
    {
        auto *month = find<QComboBox>("birthMonth");
        month->setFocus();
        QTest::keyClicks(month->lineEdit(), u"april"_s); // which chooses the range, too
        QTest::keyClick(month->lineEdit(), Qt::Key_Return);
        QCOMPARE(count(), u"No. Of Names: 7"_s);
        QCOMPARE(cell(0, 0), u"Kessler, Tessa"_s);
        choose(Information::BirthDate); // within the same month
        QCOMPARE(cell(6, 1), u"Apr-16-1958"_s);
        QCOMPARE(said(), u"Birthdays in April"_s);
        chooseRange(DisplayRange::All);
        QCOMPARE(count(), u"No. Of Names: 7"_s);
        click("updateDisplay");
        QCOMPARE(count(), u"No. Of Names: 40"_s);
        // A month that has nobody.
        find<QComboBox>("anniversaryMonth")->setCurrentText(u"Dec"_s);
        click("updateDisplay");
        QCOMPARE(grid()->model()->rowCount(), 1);
        QCOMPARE(cell(0, 0), u"No Names Found with Info..."_s);
        QCOMPARE(count(), u"No. Of Names: 0"_s);
        QVERIFY(!isOffered("removeRow"));
    }

    void searches()
    {
        choose(Information::HomePhone);
        type(u"mil"_s);
        QCOMPARE(count(), u"No. Of Matches Found: 3"_s);
        type(u"mill"_s);
        QCOMPARE(count(), u"No. Of Matches Found: 2"_s);
        QCOMPARE(mode(), u"Current Display Mode: &Search For: [mill]"_s);
        QCOMPARE(find<QAction>("mOM")->text(), mode());
        QCOMPARE(cell(1, 0), u"Miller, Anne"_s);
        click("searchButton");
        QVERIFY(grid()->hasFocus());
        QCOMPARE(count(), u"No. Of Matches Found: 2"_s);
        choose(Information::Address); // the search goes through what is shown
        QVERIFY(count() != u"No. Of Matches Found: 2"_s);
        click("displayMode");
        QCOMPARE(count(), u"No. Of Names: 40"_s);
        QCOMPARE(mode(), u"Current Display Mode: &View All"_s);
        // Where nobody is found.
        type(u"a & b"_s);
        QCOMPARE(cell(0, 0), u"No Matches were Found!"_s);
        QCOMPARE(count(), u"No. Of Matches Found: 0"_s);
        QCOMPARE(mode(), u"Current Display Mode: &Search For: [a && b]"_s);
        QTest::keyClick(searchBox(), Qt::Key_Escape);
        QCOMPARE(grid()->model()->rowCount(), 40);
        // Without a text.
        type(u"  "_s);
        click("searchButton");
        QCOMPARE(asked(), {(Message{u"Search"_s, u"Please Enter Search Text then press Search!"_s})});
        QVERIFY(searchBox()->hasFocus());
        QTest::keyClick(searchBox(), Qt::Key_Down);
        QVERIFY(grid()->hasFocus());
    }

    void removesARowFromTheGridOnly()
    {
        const QByteArray entries = m_test->bytes(u"Addbk1.Fil"_s), lines = m_test->bytes(u"Addbk2.Fil"_s);
        select(1);
        m_test->dialogs.willAnswer(Answer::No);
        click("removeRow");
        QCOMPARE(asked(), {ViewerMessages::removeRow()});
        QCOMPARE(count(), u"No. Of Names: 40"_s);
        m_test->dialogs.willAnswer(Answer::Yes);
        grid()->setFocus();
        QTest::keyClick(grid(), Qt::Key_Delete);
        QCOMPARE(count(), u"No. Of Names: 39"_s);
        QCOMPARE(cell(1, 0), u"Miller, Anne"_s);
        QCOMPARE(m_test->bytes(u"Addbk1.Fil"_s), entries);
        QCOMPARE(m_test->bytes(u"Addbk2.Fil"_s), lines);
        asked();
        QTest::keyClick(grid(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(count(), u"No. Of Names: 40"_s);
        QCOMPARE(grid()->currentIndex().row(), 1);
        QCOMPARE(said(), u"Undone: Row deleted: Quill, David"_s);
        QTest::keyClick(grid(), Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(count(), u"No. Of Names: 39"_s);
        choose(Information::FaxNumber); // which brings all back
        QCOMPARE(count(), u"No. Of Names: 40"_s);
        QVERIFY(!find<QAction>("mEUndo")->isEnabled());
    }

    void dialsTheHighlightedNumber()
    {
        choose(Information::FaxNumber);
        select(rowWhere(1, [](const QString &number) { return number.isEmpty(); }));
        click("Image2");
        QCOMPARE(asked(), {AddressMessages::telephoneNumberMissing()});
        choose(Information::HomePhone);
        select(0, 1);
        m_test->dialogs.willAnswer(Answer::Ok);
        click("Image2");
        QCOMPARE(asked(), {AddressMessages::numberDialed(u"(440) 555-0100"_s)});
        QVERIFY(m_line.log.contains(u"ATDT (440) 555-0100;\r"_s));
    }

    void opensTheMailProgram()
    {
        for (const char *name : {"Image2", "writeMail"}) {
            QVERIFY(!isOffered(name));
            QVERIFY(find<QPushButton>(name)->toolTip().startsWith(u"Choose"_s));
        }
        choose(Information::EmailAddress);
        const int row = rowWhere(1, [](const QString &address) { return address.contains(u'@'); });
        select(row, 1);
        grid()->scrollTo(grid()->currentIndex());
        click("writeMail");
        const QRect place = grid()->visualRect(grid()->currentIndex());
        QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {},
                          place.topLeft() + QPoint(14, place.height() / 2));
        // Beside the text nothing is followed.
        QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {},
                          place.topRight() + QPoint(-3, place.height() / 2));
        const QUrl expected(u"mailto:"_s + cell(row, 1));
        QCOMPARE(m_mail, QList({expected, expected}));
    }

    void opensTheEntry()
    {
        // A name too long for its line leads to none.
        select(rowWhere(0, [](const QString &name) { return name.endsWith(u"Xenia"_s); }));
        QVERIFY(!isOffered("openEntry") && isOffered("removeRow"));
        m_test->functions.add(Function::AddressBook,
                              {[](Program &program) { return new ADDBKVIEW(program); }, {}, {}, {}, {}});
        const QPoint place = grid()->visualRect(grid()->model()->index(4, 0)).center();
        QTest::mouseClick(grid()->viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(grid()->viewport(), Qt::LeftButton, {}, place);
        const QList<QWidget *> windows = m_test->functions.openWindows();
        QCOMPARE(windows.size(), 1);
        QCOMPARE(control<QLineEdit>(*windows.first(), "Text1_0")->text(), u"Jarvis"_s);
        select(5);
        click("openEntry");
        QCOMPARE(control<QLineEdit>(*windows.first(), "Text1_0")->text(), u"Ortega"_s);
        delete windows.first();
        m_test->gate = AccessGate([](Program &program, QWidget *) {
            program.state.passwordGateResult = PasswordGateResult::Refused;
        });
        m_test->state.protectedAreas.setFlag(Area::AddressBook, u"YES"_s);
        click("openEntry");
        QVERIFY(m_test->functions.openWindows().isEmpty());
    }

    void showsTheGridToItsCommands()
    {
        // What stands over the grid, a preview or a panel, and what brings the grid back; at last the search.
        const std::tuple<bool, const char *, const char *> turns[]{{true, "mOPrt", "mODel"},
                                                                   {false, "mOLab", "mEDel"},
                                                                   {true, "mOPrt", "mOM"},
                                                                   {true, "mOPrt", "mOSName"},
                                                                   {false, "mOPrt", ""}};
        for (const auto &[isPreview, panel, command] : turns) {
            trigger(panel);
            if (isPreview)
                click("printList");
            QVERIFY(!grid()->isVisible());
            const QByteArray name(command);
            if (name.endsWith("Del"))
                m_test->dialogs.willAnswer(Answer::No);
            if (name.isEmpty())
                QTest::keyClick(searchBox(), Qt::Key_Return);
            else
                trigger(command);
            asked();
            QVERIFY2(grid()->isVisible(), command);
            QVERIFY(m_window->focusWidget()->isVisible());
            type(u"mill"_s);
        }
    }

    void keepsItsPanelColor()
    {
        m_test->dialogs.willAnswer(Answer::Yes);
        m_test->dialogs.willChooseColor(QColor(1, 2, 3));
        m_test->dialogs.willAnswer(Answer::Yes); // save it
        m_test->dialogs.willAnswer(Answer::No);  // but not for every window
        trigger("mOC");
        QCOMPARE(m_test->bytes(u"GColor3.Fil"_s).mid(203 * 20 + 2, 6), "197121"_ba);
    }

    void fitsASmallWindow()
    {
        m_window->resize(800, 600);
        QCOMPARE(m_window->size(), QSize(800, 600));
        const auto isWhole = [this](const char *name) {
            const auto *scroll = find<QScrollArea>(name);
            return scroll->viewport()->width() >= scroll->widget()->minimumSizeHint().width();
        };
        QVERIFY(isWhole("choicesScroll"));
        type(u"a text longer than its button"_s);
        QCoreApplication::processEvents();
        const auto *button = find<QPushButton>("displayMode");
        QVERIFY(mode().contains(u"[a"_s) && button->width() >= button->sizeHint().width());
        searchBox()->clear();
        trigger("mOLab");
        QCoreApplication::processEvents();
        QCOMPARE(m_window->size(), QSize(800, 600));
        QVERIFY(isWhole("labelChoices"));
    }
};

QTEST_MAIN(TestAddbkdisplay)
#include "tst_viewerwindow.moc"
