// SPDX-License-Identifier: GPL-3.0-or-later
#include "startwindow.h"

#include "shell/core/settingskeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/mainmenu/mainmenumessages.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Message leaveUnsaved()
{
    return {u"Unsaved"_s, u"Save?"_s, Message::Question, {Answer::Yes, Answer::No}, Answer::Yes};
}

/// A function window with something typed in it.
class UnsavedWindow final : public FunctionWindow
{
public:
    /// `saves`: what its saving answers, in turn.
    UnsavedWindow(Program &program, QList<bool> &saves)
        : FunctionWindow(program,
                         {u"Unsaved"_s,
                          u"Unsaved"_s,
                          u"Unsaved"_s,
                          {SettingsKeys::addressEntryColor, SettingsKeys::addressEntryProgramColor, {}}})
        , m_saves(saves)
    {
        finishFrame();
    }

protected:
    bool isModified() const override { return true; }
    bool save() override { return m_saves.takeFirst(); }
    Message leaveQuestion() const override { return leaveUnsaved(); }

private:
    QList<bool> &m_saves;
};

/// The beginning of a record of the colours' file: the display mode is 35, height and width are 36 and 37.
QByteArray record(const StartWindow &start, int number, int length)
{
    return start.record(u"GColor3.Fil"_s, 20, number).left(length);
}

} // namespace

/// How the main window fills the screen, and how the program is left.
class TestDisplayMode : public QObject
{
    Q_OBJECT

private slots:
    void keepsTheDisplayMode();
    void followsUnmaximisingByHand();
    void opensAtTheSmallestSizeForAnEmptySize();
    void asksBeforeItExits_data();
    void asksBeforeItExits();
    void savesNothingForAnExitThatIsRefused_data();
    void savesNothingForAnExitThatIsRefused();
};

void TestDisplayMode::keepsTheDisplayMode()
{
    StartWindow start;
    Startfrm &window = start.show();
    start.trigger("mOPS");
    QVERIFY(!window.isMaximized());
    QCOMPARE(record(start, 35, 5), "\x03\0Yes"_ba);
    QCOMPARE(window.size(), QSize(800, 600));
    QVERIFY(control<QAction>(window, "mOPS")->isChecked());
    QVERIFY(!control<QAction>(window, "mOPF")->isChecked());

    start.trigger("mOPF");
    QVERIFY(window.isMaximized());
    QCOMPARE(record(start, 35, 4), "\x02\0No"_ba);
    QCOMPARE(start.test.state.screenMode, ScreenMode::FullScreen);

    start.trigger("Toolbar2_1"); // toggles
    QCOMPARE(record(start, 35, 5), "\x03\0Yes"_ba);
    window.resize(1000, 700);
    start.trigger("mOPDefault");
    QCOMPARE(window.size(), QSize(800, 600));
    QCOMPARE(record(start, 36, 2), "\x28\x23"_ba); // 9000
    QCOMPARE(record(start, 37, 2), "\xe0\x2e"_ba); // 12000
}

void TestDisplayMode::followsUnmaximisingByHand()
{
    StartWindow start;
    Startfrm &window = start.show();
    start.trigger("mOPF");
    window.showNormal();
    QCOMPARE(record(start, 35, 5), "\x03\0Yes"_ba);
    QCOMPARE(start.test.state.screenMode, ScreenMode::Smaller);
    QVERIFY(control<QAction>(window, "mOPS")->isChecked());
    QVERIFY(!control<QAction>(window, "mOPF")->isChecked());
    QTRY_COMPARE(window.size(), QSize(800, 600));
}

void TestDisplayMode::opensAtTheSmallestSizeForAnEmptySize()
{
    StartWindow start;
    QVERIFY(start.test.settings.setText(SettingsKeys::smallerScreen, u"Yes"_s));
    QCOMPARE(start.show().size(), QSize(800, 600));
}

void TestDisplayMode::asksBeforeItExits_data()
{
    rows<Answer, bool>(
        {{"yes", Answer::Yes, true}, {"no", Answer::No, false}, {"cancel", Answer::Cancel, false}});
}

void TestDisplayMode::asksBeforeItExits()
{
    const auto [answer, leaves] = row<Answer, bool>();
    StartWindow start(TestProgram::Household);
    start.addFunction(Function::AddressBook);
    Startfrm &window = start.show();
    start.trigger("mFB");
    window.resize(1000, 500);
    QSignalSpy exited(&window, &Startfrm::exited);
    start.test.dialogs.willAnswer(answer);
    start.trigger("mOE");
    QCOMPARE(start.test.dialogs.takeShown(), QList<Message>{StartMessages::exit()});
    QCOMPARE(exited.size(), leaves ? 1 : 0);
    QCOMPARE(window.isVisible(), !leaves);
    QCOMPARE(start.test.functions.openWindows().size(), leaves ? 0 : 1);
    // 500 pixels are 7500 twips, raised to 9000; 1000 are 15000.
    const QByteArray height = leaves ? "\x28\x23"_ba : "\x20\x2b"_ba;
    const QByteArray width = leaves ? "\x98\x3a"_ba : "\xd8\x45"_ba;
    QCOMPARE(record(start, 36, 2), height);
    QCOMPARE(record(start, 37, 2), width);
}

void TestDisplayMode::savesNothingForAnExitThatIsRefused_data()
{
    using Answers = QList<Answer>; // to the exit, and to what two windows ask
    using Saves = QList<bool>;
    const Answer yes = Answer::Yes, no = Answer::No, cancel = Answer::Cancel;
    rows<Answers, Saves, bool>({
        {"no exit", {no}, {}, false},
        {"the first window stays", {yes, cancel}, {}, false},
        {"the second window stays", {yes, yes, cancel}, {}, false},
        {"a save is refused", {yes, no, yes}, {false}, false},
        {"saved and dropped", {yes, yes, no}, {true}, true},
    });
}

void TestDisplayMode::savesNothingForAnExitThatIsRefused()
{
    auto [answers, saves, leaves] = row<QList<Answer>, QList<bool>, bool>();
    StartWindow start;
    const FunctionEntry entry{
        [&saves = saves](Program &program) { return new UnsavedWindow(program, saves); }, {}, {}, {}};
    start.test.functions.add(Function::Budget, entry);
    start.test.functions.add(Function::WeightTracker, entry);
    Startfrm &window = start.show();
    start.trigger("mMB");
    start.trigger("mFWeight");
    for (const Answer answer : answers)
        start.test.dialogs.willAnswer(answer);
    QCOMPARE(window.close(), leaves);
    QList<Message> asked(answers.size(), leaveUnsaved());
    asked.first() = StartMessages::exit();
    QCOMPARE(start.test.dialogs.takeShown(), asked);
    QVERIFY(saves.isEmpty());
    // Each window that stays asks again.
    const QList<QWidget *> open = start.test.functions.openWindows();
    QCOMPARE(open.size(), leaves ? 0 : 2);
    for (QWidget *unsaved : open) {
        start.test.dialogs.willAnswer(Answer::No);
        QVERIFY(unsaved->close());
        QCOMPARE(start.test.dialogs.takeShown(), {leaveUnsaved()});
    }
}

QTEST_MAIN(TestDisplayMode)
#include "tst_displaymode.moc"
