// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/copypasswordbox.h"

#include "backup/model/openedbackup.h"
#include "shell/access/gate.h"
#include "shell/access/passwordmessages.h"
#include "shell/controls/busycursor.h"
#include "shell/controls/controls.h"
#include "shell/core/threadedstep.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <chrono>
#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::seconds waitingStep{1};
constexpr int dialogWidth = 460;
constexpr int buttonWidth = 104;

} // namespace

CopyPasswordBox::CopyPasswordBox(Program &program, const QString &heading, const QString &words, Check check,
                                 QWidget *parent, Pace pace)
    : QDialog(parent)
    , m_program(program)
    , m_check(std::move(check))
    , m_slow(pace == Pace::Slow ? new ThreadedStep(this) : nullptr)
    , m_wrong(program.folder, PasswordCost::interactive(), &program.gate.memory())
    , m_attempts(program.gate.memory().attempts, waitingStep)
    , m_password(named(new QLineEdit(this), u"copyPassword"_s))
    , m_refusal(named(makeQuietLabel({}, this), u"copyPasswordRefusal"_s))
    , m_ok(makeButton(u"copyPasswordOk"_s, u"&OK"_s, this, ButtonKind::Main))
    , m_cancel(makeButton(u"copyPasswordCancel"_s, u"&Cancel"_s, this))
{
    setObjectName(u"copyPasswordBox"_s);
    setWindowTitle(u"Restore"_s);
    setPalette(Theme::of(this).panelPalette());
    m_password->setEchoMode(QLineEdit::Password);
    layOut(heading, words);
    m_ok->setDefault(true);
    connect(m_password, &QLineEdit::textEdited, m_refusal, &QLabel::clear);
    connect(m_ok, &QPushButton::clicked, this, &CopyPasswordBox::accept);
    connect(m_cancel, &QPushButton::clicked, this, &CopyPasswordBox::reject);
    connect(&m_attempts, &Attempts::waiting, this, &CopyPasswordBox::showWait);
    connect(&m_attempts, &Attempts::waited, this, &CopyPasswordBox::endWait);
    connect(&m_attempts, &Attempts::spent, this, &CopyPasswordBox::reject);
    setFixedWidth(TypeScale::wide(dialogWidth));
    m_password->setFocus();
    if (m_check && !m_slow)
        m_attempts.resume(m_wrong.wrongAnswers(), program.clock.now());
}

void CopyPasswordBox::layOut(const QString &heading, const QString &words)
{
    QLabel *said = makeQuietLabel(words, this);
    said->setWordWrap(true);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(24, 24, 24, 20);
    rows->setSpacing(8);
    rows->addWidget(makeHeading(heading, this));
    rows->addWidget(said);
    rows->addSpacing(4);
    rows->addWidget(makeFieldLabel(u"&Password"_s, m_password, this));
    rows->addWidget(m_password);
    // Always there, so that nothing moves when something is said.
    m_refusal->setMinimumHeight(m_refusal->fontMetrics().lineSpacing() + 2);
    rows->addWidget(m_refusal);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addStretch();
    for (QPushButton *button : {m_ok, m_cancel}) {
        button->setMinimumWidth(buttonWidth);
        buttons->addWidget(button);
    }
    rows->addLayout(buttons);
}

std::optional<QString> CopyPasswordBox::ofSet(Program &program, const BackupSet &set, QWidget *parent)
{
    if (!set.isSealed())
        return QString();
    CopyPasswordBox box(
        program, u"This backup is sealed"_s, u"Type the password that it was sealed with."_s,
        [folder = set.folder](const QString &typed) { return OpenedBackup::isPassword(folder, typed); },
        parent, Pace::Slow);
    return program.dialogs.run(box) == QDialog::Accepted ? std::optional(box.password()) : std::nullopt;
}

QString CopyPasswordBox::password() const
{
    return m_password->text();
}

void CopyPasswordBox::accept()
{
    if (m_attempts.isWaiting() || (m_slow && m_slow->isRunning()))
        return;
    if (m_password->text().isEmpty()) {
        m_refusal->setText(u"Type the password first."_s);
        return;
    }
    if (m_slow) {
        checkSlowly();
        return;
    }
    const bool isRight = !m_check || [this] {
        const BusyCursor busy;
        return m_check(m_password->text());
    }();
    if (!isRight) {
        m_isWrong = true;
        m_password->selectAll();
        m_attempts.addWrong(m_wrong.addWrongAnswer(m_program.clock.now()));
        return;
    }
    if (m_check) {
        m_attempts.reset();
        m_wrong.takeWrongAnswers();
    }
    QDialog::accept();
}

void CopyPasswordBox::checkSlowly()
{
    const QString words = u"Checking the password..."_s;
    setWaiting(words);
    m_refusal->setText(words);
    auto isRight = std::make_shared<bool>(false);
    m_slow->start([isRight, check = m_check, typed = m_password->text()] { *isRight = check(typed); },
                  [this, isRight] { showChecked(*isRight); });
}

void CopyPasswordBox::showChecked(bool isRight)
{
    m_isWrong = !isRight;
    endWait();
    m_password->selectAll();
    if (isRight)
        QDialog::accept();
}

/// What is typed on meanwhile works nothing: the focus does not move to "Cancel" by itself.
void CopyPasswordBox::setWaiting(const QString &why)
{
    if (!m_cancel->hasFocus())
        setFocus();
    setUnavailable(m_password, why);
    setUnavailable(m_ok, why);
}

void CopyPasswordBox::showWait(int seconds)
{
    const QString wait = PasswordMessages::tryAgainIn(seconds);
    setWaiting(wait);
    m_refusal->setText(m_isWrong ? PasswordMessages::wrongPassword() + u' ' + wait : wait);
}

void CopyPasswordBox::endWait()
{
    setUnavailable(m_password, {});
    setUnavailable(m_ok, {});
    m_refusal->setText(m_isWrong ? PasswordMessages::wrongPassword() : QString());
    m_password->setFocus();
}
