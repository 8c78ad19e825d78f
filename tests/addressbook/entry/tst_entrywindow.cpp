// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/addressbook/entry/openaddressbook.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A record of the entry file, written out by hand.
QByteArray entryBytes(const QList<QByteArray> &texts, const QByteArray &picture)
{
    QByteArray bytes;
    for (int i = 0; i < 13; ++i)
        bytes += texts.value(i).leftJustified(40, ' ');
    return bytes + picture.leftJustified(200, ' ') + "    ";
}

QByteArray lineBytes(const QByteArray &line)
{
    return QByteArray(1, char(line.size())) + '\0' + line;
}

} // namespace

class TestAddbkview : public OpenAddressBook
{
    Q_OBJECT
private slots:
    void init() { open(TestProgram::Household); }
    void cleanup() { close(); }

    void opensWithTheFirstName();
    void invitesToAnEmptyBook();
    void showsTheEntryOfALine_data();
    void showsTheEntryOfALine();
    void changesNothingThroughALineOfAnotherName();
    void searches_data();
    void searches();
    void asksForANameToView();
    void tabWalksThroughTheScreen();
    void savesANewEntry();
    void refusesALastName_data();
    void refusesALastName();
    void savesAnEntryOnceWhenItIsAskedFor();
    void opensTheRightRecordAfterASave();
    void closesThePageBeforeItIsTypedInto();
    void takesOnlyWhatTheFilesCanHold();
    void savesAChangedEntryAtTheEndOfTheList();
    void keepsWhatTheBoxesCannotShow();
    void asksBeforeLeavingAChangedEntry_data();
    void asksBeforeLeavingAChangedEntry();
    void keepsTheTextWhenSavingFails();
    void asksBeforeClearing();
    void deletesAfterAsking();
    void asksBeforeItCloses();
};

void TestAddbkview::opensWithTheFirstName()
{
    QCOMPARE(m_window->windowTitle(), u"Family/Friends Data View Screen"_s);
    QCOMPARE(list()->model()->rowCount(), 40);
    QCOMPARE(count(), u" 40 - Entries "_s);
    QCOMPARE(selectedName(), u"Kessler, Tessa"_s);
    QCOMPARE(box(8)->text(), u"(440) 555-0100"_s);
    QVERIFY(box(8)->isLocked());
    QVERIFY(list()->hasFocus());
    QVERIFY(m_test->dialogs.takeShown().isEmpty());
}

void TestAddbkview::invitesToAnEmptyBook()
{
    open(TestProgram::Empty);
    QCOMPARE(count(), u" 0 - Entries "_s);
    QVERIFY(control<QPushButton>(*m_window, "emptyEntryScreen")->isVisible());
    QVERIFY(!control<QPushButton>(*m_window, "emptyRestore")->toolTip().isEmpty());
    trigger("mOV");
    QCOMPARE(asked(), {AddressMessages::nothingToView()});
    click("emptyEntryScreen");
    QCOMPARE(m_window->windowTitle(), u"Family/Friends Data Entry Screen"_s);
    QVERIFY(box(0)->hasFocus());
    click("Command6");
    QCOMPARE(asked(), {AddressMessages::nothingToView()});
    QCOMPARE(m_window->mode(), ADDBKVIEW::Mode::Entry);
}

void TestAddbkview::showsTheEntryOfALine_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("lastName");
    QTest::addColumn<bool>("mayChange");
    QTest::newRow("accents") << 21 << QString::fromUtf8("\xc3\x85ngstr\xc3\xb6m") << true;
    QTest::newRow("a name of 41 characters") << 15 << u"Featherstone-Brookfield"_s << true;
    QTest::newRow("a number that cannot be read") << 16 << QString() << false;
    QTest::newRow("a line that leads to another entry") << 19 << u"Kessler"_s << false;
}

void TestAddbkview::showsTheEntryOfALine()
{
    QFETCH(int, row);
    QFETCH(bool, mayChange);
    clickRow(1);
    QCOMPARE(box(0)->text(), u"Quill"_s);
    select(row);
    QTEST(box(0)->text(), "lastName");
    QCOMPARE(control<QPushButton>(*m_window, "Command3")->isEnabled(), mayChange);
    QCOMPARE(control<QPushButton>(*m_window, "Command4")->isEnabled(), mayChange);
    QCOMPARE(said().isEmpty(), mayChange);
}

void TestAddbkview::changesNothingThroughALineOfAnotherName()
{
    const QByteArray entries = m_test->bytes(u"Addbk1.Fil"_s);
    const QByteArray lines = m_test->bytes(u"Addbk2.Fil"_s);
    for (const int row : {16, 19}) {
        select(row);
        for (const char *command : {"mODel", "mOMod", "mEMod1"})
            trigger(command);
        for (const char *button : {"Command3", "Command4", "Command7"})
            click(button);
        QVERIFY(box(0)->isLocked());
    }
    QCOMPARE(m_test->bytes(u"Addbk1.Fil"_s), entries);
    QCOMPARE(m_test->bytes(u"Addbk2.Fil"_s), lines);
}

