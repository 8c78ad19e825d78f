// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/addressbook/entry/openaddressbook.h"
#include "tests/addressbook/model/addressrecords.h"
#include "tests/support/rows.h"

#include <QDir>
#include <QElapsedTimer>
#include <QScrollArea>
#include <QScrollBar>

using namespace Qt::Literals::StringLiterals;

class TestAddbkview : public OpenAddressBook
{
    Q_OBJECT
private slots:
    void init() { open(TestProgram::Household); }
    void cleanup() { close(); }

    void opensWithTheFirstName()
    {
        QCOMPARE(m_window->windowTitle(), u"Family/Friends Data View Screen"_s);
        QCOMPARE(list()->model()->rowCount(), 40);
        QCOMPARE(count(), u" 40 - Entries "_s);
        QCOMPARE(selectedName(), u"Kessler, Tessa"_s);
        QCOMPARE(box(8)->text(), u"(440) 555-0100"_s);
        QVERIFY(box(8)->isLocked());
        QVERIFY(list()->hasFocus());
        QVERIFY(asked().isEmpty());
    }

    void cutsNoBoxInASmallWindow()
    {
        m_window->resize(1024, 736);
        QCoreApplication::processEvents();
        QTRY_COMPARE(find<QScrollArea>("formScroll")->verticalScrollBar()->maximum(), 0);
    }

    void invitesToAnEmptyBook()
    {
        open(TestProgram::Empty);
        QCOMPARE(count(), u" 0 - Entries "_s);
        QVERIFY(!find<QPushButton>("emptyRestore")->toolTip().isEmpty());
        trigger("mOV");
        QCOMPARE(asked(), {AddressMessages::nothingToView()});
        click("emptyEntryScreen");
        QCOMPARE(m_window->windowTitle(), u"Family/Friends Data Entry Screen"_s);
        QVERIFY(box(0)->hasFocus());
        click("Command6");
        QCOMPARE(asked(), {AddressMessages::nothingToView()});
        QCOMPARE(m_window->mode(), ADDBKVIEW::Mode::Entry);
    }

    void changesNothingThroughALineThatLeadsNowhere()
    {
        const QByteArray entries = m_test->bytes(u"Addbk1.Fil"_s), lines = m_test->bytes(u"Addbk2.Fil"_s);
        for (const auto &[line, lastName] : {std::pair(16, QString()), {19, u"Kessler"_s}}) {
            clickRow(1);
            QCOMPARE(box(0)->text(), u"Quill"_s);
            QVERIFY(isOffered("Command3") && isOffered("Command4") && said().isEmpty());
            select(line); // whose number cannot be read, or leads to another entry
            QCOMPARE(box(0)->text(), lastName);
            QVERIFY(!isOffered("Command3") && !isOffered("Command4") && !said().isEmpty());
            for (const char *command : {"mODel", "mOMod", "mEMod1"})
                trigger(command);
            for (const char *button : {"Command3", "Command4", "Command7"})
                click(button);
            QVERIFY(box(0)->isLocked());
        }
        QCOMPARE(m_test->bytes(u"Addbk1.Fil"_s), entries);
        QCOMPARE(m_test->bytes(u"Addbk2.Fil"_s), lines);
    }

