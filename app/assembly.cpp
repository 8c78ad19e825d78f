// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/assembly.h"

#include "app/functions.h"
#include "app/restoreddesk.h"
#include "shell/access/passwordcheck.h"
#include "shell/access/passwordprompt.h"
#include "storage/changeset.h"
#include "storage/saving.h"

#include <QTimer>

#include <tuple>

using namespace Qt::Literals::StringLiterals;

namespace {

const DataFolder &recovered(const DataFolder &folder, QSettings &store)
{
    std::ignore = ChangeSet::recover(folder); // what cannot be finished now is tried again by the next save
    Saving::recover(folder);
    RestoredDesk::takeUp(folder, store);
    return folder;
}

} // namespace

Assembly::Assembly(const DataFolder &programFolder, const DataFolder &folder)
    : m_store(u"Tessaly"_s, u"Quillery"_s)
    , m_settings(recovered(folder, m_store))
    , m_gate(showPasswordPrompt)
    , m_program{folder,      programFolder, m_settings, m_state,   m_clock, m_dialogs,
                m_functions, m_gate,        m_store,    m_changes, m_idle}
    , m_guard(m_program)
    , m_snapshot(m_program)
    , m_guarded(m_program)
{
    QObject::connect(&m_session, &SessionWatch::left, &m_changes, &ProgramSignals::lockRequested);
    // Long after what is seen first.
    QTimer::singleShot(1000, &m_session, &SessionWatch::start);
    QTimer::singleShot(3000, &m_guarded, &GuardedSnapshots::begin);
    QTimer::singleShot(5000, &m_snapshot, &DailySnapshot::begin);
    PasswordCheck(folder, PasswordCost::interactive(), &m_gate.memory()).load(m_state);
    addFunctions(m_functions, m_clock);
    QObject::connect(&m_changes, &ProgramSignals::helpRequested, &m_changes,
                     [this](int context) { openManual(context); });
}

void Assembly::openManual(int context)
{
    if (!m_manual)
        m_manual = std::make_unique<HelpViewer>(m_program);
    m_manual->openPage(context);
    bringToFront(*m_manual);
}
