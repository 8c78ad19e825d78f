#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/controls/flowtoolbar.h"
#include "shell/core/settingskeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/look/theme.h"
#include "tests/support/testprogram.h"

#include <QMenu>
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
        , m_splitter(named(new QSplitter(this), u"splitter"_s))
        , m_box(named(new QLineEdit(makePanel(u"panel"_s)), u"box"_s))
    {
        m_splitter->addWidget(new QWidget);
        m_splitter->addWidget(m_box->parentWidget());
        rememberSplitter(m_splitter);
        setWork(m_splitter);
        QAction *print = makeAction(u"mOPrt"_s, u"&Print File"_s, this);
        addTool(print, "print"_L1, u"Print"_s);
        finishFrame();
    }

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

protected:
    Page page(const PageSetup &) const override { return Page(u"Sample"_s); }
    bool mayDiscard() override { return !isModified() || ask(saveQuestion()) != Answer::Cancel; }

private:
    QSplitter *m_splitter;
    QLineEdit *m_box;
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
    void escClosesThePreviewFirst();
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
    QTest::addColumn<bool>("modified");
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<bool>("closes");
    QTest::newRow("nothing typed") << false << Answer::Ok << true;
    QTest::newRow("saved or dropped") << true << Answer::No << true;
    QTest::newRow("stays") << true << Answer::Cancel << false;
}

void TestFunctionWindow::asksBeforeItCloses()
{
    QFETCH(bool, modified);
    QFETCH(Answer, answer);
    QFETCH(bool, closes);
    const QPointer<SampleWindow> window = open();
    if (modified) {
        QTest::keyClicks(control<QLineEdit>(*window, "box"), u"text"_s);
        m_program->dialogs.willAnswer(answer);
    }
    QTest::keyClick(window, Qt::Key_Escape);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(window.isNull(), closes);
    QVERIFY(m_program->dialogs.isDone());
    delete window;
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
    QVERIFY(!window->close());
    QVERIFY(!window->activity().message().isEmpty());
    window->setBusy(false);
    QVERIFY(window->close());
}

void TestFunctionWindow::escClosesThePreviewFirst()
{
    const std::unique_ptr<SampleWindow> window(open().data());
    auto *box = control<QLineEdit>(*window, "box");
    box->setFocus();
    window->showPreview([](const PageSetup &) { return Page(u"Sample"_s); }, u"Sample"_s);
    QVERIFY(window->isPreviewShown());
    QTest::keyClick(window.get(), Qt::Key_Escape);
    QVERIFY(!window->isPreviewShown());
    QVERIFY(window->isVisible());
    QVERIFY(box->hasFocus());
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
    const QList<int> sizes = splitter->sizes();
    emit splitter->splitterMoved(sizes[0], 1); // the place is the user's, and not the window's own
    window->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(m_program->store.contains(u"Windows/SAMPLE/geometry"_s));

    const std::unique_ptr<SampleWindow> again(open().data());
    const QList<int> restored = control<QSplitter>(*again, "splitter")->sizes();
    QVERIFY(qAbs(double(restored[0]) / restored[1] - double(sizes[0]) / sizes[1]) < 0.1);
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