    void scrollsThroughAFullBook()
    {
        QByteArray lines = neverWritten(60);
        for (int record = 2; record < 50'002; ++record)
            lines += lineBytes(lineOf("Miller, Anne", record));
        m_test->setBytes(u"Addbk2.Fil"_s, lines);
        QElapsedTimer timer;
        timer.start();
        show();
        select(49'999);
        QTRY_VERIFY(list()->viewport()->rect().intersects(list()->visualRect(list()->currentIndex())));
        // A list that asked each row for its size would take seconds.
        QVERIFY2(timer.elapsed() < 1500, qPrintable(QString::number(timer.elapsed())));
    }

    void searches()
    {
        auto *search = find<QLineEdit>("Text2");
        typeInto(search, u"no such name"_s);
        QTest::keyClick(search, Qt::Key_Return);
        QCOMPARE(asked(), {AddressMessages::noMatch()});
        QCOMPARE(selectedName(), u"Kessler, Tessa"_s);
        search->clear();
        typeInto(search, u"ill"_s);
        QTest::keyClick(search, Qt::Key_Return);
        QCOMPARE(selectedName(), u"Quill, David"_s);
        QCOMPARE(box(0)->text(), u"Quill"_s);
        QVERIFY(list()->hasFocus());
        QCOMPARE(said(), u"1 of 4"_s);
        QTest::keyClick(list(), Qt::Key_Return);
        QCOMPARE(said(), u"2 of 4"_s);
        QVERIFY(selectedName() != u"Quill, David"_s && selectedName().contains(u"ill"_s));
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(search, Qt::Key_F3);
        QCOMPARE(selectedName(), u"Quill, David"_s);
        QCOMPARE(said(), u"1 of 4"_s);
    }

    void asksForANameToView()
    {
        click("Command6");
        QCOMPARE(m_window->mode(), ADDBKVIEW::Mode::Entry);
        for (int field = 0; field < 13; ++field)
            QVERIFY(box(field)->text().isEmpty());
        for (const char *command : {"mOV", "mOVS"}) {
            trigger(command);
            QCOMPARE(asked(), {AddressMessages::nameNotSelected()});
            QVERIFY(find<QLineEdit>("Text2")->hasFocus());
            QCOMPARE(m_window->mode(), ADDBKVIEW::Mode::Entry);
        }
        select(2);
        QCOMPARE(m_window->mode(), ADDBKVIEW::Mode::View);
        QCOMPARE(box(1)->text(), u"Anne"_s);
    }

    void savesByTheAccessKeyBeforeTheNextLetter()
    {
        open(TestProgram::Empty);
        click("emptyEntryScreen");
        type(0, u"Novak"_s);
        type(1, u"Jana"_s);
        QTest::keyClick(box(1), Qt::Key_S, Qt::AltModifier);
        QTest::keyClicks(m_window->focusWidget(), u"x"_s);
        QCOMPARE(record(2), entryBytes({"Novak", "Jana"}));
        QTest::qWait(150); // nothing comes later
        QCOMPARE(box(0)->text(), u"x"_s);
    }

    void tabWalksThroughTheScreen()
    {
        click("Command6");
        QStringList names;
        for (const QWidget *at = find<QWidget>("Text2"); names.size() < 23; at = at->nextInFocusChain()) {
            if (at->isVisible() && (at->focusPolicy() & Qt::TabFocus))
                names.append(at->objectName());
        }
        QCOMPARE(names.join(u' '),
                 u"Text2 namesAToZ List1 Text1_0 Text1_1 Text1_2 sameAddress Text1_3 Text1_4 Text1_5 Text1_6 "
                 u"Text1_7 "
                 "Text1_8 Image2_0 Text1_9 Image2_1 Text1_10 Text1_11 Text1_12 Image1 Command2 "
                 "Command7 Command6"_s);
    }

    void savesANewEntry()
    {
        open(TestProgram::Empty);
        click("emptyEntryScreen");
        type(0, u"Novak"_s);
        type(1, u"René"_s);
        type(8, u"555-0142"_s);
        click("Command1");
        QCOMPARE(m_test->bytes(u"Addbk1.Fil"_s),
                 neverWritten(724) + entryBytes({"Novak", "Ren\xe9", "", "", "", "", "", "", "555-0142"}));
        QCOMPARE(m_test->bytes(u"Addbk2.Fil"_s),
                 neverWritten(60) + lineBytes(lineOf("Novak, Ren\xe9", 2)).first(50));
        QCOMPARE(count(), u" 1 - Entries "_s);
        QVERIFY(box(0)->text().isEmpty());
        QVERIFY(box(0)->hasFocus());
        QCOMPARE(m_window->mode(), ADDBKVIEW::Mode::Entry);
        QVERIFY(!m_window->isModified());
    }

    void selectsWhatWasSavedLast()
    {
        click("Command6");
        for (const auto &name : {u"Novak"_s, u"Abel"_s}) {
            type(0, name);
            click("Command1");
            QCOMPARE(selectedName(), name + u","_s);
            QVERIFY(box(0)->text().isEmpty() && box(0)->hasFocus());
        }
        trigger("mOVS");
        QCOMPARE(box(0)->text(), u"Abel"_s);
        QVERIFY(box(0)->isLocked() && asked().isEmpty());
        click("Command6");
        type(0, u"Bauer"_s);
        click("Command1");
        clickRow(list()->currentIndex().row()); // which is selected already
        QCOMPARE(box(0)->text(), u"Bauer"_s);
        QCOMPARE(m_window->mode(), ADDBKVIEW::Mode::View);
    }

    void showsTheNamesFromAToZ()
    {
        QCOMPARE(lineAt(2).trimmed().section(u' ', 0, 1), u"Miller, Anne"_s);
        select(2);
        QTest::keyClick(find<QAbstractButton>("namesAToZ"), Qt::Key_Space);
        QCOMPARE(selectedName(), u"Miller, Anne"_s); // wherever that is now
        QVERIFY(list()->currentIndex().row() > 2);
        show();
        QVERIFY(find<QAbstractButton>("namesAToZ")->isChecked());
        QCOMPARE(list()->currentIndex().row(), 0);
        QCOMPARE(box(0)->text(), selectedName().section(u',', 0, 0));
        select(7);
        const QString name = selectedName();
        click("Command4");
        type(5, u"Lund"_s);
        click("Command4");
        QCOMPARE(list()->currentIndex().row(), 7); // a save leaves it where it is
        QCOMPARE(selectedName(), name);
        QTest::keyClick(find<QAbstractButton>("namesAToZ"), Qt::Key_Space);
        QCOMPARE(list()->currentIndex().row(), 39);
        QCOMPARE(selectedName(), name);
    }

    void refusesALastName_data()
    {
        rows<QString>({{"none", {}}, {"entry's mark", u"****x"_s}, {"line's mark", u" ####x"_s}});
    }

    void refusesALastName()
    {
        const auto [name] = row<QString>();
        click("Command6");
        type(0, name);
        type(1, u"Anne"_s);
        const QByteArray before = m_test->bytes(u"Addbk1.Fil"_s);
        click("Command1");
        if (name.isEmpty())
            QCOMPARE(asked(), {AddressMessages::lastNameMissing()});
        else
            QCOMPARE(said(), AddressMessages::markedName());
        QVERIFY(box(0)->hasFocus());
        QCOMPARE(box(0)->text(), name);
        QCOMPARE(box(1)->text(), u"Anne"_s);
        QCOMPARE(m_test->bytes(u"Addbk1.Fil"_s), before);
        m_test->dialogs.willAnswer(Answer::No);
        QVERIFY(m_window->mayLeave());
    }

    /// Leaving was agreed to, and then came to nothing: the entry that was saved is not new any more.
    void savesAnEntryOnceWhenItIsAskedFor()
    {
        open(TestProgram::Empty);
        click("emptyEntryScreen");
        type(0, u"Novak"_s);
        m_test->dialogs.willAnswer(Answer::Yes);
        QVERIFY(m_window->mayLeave() && m_window->saveToLeave());
        QCOMPARE(m_window->mode(), ADDBKVIEW::Mode::View);
        QVERIFY(selectedName().startsWith(u"Novak,"_s));
        QVERIFY(words().isEmpty());
        QVERIFY(!find<QPushButton>("Command1")->isVisible());
        QCOMPARE(count(), u" 1 - Entries "_s);
    }

    void opensTheRightRecordAfterASave()
    {
        const QString wanted = lineAt(3);
        const int record = wanted.mid(42).trimmed().toInt();
        select(0);
        click("Command4");
        type(5, u"Kassel"_s);
        m_test->dialogs.willAnswer(Answer::Yes);
        QVERIFY(m_window->showRecord(record));
        QCOMPARE(lineAt(list()->currentIndex().row()), wanted);
        QCOMPARE(box(0)->text(), wanted.section(u',', 0, 0));
    }

    void savesAChangedEntryAtTheEndOfTheList()
    {
        select(2); // Miller, Anne, record 4
        click("Command4");
        QCOMPARE(find<QPushButton>("Command4")->text(), u"&Save Modifications"_s);
        QVERIFY(!box(9)->isLocked());
        const QByteArray before = record(4);
        const QByteArray neighbours = record(3) + record(5);
        type(9, u"440 555 0177"_s);
        QCOMPARE(words(), u"Unsaved changes"_s);
        click("Command4");
        QCOMPARE(find<QPushButton>("Command4")->text(), u"&Make Modifications"_s);
        QCOMPARE(record(4), QByteArray(before).replace(9 * 40, 12, "440 555 0177"));
        QCOMPARE(record(3) + record(5), neighbours);
        QCOMPARE(lineAt(39), u"Miller, Anne                                   4"_s);
        QCOMPARE(list()->currentIndex().row(), 39);
        QCOMPARE(count(), u" 40 - Entries "_s);
        QVERIFY(box(9)->isLocked());
    }

    void keepsWhatTheBoxesCannotShow()
    {
        QByteArray entries = m_test->bytes(u"Addbk1.Fil"_s);
        m_test->setBytes(u"Addbk1.Fil"_s, entries.replace(724 + 3 * 40, 3, "1\0016"));
        select(1);
        select(0);
        click("Command4");
        type(5, u"Lund"_s);
        click("Command4");
        QCOMPARE(record(2), entries.mid(724, 724).replace(5 * 40, 7, "Lund   "));
    }

    void asksBeforeLeavingAChangedEntry_data()
    {
        rows<Answer, QString, QByteArray>({
            {"save", Answer::Yes, u"Garland, Anne"_s, "Oslo"},
            {"drop", Answer::No, u"Garland, Anne"_s, "Lund"},
            {"stay", Answer::Cancel, u"Miller, Anne"_s, "Lund"},
        });
    }

    void asksBeforeLeavingAChangedEntry()
    {
        const auto [answer, shown, city] = row<Answer, QString, QByteArray>();
        select(2);
        click("Command4");
        type(5, u"Oslo"_s);
        m_test->dialogs.willAnswer(answer);
        clickRow(3);
        QTRY_VERIFY(m_test->dialogs.isDone());
        QCOMPARE(asked(), {AddressMessages::saveChanges()});
        QCOMPARE(selectedName(), shown);
        QCOMPARE(record(4).mid(5 * 40, 40).trimmed(), city);
        QCOMPARE(m_window->isModified(), answer == Answer::Cancel);
        QCOMPARE(box(0)->text(), selectedName().section(u',', 0, 0));
    }

    void keepsTheTextWhenSavingFails()
    {
        open(TestProgram::Empty);
        QVERIFY(QDir().mkdir(m_test->path(u"Addbk1.Fil"_s)));
        click("emptyEntryScreen");
        type(0, u"Novak"_s);
        click("Command1");
        QCOMPARE(said(), AddressMessages::saveFailed());
        QCOMPARE(box(0)->text(), u"Novak"_s);
        QCOMPARE(count(), u" 0 - Entries "_s);
        QVERIFY(m_window->isModified());
    }

    void asksBeforeClearing()
    {
        click("Command6");
        type(0, u"Novak"_s);
        for (const Answer answer : {Answer::No, Answer::Cancel, Answer::Yes}) {
            QCOMPARE(box(0)->text(), u"Novak"_s);
            m_test->dialogs.willAnswer(answer);
            click("Command2");
            QCOMPARE(asked(), {AddressMessages::clearCurrentData()});
        }
        QVERIFY(box(0)->text().isEmpty());
    }

    void deletesAfterAsking()
    {
        select(2);
        const QByteArray before = m_test->bytes(u"Addbk1.Fil"_s);
        for (const Answer answer : {Answer::No, Answer::Cancel}) {
            m_test->dialogs.willAnswer(answer);
            click("Command3");
            QCOMPARE(asked(), {AddressMessages::deleteEntry(u"Anne Miller"_s)});
            QCOMPARE(m_test->bytes(u"Addbk1.Fil"_s), before);
        }
        m_test->dialogs.willAnswer(Answer::Yes);
        trigger("mODel");
        asked();
        QCOMPARE(record(4), entryBytes({"*****"}, ""));
        QCOMPARE(index(4).first(47), lineBytes(padded("#####", 45)).first(47));
        QCOMPARE(count(), u" 39 - Entries "_s);
        QCOMPARE(selectedName(), u"Garland, Anne"_s);
        QCOMPARE(box(0)->text(), u"Garland"_s);
    }
};

QTEST_MAIN(TestAddbkview)
#include "tst_entrywindow.moc"
