// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carrecords.h"

#include "cars/model/carrows.h"
#include "cars/model/carwords.h"
#include "shell/core/bringingback.h"

#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

void addSchedule(QStringList &lines, const VehicleSheet &sheet)
{
    for (const ScheduledAction &action : sheet.actions) {
        if (action.isEmpty())
            continue;
        QStringList parts;
        if (!action.distance.isEmpty())
            parts.append(u"every "_s + action.distance + u' ' + CarWords::miles(sheet.unit));
        if (!action.months.isEmpty())
            parts.append(u"every "_s + action.months + u" months"_s);
        for (const QString &text : {action.odometer, action.date, action.cost}) {
            if (!text.isEmpty())
                parts.append(text);
        }
        const QString name = action.name.isEmpty() ? u"(no action)"_s : action.name;
        lines.append(parts.isEmpty() ? name : name + u": "_s + parts.join(u", "_s));
    }
}

void addRows(QStringList &lines, const QString &label, const CarRecord &car, CarPart part)
{
    for (qsizetype row = 0; row < CarRows::count(car, part); ++row) {
        QStringList cells = CarRows::cells(car, part, row);
        cells.removeAll(QString());
        BringingBack::addLine(lines, label, cells.join(u", "_s));
    }
}

/// What an emptied file and a missing one have in common.
QByteArray contentOf(const QByteArray &bytes)
{
    return bytes == VehicleFiles::emptied() ? QByteArray() : bytes;
}

} // namespace

CarRecords::CarRecords(const DataFolder &folder, DateStyle style, const QDateTime &now)
    : m_folder(folder)
    , m_style(style)
    , m_now(now)
{}

QString CarRecords::counted(int count) const
{
    return BringingBack::counted(count, u"car"_s, u"cars"_s);
}

QList<CarRecords::Found> CarRecords::found() const
{
    QList<Found> found;
    QStringList names;
    for (const Vehicle &vehicle : CarFiles(m_folder, m_style).vehicles()) {
        const bool isFirst = !names.contains(vehicle.name);
        names.append(vehicle.name);
        found.append(
            {isFirst ? vehicle.name : vehicle.name + u'\n' + QString::number(vehicle.slot), vehicle});
    }
    return found;
}

QByteArray CarRecords::content(const Vehicle &vehicle) const
{
    QByteArray content;
    for (const CarPart part : carParts) {
        const QByteArray bytes =
            VehicleFiles::bytes(m_folder, VehicleFiles::fileName(part, vehicle.slot)).value_or(QByteArray());
        content += contentOf(bytes) + '\0';
    }
    return BringingBack::markOf(content);
}

std::vector<FunctionRecord> CarRecords::all() const
{
    std::vector<FunctionRecord> records;
    for (const Found &car : found())
        records.push_back({car.key, car.vehicle.name, content(car.vehicle)});
    return records;
}

QStringList CarRecords::lines(const QString &key) const
{
    QStringList lines;
    for (const Found &found : this->found()) {
        if (found.key != key)
            continue;
        const CarRecord car = CarFiles(m_folder, m_style).read(found.vehicle.slot).record;
        for (std::size_t field = 0; field < VehicleSheet::fieldCount; ++field)
            BringingBack::addLine(lines, CarWords::captions[field].toString(), car.sheet.fields[field]);
        addSchedule(lines, car.sheet);
        addRows(lines, u"Maintenance:"_s, car, CarPart::Maintenance);
        addRows(lines, u"Repairs:"_s, car, CarPart::Repairs);
        addRows(lines, u"Fuel:"_s, car, CarPart::Fuel);
    }
    return lines;
}

std::optional<Trash::Item> CarRecords::asDeleted(const Vehicle &vehicle) const
{
    Trash::Item item{{}, m_now, vehicle.name, {}};
    item.pieces.push_back({VehicleList::fileName(), vehicle.slot, VehicleList::encode(vehicle.name)});
    for (const CarPart part : carParts) {
        const QString name = VehicleFiles::fileName(part, vehicle.slot);
        if (!m_folder.exists(name))
            continue;
        const std::optional<QByteArray> bytes = VehicleFiles::bytes(m_folder, name);
        if (!bytes)
            return {};
        item.pieces.push_back({name, 0, *bytes});
    }
    return item;
}

RecordsBack CarRecords::bringBack(const FunctionRecords &from, const QStringList &keys)
{
    const auto *source = dynamic_cast<const CarRecords *>(&from);
    if (!source)
        return {};
    if (const QString why = BringingBack::whyNot(m_folder); !why.isEmpty())
        return BringingBack::refused(why);
    const CarFiles here(m_folder, m_style);
    const VehicleList list(m_folder);
    const auto change = std::make_shared<CarChange>();
    QStringList back;
    QString last;
    int free = 0;
    for (const Found &car : source->found()) {
        if (!keys.contains(car.key))
            continue;
        const std::optional<Trash::Item> item = source->asDeleted(car.vehicle);
        const bool isHere = list.name(car.vehicle.slot) == car.vehicle.name;
        if (!isHere)
            free = list.freeSlot(free);
        if (!item || (!isHere && free == 0))
            return BringingBack::refused(BringingBack::unreadable(
                item ? VehicleList::fileName() : VehicleFiles::fileName(CarPart::Sheet, car.vehicle.slot)));
        if (isHere)
            here.replaceBy(*change, *item);
        else
            here.placeIn(*change, free, *item);
        back.append(car.key);
        last = car.vehicle.name;
    }
    if (change->isEmpty())
        return {back, {}, {}};
    return BringingBack::done(change, m_folder, back, back.size() == 1 ? last : counted(int(back.size())));
}
