// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/core/settingskeys.h"
#include "shell/core/shellmessages.h"
#include "shell/frame/panelcolors.h"
#include "shell/look/theme.h"
#include "tests/support/testprogram.h"

#include <QLabel>
#include <QListWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr PanelColorSettings withText{SettingsKeys::addressEntryColor, SettingsKeys::addressEntryProgramColor,
                                      SettingsKeys::addressEntryTextColor};
constexpr PanelColorSettings panelOnly{SettingsKeys::helpColor, SettingsKeys::helpProgramColor, {}};
const QColor blue(0x30, 0x5a, 0x70);
constexpr auto blueText = "7363120";

} // namespace

/// A window with one panel, on a program of its own.
class TestPanelColors : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void takesTheStoredColor_data();
    void takesTheStoredColor();
    void colorsWordsAndLeavesBoxesAlone();
    void refusesExactlyTheInkInUse_data();
    void refusesExactlyTheInkInUse();
    void cancellingChangesNothing_data();
    void cancellingChangesNothing();
    void asksAtOnceWhereThereIsNoTextColor_data();
    void asksAtOnceWhereThereIsNoTextColor();
    void asksOnLeavingWhereThereIsATextColor_data();
    void asksOnLeavingWhereThereIsATextColor();
    void noGivesTheDesignedColor();
    void keepsAChosenTextColor();
    void coloursTheWholeProgramOnRequest();
    void followsAnotherWindowsUpdate();

private:
    PanelColors &make(const PanelColorSettings &settings);

    std::unique_ptr<TestProgram> m_program;
    std::unique_ptr<QWidget> m_window;
    ActivityBar *m_activity = nullptr;
    PanelFrame *m_panel = nullptr;
    QLabel *m_label = nullptr;
};

void TestPanelColors::initTestCase()
{
    Theme::apply(*qApp);
}

void TestPanelColors::init()
{
    m_window.reset();
    m_program = std::make_unique<TestProgram>();
    m_window = std::make_unique<QWidget>();
    m_activity = new ActivityBar(m_program->clock, m_program->state.dateStyle, m_window.get());
    m_activity->setActivity(u"Entry Screen"_s);
    m_panel = new PanelFrame(m_window.get());
    m_label = makeQuietLabel(u"Last Name"_s, m_panel);
}

PanelColors &TestPanelColors::make(const PanelColorSettings &settings)
{
    auto *colors = new PanelColors(m_program->program, settings, m_window.get(), *m_activity);
    colors->addPanel(m_panel);
    m_window->show();
    colors->load();
    return *colors;
}

void TestPanelColors::takesTheStoredColor_data()
{
    QTest::addColumn<QString>("own");
    QTest::addColumn<QString>("programWide");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("panel");
    QTest::addColumn<QColor>("ink");
    const QColor designed = Theme::light().panel, text = Theme::light().text;
    const QString blueNumber = QString::fromLatin1(blueText);
    QTest::newRow("nothing stored") << u""_s << u""_s << u""_s << designed << text;
    QTest::newRow("its own") << blueNumber << u"255"_s << u""_s << blue << QColor(Qt::white);
    QTest::newRow("the program's, when it has none")
        << u""_s << blueNumber << u""_s << blue << QColor(Qt::white);
    QTest::newRow("the program's, for Default")
        << u"Default"_s << u"65535"_s << u""_s << QColor(Qt::yellow) << QColor(Qt::black);
    QTest::newRow("the designed number of the other scheme")
        << u"2500907"_s << u"255"_s << u""_s << designed << text;
    QTest::newRow("a text colour") << blueNumber << u""_s << u"65535"_s << blue << QColor(Qt::yellow);
    QTest::newRow("a text colour alone") << u""_s << u""_s << u"255"_s << designed << QColor(Qt::red);
    QTest::newRow("damaged") << u"blue"_s << u""_s << u"#"_s << designed << text;
}

void TestPanelColors::takesTheStoredColor()
{
    QFETCH(QString, own);
    QFETCH(QString, programWide);
    QFETCH(QString, text);
    QVERIFY(m_program->settings.setText(withText.panel, own));
    QVERIFY(m_program->settings.setText(withText.programWide, programWide));
    QVERIFY(m_program->settings.setText(*withText.text, text));
    const PanelColors &colors = make(withText);
    QTEST(m_panel->palette().color(QPalette::Window), "panel");
    QTEST(m_panel->palette().color(QPalette::WindowText), "ink");
    QTEST(colors.ink(), "ink");
}

