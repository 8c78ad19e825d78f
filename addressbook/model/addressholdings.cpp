// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressholdings.h"

#include "addressbook/model/addressbook.h"
#include "shell/core/dates.h"
#include "shell/pictures/picturefolder.h"

#include <optional>

QStringList AddressHoldings::names(const DataFolder &folder)
{
    QStringList names;
    AddressBook(folder).forEachLive([&names](int, const AddressEntry &entry) {
        names << entry.fullName();
        return true;
    });
    return names;
}

QList<KnownPerson> AddressHoldings::persons(const DataFolder &folder, DateStyle style, QDate today)
{
    QList<KnownPerson> persons;
    AddressBook(folder).forEachLive([&](int record, const AddressEntry &entry) {
        const std::optional<QDate> born = Dates::parse(entry[BirthDate], style, today);
        persons.append({entry.fullName(), record, born && *born <= today ? *born : QDate()});
        return true;
    });
    return persons;
}

QStringList AddressHoldings::files(const DataFolder &folder)
{
    QStringList files = AddressBook::fileNames();
    files.removeIf([&folder](const QString &name) { return !folder.exists(name); });
    return files;
}

QStringList AddressHoldings::pictures(const DataFolder &folder)
{
    QStringList pictures;
    const PictureFolder places(folder);
    AddressBook(folder).forEachLive([&](int, const AddressEntry &entry) {
        if (const QString path = entry.hasPicture() ? places.locate(entry.picture) : QString();
            !path.isEmpty())
            pictures << path;
        return true;
    });
    pictures.removeDuplicates();
    return pictures;
}
