// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/personlist.h"

#include "storage/valuefile.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

QString PersonList::fileName()
{
    return u"WeightTrker.Fil"_s;
}

QStringList PersonList::names() const
{
    return decode(ValueFile::encode(ValueFile::read(m_folder.filePath(fileName()))));
}

QString PersonList::name(int place) const
{
    return names().value(place - 1);
}

int PersonList::place(const QStringList &names, const QString &name)
{
    const auto isSame = [&name](const QString &other) {
        return other.compare(name.trimmed(), Qt::CaseInsensitive) == 0;
    };
    const auto found = std::ranges::find_if(names, isSame);
    return found == names.end() ? 0 : int(found - names.begin()) + 1;
}

QStringList PersonList::decode(QByteArrayView bytes)
{
    QStringList names;
    for (const QString &value : ValueFile::decode(bytes)) {
        if (const QString name = value.trimmed(); !name.isEmpty() && place(names, name) == 0)
            names.append(name);
    }
    return names;
}

QByteArray PersonList::encode(const QStringList &names)
{
    return ValueFile::encode(names);
}