void TestPanelColors::colorsWordsAndLeavesBoxesAlone()
{
    auto *box = new FieldBox(m_panel);
    auto *list = new QListWidget(m_panel);
    QPushButton *button = makeButton(u"Command1"_s, u"&Save"_s, m_panel, ButtonKind::Main);
    QVERIFY(m_program->settings.setText(panelOnly.panel, QString::fromLatin1(blueText)));
    make(panelOnly);
    QCOMPARE(m_label->palette().color(m_label->foregroundRole()), QColor(Qt::white));
    const Theme &theme = Theme::light();
    QCOMPARE(box->palette().color(QPalette::Text), theme.text);
    QCOMPARE(list->palette().color(QPalette::Text), theme.text);
    QCOMPARE(button->palette().color(QPalette::ButtonText), theme.text);
    // The main button stays in the accent, with a rim in the ink.
    QCOMPARE(button->palette().color(ThemeRole::mainRim), QColor(Qt::white));
    QVERIFY(button->grab().toImage().pixelColor(6, 18).rgb() == theme.accent.rgb());
}

void TestPanelColors::refusesExactlyTheInkInUse_data()
{
    QTest::addColumn<QColor>("chosen");
    QTest::addColumn<bool>("refused");
    const QColor ink = Theme::light().text;
    QTest::newRow("the ink") << ink << true;
    QTest::newRow("one unit beside it") << QColor(ink.red(), ink.green(), ink.blue() + 1) << false;
}

void TestPanelColors::refusesExactlyTheInkInUse()
{
    QFETCH(QColor, chosen);
    QFETCH(bool, refused);
    PanelColors &colors = make(panelOnly);
    m_program->dialogs.willAnswer(Answer::Yes);
    m_program->dialogs.willChooseColor(chosen);
    m_program->dialogs.willAnswer(refused ? Answer::Ok : Answer::No);
    colors.choosePanelColor();
    QList<Message> expected{ShellMessages::newOrDefaultColor(u"Panel Color"_s)};
    expected << (refused ? ShellMessages::colorConflict() : ShellMessages::savePanelColor());
    QCOMPARE(m_program->dialogs.takeShown(), expected);
    QCOMPARE(m_panel->palette().color(QPalette::Window), refused ? Theme::light().panel : chosen);
    QCOMPARE(m_activity->activity(), u"Entry Screen"_s);
    QVERIFY(m_program->dialogs.isDone());
}

void TestPanelColors::cancellingChangesNothing_data()
{
    QTest::addColumn<bool>("inTheDialog");
    QTest::newRow("the question") << false;
    QTest::newRow("the colour dialog") << true;
}

void TestPanelColors::cancellingChangesNothing()
{
    QFETCH(bool, inTheDialog);
    PanelColors &colors = make(panelOnly);
    const QByteArray before = m_program->bytes(u"GColor3.Fil"_s);
    m_program->dialogs.willAnswer(inTheDialog ? Answer::Yes : Answer::Cancel);
    if (inTheDialog)
        m_program->dialogs.willChooseColor(std::nullopt);
    colors.choosePanelColor();
    QCOMPARE(m_panel->palette().color(QPalette::Window), Theme::light().panel);
    QCOMPARE(m_program->bytes(u"GColor3.Fil"_s), before);
    QVERIFY(!colors.hasUnsavedChanges());
    QCOMPARE(m_activity->activity(), u"Entry Screen"_s);
    QVERIFY(m_program->dialogs.isDone());
}

void TestPanelColors::asksAtOnceWhereThereIsNoTextColor_data()
{
    QTest::addColumn<bool>("saves");
    QTest::newRow("Yes writes it") << true;
    QTest::newRow("No keeps it until the window closes") << false;
}

void TestPanelColors::asksAtOnceWhereThereIsNoTextColor()
{
    QFETCH(bool, saves);
    PanelColors &colors = make(panelOnly);
    m_program->dialogs.willAnswer(Answer::Yes);
    m_program->dialogs.willChooseColor(blue);
    m_program->dialogs.willAnswer(saves ? Answer::Yes : Answer::No);
    if (saves)
        m_program->dialogs.willAnswer(Answer::No); // not for the whole program
    colors.choosePanelColor();
    QCOMPARE(m_panel->palette().color(QPalette::Window), blue);
    QCOMPARE(m_program->settings.text(panelOnly.panel), saves ? QString::fromLatin1(blueText) : QString());
    QVERIFY(colors.askToSave()); // asks nothing more
    QVERIFY(m_program->dialogs.isDone());
}

