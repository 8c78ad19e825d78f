// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/entrylabels.h"

#include "addressbook/entry/entrylist.h"
#include "addressbook/model/entrylines.h"
#include "addressbook/shared/labelpanel.h"
#include "shell/controls/busycursor.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

using namespace Qt::Literals::StringLiterals;

EntryLabels::EntryLabels(Program &program, ActivityBar &activity, const EntryList &list, WorkViews *views,
                         FunctionWindow *window)
    : QObject(window)
    , m_list(list)
    , m_views(views)
    , m_names(program.folder, program.state.dateStyle)
    , m_panel(new LabelPanel(program, activity, u"&Back to the Entry"_s))
    , m_window(window)
{
    views->addPanel(m_panel);
}

void EntryLabels::addCommand(Commands &commands, QMenu *menu)
{
    const auto noNames = [this] {
        return m_list.names().isEmpty() ? AddressLines::bookIsEmpty() : QString();
    };
    m_command = commands.add(
        menu, u"mOLab"_s, u"&Labels and Envelopes"_s, [this] { show(); }, noNames);
}

void EntryLabels::addTool(Commands &commands)
{
    commands.tool(m_command, "label"_L1, u"Labels"_s);
}

void EntryLabels::show()
{
    m_window->closePreview();
    {
        const BusyCursor busy;
        m_names.load(Information::Address, {});
    }
    m_views->open(m_panel);
    const int selected = m_list.selectedRow();
    const int row = m_names.rowOf(m_list.names().name(selected), m_list.names().recordAt(selected));
    m_panel->start(m_names, row >= 0 ? std::optional(row) : std::nullopt);
}
