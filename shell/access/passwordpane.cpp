// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/passwordpane.h"

#include "shell/access/passwordmessages.h"
#include "shell/access/recoverynote.h"
#include "shell/controls/busycursor.h"
#include "shell/controls/controls.h"
#include "shell/controls/titleline.h"
#include "shell/core/clock.h"
#include "shell/core/framelines.h"
#include "storage/sealing/recoverycode.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

QLineEdit *makePasswordBox(const QString &name, QWidget *parent)
{
    auto *box = named(new QLineEdit(parent), name);
    box->setEchoMode(QLineEdit::Password);
    return box;
}

/// A column whose widgets stand close together: a label above its box.
QVBoxLayout *makeColumn(QWidget *parent)
{
    auto *column = new QVBoxLayout(parent);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(3);
    return column;
}

QString headingOf(bool sets, bool changes, bool removes)
{
    if (sets)
        return u"Set Password"_s;
    if (changes)
        return u"Change Password"_s;
    return removes ? u"Remove Password"_s : u"New Recovery Code"_s;
}

QLabel *makeWrapped(QLabel *label)
{
    label->setWordWrap(true);
    return label;
}

} // namespace

PasswordPane::PasswordPane(PasswordCheck &file, AttemptMemory &memory, const Clock &clock,
                           std::chrono::milliseconds step, QString whyReadOnly, QWidget *parent)
    : QWidget(parent)
    , m_file(file)
    , m_clock(clock)
    , m_attempts(memory, step)
    , m_whyReadOnly(std::move(whyReadOnly))
    , m_title(new TitleLine(u"passwordTitle"_s, u"Password"_s, this))
    , m_summary(makeWrapped(named(makeQuietLabel({}, this), u"passwordSummary"_s)))
    , m_set(makeButton(u"setPassword"_s, u"Se&t Password"_s, this))
    , m_change(makeButton(u"changePassword"_s, u"&Change"_s, this))
    , m_remove(makeButton(u"removePassword"_s, u"&Remove"_s, this))
    , m_newCode(makeButton(u"newRecoveryCode"_s, u"New Reco&very Code"_s, this))
    , m_note(new RecoveryNote(this))
    , m_heading(nullptr)
    , m_form(makeForm())
{
    m_title->addChip(u"passwordState"_s);
    m_change->setAccessibleName(u"Change Password"_s);
    m_remove->setAccessibleName(u"Remove Password"_s);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    for (QPushButton *button : {m_set, m_change, m_remove})
        buttons->addWidget(button);
    buttons->addStretch();

    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(12);
    all->addWidget(m_title);
    all->addWidget(m_summary);
    all->addLayout(buttons);
    all->addWidget(m_newCode, 0, Qt::AlignLeft);
    all->addWidget(m_form);
    all->addWidget(m_note);
    all->addStretch();
    m_note->hide();
    connectAll();
    refresh();
}

QWidget *PasswordPane::makeForm()
{
    auto *form = new QWidget(this);
    m_heading = makeHeading({}, form);

    m_oldPart = new QWidget(form);
    m_old = makePasswordBox(u"Text1_0"_s, m_oldPart);
    QVBoxLayout *column = makeColumn(m_oldPart);
    column->addLayout(labelled(u"Password until now"_s, m_old));

    m_newPart = new QWidget(form);
    m_new = makePasswordBox(u"Text1_1"_s, m_newPart);
    m_repeat = makePasswordBox(u"Text1_2"_s, m_newPart);
    column = makeColumn(m_newPart);
    column->addLayout(labelled(u"New password"_s, m_new));
    column->addWidget(makeWrapped(makeQuietLabel(PasswordMessages::lengthHint(), m_newPart)));
    column->addSpacing(9);
    column->addLayout(labelled(u"The new password again"_s, m_repeat));

    m_showPasswords = named(new QCheckBox(u"Sho&w what is typed"_s, form), u"showPasswords"_s);
    m_refusal = makeWrapped(named(makeQuietLabel({}, form), u"refusal"_s));
    m_ok = makeButton(u"passwordOk"_s, u"O&K"_s, form);
    m_cancel = makeButton(u"passwordCancel"_s, u"Ca&ncel"_s, form);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(m_ok);
    buttons->addWidget(m_cancel);
    buttons->addStretch();

    auto *all = new QVBoxLayout(form);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(12);
    all->addWidget(makeLine(form));
    for (QWidget *part : {static_cast<QWidget *>(m_heading), m_oldPart, m_newPart,
                          static_cast<QWidget *>(m_showPasswords), static_cast<QWidget *>(m_refusal)})
        all->addWidget(part);
    all->addLayout(buttons);
    form->hide();
    return form;
}

