// SPDX-License-Identifier: GPL-3.0-or-later
#include "openmainmenu.h"

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

} // namespace

/// How the main window fills the screen, and how the program is left.
class TestDisplayMode : public OpenMainMenu
{
    Q_OBJECT
private slots:
    void init() { make(); }
    void cleanup() { close(); }

    void keepsTheDisplayMode()
    {
        show();
        trigger("mOPS");
        QVERIFY(!m_window->isMaximized());
        QCOMPARE(setting(35, 5), "\x03\0Yes"_ba);
        QCOMPARE(m_window->size(), QSize(800, 600));
        QVERIFY(find<QAction>("mOPS")->isChecked());
        QVERIFY(!find<QAction>("mOPF")->isChecked());

        trigger("mOPF");
        QVERIFY(m_window->isMaximized());
        QCOMPARE(setting(35, 4), "\x02\0No"_ba);
        QCOMPARE(m_test->state.screenMode, ScreenMode::FullScreen);

        trigger("Toolbar2_1"); // toggles
        QCOMPARE(setting(35, 5), "\x03\0Yes"_ba);
        m_window->resize(1000, 700);
        trigger("mOPDefault");
        QCOMPARE(m_window->size(), QSize(800, 600));
        QCOMPARE(setting(36, 2), "\x28\x23"_ba); // 9000
        QCOMPARE(setting(37, 2), "\xe0\x2e"_ba); // 12000
    }

    void followsUnmaximisingByHand()
    {
        show();
        trigger("mOPF");
        m_window->showNormal();
        // A desktop gives such a window the whole screen back. Here that waits in line behind the program's
        // own look at the size where the machine is busy.
        m_window->resize(m_window->screen()->availableSize());
        QCOMPARE(setting(35, 5), "\x03\0Yes"_ba);
        QCOMPARE(m_test->state.screenMode, ScreenMode::Smaller);
        QVERIFY(find<QAction>("mOPS")->isChecked());
        QVERIFY(!find<QAction>("mOPF")->isChecked());
        QTRY_COMPARE(m_window->size(), QSize(800, 600));
    }

    void opensAtTheSmallestSizeForAnEmptySize()
    {
        QVERIFY(m_test->settings.setText(SettingsKeys::smallerScreen, u"Yes"_s));
        show();
        QCOMPARE(m_window->size(), QSize(800, 600));
    }

    void asksBeforeItExits_data()
    {
        rows<Answer, bool>(
            {{"yes", Answer::Yes, true}, {"no", Answer::No, false}, {"cancel", Answer::Cancel, false}});
    }

    void asksBeforeItExits()
    {
        const auto [answer, leaves] = row<Answer, bool>();
        make(TestProgram::Household);
        addFunction(Function::AddressBook);
        show();
        trigger("mFB");
        m_window->resize(1000, 500);
        QSignalSpy exited(m_window, &Startfrm::exited);
        m_test->dialogs.willAnswer(answer);
        trigger("mOE");
        QCOMPARE(asked(), {StartMessages::exit()});
        QCOMPARE(exited.size(), leaves ? 1 : 0);
        QCOMPARE(m_window->isVisible(), !leaves);
        QCOMPARE(m_test->functions.openWindows().size(), leaves ? 0 : 1);
        // 500 pixels are 7500 twips, raised to 9000; 1000 are 15000.
        const QByteArray height = leaves ? "\x28\x23"_ba : "\x20\x2b"_ba;
        const QByteArray width = leaves ? "\x98\x3a"_ba : "\xd8\x45"_ba;
        QCOMPARE(setting(36, 2), height);
        QCOMPARE(setting(37, 2), width);
    }

    void savesNothingForAnExitThatIsRefused_data()
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

    void savesNothingForAnExitThatIsRefused()
    {
        auto [answers, saves, leaves] = row<QList<Answer>, QList<bool>, bool>();
        const FunctionEntry entry{
            [&saves = saves](Program &program) { return new UnsavedWindow(program, saves); }, {}, {}, {}};
        m_test->functions.add(Function::Budget, entry);
        m_test->functions.add(Function::WeightTracker, entry);
        show();
        trigger("mMB");
        trigger("mFWeight");
        for (const Answer answer : answers)
            m_test->dialogs.willAnswer(answer);
        QCOMPARE(m_window->close(), leaves);
        QList<Message> expected(answers.size(), leaveUnsaved());
        expected.first() = StartMessages::exit();
        QCOMPARE(asked(), expected);
        QVERIFY(saves.isEmpty());
        // Each window that stays asks again.
        const QList<QWidget *> open = m_test->functions.openWindows();
        QCOMPARE(open.size(), leaves ? 0 : 2);
        for (QWidget *unsaved : open) {
            m_test->dialogs.willAnswer(Answer::No);
            QVERIFY(unsaved->close());
            QCOMPARE(asked(), {leaveUnsaved()});
        }
    }

private:
    /// The beginning of a record of the colours' file: the display mode is 35, height and width are 36
    /// and 37.
    QByteArray setting(int number, int length) const
    {
        return record(u"GColor3.Fil"_s, 20, number).left(length);
    }
};

QTEST_MAIN(TestDisplayMode)
#include "tst_displaymode.moc"
