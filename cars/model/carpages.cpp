// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carpages.h"

#include "cars/model/cardates.h"
#include "cars/model/carnumbers.h"
#include "cars/model/carwords.h"
#include "cars/model/costwords.h"
#include "cars/model/duewords.h"
#include "cars/model/fuelfigures.h"
#include "shell/core/dates.h"

#include <algorithm>
#include <array>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

using CarPages::Pictures;
using CarPages::Reader;

constexpr QSizeF pictureSize{3.6, 2.4};
constexpr int mostMonths = 24; ///< on the page of costs

/// What the pages of a car tell of it, a part behind the other.
class CarPaper
{
public:
    CarPaper(const CarRecord &car, const PageContext &context)
        : m_car(car)
        , m_context(context)
        , m_unit(car.sheet.unit)
        , m_log(CarNeeds::drivingLog(car, context.style, context.today))
        , m_fuel(car.fuel, context.style)
    {}

    Page started(const QString &what) const
    {
        const QString title = m_car.vehicle.name + (what.isEmpty() ? QString() : QString(u": "_s + what));
        Page page(title, m_log.odometer() ? DueWords::distance(*m_log.odometer(), m_unit) : QString());
        page.continueTitle(u" (Continued)"_s);
        return page;
    }

    Page closed(Page &page) const { return page.close(m_context.today, m_context.style); }

    void addInformation(Page &page, Reader reader) const
    {
        using enum VehicleSheet::Field;
        addFields(page, {}, {Make, Model, Odometer});
        QList<VehicleSheet::Field> parts{OilFilter, AirFilter, PvcValve,     PlugType,
                                         OilWeight, OilChange, CoolantChange};
        if (reader == Reader::Family) {
            addFields(page, CarWords::generalInformation.toString(),
                      {Vin, License, RegistrationMonth, PurchaseDate, Price, From});
            addFields(page, CarWords::insuranceInformation.toString(),
                      {Insurer, InsurerTelephone, Policy, InsuranceExpiration});
            parts << Other; // where the spare key is
        } else {
            addFields(page, CarWords::generalInformation.toString(), {Vin, RegistrationMonth, PurchaseDate});
        }
        addFields(page, CarWords::maintenanceInformation.toString(), parts);
    }

    void addDue(Page &page, Reader reader) const
    {
        QList<CarNeed> needs = CarNeeds::byUrgency(this->needs());
        if (reader == Reader::Buyer) // who needs an insurance of their own
            needs.removeIf([](const CarNeed &need) { return need.kind == CarNeed::Kind::Insurance; });
        page.line(DueWords::title(needs), TextRole::Heading);
        addNeeds(page, needs);
        if (const QString rate = DueWords::rate(m_log, m_unit, m_context.style, m_context.today);
            !rate.isEmpty())
            page.line(rate + u"; days that depend on it are estimates."_s, TextRole::Small);
    }

    /// Of everything that comes some day: what, when and how far.
    void addNeeds(Page &page, const QList<CarNeed> &needs) const
    {
        PageItem::Columns columns;
        columns.weights = {3.2, 2.6, 2};
        columns.alignments = {Qt::AlignLeft, Qt::AlignLeft, Qt::AlignRight};
        page.table(columns);
        for (const CarNeed &need : needs) {
            if (need.state >= CarNeed::State::Ahead)
                page.row({DueWords::name(need),
                          DueWords::when(need, m_unit, m_context.style, m_context.today),
                          DueWords::howFar(need, m_unit)},
                         need.isUrgent() ? TextRole::Strong : TextRole::Body);
        }
    }

    enum class Actions { All, WithTexts };

    void addSchedule(Page &page, Actions actions) const
    {
        const QString miles = m_unit == DistanceUnit::Miles ? u"Miles"_s : u"Kms."_s;
        PageItem::Columns columns;
        columns.headings = {u"Action"_s, u"Every "_s + miles, u"Months"_s, u"Last At"_s,
                            u"Date"_s,   u"Cost"_s,           u"Left"_s,   u"Time"_s};
        columns.widths = TableWidths::ForNumbers;
        page.table(columns);
        for (const CarNeed &need : needs()) {
            if (need.row < 0)
                continue;
            const ScheduledAction &action = m_car.sheet.actions[std::size_t(need.row)];
            if (actions == Actions::WithTexts && action == ScheduledAction{action.name, {}, {}, {}, {}, {}})
                continue;
            page.row({DueWords::name(need), action.distance, action.months, action.odometer,
                      CarDates::shown(action.date, m_context.style), action.cost,
                      DueWords::remainingDistance(need), DueWords::remainingTime(need, m_context.today)});
        }
    }

