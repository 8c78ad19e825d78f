// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/toptoolbar.h"

#include "shell/core/settingskeys.h"
#include "shell/program/program.h"

using namespace Qt::Literals::StringLiterals;

bool TopToolbar::isRemoved(const Program &program, const TextSetting &setting)
{
    return program.state.topToolbarRemoved.value_or(program.settings.text(setting) == "OFF"_L1);
}

bool TopToolbar::setRemoved(Program &program, bool removed)
{
    program.state.topToolbarRemoved = removed;
    const QString state = removed ? u"OFF"_s : u"ON"_s;
    SettingsChange change(program.settings);
    change.setText(SettingsKeys::topToolbar, state);
    change.setText(SettingsKeys::weightTopToolbar, state);
    const bool isWritten = change.commit();
    emit program.changes.topToolbarChanged();
    return isWritten;
}
