// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/core/settingskeys.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/sidesplitter.h"
#include "shell/frame/windowtoolbar.h"
#include "shell/frame/workviews.h"
#include "shell/look/theme.h"
#include "tests/support/rows.h"
#include "tests/support/sampletraits.h"
#include "tests/support/testprogram.h"

#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QSplitter>
#include <QStatusTipEvent>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The smallest window on the frame: one box whose text is its data.
class SampleWindow final : public FunctionWindow
{
public:
    explicit SampleWindow(Program &program)
        : FunctionWindow(program, sampleTraits())
        , m_views(new WorkViews(makePanel(u"panel"_s)))
        , m_box(named(new QLineEdit, u"box"_s))
        , m_overView(new QWidget)
        , m_over(named(new QLineEdit(m_overView), u"over"_s))
    {
        m_views->addHome(m_box);
        m_views->addView(m_overView);
        setViews(m_views);
        setWork(new SideSplitter(u"splitter"_s, named(new QWidget, u"side"_s), m_views->parentWidget(),
                                 [](QSize window) { return window.width() / 4; }));
        QAction *print = commands().add(
            nullptr, u"mOPrt"_s, u"&Print File"_s, [this] { done << u"print"_s; }, {}, CommonKeys::print);
        commands().tool(print, "print"_L1, u"Print"_s);
        addMenu(u"mO"_s, u"&Options"_s)->addAction(standard(Standard::Exit));
        addUtilitiesMenu();
        finishFrame();
    }
    void openOver() { m_views->open(m_overView); }

    bool isModified() const override { return !m_box->text().isEmpty(); }
    using FunctionWindow::activity;
    using FunctionWindow::setBusy;
    using FunctionWindow::toolbar;
    QStringList done; ///< what the frame had done with the text

protected:
    bool save() override
    {
        done << u"saved "_s + m_box->text();
        return m_box->text() != "refused"_L1;
    }
    void drop() override { done << u"dropped"_s; }
    Message leaveQuestion() const override
    {
        return {u"Sample"_s, u"Save?"_s, Message::Question, {Answer::Yes, Answer::Cancel}, Answer::Yes};
    }

private:
    WorkViews *m_views;
    QLineEdit *m_box;
    QWidget *m_overView;
    QLineEdit *m_over;
};

} // namespace

class TestFunctionWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Theme::apply(*qApp); }
    void init() { m_program = std::make_unique<TestProgram>(); }

    void standsInItsFrame()
    {
        const auto window = open();
        QCOMPARE(window->objectName(), u"SAMPLE"_s);
        QCOMPARE(window->windowTitle(), u"Sample Screen"_s);
        QCOMPARE(window->activity().activity(), u"Sample"_s);
        QVERIFY(control<QToolButton>(*window, "mOPrt_button")->isVisible());
        QCOMPARE(window->toolbar().actions().first()->objectName(), u"mainMenu"_s);
        QVERIFY(QRect(QPoint(), window->screen()->availableSize()).contains(QRect(QPoint(), window->size())));
    }

    void asksBeforeItCloses_data()
    {
        rows<QString, Answer, bool, QStringList>({
            {"nothing typed", {}, Answer::Ok, true, {}},
            {"saved", u"text"_s, Answer::Yes, true, {u"saved text"_s}},
            {"a save that is refused", u"refused"_s, Answer::Yes, false, {u"saved refused"_s}},
            {"dropped", u"text"_s, Answer::No, true, {u"dropped"_s}},
            {"stays", u"text"_s, Answer::Cancel, false, {}},
        });
    }

    void asksBeforeItCloses()
    {
        const auto [typed, answer, closes, done] = row<QString, Answer, bool, QStringList>();
        const auto window = open();
        QTest::keyClicks(control<QLineEdit>(*window, "box"), typed);
        if (!typed.isEmpty())
            m_program->dialogs.willAnswer(answer);
        QTest::keyClick(window.get(), Qt::Key_Escape);
        QCOMPARE(window->isVisible(), !closes);
        QCOMPARE(window->done, done);
        QVERIFY(m_program->dialogs.isDone());
    }

    void leavesOnceItIsAsked()
    {
        const auto window = open();
        QTest::keyClicks(control<QLineEdit>(*window, "box"), u"text"_s);
        m_program->dialogs.willAnswer(Answer::No);
        QVERIFY(window->mayLeave());
        QVERIFY(window->mayLeave()); // the exit asked already
        // The exit was stopped by another window: the question comes again.
        window->stay();
        QVERIFY(window->done.isEmpty());
        m_program->dialogs.willAnswer(Answer::Yes);
        QVERIFY(window->mayLeave());
        QVERIFY(window->done.isEmpty());
        QVERIFY(window->saveToLeave() && window->close());
        QCOMPARE(window->done, {u"saved text"_s});
        QVERIFY(m_program->dialogs.isDone());
    }

    void staysWhileItIsBusy()
    {
        const auto window = open();
        window->setBusy(true);
        QVERIFY(!window->toolbar().isEnabled() && !window->menuBar()->isEnabled());
        QVERIFY(!control<QWidget>(*window, "side")->isEnabled() &&
                control<QLineEdit>(*window, "box")->isEnabled());
        QVERIFY(!window->close());
        QVERIFY(!window->activity().message().isEmpty());
        window->setBusy(false);
        QVERIFY(window->close());
    }

    void givesAViewTheInkOfItsPanel()
    {
        QVERIFY(m_program->settings.setText(SettingsKeys::helpColor, u"0"_s));
        const auto window = open();
        window->openOver();
        const QWidget *view = control<QLineEdit>(*window, "over")->parentWidget();
        QCOMPARE(view->palette().color(QPalette::WindowText), QColor(Qt::white));
    }

    void escLeavesPreviewThenViewThenWindow()
    {
        const auto window = open();
        auto *box = control<QLineEdit>(*window, "box");
        box->setFocus();
        QStatusTipEvent tip(u"why a tool cannot be used"_s);
        QCoreApplication::sendEvent(window.get(), &tip);
        QVERIFY(!control<QLabel>(*window, "statusMessage")->text().isEmpty());
        window->openOver();
        QVERIFY(control<QLabel>(*window, "statusMessage")->text().isEmpty());
        auto *over = control<QLineEdit>(*window, "over");
        over->setFocus();
        window->showPreview([](const PageContext &) { return Page(u"Sample"_s); }, u"Sample"_s);
        QVERIFY(window->isPreviewShown());
        QTest::keyClick(window.get(), Qt::Key_Escape);
        QVERIFY(!window->isPreviewShown() && over->hasFocus());
        QTest::keyClick(window.get(), Qt::Key_Escape);
        QVERIFY(box->hasFocus() && window->isVisible());
        QTest::keyClick(window.get(), Qt::Key_Escape);
        QVERIFY(!window->isVisible());
    }

    void givesWhatIsOpenedTheColorsOfItsPanel()
    {
        QVERIFY(m_program->settings.setText(SettingsKeys::helpColor, u"7363120"_s)); // a dark blue
        const auto window = open();
        window->openOver();
        const QPalette panel = control<QWidget>(*window, "panel")->palette();
        QCOMPARE(panel.color(QPalette::WindowText), QColor(Qt::white));
        QCOMPARE(control<QLineEdit>(*window, "over")->palette().color(QPalette::WindowText),
                 QColor(Qt::white));
    }

    void leavesKeysToThePageThatIsShown()
    {
        const auto window = open();
        QTest::keyClick(control<QLineEdit>(*window, "box"), Qt::Key_P, Qt::ControlModifier);
        QCOMPARE(window->done, {u"print"_s});
        window->showPreview([](const PageContext &) { return Page(u"Sample"_s); }, u"Sample"_s);
        m_program->dialogs.willChooseFile({}); // without a printer the page asks for the name of a PDF
        QTest::keyClick(window->focusWidget(), Qt::Key_P, Qt::ControlModifier);
        QVERIFY(m_program->dialogs.isDone());
        // A tool with the focus is pressed by Enter.
        window->closePreview();
        QTest::keyClick(control<QToolButton>(*window, "mOPrt_button"), Qt::Key_Return);
        QCOMPARE(window->done, (QStringList{u"print"_s, u"print"_s}));
    }

    void redoesWhatWasTyped()
    {
        const auto window = open();
        auto *box = control<QLineEdit>(*window, "box");
        QTest::keyClicks(box, u"text"_s);
        QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(box->text() != "text"_L1);
        QTest::keyClick(box, Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(box->text(), u"text"_s);
    }

    void asksForTheManualAndTheMainMenu()
    {
        const auto window = open();
        QSignalSpy manual(&m_program->changes, &ProgramSignals::helpRequested);
        QTest::keyClick(control<QLineEdit>(*window, "box"), Qt::Key_F1);
        QCOMPARE(manual, (QList<QVariantList>{{1004}}));
        QSignalSpy mainMenu(&m_program->changes, &ProgramSignals::mainMenuRequested);
        QTest::mouseClick(control<QToolButton>(*window, "mainMenu_button"), Qt::LeftButton);
        QCOMPARE(mainMenu.size(), 1);
    }

    void removesTheToolbarInEveryWindow()
    {
        const auto one = open(), other = open();
        emit one->toolbar().customContextMenuRequested(QPoint(5, 5));
        control<QMenu>(*one, "toolbarMenu")->actions().first()->trigger();
        QVERIFY(!one->toolbar().isVisible() && !other->toolbar().isVisible());
        QVERIFY(!control<QAction>(*other, "mOCT")->isEnabled());
        for (const TextSetting &setting : {SettingsKeys::topToolbar, SettingsKeys::weightTopToolbar})
            QCOMPARE(m_program->settings.text(setting), u"OFF"_s);
        m_program->state.topToolbarRemoved.reset(); // as at the next start
        const auto later = open();
        QVERIFY(!later->toolbar().isVisible());

        auto *link = control<QToolButton>(*other, "StatusBar1_RestoreTop");
        QCOMPARE(link->text(), u"Click to Restore Top Toolbar"_s);
        QTest::mouseClick(link, Qt::LeftButton);
        QVERIFY(control<QAction>(*other, "mOCT")->isEnabled());
        QVERIFY(one->toolbar().isVisible() && other->toolbar().isVisible() && later->toolbar().isVisible());
        QVERIFY(!control<QToolButton>(*one, "StatusBar1_RestoreTop")->isVisible());
        QCOMPARE(m_program->settings.number(SettingsKeys::sideToolbarMarker), 88);
        QCOMPARE(m_program->settings.text(SettingsKeys::topToolbar), u"ON"_s);
    }

    void remembersItsPlace()
    {
        const auto window = open();
        window->setMinimumSize(200, 200);
        window->resize(640, 480);
        auto *splitter = control<QSplitter>(*window, "splitter");
        splitter->setSizes({200, 400});
        QCOMPARE(splitter->sizes().first(), 200);
        const QList<int> sizes = splitter->sizes();
        emit splitter->splitterMoved(sizes[0], 1); // the place is the user's, and not the window's own
        window->close();
        QVERIFY(m_program->store.contains(u"Windows/SAMPLE/geometry"_s));

        const auto again = open();
        QCOMPARE(control<QSplitter>(*again, "splitter")->sizes().first(), sizes.first());
        // A record that is no geometry is ignored.
        m_program->store.setValue(u"Windows/SAMPLE/geometry"_s, QByteArray("noise"));
        const auto third = open();
        QVERIFY(third->isVisible());
    }

    void opensTheBackupAtASideWithItsFunction()
    {
        TestProgram test;
        QList<Place> shown;
        test.functions.add(Function::Backup,
                           {.open = [](Program &) { return new QWidget; },
                            .show = [&shown](QWidget &, const Place &place) { shown << place; }});
        test.functions.add(Function::Planner,
                           {.open = [](Program &program) { return new SampleWindow(program); },
                            .files = [](const Program &) { return QStringList{u"Days.Fil"_s}; }});
        QWidget *window = test.functions.open(Function::Planner, test.program);
        auto *backup = control<QAction>(*window, "mUB");
        const auto look = [window] { emit control<QMenu>(*window, "mU")->aboutToShow(); };
        for (const QByteArray &bytes : {QByteArray(), QByteArray("1"), QByteArray()}) {
            test.setBytes(u"Days.Fil"_s, bytes);
            look();
            QCOMPARE(backup->isEnabled(), !bytes.isEmpty());
            QCOMPARE(backup->statusTip().isEmpty(), !bytes.isEmpty());
        }
        test.setBytes(u"Days.Fil"_s, "1");
        look();
        control<QLineEdit>(*window, "box")->setText(u"typed"_s);
        for (const Answer answer : {Answer::Cancel, Answer::Yes}) {
            test.dialogs.willAnswer(answer);
            backup->trigger();
        }
        control<QAction>(*window, "mUR")->trigger(); // nothing is copied, and nothing asked
        QCOMPARE(static_cast<SampleWindow *>(window)->done, QStringList{u"saved typed"_s});
        QCOMPARE(shown, (QList<Place>{BackupPlace::of(BackupPlace::Side::BackUp, Function::Planner),
                                      BackupPlace::of(BackupPlace::Side::Restore, Function::Planner)}));
        QVERIFY(test.dialogs.isDone());
        qDeleteAll(test.functions.openWindows());
    }

    void opensOnceAndIsRaisedThen()
    {
        FunctionCatalogue &functions = m_program->functions;
        QVERIFY(!functions.open(Function::Budget, m_program->program));
        FunctionEntry entry;
        entry.open = [](Program &program) -> QWidget * { return new SampleWindow(program); };
        functions.add(Function::Budget, entry);
        QPointer<QWidget> window = functions.open(Function::Budget, m_program->program);
        QCOMPARE(functions.open(Function::Budget, m_program->program), window.data());
        QCOMPARE(functions.openWindows(), QList<QWidget *>{window.data()});
        window->close();
        QVERIFY(functions.openWindows().isEmpty());
        // Opening it again at once, before the closed one is gone, gives a new one.
        QPointer<QWidget> next = functions.open(Function::Budget, m_program->program);
        QVERIFY(next && next != window);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(window.isNull() && next);
        next->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(next.isNull());
    }

private:
    std::unique_ptr<SampleWindow> open() const
    {
        auto window = std::make_unique<SampleWindow>(m_program->program);
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        showActive(*window);
        return window;
    }

    std::unique_ptr<TestProgram> m_program;
};

QTEST_MAIN(TestFunctionWindow)
#include "tst_functionwindow.moc"