    void addHistory(Page &page, const History &history) const
    {
        if (history.isEmpty()) {
            page.line(u"Nothing was entered."_s);
            return;
        }
        const auto headings = CarWords::historyHeadings(m_unit);
        PageItem::Columns columns;
        columns.weights = {1.3, 1.3, 4, 1.1};
        columns.headings = {headings[1], headings[0], headings[2], headings[3]};
        columns.alignments = {Qt::AlignLeft, Qt::AlignRight, Qt::AlignLeft, Qt::AlignRight};
        page.table(columns);
        qint64 cents = 0;
        for (const qsizetype row : byDate(history)) {
            const HistoryRow &entry = history[row];
            page.row({CarDates::shown(entry.date, m_context.style), entry.odometer, entry.description,
                      entry.cost});
            cents += CarNumbers::cents(entry.cost).value_or(0);
        }
        page.row({u"Together"_s, {}, {}, CostWords::money(double(cents))}, TextRole::Strong);
    }

    void addFuelSummary(Page &page, const QString &chart) const
    {
        for (const QString &line : CostWords::summary(m_fuel.sums(), m_unit))
            page.line(line);
        addChart(page, chart);
    }

    void addFillUps(Page &page) const
    {
        const auto headings = CarWords::fuelHeadings(m_unit);
        PageItem::Columns columns;
        columns.weights = {1.2, 1.2, 1.2, 1.1, 1.1, 1.2, 1};
        columns.headings = QStringList(headings.begin(), headings.end());
        columns.alignments = {Qt::AlignLeft,  Qt::AlignRight, Qt::AlignRight, Qt::AlignRight,
                              Qt::AlignRight, Qt::AlignRight, Qt::AlignRight};
        columns.points = PageMetrics::smallPoints;
        page.table(columns);
        bool isAnyLeftOut = false;
        for (const int row : m_fuel.inOrder()) {
            const FillUp &fillUp = m_fuel.fillUps()[row];
            QStringList cells = CostWords::cells(m_car.fuel[row], fillUp);
            cells[0] = CarDates::shown(cells[0], m_context.style);
            if (fillUp.kind != FillUp::Kind::Counted) {
                isAnyLeftOut = true;
                cells[5] = QString(cells[5] + u" *"_s).trimmed();
            }
            page.row(cells);
        }
        if (isAnyLeftOut)
            page.line(u"* not in the averages: a partial fill-up, or something before it is missing"_s,
                      TextRole::Small);
    }

    void addYears(Page &page, const CarCosts &costs) const
    {
        addCostTable(page, u"Year"_s);
        for (const int year : costs.years()) {
            const auto both = costs.yearAgainstLast(year);
            page.row(CostWords::row(CostWords::year(both, m_context.style, false), both.sums));
        }
        page.row(CostWords::row(u"Together"_s, costs.all()), TextRole::Strong);
        if (const auto perMonth = costs.perMonth())
            page.line(u"On average "_s + CostWords::perMonth(*perMonth, m_context.today));
        if (costs.years().isEmpty())
            return;
        const auto newest = costs.yearAgainstLast(costs.years().first());
        const QString difference = CostWords::difference(newest);
        if (difference.isEmpty())
            return;
        page.blankLine().line(u"Against the year before"_s, TextRole::Heading);
        addCostTable(page, u"Year"_s);
        page.row(CostWords::row(CostWords::year(newest, m_context.style, false), newest.sums));
        page.row(CostWords::row(CostWords::year(newest, m_context.style, true), newest.before));
        page.row({u"Difference"_s, {}, {}, {}, difference, {}, {}}, TextRole::Strong);
    }

    void addMonths(Page &page, const CarCosts &costs) const
    {
        page.blankLine().line(u"Months"_s, TextRole::Heading);
        addCostTable(page, u"Month"_s);
        const QDate from = std::max(costs.first(), m_context.today.addMonths(1 - mostMonths));
        const QList<CarCosts::Month> months = costs.months(from, m_context.today);
        for (auto month = months.crbegin(); month != months.crend(); ++month) {
            if (month->sums.total() != 0 || month->sums.driven.value_or(0) > 0)
                page.row(CostWords::row(Dates::monthYear(month->first), month->sums));
        }
    }

    static void addChart(Page &page, const QString &path)
    {
        if (!path.isEmpty())
            page.picture(path, CarPages::chartSize);
    }

    CarCosts costs() const { return CarCosts(m_car, m_context.style, m_context.today); }
    const DrivingLog &log() const { return m_log; }
    QList<CarNeed> needs() const { return CarNeeds::of(m_car, m_log, m_context.style, m_context.today); }

private:
    void addFields(Page &page, const QString &heading, const QList<VehicleSheet::Field> &fields) const
    {
        PageItem::Columns columns;
        columns.weights = {1.4, 3};
        columns.lines = TableLines::None;
        bool isBegun = false;
        for (const VehicleSheet::Field field : fields) {
            if (m_car.sheet.field(field).trimmed().isEmpty())
                continue;
            if (!isBegun && !heading.isEmpty())
                page.blankLine().line(heading, TextRole::Heading);
            if (!isBegun)
                page.table(columns);
            isBegun = true;
            page.row({CarWords::captions[field].toString(), m_car.sheet.field(field)});
        }
    }

    void addCostTable(Page &page, const QString &what) const
    {
        PageItem::Columns columns;
        columns.headings = CostWords::headings(what, m_unit);
        columns.widths = TableWidths::ForNumbers;
        page.table(columns);
    }