void PasswordPane::connectAll()
{
    connect(m_set, &QPushButton::clicked, this, [this] { begin(Task::Set); });
    connect(m_change, &QPushButton::clicked, this, [this] { begin(Task::Change); });
    connect(m_remove, &QPushButton::clicked, this, [this] { begin(Task::Remove); });
    connect(m_newCode, &QPushButton::clicked, this, [this] { begin(Task::NewCode); });
    connect(m_note, &RecoveryNote::printRequested, this, [this] { emit printRequested(m_note->code()); });
    connect(m_note, &RecoveryNote::done, this, [this] {
        closeNote();
        firstControl()->setFocus();
    });
    connect(m_ok, &QPushButton::clicked, this, &PasswordPane::carryOut);
    connect(m_cancel, &QPushButton::clicked, this, &PasswordPane::close);
    for (QLineEdit *box : {m_old, m_new, m_repeat}) {
        connect(box, &QLineEdit::returnPressed, this, [this, box] { enter(box); });
        connect(box, &QLineEdit::textEdited, m_refusal, &QLabel::clear);
        connect(m_showPasswords, &QCheckBox::toggled, box,
                [box](bool shown) { box->setEchoMode(shown ? QLineEdit::Normal : QLineEdit::Password); });
    }
    connect(&m_attempts, &Attempts::waiting, this, &PasswordPane::showWait);
    connect(&m_attempts, &Attempts::waited, this, &PasswordPane::endWait);
    connect(&m_attempts, &Attempts::spent, this, &PasswordPane::endAsking);
}

void PasswordPane::refresh()
{
    const PasswordCheck::State state = m_file.state();
    const bool isSet = state == PasswordCheck::State::Set;
    const bool isDamaged = state == PasswordCheck::State::Damaged;
    m_title->setChip(isDamaged ? u"Damaged"_s : isSet ? u"Set"_s : u"Not set"_s);
    m_summary->setText(
        isDamaged ? PasswordMessages::damagedSummary()
        : isSet   ? PasswordMessages::setSummary() + u' ' +
                      (m_file.hasRecoveryCode() ? PasswordMessages::codeIsKept() : PasswordMessages::noCode())
                : PasswordMessages::notSetSummary());
    m_set->setVisible(!isSet);
    m_change->setVisible(isSet);
    m_remove->setVisible(isSet);
    m_newCode->setVisible(isSet);
    setUnavailable(m_set, isDamaged ? PasswordMessages::damagedSummary() : m_whyReadOnly);
    const QString spent = m_attempts.isSpent() ? PasswordMessages::answersSpent() : m_whyReadOnly;
    setUnavailable(m_change, spent);
    setUnavailable(m_remove, spent);
    setUnavailable(m_newCode, spent);
}

QWidget *PasswordPane::firstControl() const
{
    return m_set->isHidden() ? m_change : m_set;
}

/// No TaskPanel: the form opens below the buttons of the pane, which stays where it is.
void PasswordPane::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && m_task != Task::None)
        close();
    else
        QWidget::keyPressEvent(event);
}

void PasswordPane::begin(Task task)
{
    if (m_file.state() == PasswordCheck::State::Damaged) {
        emit damageFound();
        return;
    }
    close();
    closeNote();
    m_task = task;
    m_heading->setText(headingOf(task == Task::Set, task == Task::Change, task == Task::Remove));
    m_oldPart->setVisible(task != Task::Set);
    m_newPart->setVisible(takesNewPassword());
    emit formShown(true);
    m_form->show();
    if (task != Task::Set && !m_attempts.isWaiting())
        m_attempts.resume(m_file.wrongAnswers(), m_clock.now());
    (task == Task::Set ? m_new : m_old)->setFocus();
}

void PasswordPane::close()
{
    if (m_task == Task::None)
        return;
    m_task = Task::None;
    for (QLineEdit *box : {m_old, m_new, m_repeat})
        box->clear();
    m_showPasswords->setChecked(false);
    if (!m_attempts.isWaiting())
        m_refusal->clear();
    const bool hadFocus = m_form->isAncestorOf(focusWidget());
    m_form->hide();
    emit formShown(false);
    if (hadFocus)
        firstControl()->setFocus();
}

