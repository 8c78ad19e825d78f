// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/controls/flowtoolbar.h"
#include "shell/core/settingskeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/sidesplitter.h"
#include "shell/frame/workviews.h"
#include "shell/look/theme.h"
#include "tests/support/testprogram.h"

#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QSplitter>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

Message saveQuestion()
{
    return {u"Sample"_s,
            u"Save changes?"_s,
            Message::Question,
            {Answer::Yes, Answer::No, Answer::Cancel},
            Answer::Yes};
}

/// The smallest window on the frame: one box whose text is its data.
class SampleWindow final : public FunctionWindow
{
public:
    explicit SampleWindow(Program &program)
        : FunctionWindow(program, traits())
        , m_views(new WorkViews(makePanel(u"panel"_s)))
        , m_box(named(new QLineEdit, u"box"_s))
        , m_over(named(new QLineEdit, u"over"_s))
    {
        m_views->addHome(m_box);
        m_views->addView(m_over);
        setViews(m_views);
        setWork(new SideSplitter(u"splitter"_s, named(new QWidget, u"side"_s), m_views->parentWidget(),
                                 [](QSize window) { return window.width() / 4; }));
        QAction *print = commands().add(nullptr, u"mOPrt"_s, u"&Print File"_s, [] {});
        commands().tool(print, "print"_L1, u"Print"_s);
        addUtilitiesMenu();
        finishFrame();
    }
    void openOver() { m_views->open(m_over); }

    static WindowTraits traits()
    {
        return {u"SAMPLE"_s,
                u"Sample Screen"_s,
                u"Sample"_s,
                {SettingsKeys::helpColor, SettingsKeys::helpProgramColor, {}},
                1004};
    }

    bool isModified() const override { return !m_box->text().isEmpty(); }
    using FunctionWindow::activity;
    using FunctionWindow::setBusy;
    using FunctionWindow::toolbar;

    using FunctionWindow::mayReplace;
    using FunctionWindow::standard;
    QStringList done; ///< what the frame had done with the text

protected:
    bool save() override
    {
        done << u"saved "_s + m_box->text();
        return m_box->text() != "refused"_L1;
    }
    void drop() override { done << u"dropped"_s; }
    Message leaveQuestion() const override { return saveQuestion(); }

private:
    WorkViews *m_views;
    QLineEdit *m_box;
    QLineEdit *m_over;
};

} // namespace

class TestFunctionWindow : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void standsInItsFrame();
    void asksBeforeItCloses_data();
    void asksBeforeItCloses();
    void asksOnceUntilWorkGoesOn();
    void staysWhileItIsBusy();
    void escLeavesPreviewThenViewThenWindow();
    void f1AsksForItsPage();
    void theMainMenuComesToTheFront();
    void removesTheToolbarInEveryWindow();
    void remembersItsPlace();
    void opensOnceAndIsRaisedThen();

private:
    QPointer<SampleWindow> open();

    std::unique_ptr<TestProgram> m_program;
};

void TestFunctionWindow::initTestCase()
{
    Theme::apply(*qApp);
}

void TestFunctionWindow::init()
{
    m_program = std::make_unique<TestProgram>();
}

QPointer<SampleWindow> TestFunctionWindow::open()
{
    auto *window = new SampleWindow(m_program->program);
    showActive(*window);
    return window;
}

void TestFunctionWindow::standsInItsFrame()
{
    const std::unique_ptr<SampleWindow> window(open().data());
    QCOMPARE(window->objectName(), u"SAMPLE"_s);
    QCOMPARE(window->windowTitle(), u"Sample Screen"_s);
    QCOMPARE(window->activity().activity(), u"Sample"_s);
    QVERIFY(control<QToolButton>(*window, "mOPrt_button")->isVisible());
    QCOMPARE(window->toolbar().actions().first()->objectName(), u"mainMenu"_s);
    const QSize screen = window->screen()->availableSize();
    QVERIFY(window->width() <= screen.width() && window->height() <= screen.height());
    QVERIFY(!window->isModified());
}

void TestFunctionWindow::asksBeforeItCloses_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<QStringList>("done");
    QTest::newRow("nothing typed") << QString() << Answer::Ok << true << QStringList();
    QTest::newRow("saved") << u"text"_s << Answer::Yes << true << QStringList{u"saved text"_s};
    QTest::newRow("a save that is refused")
        << u"refused"_s << Answer::Yes << false << QStringList{u"saved refused"_s};
    QTest::newRow("dropped") << u"text"_s << Answer::No << true << QStringList{u"dropped"_s};
    QTest::newRow("stays") << u"text"_s << Answer::Cancel << false << QStringList();
}

void TestFunctionWindow::asksBeforeItCloses()
{
    QFETCH(QString, typed);
    QFETCH(Answer, answer);
    QFETCH(bool, closes);
    const std::unique_ptr<SampleWindow> window(open().data());
    window->setAttribute(Qt::WA_DeleteOnClose, false);
    QTest::keyClicks(control<QLineEdit>(*window, "box"), typed);
    if (!typed.isEmpty())
        m_program->dialogs.willAnswer(answer);
    QTest::keyClick(window.get(), Qt::Key_Escape);
    QCOMPARE(window->isVisible(), !closes);
    QTEST(window->done, "done");
    QVERIFY(m_program->dialogs.isDone());
}

