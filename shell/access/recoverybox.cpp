// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/recoverybox.h"

#include "shell/access/gate.h"
#include "shell/access/passwordmessages.h"
#include "shell/access/recoverynote.h"
#include "shell/access/recoverypage.h"
#include "shell/controls/activitybar.h"
#include "shell/controls/busycursor.h"
#include "shell/controls/controls.h"
#include "shell/core/framelines.h"
#include "shell/look/theme.h"
#include "shell/pages/pagefont.h"
#include "shell/pages/pagepainter.h"
#include "shell/preview/printjob.h"
#include "shell/program/program.h"
#include "storage/sealing/recoverycode.h"
#include "storage/sealing/secretbytes.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int promptWidth = 460;
constexpr int buttonWidth = 104;

QLabel *makeWrapped(const QString &text, QWidget *parent)
{
    QLabel *label = makeQuietLabel(text, parent);
    label->setWordWrap(true);
    return label;
}

QVBoxLayout *makeRows(QWidget *step, const QString &heading)
{
    auto *rows = new QVBoxLayout(step);
    rows->setContentsMargins({});
    rows->setSpacing(10);
    rows->addWidget(makeHeading(heading, step));
    return rows;
}

} // namespace

RecoveryBox::RecoveryBox(Program &program, std::chrono::milliseconds step, QWidget *parent)
    : QDialog(parent)
    , m_program(program)
    , m_file(program.folder, PasswordCost::interactive(), &program.gate.memory())
    , m_attempts(program.gate.memory().attempts, step)
    , m_steps(new QStackedWidget(this))
    , m_code(named(new QLineEdit(this), u"recoveryCode"_s))
    , m_new(named(new QLineEdit(this), u"newPassword"_s))
    , m_repeat(named(new QLineEdit(this), u"newPasswordAgain"_s))
    , m_note(new RecoveryNote(this))
    , m_refusal(named(makeWrapped({}, this), u"refusal"_s))
    , m_next(makeButton(u"recoveryNext"_s, u"&OK"_s, this, ButtonKind::Main))
    , m_cancel(makeButton(u"recoveryCancel"_s, u"&Cancel"_s, this))
{
    setObjectName(u"recoveryBox"_s);
    setWindowTitle(u"Recovery Code"_s);
    setPalette(Theme::of(this).panelPalette());
    layOut();
    m_next->setDefault(true);
    for (QLineEdit *box : {m_new, m_repeat})
        box->setEchoMode(QLineEdit::Password);
    for (QLineEdit *box : {m_code, m_new, m_repeat})
        connect(box, &QLineEdit::textEdited, m_refusal, &QLabel::clear);
    connect(m_next, &QPushButton::clicked, this, &RecoveryBox::accept);
    connect(m_cancel, &QPushButton::clicked, this, &RecoveryBox::reject);
    connect(m_note, &RecoveryNote::done, this, &RecoveryBox::accept);
    connect(m_note, &RecoveryNote::printRequested, this, &RecoveryBox::print);
    connect(&m_attempts, &Attempts::waiting, this, &RecoveryBox::showWait);
    connect(&m_attempts, &Attempts::waited, this, &RecoveryBox::endWait);
    connect(&m_attempts, &Attempts::spent, this, &RecoveryBox::reject);
    if (!program.gate.memory().newCode.isEmpty()) {
        showCode();
        return;
    }
    m_attempts.resume(m_file.wrongAnswers(), program.clock.now());
    m_code->setFocus();
}

QWidget *RecoveryBox::makeCodeStep()
{
    auto *step = new QWidget(m_steps);
    QVBoxLayout *rows = makeRows(step, u"Recovery Code"_s);
    rows->addWidget(makeWrapped(PasswordMessages::typeTheCode(), step));
    rows->addLayout(labelled(u"The code on your paper"_s, m_code));
    rows->addStretch();
    return step;
}

QWidget *RecoveryBox::makePasswordStep()
{
    auto *step = new QWidget(m_steps);
    QVBoxLayout *rows = makeRows(step, u"New Password"_s);
    rows->addWidget(makeWrapped(PasswordMessages::lengthHint(), step));
    rows->addLayout(labelled(u"New password"_s, m_new));
    rows->addLayout(labelled(u"The new password again"_s, m_repeat));
    rows->addStretch();
    return step;
}

void RecoveryBox::layOut()
{
    m_steps->addWidget(makeCodeStep());
    m_steps->addWidget(makePasswordStep());
    m_steps->addWidget(m_note);
    // Always there, so that nothing moves when something is said.
    m_refusal->setMinimumHeight(2 * m_refusal->fontMetrics().lineSpacing() + 2);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(24, 24, 24, 20);
    all->setSpacing(12);
    all->addWidget(m_steps);
    all->addWidget(m_refusal);
    all->addLayout(makeFoot());
    setFixedWidth(TypeScale::wide(promptWidth));
}

