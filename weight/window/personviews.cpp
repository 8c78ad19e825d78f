// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/personviews.h"

#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/viewmarks.h"
#include "shell/frame/workviews.h"
#include "weight/model/messages.h"
#include "weight/window/graphview.h"
#include "weight/window/openperson.h"
#include "weight/window/photosview.h"
#include "weight/window/planview.h"
#include "weight/window/weighinsview.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// How a view is called in menu and toolbar.
struct Face {
    QString name;
    QString caption;
    QString word;
    QLatin1StringView icon;
};

const std::array<Face, PersonViews::count> &faces()
{
    static const std::array<Face, PersonViews::count> faces{
        {{u"mVWeigh"_s, u"&Weigh-Ins"_s, u"Weigh-Ins"_s, "worksheet"_L1},
         {u"mVGraph"_s, u"&Graph Display"_s, u"Graph"_s, "graph"_L1},
         {u"mVPlan"_s, u"&Exercise Plan and Information"_s, u"Plan"_s, "sheet-view"_L1},
         {u"mVPhotos"_s, u"&Beginning and Current Photos"_s, u"Photos"_s, "picture"_L1}}};
    return faces;
}

} // namespace

PersonViews::PersonViews(const WeightDesk &desk, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_views{new WeighInsView(desk), new GraphView(desk), new PlanView(desk), new PhotosView(desk)}
{
    m_desk.views.addHome(m_views[WeighIns]);
    for (PersonView *view : m_views) {
        if (view != m_views[WeighIns])
            m_desk.views.addView(view);
        connect(view, &PersonView::said, this, &PersonViews::said);
        connect(view, &PersonView::done, this, &PersonViews::done);
        connect(
            view, &PersonView::noticed, this,
            [this](const Message &message) { m_desk.program.dialogs.ask(&m_desk.window, message); },
            Qt::QueuedConnection);
    }
}

WeighInsView &PersonViews::weighIns() const
{
    return static_cast<WeighInsView &>(*m_views[WeighIns]);
}

GraphView &PersonViews::graph() const
{
    return static_cast<GraphView &>(*m_views[Graph]);
}

PlanView &PersonViews::plan() const
{
    return static_cast<PlanView &>(*m_views[Plan]);
}

PhotosView &PersonViews::photos() const
{
    return static_cast<PhotosView &>(*m_views[Photos]);
}

PersonView *PersonViews::shown() const
{
    const auto found =
        std::ranges::find_if(m_views, [this](const PersonView *view) { return m_desk.views.isShown(view); });
    return found == m_views.end() ? nullptr : *found;
}

void PersonViews::open(Place place)
{
    finishEdit();
    m_desk.window.closePreview();
    m_desk.views.open(m_views[place]);
    m_views[place]->setFocus();
}

void PersonViews::look(Place place)
{
    if (m_desk.person.isOpen())
        open(place);
    else
        m_desk.program.dialogs.ask(&m_desk.window, WeightMessages::noFiles());
}

void PersonViews::addCommands(QMenu *menu)
{
    static_assert(CommonKeys::views.size() >= count);
    auto *marks = new ViewMarks(&m_desk.views);
    for (std::size_t i = 0; i < count; ++i) {
        const Face &face = faces()[i];
        QAction *command = m_desk.commands.add(
            menu, face.name, face.caption, [this, i] { look(Place(i)); }, {}, CommonKeys::views[i]);
        QAction *tool = m_desk.commands.tool(command, face.icon, face.word, face.name + u"_tool"_s);
        m_commands[i] = command;
        marks->add(m_views[i], {command, tool});
    }
}

void PersonViews::finishEdit() const
{
    if (PersonView *view = shown())
        view->finishEdit();
}
