// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carsource.h"

#include "cars/model/carfiles.h"
#include "cars/model/carnumbers.h"
#include "cars/model/carplace.h"
#include "shell/core/dates.h"
#include "storage/ansitext.h"

#include <algorithm>
#include <array>
#include <tuple>

using namespace Qt::Literals::StringLiterals;

namespace {

QString joined(const QStringList &texts)
{
    QStringList parts;
    for (const QString &text : texts) {
        if (!text.trimmed().isEmpty())
            parts << text.simplified();
    }
    return parts.join(u", "_s);
}

} // namespace

CarSource::CarSource(const DataFolder &folder, DateStyle style)
    : m_folder(folder)
    , m_style(style)
{}

bool CarSource::prepare()
{
    if (!m_isChecking) {
        m_unchecked = VehicleList(m_folder).vehicles();
        std::ranges::reverse(m_unchecked); // taken from the end
        std::erase_if(m_cars, [this](const auto &car) {
            return !std::ranges::count(m_unchecked, car.first, &Vehicle::slot);
        });
        m_isChecking = true;
    }
    while (!m_unchecked.isEmpty()) {
        const Vehicle vehicle = m_unchecked.takeLast();
        QStringList names;
        for (const CarPart part : carParts)
            names << VehicleFiles::fileName(part, vehicle.slot);
        const FileStamp now = FileStamp::of(m_folder, names);
        const auto known = m_cars.find(vehicle.slot);
        if (known != m_cars.end() && known->second.seen == now && known->second.name == vehicle.name)
            continue;
        Car car = read(vehicle);
        car.seen = now;
        m_cars.insert_or_assign(vehicle.slot, std::move(car));
        return true;
    }
    m_isChecking = false;
    return false;
}

CarSource::Car CarSource::read(const Vehicle &vehicle) const
{
    Car found{.name = vehicle.name, .seen = {}, .texts = {}, .hits = {}};
    const auto add = [&found](const SearchHit &hit, const QStringList &more = {}) {
        found.hits.push_back(hit);
        found.texts.beginText();
        for (const QString &line : QStringList{hit.title, hit.context} + more)
            found.texts.addLine(AnsiText::encode(line));
    };
    const CarRecord car = CarFiles(m_folder, m_style).read(vehicle.slot).record;
    const auto &fields = car.sheet.fields;
    const QString makeAndModel =
        QString(fields[VehicleSheet::Make] + u' ' + fields[VehicleSheet::Model]).trimmed();
    add({vehicle.name, joined({makeAndModel, fields[VehicleSheet::License]}), {.record = vehicle.slot}},
        QStringList(fields.begin(), fields.end()));

    std::vector<std::tuple<QDate, SearchHit>> rows;
    for (const auto &[history, part] :
         {std::pair(&car.maintenance, CarPart::Maintenance), std::pair(&car.repairs, CarPart::Repairs)}) {
        for (int row = 0; row < int(history->size()); ++row) {
            const HistoryRow &entry = history->at(row);
            const QDate date = CarNumbers::date(entry.date, m_style).value_or(QDate());
            const QString day = date.isValid() ? Dates::shortWithYear(date, m_style) : entry.date;
            if (!entry.description.trimmed().isEmpty())
                rows.push_back({date,
                                {entry.description.simplified(), joined({vehicle.name, day, entry.cost}),
                                 CarPlace{vehicle.slot, part, row}.place(date)}});
        }
    }
    std::ranges::stable_sort(rows, std::ranges::greater(),
                             [](const auto &row) { return std::get<QDate>(row); });
    for (const auto &[date, hit] : rows)
        add(hit);
    found.texts.squeeze();
    return found;
}

QList<SearchHit> CarSource::matches(QStringView text, int most) const
{
    const TextIndex::Words words(text);
    std::array<QList<SearchHit>, TextIndex::rankCount> found;
    for (const auto &[slot, car] : m_cars) {
        const std::vector<SearchHit> &hits = car.hits;
        car.texts.find(words, [&](const TextIndex::Hit &hit) {
            QList<SearchHit> &like = found[std::size_t(hit.rank)];
            if (int(like.size()) < most)
                like.append(hits[std::size_t(hit.text)]);
            return int(found.front().size()) < most;
        });
    }
    QList<SearchHit> hits;
    for (const QList<SearchHit> &like : found)
        hits += like.first(std::min(like.size(), most - hits.size()));
    return hits;
}
