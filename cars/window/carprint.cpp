// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/carprint.h"

#include "cars/model/messages.h"
#include "cars/window/carcharts.h"
#include "cars/window/opencar.h"
#include "shell/charts/paperchart.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"

#include <QMenu>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr QSize pictureOnPaper(1200, 800);
} // namespace

CarPrint::CarPrint(const CarDesk &desk, std::function<Sheet()> shown, std::function<void()> finish,
                   QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_shown(std::move(shown))
    , m_finish(std::move(finish))
    , m_copies(desk.program.folder)
{}

QAction *CarPrint::addCommands(QMenu *menu)
{
    Commands &all = m_desk.commands;
    QAction *print = all.add(
        menu, u"mOPrt"_s, u"&Print"_s, [this] { printShown(); }, {}, CommonKeys::print);
    all.add(menu, u"mOPCosts"_s, u"Print Cos&ts"_s, [this] { printCosts(); });
    all.add(menu, u"mOPRecord"_s, u"Print Whole &Record"_s, [this] {
        show(u"Record"_s, [](const auto &car, const auto &pictures, const auto &context) {
            return CarPages::record(car, CarPages::Reader::Family, pictures, context);
        });
    });
    all.add(menu, u"mOPBuyer"_s, u"Print Record for a &Buyer"_s, [this] {
        show(u"Record for a Buyer"_s, [](const auto &car, const auto &pictures, const auto &context) {
            return CarPages::record(car, CarPages::Reader::Buyer, pictures, context);
        });
    });
    all.add(menu, u"mOPAll"_s, u"What &All Our Cars Need"_s, [this] { printAll(); });
    return all.tool(print, "print"_L1, u"Print"_s);
}

/// Without a car there is nothing to print, which is told.
bool CarPrint::isThere()
{
    if (!m_desk.car.isOpen())
        m_desk.program.dialogs.ask(&m_desk.window, CarMessages::noneSelected());
    return m_desk.car.isOpen();
}

void CarPrint::show(const QString &what, const Builder &builder)
{
    if (!isThere())
        return;
    m_finish();
    const QString job = m_desk.car.record().vehicle.name.trimmed() + u' ' + what;
    m_desk.window.showPreview([car = m_desk.car.record(), pictures = pictures(), builder](
                                  const PageContext &context) { return builder(car, pictures, context); },
                              job);
}

void CarPrint::printShown()
{
    switch (m_shown()) {
    case Sheet::Information:
        return show(u"Information"_s, &CarPages::information);
    case Sheet::Schedule:
        return show(u"Schedule"_s, [](const auto &car, const auto &, const auto &context) {
            return CarPages::schedule(car, context);
        });
    case Sheet::Maintenance:
        return show(u"Maintenance"_s, [](const auto &car, const auto &, const auto &context) {
            return CarPages::maintenance(car, context);
        });
    case Sheet::Repairs:
        return show(u"Repairs"_s, [](const auto &car, const auto &, const auto &context) {
            return CarPages::repairs(car, context);
        });
    case Sheet::Fuel:
        return show(u"Fuel"_s, &CarPages::fuel);
    }
}

void CarPrint::printCosts()
{
    show(u"Costs"_s, &CarPages::costs);
}

/// The open car as it is shown, the others as their files have them.
void CarPrint::printAll()
{
    if (!isThere())
        return;
    m_finish();
    QList<CarRecord> cars = m_desk.car.files().all();
    for (CarRecord &car : cars) {
        if (car.vehicle.slot == m_desk.car.slot())
            car = m_desk.car.record();
    }
    m_desk.window.showPreview(
        [cars](const PageContext &context) { return CarPages::household(cars, context); },
        u"What All Our Cars Need"_s);
}

CarPages::Pictures CarPrint::pictures()
{
    const CarRecord &car = m_desk.car.record();
    const DateStyle style = m_desk.program.state.dateStyle;
    const QDate today = m_desk.program.clock.today();
    const auto draw = [this](const QString &name, const LineChart &chart) {
        return chart.isEmpty() ? QString()
                               : m_copies.keep(name, PaperChart::draw(chart, CarPages::chartSize));
    };
    return {
        m_copies.photo(u"car"_s, car.sheet.field(VehicleSheet::Picture), pictureOnPaper),
        draw(u"consumption"_s, CarCharts::consumption(FuelFigures(car.fuel, style), car.sheet.unit, style)),
        draw(u"costs"_s, CarCharts::costs(CarCosts(car, style, today), style)),
        draw(u"odometer"_s,
             CarCharts::odometer(CarNeeds::drivingLog(car, style, today), car.sheet.unit, style))};
}
