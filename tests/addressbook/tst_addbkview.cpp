#include "addressbook/addbkview.h"
#include "addressbook/messages.h"
#include "addressbook/namelistmodel.h"
#include "addressbook/pictureframe.h"
#include "shell/activitybar.h"
#include "shell/controls.h"
#include "shell/monthview.h"
#include "shell/settingskeys.h"
#include "tests/support/testprogram.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QLabel>
#include <QListView>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A modem that writes down what it is told.
class NotedModem final : public Modem
{
public:
    NotedModem(QStringList &log, int workingPort)
        : m_log(log)
        , m_workingPort(workingPort)
    {}
    bool open(int port) override
    {
        m_log.append(u"open "_s + QString::number(port));
        return port == m_workingPort;
    }
    bool write(QByteArrayView text) override
    {
        m_log.append(QString::fromLatin1(text));
        return true;
    }
    void close() override { m_log.append(u"close"_s); }

private:
    QStringList &m_log;
    int m_workingPort;
};

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

/// Types any characters; the toolkit's own keyClicks takes ASCII only.
void typeInto(QWidget *box, const QString &text)
{
    for (const QChar character : text)
        QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QString(character), Qt::NoModifier);
}

} // namespace

class TestAddbkview : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void opensWithTheFirstName();
    void invitesToAnEmptyBook();
    void showsTheEntryOfALine_data();
    void showsTheEntryOfALine();
    void changesNothingThroughALineOfAnotherName();
    void searches_data();
    void searches();
    void asksForANameToView();
    void savesANewEntry();
    void refusesAnEntryWithoutLastName();
    void takesOnlyWhatTheFilesCanHold();
    void savesAChangedEntryAtTheEndOfTheList();
    void keepsWhatTheBoxesCannotShow();
    void asksBeforeLeavingAChangedEntry_data();
    void asksBeforeLeavingAChangedEntry();
    void keepsTheTextWhenSavingFails();
    void asksBeforeClearing();
    void deletesAfterAsking();
    void picksDates_data();
    void picksDates();
    void closesTheCalendar();
    void tidiesTypedDates_data();
    void tidiesTypedDates();
    void tellsWhatTheDatesMean();
    void hintsAtNamesTooLongForTheList();
    void showsPicturesWhereverTheyAre();
    void takesAPictureFromThePanel();
    void dials();
    void neverOpensThePortWithoutANumber();
    void asksForAnotherPort();
    void copiesTheEntry();
    void showsWhatItPrints();
    void warnsBeforePrintingManyPictures();
    void asksBeforeItCloses();

private:
    void open(TestProgram::Content content);
    void click(const char *name) { QTest::mouseClick(control<QPushButton>(*m_window, name), Qt::LeftButton); }
    void trigger(const char *name) { control<QAction>(*m_window, name)->trigger(); }
    FieldBox *box(int field) const
    {
        return control<FieldBox>(*m_window, qPrintable(u"Text1_%1"_s.arg(field)));
    }
    void type(int field, const QString &text);
    QListView *list() const { return control<QListView>(*m_window, "List1"); }
    void select(int row) { list()->setCurrentIndex(list()->model()->index(row, 0)); }
    QString lineAt(int row) const
    {
        return list()->model()->index(row, 0).data(NameListModel::LineRole).toString();
    }
    QString selectedName() const
    {
        return list()->selectionModel()->selectedRows().value(0).data().toString();
    }
    QString count() const { return control<QLabel>(*m_window, "Label1")->text(); }
    QString said() const { return m_window->findChild<ActivityBar *>()->message(); }
    /// In the button row, or in the title line of a narrow window.
    QString words() const
    {
        return control<QLabel>(*control<QWidget>(*m_window, "buttonRow"), "rowWords")->text() +
               control<QLabel>(*m_window, "titleWords")->text();
    }
    QByteArray record(int number) const
    {
        return m_test->bytes(u"Addbk1.Fil"_s).mid((number - 1) * 724, 724);
    }
    QByteArray index(int number) const { return m_test->bytes(u"Addbk2.Fil"_s).mid((number - 1) * 60, 60); }
    QList<Message> asked() { return m_test->dialogs.takeShown(); }

    std::unique_ptr<TestProgram> m_test;
    QPointer<ADDBKVIEW> m_window;
    QStringList m_modemLog;
    int m_workingPort = 3;
};

void TestAddbkview::init()
{
    m_modemLog.clear();
    m_workingPort = 3;
    open(TestProgram::Household);
}

void TestAddbkview::open(TestProgram::Content content)
{
    delete m_window;
    m_test = std::make_unique<TestProgram>(content);
    m_window = new ADDBKVIEW(m_test->program, nullptr,
                             [this] { return std::make_unique<NotedModem>(m_modemLog, m_workingPort); });
    showActive(*m_window);
}

void TestAddbkview::cleanup()
{
    QVERIFY(m_test->dialogs.isDone());
    delete m_window;
}

