// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/budgetwindow.h"

#include "shell/core/helpcontexts.h"

using namespace Qt::Literals::StringLiterals;

namespace {

WindowTraits traits()
{
    return {.name = u"Budget1"_s,
            .caption = u"Personal Budget"_s,
            .activity = u"Personal Budget"_s,
            .colors = {SettingsKeys::budgetColor, SettingsKeys::budgetProgramColor, {}},
            .helpContext = HelpContext::Budget};
}

} // namespace

Budget1::Budget1(Program &program, QWidget *parent)
    : FunctionWindow(program, traits(), parent)
    , m_files(program.folder)
{
    setWork(makePanel(u"sheetPanel"_s));
    addMenu(u"mO"_s, u"&Options"_s);
    addHelpEntry();
    finishFrame();
}