void TestFunctionWindow::asksOnceUntilWorkGoesOn()
{
    const QPointer<SampleWindow> window = open();
    auto *box = control<QLineEdit>(*window, "box");
    QTest::keyClicks(box, u"text"_s);
    m_program->dialogs.willAnswer(Answer::No);
    QVERIFY(window->mayLeave());
    QVERIFY(window->mayLeave()); // the exit asked already

    // The exit was stopped by another window, and the user types on: the question comes again.
    QTest::keyClicks(box, u"more"_s);
    m_program->dialogs.willAnswer(Answer::Cancel);
    QVERIFY(!window->mayLeave());
    QVERIFY(m_program->dialogs.isDone());
    delete window;
}

void TestFunctionWindow::staysWhileItIsBusy()
{
    const std::unique_ptr<SampleWindow> window(open().data());
    window->setAttribute(Qt::WA_DeleteOnClose, false);
    window->setBusy(true);
    QVERIFY(!window->toolbar().isEnabled() && !window->menuBar()->isEnabled());
    QVERIFY(!control<QWidget>(*window, "side")->isEnabled() &&
            control<QLineEdit>(*window, "box")->isEnabled());
    QVERIFY(!window->close());
    QVERIFY(!window->activity().message().isEmpty());
    window->setBusy(false);
    QVERIFY(window->close());
}

void TestFunctionWindow::escLeavesPreviewThenViewThenWindow()
{
    const std::unique_ptr<SampleWindow> window(open().data());
    window->setAttribute(Qt::WA_DeleteOnClose, false);
    auto *box = control<QLineEdit>(*window, "box");
    auto *over = control<QLineEdit>(*window, "over");
    box->setFocus();
    window->openOver();
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

void TestFunctionWindow::f1AsksForItsPage()
{
    const std::unique_ptr<SampleWindow> window(open().data());
    QSignalSpy asked(&m_program->changes, &ProgramSignals::helpRequested);
    QTest::keyClick(control<QLineEdit>(*window, "box"), Qt::Key_F1);
    QCOMPARE(asked, (QList<QVariantList>{{1004}}));
}

void TestFunctionWindow::theMainMenuComesToTheFront()
{
    const std::unique_ptr<SampleWindow> window(open().data());
    QSignalSpy asked(&m_program->changes, &ProgramSignals::mainMenuRequested);
    QTest::mouseClick(control<QToolButton>(*window, "mainMenu_button"), Qt::LeftButton);
    QCOMPARE(asked.size(), 1);
}

void TestFunctionWindow::removesTheToolbarInEveryWindow()
{
    const std::unique_ptr<SampleWindow> one(open().data()), other(open().data());
    emit one->toolbar().customContextMenuRequested(QPoint(5, 5));
    auto *menu = control<QMenu>(*one, "toolbarMenu");
    menu->actions().first()->trigger();
    QVERIFY(!one->toolbar().isVisible() && !other->toolbar().isVisible());
    const std::unique_ptr<SampleWindow> later(open().data());
    QVERIFY(!later->toolbar().isVisible());

    QTest::mouseClick(control<QToolButton>(*other, "StatusBar1_RestoreTop"), Qt::LeftButton);
    QVERIFY(one->toolbar().isVisible() && other->toolbar().isVisible() && later->toolbar().isVisible());
    QVERIFY(!control<QToolButton>(*one, "StatusBar1_RestoreTop")->isVisible());
    QCOMPARE(m_program->settings.number(SettingsKeys::sideToolbarMarker), 88);
    QCOMPARE(m_program->settings.text(SettingsKeys::topToolbar), u"ON"_s);
}

void TestFunctionWindow::remembersItsPlace()
{
    const QPointer<SampleWindow> window = open();
    window->setMinimumSize(200, 200);
    window->resize(640, 480);
    auto *splitter = control<QSplitter>(*window, "splitter");
    splitter->setSizes({200, 400});
    QCOMPARE(splitter->sizes().first(), 200);
    const QList<int> sizes = splitter->sizes();
    emit splitter->splitterMoved(sizes[0], 1); // the place is the user's, and not the window's own
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(m_program->store.contains(u"Windows/SAMPLE/geometry"_s));

    const std::unique_ptr<SampleWindow> again(open().data());
    QCOMPARE(control<QSplitter>(*again, "splitter")->sizes().first(), sizes.first());
    // A record that is no geometry is ignored.
    m_program->store.setValue(u"Windows/SAMPLE/geometry"_s, QByteArray("noise"));
    const std::unique_ptr<SampleWindow> third(open().data());
    QVERIFY(third->isVisible());
}

void TestFunctionWindow::opensOnceAndIsRaisedThen()
{
    FunctionCatalogue &functions = m_program->functions;
    QVERIFY(!functions.open(Function::Budget, m_program->program));
    FunctionEntry entry;
    entry.open = [](Program &program) -> QWidget * { return new SampleWindow(program); };
    functions.add(Function::Budget, entry);
    QVERIFY(functions.has(Function::Budget) && !functions.has(Function::Journal));
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

QTEST_MAIN(TestFunctionWindow)
#include "tst_functionwindow.moc"