void TestAddbkview::type(int field, const QString &text)
{
    box(field)->setFocus(Qt::TabFocusReason);
    box(field)->selectAll();
    QTest::keyClick(box(field), Qt::Key_Delete);
    typeInto(box(field), text);
}

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
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {},
                      list()->visualRect(list()->model()->index(1, 0)).center());
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
    QTest::newRow("capitals and accents")
        << QString::fromUtf8("JOS\xc3\x89") << QString::fromUtf8("Ortega, Jos\xc3\xa9");
    QTest::newRow("a record number") << u"14"_s << QString::fromUtf8("M\xc3\xbcller, Karl");
    QTest::newRow("a deleted entry") << u"Wintergreen"_s << QString();
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

void TestAddbkview::refusesAnEntryWithoutLastName()
{
    click("Command6");
    type(1, u"Anne"_s);
    const QByteArray before = m_test->bytes(u"Addbk1.Fil"_s);
    click("Command1");
    QCOMPARE(asked(), {AddressMessages::lastNameMissing()});
    QVERIFY(box(0)->hasFocus());
    QCOMPARE(box(1)->text(), u"Anne"_s);
    QCOMPARE(m_test->bytes(u"Addbk1.Fil"_s), before);
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
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {},
                      list()->visualRect(list()->model()->index(3, 0)).center());
    QTRY_VERIFY(m_test->dialogs.isDone());
    QCOMPARE(asked(), {AddressMessages::saveChanges(AddressMessages::GoingBack::Possible)});
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

void TestAddbkview::picksDates_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("field");
    QTest::addColumn<QString>("text");
    QTest::newRow("birth, month first") << int(DateStyle::Usa) << 2 << u"Nov-24-2026"_s;
    QTest::newRow("birth, day first") << int(DateStyle::Other) << 2 << u"24-Nov-2026"_s;
    QTest::newRow("anniversary") << int(DateStyle::Usa) << 12 << u"Nov-24-2026"_s;
}

void TestAddbkview::picksDates()
{
    QFETCH(int, style);
    QFETCH(int, field);
    m_test->state.dateStyle = DateStyle(style);
    auto *calendar = control<MonthView>(*m_window, "MonthView1");
    QVERIFY(!calendar->isVisible());
    click("Command6");
    box(field)->setFocus(Qt::TabFocusReason);
    QVERIFY(calendar->isVisible());
    QCOMPARE(calendar->selectedDate(), QDate(2026, 11, 21));
    emit calendar->clicked(QDate(2026, 11, 24));
    QTEST(box(field)->text(), "text");
    QVERIFY(!calendar->isVisible());
    QVERIFY(box(field)->hasFocus());
    QTest::mouseClick(box(field), Qt::LeftButton);
    QVERIFY(calendar->isVisible());
    QCOMPARE(calendar->selectedDate(), QDate(2026, 11, 24));
}

void TestAddbkview::closesTheCalendar()
{
    auto *calendar = control<MonthView>(*m_window, "MonthView1");
    click("Command6");
    const auto open = [&] {
        box(1)->setFocus();
        QTest::keyClick(box(1), Qt::Key_Tab);
        return calendar->isVisible();
    };
    QVERIFY(open());
    QTest::keyClick(box(2), Qt::Key_Escape);
    QVERIFY(!calendar->isVisible());
    QVERIFY(m_window->isVisible());

    QVERIFY(open());
    QTest::keyClick(box(2), Qt::Key_Tab);
    QTRY_VERIFY(!calendar->isVisible());

    QVERIFY(open());
    QTest::mouseClick(control<QWidget>(*m_window, "Panel3D1"), Qt::LeftButton, {}, QPoint(12, 12));
    QVERIFY(!calendar->isVisible());

    QVERIFY(open());
    QTest::keyClick(box(2), Qt::Key_Down);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    QCOMPARE(box(2)->text(), u"Nov-22-2026"_s);
    QVERIFY(!calendar->isVisible());
}

void TestAddbkview::tidiesTypedDates_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("kept");
    QTest::newRow("numbers") << u"11/24/1978"_s << u"Nov-24-1978"_s;
    QTest::newRow("a month's name") << u"24 nov 1978"_s << u"Nov-24-1978"_s;
    QTest::newRow("no date") << u"some time in May"_s << u"some time in May"_s;
    QTest::newRow("a day that is none") << u"Feb-30-1980"_s << u"Feb-30-1980"_s;
}

void TestAddbkview::tidiesTypedDates()
{
    QFETCH(QString, typed);
    click("Command6");
    type(2, typed);
    QTest::keyClick(box(2), Qt::Key_Tab);
    QTEST(box(2)->text(), "kept");
}

void TestAddbkview::tellsWhatTheDatesMean()
{
    click("Command6");
    type(2, u"Nov-24-1978"_s);
    type(12, u"Jun-12-2004"_s);
    QCOMPARE(control<QLabel>(*m_window, "birthFact")->text(), u"Birthday on Tuesday, turning 48"_s);
    QCOMPARE(control<QLabel>(*m_window, "anniversaryFact")->text(), u"23 years in June"_s);
}