    /// The rows from the oldest on; one without a date stays behind the one it follows.
    QList<qsizetype> byDate(const History &history) const
    {
        QList<qsizetype> rows(history.size());
        std::iota(rows.begin(), rows.end(), qsizetype(0));
        QList<QDate> dates;
        for (const HistoryRow &row : history)
            dates.append(CarNumbers::date(row.date, m_context.style)
                             .value_or(dates.isEmpty() ? QDate() : dates.last()));
        std::ranges::stable_sort(rows, {}, [&dates](qsizetype row) { return dates[row]; });
        return rows;
    }

    const CarRecord &m_car;
    const PageContext &m_context;
    DistanceUnit m_unit;
    DrivingLog m_log;
    FuelFigures m_fuel;
};

void addPicture(Page &page, const Pictures &pictures)
{
    if (!pictures.car.isEmpty())
        page.picture(pictures.car, pictureSize).blankLine();
}

} // namespace

Page CarPages::information(const CarRecord &car, const Pictures &pictures, const PageContext &context)
{
    const CarPaper paper(car, context);
    Page page = paper.started(u"Information"_s);
    addPicture(page, pictures);
    paper.addInformation(page, Reader::Family);
    return paper.closed(page);
}

Page CarPages::schedule(const CarRecord &car, const PageContext &context)
{
    const CarPaper paper(car, context);
    Page page = paper.started(u"Maintenance Schedule"_s);
    paper.addDue(page, Reader::Family);
    page.blankLine();
    paper.addSchedule(page, CarPaper::Actions::All);
    return paper.closed(page);
}

Page CarPages::maintenance(const CarRecord &car, const PageContext &context)
{
    const CarPaper paper(car, context);
    Page page = paper.started(u"Maintenance History"_s);
    paper.addHistory(page, car.maintenance);
    return paper.closed(page);
}

Page CarPages::repairs(const CarRecord &car, const PageContext &context)
{
    const CarPaper paper(car, context);
    Page page = paper.started(u"Repairs and Expenditures"_s);
    paper.addHistory(page, car.repairs);
    return paper.closed(page);
}

Page CarPages::fuel(const CarRecord &car, const Pictures &pictures, const PageContext &context)
{
    const CarPaper paper(car, context);
    Page page = paper.started(CarWords::fuelTitle(car.sheet.unit));
    paper.addFuelSummary(page, pictures.consumption);
    page.blankLine();
    paper.addFillUps(page);
    return paper.closed(page);
}

Page CarPages::costs(const CarRecord &car, const Pictures &pictures, const PageContext &context)
{
    const CarPaper paper(car, context);
    Page page = paper.started(u"Costs"_s);
    const CarCosts costs = paper.costs();
    CarPaper::addChart(page, pictures.costs);
    paper.addYears(page, costs);
    if (costs.first().isValid())
        paper.addMonths(page, costs);
    return paper.closed(page);
}

Page CarPages::record(const CarRecord &car, Reader reader, const Pictures &pictures,
                      const PageContext &context)
{
    const CarPaper paper(car, context);
    Page page = paper.started({});
    addPicture(page, pictures);
    paper.addInformation(page, reader);
    page.blankLine();
    paper.addDue(page, reader);
    const auto part = [&page](const QString &title) { page.blankLine().line(title, TextRole::Heading); };
    part(u"Maintenance Schedule"_s);
    paper.addSchedule(page, CarPaper::Actions::WithTexts);
    part(u"Maintenance History"_s);
    paper.addHistory(page, car.maintenance);
    part(u"Repairs and Expenditures"_s);
    paper.addHistory(page, car.repairs);
    if (!pictures.odometer.isEmpty())
        part(u"Odometer"_s);
    CarPaper::addChart(page, pictures.odometer);
    if (reader == Reader::Family) {
        part(u"Costs"_s);
        CarPaper::addChart(page, pictures.costs);
        paper.addYears(page, paper.costs());
    }
    if (!car.fuel.isEmpty()) {
        part(CarWords::fuelTitle(car.sheet.unit));
        paper.addFuelSummary(page, pictures.consumption);
        paper.addFillUps(page);
    }
    return paper.closed(page);
}

Page CarPages::household(const QList<CarRecord> &cars, const PageContext &context)
{
    Page page(u"What All Our Cars Need"_s);
    page.continueTitle(u" (Continued)"_s);
    for (const CarRecord &car : cars) {
        const CarPaper paper(car, context);
        const QList<CarNeed> needs = CarNeeds::byUrgency(paper.needs());
        const QString reading =
            paper.log().odometer() ? DueWords::distance(*paper.log().odometer(), car.sheet.unit) : QString();
        page.line(car.vehicle.name + (reading.isEmpty() ? QString() : QString(u", "_s + reading)),
                  TextRole::Heading);
        page.line(DueWords::title(needs));
        paper.addNeeds(page, needs);
        page.blankLine();
    }
    if (cars.isEmpty())
        page.line(u"There are no cars."_s);
    return page.close(context.today, context.style);
}