void TestAddbkview::searches_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("selected");
    QTest::newRow("inside a name") << u"ill"_s << u"Quill, David"_s;
    QTest::newRow("nobody") << u"no such name"_s << QString();
}

void TestAddbkview::searches()
{
    QFETCH(QString, text);
    QFETCH(QString, selected);
    auto *search = control<QLineEdit>(*m_window, "Text2");
    search->setFocus();
    typeInto(search, text);
    QTest::keyClick(search, Qt::Key_Return);
    if (selected.isEmpty()) {
        QCOMPARE(asked(), {AddressMessages::noMatch()});
        QCOMPARE(selectedName(), u"Kessler, Tessa"_s);
    } else {
        QCOMPARE(selectedName(), selected);
        QCOMPARE(box(0)->text(), selected.section(u',', 0, 0));
        QVERIFY(list()->hasFocus());
    }
}

void TestAddbkview::asksForANameToView()
{
    click("Command6");
    QCOMPARE(m_window->mode(), ADDBKVIEW::Mode::Entry);
    for (int field = 0; field < 13; ++field)
        QVERIFY(box(field)->text().isEmpty());
    for (const char *command : {"mOV", "mOVS"}) {
        trigger(command);
        QCOMPARE(asked(), {AddressMessages::nameNotSelected()});
        QVERIFY(control<QLineEdit>(*m_window, "Text2")->hasFocus());
        QCOMPARE(m_window->mode(), ADDBKVIEW::Mode::Entry);
    }
    select(2);
    QCOMPARE(m_window->mode(), ADDBKVIEW::Mode::View);
    QCOMPARE(box(1)->text(), u"Anne"_s);
}

void TestAddbkview::tabWalksThroughTheScreen()
{
    click("Command6");
    QStringList names;
    for (const QWidget *at = control<QWidget>(*m_window, "Text2"); names.size() < 20;
         at = at->nextInFocusChain()) {
        if (at->isVisible() && (at->focusPolicy() & Qt::TabFocus))
            names.append(at->objectName());
    }
    QCOMPARE(names.join(u' '),
             u"Text2 List1 Text1_0 Text1_1 Text1_2 Text1_3 Text1_4 Text1_5 Text1_6 Text1_7 "
             "Text1_8 Image2_0 Text1_9 Image2_1 Text1_10 Text1_11 Text1_12 Command2 Command7 "
             "Command6"_s);
}

void TestAddbkview::savesANewEntry()
{
    open(TestProgram::Empty);
    click("emptyEntryScreen");
    type(0, u"Novak"_s);
    type(1, QString::fromUtf8("Ren\xc3\xa9"));
    type(8, u"555-0142"_s);
    click("Command1");
    QCOMPARE(m_test->bytes(u"Addbk1.Fil"_s),
             QByteArray(QByteArray(724, '\0') +
                        entryBytes({"Novak", "Ren\xe9", "", "", "", "", "", "", "555-0142"}, "**")));
    QCOMPARE(
        m_test->bytes(u"Addbk2.Fil"_s),
        QByteArray(QByteArray(60, '\0') + lineBytes("Novak, Ren\xe9                                    2")));
    QCOMPARE(count(), u" 1 - Entries "_s);
    QVERIFY(box(0)->text().isEmpty());
    QVERIFY(box(0)->hasFocus());
    QCOMPARE(m_window->mode(), ADDBKVIEW::Mode::Entry);
    QVERIFY(!m_window->isModified());
}

void TestAddbkview::refusesALastName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("none") << QString();
    QTest::newRow("entry's mark") << u"****x"_s;
    QTest::newRow("line's mark") << u" ####x"_s;
}