void TestAddbkview::hintsAtNamesTooLongForTheList()
{
    const auto *hint = control<QLabel>(*m_window, "nameHint");
    click("Command6");
    type(0, u"Featherstone-Brookfield"_s);
    type(1, u"Frank David Marta"_s);
    QVERIFY(!hint->isVisible());
    type(1, u"Frank David Martas"_s);
    QVERIFY(hint->isVisible());
    QCOMPARE(hint->text(), AddressMessages::nameTooLong());
}

void TestAddbkview::showsPicturesWhereverTheyAre()
{
    auto *frame = control<PictureFrame>(*m_window, "Image1");
    QVERIFY(frame->hasPicture()); // stored under C:\QUILLERY, found in the Pictures folder
    select(1);
    QVERIFY(!frame->hasPicture());
    QCOMPARE(frame->words(), u"No Picture Currently Loaded"_s);
    QVERIFY(said().isEmpty());
    select(7);
    QVERIFY(!frame->hasPicture());
    QVERIFY(said().contains(u"moved away.jpg"_s));
    select(0);
    click("pictureEnlarge");
    QVERIFY(control<PictureFrame>(*m_window, "enlargedPicture")->isVisible());
    click("pictureNormal");
    QVERIFY(frame->isVisible());
}

void TestAddbkview::takesAPictureFromThePanel()
{
    const QString path = m_test->path(u"Pictures/photo03.jpg"_s);
    select(2);
    click("Command7");
    QVERIFY(control<QWidget>(*m_window, "picturePanel")->isVisible());
    auto *files = control<QListWidget>(*m_window, "File1");
    files->setCurrentItem(files->findItems(u"photo03.jpg"_s, Qt::MatchExactly).value(0));
    click("pictureEnter");
    QVERIFY(control<PictureFrame>(*m_window, "Image1")->hasPicture());
    QVERIFY(m_window->isModified());
    click("Command4");
    QCOMPARE(record(4).mid(520, 200), path.toLatin1().leftJustified(200, ' '));
    click("Command7");
    click("pictureDelete");
    click("Command4");
    QCOMPARE(record(4).mid(520, 200), QByteArray("**").leftJustified(200, ' '));
}

void TestAddbkview::dials()
{
    m_test->dialogs.willAnswer(Answer::Cancel);
    click("Image2_0");
    QCOMPARE(asked(), {AddressMessages::numberDialed(u"(440) 555-0100"_s)});
    QCOMPARE(m_modemLog, QStringList({u"open 3"_s, u"ATDT (440) 555-0100;\r"_s, u"ATH\r"_s, u"close"_s}));
    QVERIFY(!control<QLabel>(*m_window, "Label3")->isVisible());
}

void TestAddbkview::neverOpensThePortWithoutANumber()
{
    select(2); // no mobile phone
    click("Image2_1");
    QCOMPARE(asked(), {AddressMessages::telephoneNumberMissing()});
    QVERIFY(m_modemLog.isEmpty());
}

void TestAddbkview::asksForAnotherPort()
{
    m_workingPort = 101;
    m_test->dialogs.willInput(u"101"_s);
    m_test->dialogs.willAnswer(Answer::Ok);
    m_test->dialogs.willAnswer(Answer::Ok);
    click("Image2_1");
    QCOMPARE(asked(), QList<Message>({AddressMessages::portNotAvailable(3),
                                      AddressMessages::numberDialed(u"440 555 0100"_s)}));
    QVERIFY(m_test->dialogs.takePrompts().contains(AddressMessages::newPortPrompt()));
    QCOMPARE(m_test->settings.number(SettingsKeys::modemPort), 101);
    QVERIFY(m_modemLog.contains(u"ATDT 440 555 0100;\r"_s));

    m_workingPort = 0;
    m_test->dialogs.willInput(std::nullopt);
    click("Image2_1");
    QVERIFY(!control<QLabel>(*m_window, "Label3")->isVisible());
}

void TestAddbkview::copiesTheEntry()
{
    for (const char *command : {"mOCopy", "mECopy"}) {
        QApplication::clipboard()->clear();
        trigger(command);
        QCOMPARE(asked(), {AddressMessages::dataCopied()});
        QVERIFY(QApplication::clipboard()->text().contains(u"160 High Street"_s));
    }
}

void TestAddbkview::showsWhatItPrints()
{
    for (const char *command : {"mOPrt", "mOW"}) {
        trigger(command);
        QVERIFY(m_window->isPreviewShown());
        QTest::keyClick(m_window, Qt::Key_Escape);
        QVERIFY(!m_window->isPreviewShown());
        QVERIFY(m_window->isVisible());
    }
    click("Command5");
    click("print4");
    asked();
    QVERIFY(m_window->isPreviewShown());
}

void TestAddbkview::warnsBeforePrintingManyPictures()
{
    click("Command5");
    control<QAbstractButton>(*m_window, "printAll")->setChecked(true);
    m_test->dialogs.willAnswer(Answer::Cancel);
    click("print2");
    QCOMPARE(asked(), {AddressMessages::manyPictures()});
    QVERIFY(!m_window->isPreviewShown());
    control<QAbstractButton>(*m_window, "printSome")->setChecked(true);
    click("print2");
    QVERIFY(asked().isEmpty());
    QVERIFY(m_window->isPreviewShown());
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
#include "tst_addbkview.moc"
