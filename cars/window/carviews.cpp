// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/carviews.h"

#include "cars/model/carplace.h"
#include "cars/model/lines.h"
#include "cars/model/messages.h"
#include "cars/window/dueview.h"
#include "cars/window/fuelview.h"
#include "cars/window/historyview.h"
#include "cars/window/informationview.h"
#include "cars/window/logmodel.h"
#include "cars/window/maintenanceview.h"
#include "cars/window/opencar.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/viewmarks.h"
#include "shell/frame/workviews.h"

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

const std::array<Face, CarViews::count> &faces()
{
    static const std::array<Face, CarViews::count> faces{
        {{u"mVDue"_s, u"What Is &Due"_s, u"Due"_s, "due-view"_L1},
         {u"mVInfo"_s, u"&Information Sheet"_s, u"Information"_s, "sheet-view"_L1},
         {u"mVMaint"_s, u"&Maintenance History"_s, u"Maintenance"_s, "maintenance"_L1},
         {u"mVRep"_s, u"&Repairs and Expenditures"_s, u"Repairs"_s, "repairs"_L1},
         {u"mVFuel"_s, u"&Fuel Tracker"_s, u"Fuel"_s, "fuel"_L1}}};
    return faces;
}

} // namespace

CarViews::CarViews(const CarDesk &desk, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_views{
          new DueView(desk), new InformationView(desk), new MaintenanceView(desk),
          new HistoryView(u"repairs"_s, desk, CarPart::Repairs, {u"Grid3"_s, u"Grid1"_s, u"MonthView2"_s}),
          new FuelView(desk)}
{
    m_desk.views.addHome(m_views[Due]);
    for (CarView *view : m_views) {
        if (view != m_views[Due])
            m_desk.views.addView(view);
        connect(view, &CarView::said, this, &CarViews::said);
        connect(
            view, &CarView::noticed, this,
            [this](const Message &message) { m_desk.program.dialogs.ask(&m_desk.window, message); },
            Qt::QueuedConnection);
    }
}

std::vector<LogView *> CarViews::histories() const
{
    std::vector<LogView *> views;
    for (CarView *view : m_views) {
        if (auto *history = qobject_cast<LogView *>(view))
            views.push_back(history);
    }
    return views;
}

CarView *CarViews::shown() const
{
    const auto found =
        std::ranges::find_if(m_views, [this](const CarView *view) { return m_desk.views.isShown(view); });
    return found == m_views.end() ? nullptr : *found;
}

CarPrint::Sheet CarViews::sheet() const
{
    using Sheet = CarPrint::Sheet;
    static constexpr std::array sheets{Sheet::Schedule, Sheet::Information, Sheet::Maintenance,
                                       Sheet::Repairs, Sheet::Fuel};
    const auto found = std::ranges::find(m_views, shown());
    return found == m_views.end() ? Sheet::Schedule : sheets.at(std::size_t(found - m_views.begin()));
}

void CarViews::open(Place place)
{
    finishEdit();
    m_desk.window.closePreview();
    m_desk.views.open(m_views[place]);
    m_views[place]->setFocus();
}

void CarViews::show(const CarPlace &place)
{
    if (place.part == CarPart::Sheet) {
        open(Due);
        if (place.row >= 0)
            static_cast<DueView *>(m_views[Due])->showRow(place.row);
        return;
    }
    open(place.part == CarPart::Maintenance ? Maintenance : place.part == CarPart::Repairs ? Repairs : Fuel);
    for (const LogView *history : histories()) {
        if (history->part() != place.part || place.row < 0)
            continue;
        CarGrid &rows = history->pane().list();
        rows.setCurrentIndex(rows.model()->index(history->pane().model().rowOf(place.row), 0));
        rows.scrollTo(rows.currentIndex());
        rows.setFocus();
    }
}

void CarViews::look(Place place)
{
    if (m_desk.car.isOpen())
        open(place);
    else
        m_desk.program.dialogs.ask(&m_desk.window, CarMessages::noFiles());
}

void CarViews::addCommands(QMenu *menu)
{
    static_assert(CommonKeys::views.size() >= count);
    auto *marks = new ViewMarks(&m_desk.views);
    for (std::size_t i = 0; i < count; ++i) {
        const Face &face = faces()[i];
        QAction *command = m_desk.commands.add(
            menu, face.name, face.caption, [this, i] { look(Place(i)); },
            [this, i] {
                return m_desk.car.isNew() && i != Information ? CarLines::notWhileCreating() : QString();
            },
            CommonKeys::views[i]);
        QAction *tool = m_desk.commands.tool(command, face.icon, face.word, face.name + u"_tool"_s);
        marks->add(m_views[i], {command, tool});
    }
}

void CarViews::finishEdit() const
{
    if (CarView *view = shown())
        view->finishEdit();
}
