// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/core/settingskeys.h"
#include "shell/core/shellmessages.h"
#include "shell/frame/panelcolors.h"
#include "shell/look/theme.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QLabel>
#include <QListWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr PanelColorSettings withText{SettingsKeys::addressEntryColor, SettingsKeys::addressEntryProgramColor,
                                      SettingsKeys::addressEntryTextColor};
constexpr PanelColorSettings panelOnly{SettingsKeys::helpColor, SettingsKeys::helpProgramColor, {}};
const QColor blue(0x30, 0x5a, 0x70);
constexpr auto blueText = "7363120"_L1;

} // namespace

/// A window with one panel, on a program of its own.
class TestPanelColors : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Theme::apply(*qApp); }

    void init()
    {
        m_window.reset();
        m_program = std::make_unique<TestProgram>();
        m_window = std::make_unique<QWidget>();
        m_activity = new ActivityBar(m_program->clock, m_program->state.dateStyle, m_window.get());
        m_activity->setActivity(u"Entry Screen"_s);
        m_panel = new PanelFrame(m_window.get());
        m_label = makeQuietLabel(u"Last Name"_s, m_panel);
    }

    void takesTheStoredColor_data()
    {
        const QColor designed = Theme::light().panel, ink = Theme::light().text;
        const QColor white(Qt::white), yellow(Qt::yellow), red(Qt::red), black(Qt::black);
        rows<QString, QString, QString, QColor, QColor>({
            {"nothing stored", {}, {}, {}, designed, ink},
            {"its own", blueText, u"255"_s, {}, blue, white},
            {"the program's, when it has none", {}, blueText, {}, blue, white},
            {"the program's, for Default", u"Default"_s, u"65535"_s, {}, yellow, black},
            {"the designed number of the other scheme", u"2500907"_s, u"255"_s, {}, designed, ink},
            {"a text colour", blueText, {}, u"65535"_s, blue, yellow},
            {"a text colour alone", {}, {}, u"255"_s, designed, red},
            {"a text colour that the panel has", blueText, {}, blueText, blue, white},
            {"damaged", u"blue"_s, {}, u"#"_s, designed, ink},
        });
    }

    void takesTheStoredColor()
    {
        const auto [own, programWide, text, panel, ink] = row<QString, QString, QString, QColor, QColor>();
        QVERIFY(m_program->settings.setText(withText.panel, own));
        QVERIFY(m_program->settings.setText(withText.programWide, programWide));
        QVERIFY(m_program->settings.setText(*withText.text, text));
        const PanelColors &colors = make(withText);
        QCOMPARE(m_panel->palette().color(QPalette::Window), panel);
        QCOMPARE(m_panel->palette().color(QPalette::WindowText), ink);
        QCOMPARE(colors.ink(), ink);
    }

    void colorsWordsAndLeavesBoxesAlone()
    {
        auto *box = new FieldBox(m_panel);
        auto *list = new QListWidget(m_panel);
        QPushButton *button = makeButton(u"Command1"_s, u"&Save"_s, m_panel, ButtonKind::Main);
        QVERIFY(m_program->settings.setText(panelOnly.panel, blueText));
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

    void colorsWhatComesOntoAPanelLater()
    {
        auto *content = new QWidget(m_panel);
        QVERIFY(m_program->settings.setText(panelOnly.panel, blueText));
        make(panelOnly);
        auto *whole = new QWidget; // put together before it stands on the panel
        QList<QLabel *> late{makeQuietLabel(u"4 entries"_s, content), makeQuietLabel(u"Taxes"_s, whole)};
        whole->setParent(content);
        late.first()->show();
        whole->show();
        for (const QLabel *label : late)
            QCOMPARE(label->palette().color(label->foregroundRole()), QColor(Qt::white));
    }

    void asksAtOnceWhereThereIsNoTextColor_data()
    {
        using Answers = QList<Answer>;
        using Color = std::optional<QColor>;
        const QColor designed = Theme::light().panel, yellow(Qt::yellow), black(Qt::black), almost(0, 0, 1);
        const QString before = u"65535"_s;
        const Message start = ShellMessages::newOrDefaultColor(u"Panel Color"_s),
                      conflict = ShellMessages::colorConflict(), keep = ShellMessages::savePanelColor(),
                      everywhere = ShellMessages::updateWholeProgram();
        const Answer yes = Answer::Yes, no = Answer::No, cancel = Answer::Cancel;
        rows<Answers, Color, Message, QColor, QString>({
            {"the question is cancelled", {cancel}, {}, start, yellow, before},
            {"the dialog is cancelled", {yes}, {}, start, yellow, before},
            {"the ink in use is refused", {yes, Answer::Ok}, black, conflict, yellow, before},
            {"almost the ink, until the window closes", {yes, no}, almost, keep, almost, before},
            {"for the window", {yes, yes, no}, blue, everywhere, blue, blueText},
            {"for the program", {yes, yes, yes}, blue, everywhere, blue, blueText},
            {"as designed", {no, yes, cancel}, {}, everywhere, designed, u"16383487"_s},
        });
    }

    void asksAtOnceWhereThereIsNoTextColor()
    {
        const auto [answers, chosen, last, panel, stored] =
            row<QList<Answer>, std::optional<QColor>, Message, QColor, QString>();
        QVERIFY(m_program->settings.setText(panelOnly.panel, u"65535"_s));
        PanelColors &colors = make(panelOnly);
        for (const Answer answer : answers)
            m_program->dialogs.willAnswer(answer);
        if (answers.first() == Answer::Yes)
            m_program->dialogs.willChooseColor(chosen);
        colors.choosePanelColor();
        QCOMPARE(m_program->dialogs.takeShown().last(), last);
        QCOMPARE(m_panel->palette().color(QPalette::Window), panel);
        QCOMPARE(m_program->settings.text(panelOnly.panel), stored);
        const bool isForAll = answers.value(2) == Answer::Yes;
        QCOMPARE(m_program->settings.text(SettingsKeys::mainMenuColor), isForAll ? stored : QString());
        const bool isDesigned = panel == Theme::light().panel;
        QCOMPARE(m_label->palette().color(m_label->foregroundRole()),
                 isDesigned ? Theme::light().quiet : inkOn(panel));
        QCOMPARE(m_activity->activity(), u"Entry Screen"_s);
        QVERIFY(!colors.hasUnsavedChanges());
        QVERIFY(m_program->dialogs.isDone());
    }

    void asksOnLeavingWhereThereIsATextColor_data()
    {
        rows<Answer, QString>({
            {"Yes", Answer::Yes, blueText},
            {"No", Answer::No, {}},
            {"Cancel", Answer::Cancel, {}},
        });
    }

    void asksOnLeavingWhereThereIsATextColor()
    {
        const auto [answer, stored] = row<Answer, QString>();
        PanelColors &colors = make(withText);
        m_program->dialogs.willAnswer(Answer::Yes);
        m_program->dialogs.willChooseColor(blue);
        colors.choosePanelColor();
        QVERIFY(colors.hasUnsavedChanges());
        QCOMPARE(m_program->dialogs.takeShown().size(), 1);

        m_program->dialogs.willAnswer(answer);
        if (answer == Answer::Yes)
            m_program->dialogs.willAnswer(Answer::No);
        QCOMPARE(colors.askToSave(), answer);
        QCOMPARE(m_program->settings.text(withText.panel), QString());
        if (answer == Answer::Yes)
            QVERIFY(colors.save());
        QCOMPARE(m_program->settings.text(withText.panel), stored);
        QCOMPARE(m_program->dialogs.takeShown().first(), ShellMessages::saveColors());
        QVERIFY(m_program->dialogs.isDone());
    }

    void keepsAChosenTextColor()
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
        QVERIFY(colors.save());
        QCOMPARE(m_program->settings.text(*withText.text), u"255"_s);
        QCOMPARE(m_program->settings.text(withText.panel), QString());

        m_program->dialogs.willAnswer(Answer::No);
        colors.chooseTextColor();
        QCOMPARE(colors.ink(), Theme::light().text);
        QVERIFY(colors.save());
        QCOMPARE(m_program->settings.text(*withText.text), u"Default"_s);
    }

    void followsAnotherWindowsUpdate()
    {
        PanelColors &colors = make(withText);
        for (const bool isText : {false, true}) { // chosen here and not saved
            m_program->dialogs.willAnswer(Answer::Yes);
            m_program->dialogs.willChooseColor(QColor(Qt::yellow));
            isText ? colors.chooseTextColor() : colors.choosePanelColor();
            emit m_program->changes.panelColorsChanged(blueText);
            QCOMPARE(m_panel->palette().color(QPalette::Window), blue);
            QCOMPARE(colors.hasUnsavedChanges(), isText);
        }
        QCOMPARE(colors.ink(), QColor(Qt::yellow));
    }

private:
    PanelColors &make(const PanelColorSettings &settings)
    {
        auto *colors = new PanelColors(m_program->program, settings, m_window.get(), *m_activity);
        colors->addPanel(m_panel);
        m_window->show();
        colors->load();
        return *colors;
    }

    std::unique_ptr<TestProgram> m_program;
    std::unique_ptr<QWidget> m_window;
    ActivityBar *m_activity = nullptr;
    PanelFrame *m_panel = nullptr;
    QLabel *m_label = nullptr;
};

QTEST_MAIN(TestPanelColors)
#include "tst_panelcolors.moc"
