// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/vehiclelist.h"

#include "storage/ansitext.h"

#include <QFileInfo>

#include <algorithm>
#include <cstdint>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype headLength = 2;
constexpr QLatin1StringView freeMark("EMPTY");

} // namespace

QString VehicleList::fileName()
{
    return u"CarMnt1.Fil"_s;
}

RecordFile VehicleList::file() const
{
    return {m_folder, fileName(), recordLength};
}

QList<Vehicle> VehicleList::vehicles() const
{
    QList<Vehicle> vehicles;
    file().forEach(1, [&vehicles](int number, QByteArrayView record) {
        if (const QString name = decode(record); !name.isEmpty())
            vehicles.append({number, name});
        return true;
    });
    return vehicles;
}

QString VehicleList::name(int slot) const
{
    return decode(file().read(slot));
}

int VehicleList::freeSlot(int after) const
{
    const RecordFile list = file();
    const int last = list.recordCount();
    int seen = 0;
    int slot = 0;
    list.forEach(1, [&](int number, QByteArrayView record) {
        seen = number;
        if (number > after && decode(record).isEmpty())
            slot = number;
        return slot == 0;
    });
    if (slot > 0)
        return slot;
    const bool isInTheWay = last == 0 && QFileInfo::exists(list.path()) && !QFileInfo(list.path()).isFile();
    return seen == last && !isInTheWay ? std::max(last, after) + 1 : 0;
}

bool VehicleList::isFreeName(QStringView name)
{
    const QStringView text = AnsiText::trimmedBlanks(name);
    return text.isEmpty() || text.startsWith(freeMark, Qt::CaseInsensitive);
}

QString VehicleList::decode(QByteArrayView record)
{
    if (record.size() < headLength)
        return {};
    const auto byte = [record](qsizetype at) { return std::uint8_t(record[at]); };
    const qsizetype length = std::min<qsizetype>(byte(0) + 256 * byte(1), record.size() - headLength);
    const QString name =
        AnsiText::trimmedBlanks(AnsiText::fieldText(record.sliced(headLength, length))).toString();
    return isFreeName(name) ? QString() : name;
}

QByteArray VehicleList::encode(const QString &name)
{
    QByteArray bytes;
    bytes += char(nameLength);
    bytes += '\0';
    const QStringView text = AnsiText::trimmedBlanks(name);
    return bytes + (text.isEmpty() ? QByteArray(nameLength - freeMark.size(), ' ') + "EMPTY"
                                   : AnsiText::field(text, nameLength));
}
