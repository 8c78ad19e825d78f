// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/personprint.h"

#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "weight/window/graphview.h"
#include "weight/window/openperson.h"
#include "weight/window/personviews.h"
#include "weight/window/weightprintpanel.h"
#include "weight/window/windowlines.h"

#include <QMenu>

using namespace Qt::Literals::StringLiterals;

PersonPrint::PersonPrint(const WeightDesk &desk, const PersonViews &views, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_views(views)
{}

void PersonPrint::addCommand(QMenu *menu)
{
    QAction *print = m_desk.commands.add(
        menu, u"mOPrt"_s, u"&Print Options"_s, [this] { open(); },
        [this] { return m_desk.person.isOpen() ? QString() : TrackerLines::noPersonYet(); },
        CommonKeys::print);
    m_desk.commands.tool(print, "print"_L1, u"Print"_s);
}

void PersonPrint::open()
{
    m_views.finishEdit();
    if (!m_panel) {
        m_panel =
            new WeightPrintPanel(m_desk.program, &m_desk.window, [this] { return m_desk.person.sheet(); });
        m_panel->setExtent([this] { return m_views.graph().extent(); });
        m_desk.views.addPanel(m_panel);
        connect(m_panel, &WeightPrintPanel::said, this, &PersonPrint::said);
        connect(m_panel, &TaskPanel::left, this, [this] {
            m_desk.views.open(m_from);
            m_from->setFocus();
        });
        // What another person has is another matter.
        connect(&m_desk.person, &OpenPerson::changed, m_panel, &WeightPrintPanel::start);
    }
    if (!m_desk.views.isShown(m_panel))
        m_from = m_desk.views.currentWidget();
    m_desk.window.closePreview();
    m_panel->start();
    m_desk.views.open(m_panel);
    m_panel->setFocus();
}
