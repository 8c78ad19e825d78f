// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carentry.h"
#include "cars/model/carnumbers.h"
#include "cars/model/vehiclefiles.h"
#include "cars/model/vehiclelist.h"
#include "fuzztarget.h"

#include <cmath>

namespace {

void tryText(const QString &text)
{
    require(CarNumbers::number(text).value_or(0) >= 0, "a number is not below 0");
    require(CarNumbers::months(text).value_or(1) >= 1, "months are counted from 1");
    const QDate today(2026, 11, 22);
    const QString date = CarEntry::date(text, {}, DateStyle::Usa, today).text;
    require(CarEntry::date(date, {}, DateStyle::Usa, today).text == date,
            "a date that was taken is taken again");
}

void tryList(QByteArrayView record)
{
    const QString name =
        VehicleList::decode(record.first(std::min(record.size(), VehicleList::recordLength)));
    const QByteArray written = VehicleList::encode(name);
    require(written.size() == VehicleList::nameLength + 2, "a record has its length");
    require(VehicleList::encode(VehicleList::decode(written)) == written, "a name comes back");
}

template <typename Value>
void tryRows(QByteArrayView bytes, VehicleFiles::Found<Value> (*decode)(QByteArrayView))
{
    const Value rows = decode(bytes).value;
    require(rows.size() <= bytes.size(), "no row comes from nothing");
    const QByteArray written = VehicleFiles::encode(rows);
    require(VehicleFiles::encode(decode(written).value) == written, "rows come back");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView bytes = asBytes(data, size);
    tryList(bytes);
    tryRows<History>(bytes, VehicleFiles::decodeHistory);
    tryRows<FuelLog>(bytes, VehicleFiles::decodeFuel);

    const VehicleFiles::Found<VehicleSheet> found = VehicleFiles::decodeSheet(bytes);
    for (const QString &field : found.value.fields)
        tryText(field);
    const QByteArray written = VehicleFiles::encode(found.value);
    const VehicleFiles::Found<VehicleSheet> again = VehicleFiles::decodeSheet(written);
    require(again.state == VehicleFiles::State::Whole, "a file holds all values");
    require(VehicleFiles::encode(again.value) == written, "a sheet comes back");
    return 0;
}
