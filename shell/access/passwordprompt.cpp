// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/passwordprompt.h"

#include "shell/access/gate.h"
#include "shell/access/guardedareas.h"
#include "shell/access/passwordmessages.h"
#include "shell/access/recoverybox.h"
#include "shell/controls/busycursor.h"
#include "shell/controls/controls.h"
#include "shell/core/area.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"
#include "shell/program/sharedprocedures.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int promptWidth = 460;
constexpr int iconSize = 44;
constexpr int buttonWidth = 104;

QString guardedFunction(const ProgramState &state)
{
    if (state.passwordGateResult == PasswordGateResult::PasswordControl)
        return PasswordMessages::title();
    if (state.guardedArea == Area::None)
        return u"This function"_s;
    return GuardedAreas::functionName(state.guardedArea);
}

} // namespace

Form32::Form32(Program &program, QWidget *parent, std::chrono::milliseconds step)
    : QDialog(parent)
    , m_program(program)
    , m_step(step)
    , m_file(program.folder, PasswordCost::interactive(), &program.gate.memory())
    , m_attempts(program.gate.memory().attempts, step)
    , m_password(named(new QLineEdit(this), u"Text1"_s))
    , m_showPassword(named(new QCheckBox(u"&Show password"_s, this), u"showPassword"_s))
    , m_refusal(named(makeQuietLabel({}, this), u"refusal"_s))
    , m_recover(makeButton(u"Command3"_s, u"&Recovery Code..."_s, this))
    , m_ok(makeButton(u"Command1"_s, u"&OK"_s, this, ButtonKind::Main))
    , m_cancel(makeButton(u"Command2"_s, u"&Cancel"_s, this))
{
    setObjectName(u"Form32"_s);
    setWindowTitle(u"Password"_s);
    setPalette(Theme::of(this).panelPalette());
    buildForm(guardedFunction(program.state));

    m_password->setEchoMode(QLineEdit::Password);
    m_password->setAccessibleName(u"Enter Password"_s);
    m_ok->setDefault(true);
    connect(m_showPassword, &QCheckBox::toggled, this,
            [this](bool shown) { m_password->setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password); });
    connect(m_password, &QLineEdit::textEdited, m_refusal, &QLabel::clear);
    connect(m_recover, &QPushButton::clicked, this, &Form32::recover);
    connect(m_ok, &QPushButton::clicked, this, &Form32::accept);
    connect(m_cancel, &QPushButton::clicked, this, &Form32::reject);
    connect(&m_attempts, &Attempts::waiting, this, &Form32::showWait);
    connect(&m_attempts, &Attempts::waited, this, &Form32::endWait);
    connect(&m_attempts, &Attempts::spent, this, &Form32::reject);
    offerRecovery();
    m_attempts.resume(m_file.wrongAnswers(), program.clock.now());
}

void Form32::buildForm(const QString &functionName)
{
    auto *icon = new QLabel(this);
    icon->setPixmap(
        Icons::pixmap("password-control"_L1, Theme::of(this).scheme, iconSize, devicePixelRatioF()));
    auto *top = new QHBoxLayout;
    top->setSpacing(16);
    top->addWidget(icon, 0, Qt::AlignTop);
    top->addLayout(makeQuestion(functionName), 1);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(24, 24, 24, 20);
    all->setSpacing(12);
    all->addLayout(top);
    all->addSpacing(4);
    all->addLayout(makeFoot());
    // As high as its content from the start: the line of a refusal has its place.
    setMinimumHeight(sizeHint().height());
    setFixedWidth(promptWidth);
    m_password->setFocus();
}

QLayout *Form32::makeQuestion(const QString &functionName)
{
    auto *form = new QVBoxLayout;
    form->setSpacing(3);
    form->addWidget(makeHeading(functionName, this));
    form->addWidget(makeQuietLabel(PasswordMessages::typeThePassword(), this));
    form->addSpacing(12);
    form->addWidget(makeFieldLabel(u"&Password"_s, m_password, this));
    form->addWidget(m_password);
    form->addSpacing(6);
    form->addWidget(m_showPassword);
    form->addSpacing(6);
    // Always there, so that nothing moves when something is said.
    m_refusal->setMinimumHeight(m_refusal->fontMetrics().lineSpacing() + 2);
    form->addWidget(m_refusal);
    return form;
}

