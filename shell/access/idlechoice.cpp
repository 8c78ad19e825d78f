// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/idlechoice.h"

#include "shell/access/passwordmessages.h"
#include "shell/access/windowguard.h"
#include "shell/controls/controls.h"
#include "shell/core/settingskeys.h"
#include "shell/program/program.h"

#include <QComboBox>
#include <QLabel>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

IdleChoice::IdleChoice(Program &program, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_minutes(named(new QComboBox(this), u"Combo1"_s))
{
    for (const int minutes : SettingsKeys::idleMinutesOffered)
        m_minutes->addItem(minutes == 1 ? u"1 minute"_s : u"%1 minutes"_s.arg(minutes), minutes);
    showSetting();
    QLabel *hint = makeQuietLabel(PasswordMessages::coveringHint(), this);
    hint->setWordWrap(true);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->setSpacing(12);
    rows->addWidget(makeLine(this));
    rows->addLayout(labelled(u"Cover what is open without key or mouse for"_s, m_minutes));
    rows->addWidget(hint);
    connect(m_minutes, &QComboBox::activated, this, &IdleChoice::choose);
}

void IdleChoice::setReason(const QString &reason)
{
    setUnavailable(m_minutes, reason);
}

void IdleChoice::showSetting()
{
    m_minutes->setCurrentIndex(m_minutes->findData(WindowGuard::idleMinutes(m_program)));
}

void IdleChoice::choose(int index)
{
    if (!m_program.settings.setNumber(SettingsKeys::idleMinutes, m_minutes->itemData(index).toInt())) {
        showSetting();
        emit notSaved();
        return;
    }
    emit m_program.changes.guardsChanged();
    emit chosen();
}