void TestPanelColors::asksOnLeavingWhereThereIsATextColor_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<bool>("leaves");
    QTest::addColumn<QString>("stored");
    QTest::newRow("Yes") << Answer::Yes << true << QString::fromLatin1(blueText);
    QTest::newRow("No") << Answer::No << true << QString();
    QTest::newRow("Cancel") << Answer::Cancel << false << QString();
}

void TestPanelColors::asksOnLeavingWhereThereIsATextColor()
{
    QFETCH(Answer, answer);
    PanelColors &colors = make(withText);
    m_program->dialogs.willAnswer(Answer::Yes);
    m_program->dialogs.willChooseColor(blue);
    colors.choosePanelColor();
    QVERIFY(colors.hasUnsavedChanges());
    QCOMPARE(m_program->dialogs.takeShown().size(), 1);

    m_program->dialogs.willAnswer(answer);
    if (answer == Answer::Yes)
        m_program->dialogs.willAnswer(Answer::No);
    QTEST(colors.askToSave(), "leaves");
    QTEST(m_program->settings.text(withText.panel), "stored");
    QCOMPARE(m_program->dialogs.takeShown().first(), ShellMessages::saveColors());
    QVERIFY(m_program->dialogs.isDone());
}

void TestPanelColors::noGivesTheDesignedColor()
{
    QVERIFY(m_program->settings.setText(panelOnly.panel, QString::fromLatin1(blueText)));
    PanelColors &colors = make(panelOnly);
    m_program->dialogs.willAnswer(Answer::No);
    m_program->dialogs.willAnswer(Answer::Yes);
    m_program->dialogs.willAnswer(Answer::Cancel);
    colors.choosePanelColor();
    QCOMPARE(m_panel->palette().color(QPalette::Window), Theme::light().panel);
    QCOMPARE(m_label->palette().color(m_label->foregroundRole()), Theme::light().quiet);
    QCOMPARE(m_program->settings.text(panelOnly.panel), u"16383487"_s);
}

void TestPanelColors::keepsAChosenTextColor()
{
    PanelColors &colors = make(withText);
    m_program->dialogs.willAnswer(Answer::Yes);
    m_program->dialogs.willChooseColor(Theme::light().panel); // the panel's own colour
    colors.chooseTextColor();
    QCOMPARE(m_program->dialogs.takeShown().last(), ShellMessages::colorConflict());

    m_program->dialogs.willAnswer(Answer::Yes);
    m_program->dialogs.willChooseColor(QColor(Qt::red));
    colors.chooseTextColor();
    QCOMPARE(colors.ink(), QColor(Qt::red));
    QCOMPARE(m_label->palette().color(m_label->foregroundRole()), QColor(Qt::red));
    m_program->dialogs.willAnswer(Answer::Yes);
    QVERIFY(colors.askToSave());
    QCOMPARE(m_program->settings.text(*withText.text), u"255"_s);
    QCOMPARE(m_program->settings.text(withText.panel), QString());

    m_program->dialogs.willAnswer(Answer::No);
    colors.chooseTextColor();
    QCOMPARE(colors.ink(), Theme::light().text);
    m_program->dialogs.willAnswer(Answer::Yes);
    QVERIFY(colors.askToSave());
    QCOMPARE(m_program->settings.text(*withText.text), u"Default"_s);
}

void TestPanelColors::coloursTheWholeProgramOnRequest()
{
    PanelColors &colors = make(panelOnly);
    m_program->dialogs.willAnswer(Answer::Yes);
    m_program->dialogs.willChooseColor(blue);
    m_program->dialogs.willAnswer(Answer::Yes);
    m_program->dialogs.willAnswer(Answer::Yes);
    colors.choosePanelColor();
    QCOMPARE(m_program->dialogs.takeShown().last(), ShellMessages::updateWholeProgram());
    QCOMPARE(m_program->settings.text(SettingsKeys::mainMenuColor), QString::fromLatin1(blueText));
    QCOMPARE(m_program->settings.text({SettingsKeys::colorFile3, 105}), QString::fromLatin1(blueText));
}

void TestPanelColors::followsAnotherWindowsUpdate()
{
    const PanelColors &colors = make(withText);
    emit m_program->changes.panelColorsChanged(QString::fromLatin1(blueText));
    QCOMPARE(colors.panelColor(), blue);
    QCOMPARE(m_panel->palette().color(QPalette::Window), blue);
}

QTEST_MAIN(TestPanelColors)
#include "tst_panelcolors.moc"
