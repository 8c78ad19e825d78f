// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carfiles.h"

#include "cars/model/cardates.h"
#include "cars/model/carnumbers.h"
#include "cars/model/messages.h"
#include "shell/pictures/picturefolder.h"
#include "storage/ansitext.h"
#include "storage/log.h"

#include <QDir>
#include <QRegularExpression>

#include <algorithm>
#include <set>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString trashKind = u"Cars"_s;

bool isBlank(const QString &text)
{
    return QStringView(text).trimmed().isEmpty();
}

/// Whether nothing stands in a file of these bytes, but for the blank of an emptied one.
bool isEmptied(const QByteArray &bytes)
{
    return bytes.isEmpty() || bytes == VehicleFiles::emptied();
}

/// What a car is called whose name is lost.
QString nameOf(const VehicleSheet &sheet)
{
    const QString name =
        QString(sheet.field(VehicleSheet::Make) + u' ' + sheet.field(VehicleSheet::Model)).trimmed();
    return CarFiles::whyNotNamed(name) ? u"Vehicle"_s : name;
}

/// Whether the trash has a car here: the record of the list first, then whole files, whose number is 0.
bool isBroughtBack(const Trash::Item &item)
{
    return !item.pieces.empty() && item.pieces.front().file == VehicleList::fileName() &&
           item.pieces.front().number > 0 && !VehicleList::decode(item.pieces.front().bytes).isEmpty();
}

} // namespace

bool CarFiles::Found::mayBeWritten(CarPart part) const
{
    return state(part) != VehicleFiles::State::Foreign && state(part) != VehicleFiles::State::OutOfReach;
}

QList<Vehicle> CarFiles::vehicles() const
{
    return VehicleList(m_folder).vehicles();
}

QList<CarRecord> CarFiles::all() const
{
    QList<CarRecord> cars;
    for (const Vehicle &vehicle : vehicles())
        cars.append(read(vehicle.slot).record);
    return cars;
}

CarFiles::Found CarFiles::read(int slot) const
{
    const VehicleFiles files(m_folder);
    auto sheet = files.readSheet(slot);
    auto maintenance = files.readHistory(CarPart::Maintenance, slot);
    auto repairs = files.readHistory(CarPart::Repairs, slot);
    auto fuel = files.readFuel(slot);
    sheet.value.unit = unit();
    Found found{{{slot, VehicleList(m_folder).name(slot)},
                 std::move(sheet.value),
                 std::move(maintenance.value),
                 std::move(repairs.value),
                 std::move(fuel.value)},
                {sheet.state, maintenance.state, repairs.state, fuel.state}};
    CarRecord &car = found.record;
    car.areDatesTurned = CarDates::orderOf(car, m_style) != m_style;
    if (car.areDatesTurned)
        CarDates::turn(car);
    return found;
}

DistanceUnit CarFiles::unit() const
{
    for (const Vehicle &vehicle : vehicles()) {
        const auto sheet = VehicleFiles(m_folder).readSheet(vehicle.slot);
        if (sheet.state == VehicleFiles::State::Whole)
            return sheet.value.unit;
    }
    return DistanceUnit::Miles;
}

std::optional<CarChange> CarFiles::changeUnit(DistanceUnit unit)
{
    CarChange change;
    for (const Vehicle &vehicle : vehicles()) {
        auto sheet = VehicleFiles(m_folder).readSheet(vehicle.slot);
        // What holds no sheet has no unit either; one out of reach would come back with the old one.
        if (sheet.state == VehicleFiles::State::OutOfReach)
            return {};
        if (sheet.state != VehicleFiles::State::Whole && sheet.state != VehicleFiles::State::Cut)
            continue;
        sheet.value.unit = unit;
        replace(change, CarPart::Sheet, vehicle.slot, VehicleFiles::encode(sheet.value));
    }
    return done(std::move(change));
}

std::optional<Message> CarFiles::whyNotNamed(const QString &name)
{
    if (isBlank(name))
        return CarMessages::nameMissing();
    if (VehicleList::isFreeName(name.trimmed()))
        return CarMessages::nameReserved();
    if (const QString foreign = AnsiText::foreignCharacters(name); !foreign.isEmpty())
        return CarMessages::nameForeign(foreign);
    if (AnsiText::encode(name.trimmed()).size() > VehicleList::nameLength)
        return CarMessages::nameTooLong();
    return {};
}