void PasswordPane::closeNote()
{
    m_note->clear();
    m_note->hide();
}

void PasswordPane::forgetOldCode()
{
    const std::optional<QString> code = RecoveryCode::read(m_note->code());
    if (code && !m_file.matchesRecoveryCode(*code))
        closeNote();
}

/// Enter leads through the boxes while the next one is empty, and carries out behind the last.
void PasswordPane::enter(const QLineEdit *box)
{
    QLineEdit *next = box == m_old ? m_new : m_repeat;
    if (box != m_repeat && next->isVisible() && next->text().isEmpty() && !box->text().isEmpty())
        next->setFocus();
    else
        carryOut();
}

void PasswordPane::carryOut()
{
    if (m_attempts.isWaiting() || !isAcceptable())
        return;
    const Task task = m_task;
    const QString code = needsCode(task) ? RecoveryCode::generate() : QString();
    const bool isDone = apply(task, code);
    if (!isDone && m_file.state() == PasswordCheck::State::Damaged) {
        close();
        emit damageFound();
        return;
    }
    if (!isDone) {
        m_refusal->setText(FrameLines::refused(m_file.folder(), PasswordMessages::passwordNotSaved()));
        return;
    }
    close();
    refresh();
    firstControl()->setFocus();
    tell(task);
    if (!code.isEmpty())
        m_note->show(code);
}

/// Whoever has none gets one with the next password; an old one goes on leading to a new password.
bool PasswordPane::needsCode(Task task) const
{
    return task == Task::Set || task == Task::NewCode || (task == Task::Change && !m_file.hasRecoveryCode());
}

bool PasswordPane::apply(Task task, const QString &code)
{
    const BusyCursor busy;
    switch (task) {
    case Task::Remove:
        return m_file.removePassword();
    case Task::NewCode:
        return m_file.setRecoveryCode(code);
    default:
        return m_file.setPassword(m_new->text(), code);
    }
}

void PasswordPane::tell(Task task)
{
    switch (task) {
    case Task::Set:
        emit passwordSet();
        break;
    case Task::Change:
        emit passwordChanged();
        break;
    case Task::Remove:
        emit passwordRemoved();
        break;
    default:
        emit codeMade();
    }
}

bool PasswordPane::isAcceptable()
{
    if (takesNewPassword()) {
        if (m_new->text().isEmpty())
            return refuse(m_new, PasswordMessages::newPasswordMissing());
        if (m_new->text() != m_repeat->text())
            return refuse(m_repeat, PasswordMessages::passwordsDiffer());
    }
    if (m_task == Task::Set)
        return true;
    if (m_old->text().isEmpty())
        return refuse(m_old, PasswordMessages::passwordMissing());
    const bool isRight = [this] {
        const BusyCursor busy;
        return m_file.matches(m_old->text());
    }();
    m_isWrong = !isRight;
    if (isRight) {
        m_attempts.reset();
        m_wrongBefore = m_file.takeWrongAnswers();
        return true;
    }
    // A file that was damaged meanwhile knows no password: that is nobody's wrong answer.
    if (m_file.state() != PasswordCheck::State::Set) {
        close();
        refresh();
        emit damageFound();
        return false;
    }
    m_old->clear();
    m_showPasswords->setChecked(false);
    m_form->setFocus(); // what is typed on meanwhile works nothing
    m_attempts.addWrong(m_file.addWrongAnswer(m_clock.now()));
    return false;
}

bool PasswordPane::refuse(QLineEdit *box, const QString &reason)
{
    m_refusal->setText(reason);
    box->setFocus();
    box->selectAll();
    return false;
}

void PasswordPane::showWait(int seconds)
{
    const QString wait = PasswordMessages::tryAgainIn(seconds);
    setUnavailable(m_old, wait);
    setUnavailable(m_ok, wait);
    m_refusal->setText(m_isWrong ? PasswordMessages::wrongPassword() + u' ' + wait : wait);
}

void PasswordPane::endWait()
{
    setUnavailable(m_old, {});
    setUnavailable(m_ok, {});
    m_refusal->setText(m_isWrong ? PasswordMessages::wrongPassword() : QString());
    if (m_task != Task::None)
        m_old->setFocus();
}

void PasswordPane::endAsking()
{
    close();
    refresh();
}
