// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/vehiclefiles.h"

#include "storage/valuefile.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

using State = VehicleFiles::State;
using Action = ScheduledAction;

constexpr QLatin1StringView marker("NEWW");
constexpr std::array actionValues{&Action::distance, &Action::months, &Action::odometer, &Action::date,
                                  &Action::cost};
/// Marker, fields, schedule, unit and own value.
constexpr qsizetype sheetValues =
    1 + VehicleSheet::fieldCount + VehicleSheet::actionCount * (actionValues.size() + 1) + 2;
constexpr QLatin1StringView kilometers("1");
constexpr QLatin1StringView miles("0");

/// Whether nothing stands in a file: no value, or the blank of an emptied one.
bool isEmptied(const QStringList &values)
{
    return values.isEmpty() || (values.size() == 1 && QStringView(values.front()).trimmed().isEmpty());
}

template <typename Value>
VehicleFiles::Found<Value> foundIn(const DataFolder &folder, const QString &name,
                                   VehicleFiles::Found<Value> (*decode)(QByteArrayView))
{
    if (!QFileInfo::exists(folder.filePath(name)))
        return {};
    const std::optional<QByteArray> bytes = VehicleFiles::bytes(folder, name);
    return bytes ? decode(*bytes) : VehicleFiles::Found<Value>{{}, State::OutOfReach};
}

/// Rows of these columns; of the last one what there is.
template <typename Row, std::size_t Count>
VehicleFiles::Found<QList<Row>> rowsIn(QByteArrayView bytes, const std::array<QString Row::*, Count> &columns)
{
    QStringList values = ValueFile::decode(bytes);
    VehicleFiles::Found<QList<Row>> found;
    found.state = isEmptied(values) ? State::Empty : State::Whole;
    if (found.state == State::Empty)
        return found;
    found.value.resize((values.size() + qsizetype(Count) - 1) / qsizetype(Count));
    qsizetype at = 0;
    for (Row &row : found.value) {
        for (std::size_t column = 0; column < Count && at < values.size(); ++column, ++at)
            row.*columns[column] = std::move(values[at]);
    }
    return found;
}

template <typename Row, std::size_t Count>
QByteArray bytesOfRows(const QList<Row> &rows, const std::array<QString Row::*, Count> &columns)
{
    if (rows.isEmpty())
        return VehicleFiles::emptied();
    QStringList values;
    values.reserve(rows.size() * qsizetype(Count));
    for (const Row &row : rows) {
        for (QString Row::*column : columns)
            values.append(row.*column);
    }
    return ValueFile::encode(values);
}

} // namespace

QString VehicleFiles::fileName(CarPart part, int slot)
{
    static constexpr std::array letters{u'A', u'M', u'R', u'G'};
    return letters.at(std::size_t(part)) + u"Car"_s + QString::number(slot) + u".Fil"_s;
}

std::optional<QByteArray> VehicleFiles::bytes(const DataFolder &folder, const QString &name)
{
    const QString path = folder.filePath(name);
    if (!QFileInfo::exists(path))
        return emptied();
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    QByteArray bytes = file.readAll();
    return file.error() == QFile::NoError ? std::optional(std::move(bytes)) : std::nullopt;
}

VehicleFiles::Found<VehicleSheet> VehicleFiles::readSheet(int slot) const
{
    return foundIn(m_folder, fileName(CarPart::Sheet, slot), decodeSheet);
}

VehicleFiles::Found<History> VehicleFiles::readHistory(CarPart part, int slot) const
{
    return foundIn(m_folder, fileName(part, slot), decodeHistory);
}

VehicleFiles::Found<FuelLog> VehicleFiles::readFuel(int slot) const
{
    return foundIn(m_folder, fileName(CarPart::Fuel, slot), decodeFuel);
}

VehicleFiles::Found<VehicleSheet> VehicleFiles::decodeSheet(QByteArrayView bytes)
{
    const QStringList values = ValueFile::decode(bytes);
    if (isEmptied(values))
        return {{}, State::Empty};
    if (values.front().trimmed() != marker)
        return {{}, State::Foreign};
    Found<VehicleSheet> found;
    found.state = values.size() < sheetValues ? State::Cut : State::Whole;
    VehicleSheet &sheet = found.value;
    qsizetype at = 0;
    const auto next = [&values, &at] { return ++at < values.size() ? values[at] : QString(); };
    for (QString &field : sheet.fields)
        field = next();
    for (Action &action : sheet.actions) {
        for (QString Action::*value : actionValues)
            action.*value = next();
    }
    for (Action &action : sheet.actions)
        action.name = next();
    sheet.unit = next().trimmed() == kilometers ? DistanceUnit::Kilometers : DistanceUnit::Miles;
    sheet.ownValue = next();
    sheet.surplus = values.mid(sheetValues);
    return found;
}

VehicleFiles::Found<History> VehicleFiles::decodeHistory(QByteArrayView bytes)
{
    return rowsIn(bytes, historyColumns);
}

VehicleFiles::Found<FuelLog> VehicleFiles::decodeFuel(QByteArrayView bytes)
{
    return rowsIn(bytes, fuelColumns);
}

QByteArray VehicleFiles::encode(const VehicleSheet &sheet)
{
    QStringList values{marker};
    values.reserve(sheetValues + sheet.surplus.size());
    for (const QString &field : sheet.fields)
        values.append(field);
    for (const Action &action : sheet.actions) {
        for (QString Action::*value : actionValues)
            values.append(action.*value);
    }
    for (const Action &action : sheet.actions)
        values.append(action.name);
    values.append(sheet.unit == DistanceUnit::Kilometers ? kilometers : miles);
    values.append(sheet.ownValue);
    return ValueFile::encode(values + sheet.surplus);
}

QByteArray VehicleFiles::encode(const History &history)
{
    return bytesOfRows(history, historyColumns);
}

QByteArray VehicleFiles::encode(const FuelLog &fuel)
{
    return bytesOfRows(fuel, fuelColumns);
}

QByteArray VehicleFiles::emptied()
{
    return "\" \"\r\n"_ba;
}