std::optional<Message> CarFiles::whyNotCreated(const CarRecord &record)
{
    if (auto refusal = whyNotNamed(record.vehicle.name))
        return refusal;
    const VehicleSheet &sheet = record.sheet;
    if (isBlank(sheet.field(VehicleSheet::Make)) && isBlank(sheet.field(VehicleSheet::Model)))
        return CarMessages::makeMissing();
    if (!CarNumbers::number(sheet.field(VehicleSheet::Odometer)))
        return CarMessages::odometerMissing();
    return {};
}

CarFiles::Placed CarFiles::create(const CarRecord &record, const QDateTime &now)
{
    const int slot = VehicleList(m_folder).freeSlot();
    const Vehicle vehicle{slot, record.vehicle.name.trimmed()};
    if (slot == 0 || whyNotNamed(vehicle.name))
        return {};
    CarChange change;
    clear(change, slot, now);
    VehicleSheet sheet = record.sheet;
    if (!vehicles().isEmpty())
        sheet.unit = unit();
    change.setName(m_folder, slot, vehicle.name);
    replace(change, CarPart::Sheet, slot, VehicleFiles::encode(sheet));
    begin(change, CarPart::Maintenance, slot, VehicleFiles::encode(record.maintenance));
    begin(change, CarPart::Repairs, slot, VehicleFiles::encode(record.repairs));
    begin(change, CarPart::Fuel, slot, VehicleFiles::encode(record.fuel));
    return placed(vehicle, std::move(change));
}

std::optional<CarChange> CarFiles::rename(int slot, const QString &name)
{
    if (whyNotNamed(name))
        return {};
    CarChange change;
    change.setName(m_folder, slot, name);
    return done(std::move(change));
}

std::optional<CarChange> CarFiles::save(const CarRecord &before, const CarRecord &after)
{
    const int slot = before.vehicle.slot;
    if (VehicleList(m_folder).name(slot).isEmpty()) {
        qCWarning(storageLog) << "Refused to save a car that is not in the list any more:" << slot;
        return {};
    }
    CarChange change;
    if (after.vehicle.name != before.vehicle.name) {
        if (whyNotNamed(after.vehicle.name))
            return {};
        change.setName(m_folder, slot, after.vehicle.name);
    }
    CarRecord stored = after;
    if (before.areDatesTurned)
        CarDates::turn(stored);
    if (after.sheet != before.sheet) {
        if (VehicleFiles(m_folder).readSheet(slot).state == VehicleFiles::State::Foreign) {
            qCWarning(storageLog).noquote()
                << "Refused to write over" << VehicleFiles::fileName(CarPart::Sheet, slot);
            return {};
        }
        replace(change, CarPart::Sheet, slot, VehicleFiles::encode(stored.sheet));
    }
    if (after.maintenance != before.maintenance)
        replace(change, CarPart::Maintenance, slot, VehicleFiles::encode(stored.maintenance));
    if (after.repairs != before.repairs)
        replace(change, CarPart::Repairs, slot, VehicleFiles::encode(stored.repairs));
    if (after.fuel != before.fuel)
        replace(change, CarPart::Fuel, slot, VehicleFiles::encode(stored.fuel));
    return done(std::move(change));
}

std::optional<CarChange> CarFiles::remove(int slot, const QDateTime &now)
{
    const Vehicle vehicle{slot, VehicleList(m_folder).name(slot)};
    if (vehicle.name.isEmpty())
        return {};
    CarChange change;
    change.throwAway(trashItem(vehicle, now));
    change.setName(m_folder, slot, {});
    for (const CarPart part : carParts)
        replace(change, part, slot, VehicleFiles::emptied());
    return done(std::move(change));
}

std::vector<Trash::Item> CarFiles::deletedCars(const QDateTime &now) const
{
    std::vector<Trash::Item> items = Trash(m_folder).items(trashKind, now);
    std::erase_if(items, [](const Trash::Item &item) { return !isBroughtBack(item); });
    return items;
}

CarFiles::Placed CarFiles::bringBack(const Trash::Item &item)
{
    if (!isBroughtBack(item))
        return {};
    const Trash::Piece &listed = item.pieces.front();
    const VehicleList list(m_folder);
    const bool isFree = list.name(listed.number).isEmpty() && list.file().recordCount() >= listed.number;
    const int slot = isFree ? listed.number : list.freeSlot();
    if (slot == 0)
        return {};
    CarChange change;
    placeIn(change, slot, item);
    change.bringBack(item);
    return placed({slot, VehicleList::decode(listed.bytes)}, std::move(change));
}

void CarFiles::placeIn(CarChange &change, int slot, const Trash::Item &item) const
{
    clear(change, slot, item.deleted);
    change.setRecord(m_folder, slot, item.pieces.front().bytes);
    for (const CarPart part : carParts)
        begin(change, part, slot, bytesOf(item, part).value_or(VehicleFiles::emptied()));
}