QLayout *Form32::makeFoot()
{
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(m_recover);
    buttons->addStretch();
    for (QPushButton *button : {m_ok, m_cancel}) {
        button->setMinimumWidth(buttonWidth);
        buttons->addWidget(button);
    }
    return buttons;
}

void Form32::accept()
{
    if (m_attempts.isWaiting())
        return;
    if (m_password->text().isEmpty()) {
        m_refusal->setText(PasswordMessages::passwordMissing());
        m_password->setFocus();
        return;
    }
    const bool isRight = [this] {
        const BusyCursor busy;
        return m_file.matches(m_password->text());
    }();
    m_password->clear();
    m_showPassword->setChecked(false); // the next one is not shown because this one was
    m_isWrong = !isRight;
    if (m_isWrong) {
        const WrongAnswers wrong = m_file.addWrongAnswer(m_program.clock.now());
        offerRecovery();
        m_attempts.addWrong(wrong);
        return;
    }
    m_attempts.reset();
    WrongAnswers before = m_file.takeWrongAnswers();
    const WrongAnswers earlier = std::exchange(m_program.gate.memory().beforeCode, {});
    if (earlier.count > 0)
        before = {before.count + earlier.count, earlier.first, before.count > 0 ? before.last : earlier.last};
    if (before.count > 0)
        m_program.gate.noteRightAnswer(before);
    if (m_program.gate.memory().newCode.isEmpty() || showNewCode())
        QDialog::accept();
}

/// That of an earlier prompt, which was closed before anybody could have kept it. False when this prompt was
/// closed meanwhile, too: it opens nothing then.
bool Form32::showNewCode()
{
    RecoveryBox box(m_program, m_step, this);
    m_program.dialogs.run(box);
    return isVisible();
}

void Form32::offerRecovery()
{
    m_recover->setVisible(m_file.wrongAnswers().count > 0 && m_file.hasRecoveryCode());
}

/// The code leads to a new password and to nothing else: what was to be opened stays closed.
void Form32::recover()
{
    if (m_attempts.isWaiting())
        return;
    m_password->clear();
    m_showPassword->setChecked(false);
    RecoveryBox box(m_program, m_step, this);
    if (m_program.dialogs.run(box) == Accepted)
        reject();
    else
        m_attempts.resume(m_file.wrongAnswers(), m_program.clock.now());
}

void Form32::showWait(int seconds)
{
    const QString wait = PasswordMessages::tryAgainIn(seconds);
    // What is typed on meanwhile works nothing: the focus does not move to the next part that is there.
    if (!m_cancel->hasFocus())
        setFocus();
    setUnavailable(m_recover, wait);
    setUnavailable(m_password, wait);
    setUnavailable(m_showPassword, wait);
    setUnavailable(m_ok, wait);
    m_refusal->setText(m_isWrong ? PasswordMessages::wrongPassword() + u' ' + wait : wait);
}

void Form32::endWait()
{
    setUnavailable(m_password, {});
    setUnavailable(m_showPassword, {});
    setUnavailable(m_ok, {});
    setUnavailable(m_recover, {});
    m_refusal->setText(m_isWrong ? PasswordMessages::wrongPassword() : QString());
    m_password->setFocus();
}

void showPasswordPrompt(Program &program, QWidget *parent)
{
    const PasswordGateResult asked = program.state.passwordGateResult;
    program.state.passwordGateResult = PasswordGateResult::Refused;
    // The caller shows the hourglass while it opens a function; nobody types under an hourglass.
    HINFO1::hourglassOff();
    const PasswordCheck file(program.folder, PasswordCost::interactive(), &program.gate.memory());
    if (file.state() != PasswordCheck::State::Set) {
        program.dialogs.ask(parent, PasswordMessages::fileDamaged(program.folder.path()));
        return;
    }
    program.state.passwordGateResult = asked;
    Form32 prompt(program, parent);
    const bool isPassed = program.dialogs.run(prompt) == QDialog::Accepted;
    program.state.passwordGateResult = isPassed ? asked : PasswordGateResult::Refused;
}