QLayout *RecoveryBox::makeFoot()
{
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addStretch();
    for (QPushButton *button : {m_next, m_cancel}) {
        button->setMinimumWidth(buttonWidth);
        buttons->addWidget(button);
    }
    return buttons;
}

void RecoveryBox::accept()
{
    switch (Step(m_steps->currentIndex())) {
    case AskForCode:
        takeCode();
        break;
    case AskForPassword:
        takePassword();
        break;
    case ShowCode:
        m_note->clear();
        SecretBytes::wipe(m_program.gate.memory().newCode);
        QDialog::accept();
        break;
    }
}

void RecoveryBox::reject()
{
    const bool isSet = m_steps->currentIndex() == ShowCode;
    m_note->clear();
    done(isSet ? Accepted : Rejected);
}

void RecoveryBox::takeCode()
{
    if (m_attempts.isWaiting())
        return;
    const std::optional<QString> code = RecoveryCode::read(m_code->text());
    if (!code) {
        refuse(m_code, PasswordMessages::codeMistyped());
        return;
    }
    const bool isRight = [&] {
        const BusyCursor busy;
        return m_file.matchesRecoveryCode(*code);
    }();
    m_isWrong = !isRight;
    if (m_isWrong) {
        m_attempts.addWrong(m_file.addWrongAnswer(m_program.clock.now()));
        return;
    }
    m_attempts.reset();
    m_program.gate.memory().beforeCode = m_file.takeWrongAnswers();
    m_code->clear();
    m_refusal->clear();
    m_steps->setCurrentIndex(AskForPassword);
    m_new->setFocus();
}

void RecoveryBox::takePassword()
{
    if (m_new->text().isEmpty()) {
        refuse(m_new, PasswordMessages::newPasswordMissing());
        return;
    }
    if (m_new->text() != m_repeat->text()) {
        refuse(m_repeat, PasswordMessages::passwordsDiffer());
        return;
    }
    const QString code = RecoveryCode::generate();
    const bool isSet = [&] {
        const BusyCursor busy;
        return m_file.setPassword(m_new->text(), code);
    }();
    if (!isSet) {
        refuse(m_new, FrameLines::refused(m_file.folder(), PasswordMessages::passwordNotSaved()));
        return;
    }
    m_new->clear();
    m_repeat->clear();
    m_program.gate.memory().newCode = code;
    showCode();
}

void RecoveryBox::showCode()
{
    m_refusal->hide();
    m_next->hide();
    m_cancel->hide();
    m_steps->setCurrentIndex(ShowCode);
    m_note->show(m_program.gate.memory().newCode);
}

void RecoveryBox::refuse(QLineEdit *box, const QString &reason)
{
    m_refusal->setText(reason);
    box->setFocus();
    box->selectAll();
}

void RecoveryBox::showWait(int seconds)
{
    const QString wait = PasswordMessages::tryAgainIn(seconds);
    // What is typed on meanwhile works nothing: the focus does not move to "Cancel" by itself.
    if (!m_cancel->hasFocus())
        setFocus();
    setUnavailable(m_code, wait);
    setUnavailable(m_next, wait);
    m_refusal->setText(m_isWrong ? PasswordMessages::wrongCode() + u' ' + wait : wait);
}

void RecoveryBox::endWait()
{
    setUnavailable(m_code, {});
    setUnavailable(m_next, {});
    m_refusal->setText(m_isWrong ? PasswordMessages::wrongCode() : QString());
    m_code->setFocus();
}

/// Straight from memory to the printer, or into a PDF where there is none.
void RecoveryBox::print()
{
    const ProgramState &state = m_program.state;
    PageFont font{QApplication::font(), Qt::black};
    font.font.setPointSizeF(PageMetrics::bodyPoints);
    const PageSetup setup{state.dateStyle == DateStyle::Usa ? PageMetrics::letter : PageMetrics::a4,
                          PageSetup::Portrait};
    const auto layOut = [&](const PageSetup &paper) {
        const PageContext context{paper, state.dateStyle, m_program.clock.today(), state.familyName.text()};
        return PagePainter(recoveryPage(m_note->code(), context), paper, font);
    };
    ActivityBar told(m_program.clock, state.dateStyle); // what it says is said here
    PrintJob job(m_program, told, this, PasswordMessages::recoveryTitle());
    job.setMayGoOn([this] { return isVisible(); }); // it closes when the program is locked
    job.run(layOut(setup), setup, 0, layOut);
    m_note->say(told.message());
}
