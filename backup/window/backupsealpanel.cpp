// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/backupsealpanel.h"

#include "shell/controls/newpasswordform.h"
#include "shell/core/passwordstrength.h"
#include "shell/look/theme.h"

#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int widest = 560;

QString facts()
{
    return u"Each disk gets one sealed file, with names, counts and pictures inside it. Nobody can open it "
           u"without this password, not even you: there is no other way in. Pictures are copied anew each "
           u"time."_s;
}

} // namespace

BackupSealPanel::BackupSealPanel(QWidget *parent)
    : TaskPanel(u"backupSealPanel"_s, u"Seal the Backup with a Password"_s, parent)
    , m_form(new NewPasswordForm(
          u"newBackupPassword"_s, {u"Password of this backup"_s, u"Type a password first"_s},
          [](const QString &typed) { return PasswordStrength::of(typed, {}).words(); }, this))
    , m_go(nullptr)
{
    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    QLabel *words = makeQuietLabel(facts(), content);
    words->setWordWrap(true);
    for (QWidget *part : std::initializer_list<QWidget *>{m_form, words}) {
        part->setMaximumWidth(TypeScale::wide(widest));
        rows->addWidget(part);
    }
    rows->addStretch(1);
    setContent(content);
    m_go = addButton(u"sealAndBackUp"_s, u"&Seal and Back Up"_s, ButtonKind::Main);
    setLeaveButton(u"backupSealClose"_s, u"C&lose"_s);
    setFocusProxy(m_form);
    connect(m_go, &QPushButton::clicked, this, &BackupSealPanel::choose);
    connect(m_form, &NewPasswordForm::entered, this, &BackupSealPanel::choose);
}

void BackupSealPanel::start()
{
    m_form->start();
    setWorking(false);
}

void BackupSealPanel::setWorking(bool isWorking)
{
    m_isWorking = isWorking;
    m_form->setEditable(!isWorking);
    setUnavailable(m_go, isWorking ? u"The key is being made"_s : QString());
}

void BackupSealPanel::refuse(const QString &line)
{
    setWorking(false);
    m_form->say(line);
}

void BackupSealPanel::choose()
{
    if (m_isWorking)
        return;
    const QString refusal = m_form->refusal();
    if (refusal.isEmpty())
        emit chosen(m_form->password());
    else
        m_form->say(refusal);
}

/// What was typed does not stay behind.
void BackupSealPanel::leave()
{
    if (m_isWorking)
        return;
    m_form->start();
    TaskPanel::leave();
}
