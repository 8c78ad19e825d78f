// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/photo.h"

#include "album/model/phototexts.h"

QString Photo::fileName() const
{
    return path.sliced(path.lastIndexOf(u'/') + 1);
}

QStringList Photo::tagList() const
{
    return PhotoTexts::list(tags);
}

void Photo::setTags(const QStringList &list)
{
    tags = PhotoTexts::joined(list);
}

QList<PhotoPerson> Photo::persons() const
{
    QList<PhotoPerson> list;
    for (const QString &name : PhotoTexts::list(people)) {
        const auto place = std::size_t(list.size());
        list.append({name, place < personRecords.size() ? personRecords[place] : 0});
    }
    return list;
}

void Photo::setPersons(const QList<PhotoPerson> &list)
{
    QStringList names;
    personRecords = {};
    for (const PhotoPerson &person : list) {
        const QString name = PhotoTexts::joined({person.name});
        if (name.isEmpty() || names.contains(name))
            continue;
        if (names.size() < mostPeople)
            personRecords[std::size_t(names.size())] = person.record;
        names.append(name);
    }
    people = PhotoTexts::joined(names);
}