void CarFiles::replaceBy(CarChange &change, const Trash::Item &item) const
{
    for (const CarPart part : carParts) {
        if (const std::optional<QByteArray> bytes = bytesOf(item, part))
            begin(change, part, item.pieces.front().number, *bytes);
    }
}

QStringList CarFiles::files(const DataFolder &folder)
{
    static const QRegularExpression form(u"^[AMRG]Car([1-9][0-9]{0,8})\\.Fil$"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    std::set<int> numbers;
    for (const QString &name : QDir(folder.path()).entryList(QDir::Files)) {
        if (const QRegularExpressionMatch match = form.match(name); match.hasMatch())
            numbers.insert(match.captured(1).toInt());
    }
    QStringList names{VehicleList::fileName()};
    for (const int slot : numbers) {
        for (const CarPart part : carParts)
            names.append(VehicleFiles::fileName(part, slot));
    }
    names.removeIf([&folder](const QString &name) { return folder.existingFile({}, name).isEmpty(); });
    return names;
}

QStringList CarFiles::pictures(const DataFolder &folder)
{
    const PictureFolder places(folder);
    QStringList pictures;
    for (const Vehicle &vehicle : VehicleList(folder).vehicles()) {
        const VehicleSheet sheet = VehicleFiles(folder).readSheet(vehicle.slot).value;
        const QString &stored = sheet.field(VehicleSheet::Picture);
        if (const QString path = stored.isEmpty() ? QString() : places.locate(stored); !path.isEmpty())
            pictures << path;
    }
    pictures.removeDuplicates();
    return pictures;
}

void CarFiles::replace(CarChange &change, CarPart part, int slot, const QByteArray &bytes) const
{
    change.replace(m_folder, VehicleFiles::fileName(part, slot), bytes);
}

void CarFiles::begin(CarChange &change, CarPart part, int slot, const QByteArray &bytes) const
{
    const bool isMade = slot == 1 && (part == CarPart::Maintenance || part == CarPart::Repairs);
    if (isMade && isEmptied(bytes))
        replace(change, part, slot, {}); // of the first slot the two histories are there from the start
    else if (!isEmptied(bytes) || m_folder.exists(VehicleFiles::fileName(part, slot)))
        replace(change, part, slot, bytes);
}

void CarFiles::clear(CarChange &change, int slot, const QDateTime &deleted) const
{
    const Vehicle left{slot, nameOf(VehicleFiles(m_folder).readSheet(slot).value)};
    if (Trash::Item item = trashItem(left, deleted); item.pieces.size() > 1)
        change.throwAway(std::move(item));
}

std::optional<QByteArray> CarFiles::bytesOf(const Trash::Item &item, CarPart part) const
{
    const QString name = VehicleFiles::fileName(part, item.pieces.front().number);
    const auto piece = std::ranges::find(item.pieces, name, &Trash::Piece::file);
    if (piece == item.pieces.end())
        return {};
    return part == CarPart::Sheet ? inUnitOfAll(piece->bytes) : piece->bytes;
}

QByteArray CarFiles::inUnitOfAll(const QByteArray &bytes) const
{
    auto sheet = VehicleFiles::decodeSheet(bytes);
    if (vehicles().isEmpty() || sheet.state != VehicleFiles::State::Whole || sheet.value.unit == unit())
        return bytes;
    sheet.value.unit = unit();
    return VehicleFiles::encode(sheet.value);
}

Trash::Item CarFiles::trashItem(const Vehicle &vehicle, const QDateTime &now) const
{
    const QByteArray named = VehicleList::encode(vehicle.name);
    const QByteArray record = VehicleList(m_folder).file().read(vehicle.slot).left(named.size());
    const bool isWhole = record.size() == named.size() && !VehicleList::decode(record).isEmpty();
    Trash::Item item{trashKind, now, vehicle.name, {}};
    item.pieces.push_back({VehicleList::fileName(), vehicle.slot, isWhole ? record : named});
    for (const CarPart part : carParts) {
        const QString name = VehicleFiles::fileName(part, vehicle.slot);
        const QByteArray bytes = VehicleFiles::bytes(m_folder, name).value_or(QByteArray());
        if (!isEmptied(bytes))
            item.pieces.push_back({name, 0, bytes});
    }
    return item;
}

std::optional<CarChange> CarFiles::done(CarChange change)
{
    if (!change.isEmpty() && !change.commit(m_folder))
        return {};
    return change;
}

CarFiles::Placed CarFiles::placed(const Vehicle &vehicle, CarChange change)
{
    const bool isDone = change.commit(m_folder);
    return {vehicle, std::move(change), isDone};
}