void TestAddbkview::refusesALastName()
{
    QFETCH(QString, name);
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
void TestAddbkview::savesAnEntryOnceWhenItIsAskedFor()
{
    open(TestProgram::Empty);
    click("emptyEntryScreen");
    type(0, u"Novak"_s);
    m_test->dialogs.willAnswer(Answer::Yes);
    QVERIFY(m_window->mayLeave());
    QCOMPARE(m_window->mode(), ADDBKVIEW::Mode::View);
    QVERIFY(selectedName().startsWith(u"Novak,"_s));
    QVERIFY(words().isEmpty());
    QVERIFY(!control<QPushButton>(*m_window, "Command1")->isVisible());
    QCOMPARE(count(), u" 1 - Entries "_s);
}

void TestAddbkview::opensTheRightRecordAfterASave()
{
    const QString wanted = lineAt(3);
    const int record = wanted.mid(42).trimmed().toInt();
    select(0);
    click("Command4");
    type(5, u"Kassel"_s);
    m_test->dialogs.willAnswer(Answer::Yes);
    QVERIFY(m_window->showRecord(record));
    QCOMPARE(list()->currentIndex().data(NameListModel::LineRole).toString(), wanted);
    QCOMPARE(box(0)->text(), wanted.section(u',', 0, 0));
}

void TestAddbkview::closesThePageBeforeItIsTypedInto()
{
    select(0);
    trigger("mOPrt");
    QVERIFY(!box(0)->isVisible());
    trigger("mOMod");
    QVERIFY(box(0)->isVisible());
    QVERIFY(box(0)->hasFocus());
}

void TestAddbkview::takesOnlyWhatTheFilesCanHold()
{
    click("Command6");
    type(0, QString(50, u'x'));
    QCOMPARE(box(0)->text().size(), 39);
    type(1, QString(50, u'x'));
    QCOMPARE(box(1)->text().size(), 40);
    type(5, QString::fromUtf8("\xce\xa9mega \xe2\x82\xac"));
    QCOMPARE(box(5)->text(), QString::fromUtf8("mega \xe2\x82\xac"));
    QVERIFY(!said().isEmpty());
}

void TestAddbkview::savesAChangedEntryAtTheEndOfTheList()
{
    select(2); // Miller, Anne, record 4
    click("Command4");
    QCOMPARE(control<QPushButton>(*m_window, "Command4")->text(), u"&Save Modifications"_s);
    QVERIFY(!box(9)->isLocked());
    const QByteArray before = record(4);
    const QByteArray neighbours = record(3) + record(5);
    type(9, u"440 555 0177"_s);
    QCOMPARE(words(), u"Unsaved changes"_s);
    click("Command4");
    QCOMPARE(control<QPushButton>(*m_window, "Command4")->text(), u"&Make Modifications"_s);
    QCOMPARE(record(4), QByteArray(before).replace(9 * 40, 12, "440 555 0177"));
    QCOMPARE(record(3) + record(5), neighbours);
    QCOMPARE(lineAt(39), u"Miller, Anne                                   4"_s);
    QCOMPARE(list()->currentIndex().row(), 39);
    QCOMPARE(count(), u" 40 - Entries "_s);
    QVERIFY(box(9)->isLocked());
}

void TestAddbkview::keepsWhatTheBoxesCannotShow()
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

void TestAddbkview::asksBeforeLeavingAChangedEntry_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QByteArray>("city");
    QTest::newRow("save") << Answer::Yes << u"Garland, Anne"_s << QByteArray("Oslo");
    QTest::newRow("drop") << Answer::No << u"Garland, Anne"_s << QByteArray("Lund");
    QTest::newRow("stay") << Answer::Cancel << u"Miller, Anne"_s << QByteArray("Lund");
}

void TestAddbkview::asksBeforeLeavingAChangedEntry()
{
    QFETCH(Answer, answer);
    select(2);
    click("Command4");
    type(5, u"Oslo"_s);
    m_test->dialogs.willAnswer(answer);
    clickRow(3);
    QTRY_VERIFY(m_test->dialogs.isDone());
    QCOMPARE(asked(), {AddressMessages::saveChanges()});
    QTEST(selectedName(), "shown");
    QTEST(record(4).mid(5 * 40, 40).trimmed(), "city");
    QCOMPARE(m_window->isModified(), answer == Answer::Cancel);
    QCOMPARE(box(0)->text(), selectedName().section(u',', 0, 0));
}

void TestAddbkview::keepsTheTextWhenSavingFails()
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

void TestAddbkview::asksBeforeClearing()
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

void TestAddbkview::deletesAfterAsking()
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
    QCOMPARE(index(4).first(47), lineBytes("#####                                        "));
    QCOMPARE(count(), u" 39 - Entries "_s);
    QCOMPARE(selectedName(), u"Garland, Anne"_s);
    QCOMPARE(box(0)->text(), u"Garland"_s);
}

void TestAddbkview::asksBeforeItCloses()
{
    click("Command6");
    type(0, u"Novak"_s);
    m_test->dialogs.willAnswer(Answer::Cancel);
    click("Command8");
    QVERIFY(m_window && m_window->isVisible());
    QCOMPARE(box(0)->text(), u"Novak"_s);
    m_test->dialogs.willAnswer(Answer::Yes);
    click("Command8");
    QCOMPARE(record(24).first(40), QByteArray("Novak").leftJustified(40, ' '));
    QTRY_VERIFY(!m_window);
}

QTEST_MAIN(TestAddbkview)
#include "tst_entrywindow.moc"
