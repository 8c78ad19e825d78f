// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/personlist.h"

#include "storage/ansitext.h"
#include "storage/valuefile.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList namesIn(const QStringList &values)
{
    QStringList names;
    for (const QString &value : values) {
        const QString name = AnsiText::trimmedBlanks(value).toString();
        if (!name.isEmpty() && PersonList::place(names, name) == 0)
            names.append(name);
    }
    return names;
}

} // namespace

QString PersonList::fileName()
{
    return u"WeightTrker.Fil"_s;
}

QStringList PersonList::names() const
{
    return namesIn(ValueFile::read(m_folder.filePath(fileName())));
}

QString PersonList::name(int place) const
{
    return names().value(place - 1);
}

int PersonList::place(const QStringList &names, const QString &name)
{
    const auto isSame = [wanted = AnsiText::trimmedBlanks(name)](const QString &other) {
        return wanted.compare(other, Qt::CaseInsensitive) == 0;
    };
    const auto found = std::ranges::find_if(names, isSame);
    return found == names.end() ? 0 : int(found - names.begin()) + 1;
}

QStringList PersonList::decode(QByteArrayView bytes)
{
    return namesIn(ValueFile::decode(bytes));
}

QByteArray PersonList::encode(const QStringList &names)
{
    return ValueFile::encode(names);
}
