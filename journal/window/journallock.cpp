// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journallock.h"

#include "journal/model/journal.h"
#include "journal/window/journallockpanel.h"
#include "journal/window/seallines.h"
#include "shell/controls/minutesbox.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QMenu>
#include <QSettings>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView minutesKey("Windows/DJournal/lockMinutes");
constexpr QLatin1StringView minimisedKey("Windows/DJournal/lockMinimised");
constexpr int usualMinutes = 5;

int minutesOf(const QSettings &store)
{
    const int minutes = store.value(minutesKey, usualMinutes).toInt();
    return minutes > 0 ? std::min(minutes, MinutesBox::mostMinutes) : usualMinutes;
}

} // namespace

JournalLock::JournalLock(const JournalDesk &desk, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_idle(desk.program.idle)
{
    connect(&m_idle, &IdleLimit::reached, this, &JournalLock::due);
    connect(&m_desk.program.changes, &ProgramSignals::lockRequested, this, &JournalLock::due);
    connect(&m_desk.journal.seal(), &JournalSeal::changed, this, &JournalLock::follow);
}

void JournalLock::follow()
{
    if (m_desk.journal.seal().isOpen())
        m_idle.start(std::chrono::minutes(minutesOf(m_desk.program.store)));
    else
        m_idle.stop();
    emit m_desk.program.changes.guardsChanged();
}

QString JournalLock::whyNotSealed() const
{
    if (QString none = m_desk.whyNone(); !none.isEmpty())
        return none;
    return m_desk.journal.seal().isOpen() ? QString() : SealLines::isPlain();
}

void JournalLock::addCommands(QMenu *options)
{
    const auto unless = [this] { return whyNotSealed(); };
    m_desk.commands.add(
        options, u"mOLock"_s, u"&Lock the Journal\tCtrl+L"_s, [this] { emit due(); }, unless);
    m_desk.commands.add(
        options, u"mOLockWhen"_s, u"When It Loc&ks..."_s, [this] { openPanel(); }, unless);
}

void JournalLock::minimised()
{
    if (m_desk.program.store.value(minimisedKey).toBool())
        emit due();
}

void JournalLock::openPanel()
{
    if (!m_panel) {
        m_panel = new JournalLockPanel;
        m_desk.views.addPanel(m_panel);
        connect(m_panel, &JournalLockPanel::accepted, this, [this] {
            m_desk.program.store.setValue(minutesKey, m_panel->minutes());
            m_desk.program.store.setValue(minimisedKey, m_panel->isWhenMinimised());
            follow();
            m_panel->leave();
            emit said(SealLines::lockKept());
        });
    }
    m_desk.window.closePreview();
    m_panel->start(minutesOf(m_desk.program.store), m_desk.program.store.value(minimisedKey).toBool());
    m_desk.views.open(m_panel);
    m_panel->setFocus();
}
