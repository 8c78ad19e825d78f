// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressholdings.h"

#include "addressbook/model/addressbook.h"
#include "shell/core/dates.h"
#include "shell/pictures/picturefolder.h"
#include "storage/ansitext.h"

#include <QDir>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

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

QStringList AddressHoldings::missingPictures(const DataFolder &folder)
{
    QStringList pictures;
    const PictureFolder places(folder);
    AddressBook(folder).forEachLive([&](int, const AddressEntry &entry) {
        if (entry.hasPicture() && places.locate(entry.picture).isEmpty())
            pictures << entry.picture;
        return true;
    });
    pictures.removeDuplicates();
    return pictures;
}

std::optional<UndoStep> AddressHoldings::relinkPictures(const DataFolder &folder,
                                                        const QHash<QString, QString> &files)
{
    const AddressBook book(folder);
    std::vector<std::pair<int, QByteArray>> records;
    book.forEachLiveRecord([&](int record, QByteArrayView bytes) {
        const QString now = QDir::toNativeSeparators(files.value(addressLayout.decode(bytes).picture));
        if (now.isEmpty() || !PictureFolder::isStorable(now, addressPictureWidth))
            return true;
        QByteArray changed = bytes.toByteArray().leftJustified(addressLayout.size(), ' ');
        changed.replace(addressTextWidth * AddressFieldCount, addressPictureWidth,
                        AnsiText::field(now, addressPictureWidth));
        records.emplace_back(record, changed);
        return true;
    });
    if (records.empty())
        return UndoStep{};
    const auto change = std::make_shared<RecordChange>();
    for (const auto &[record, bytes] : records)
        change->write(book.entries(), record, bytes);
    if (!change->commit(folder))
        return {};
    return UndoStep{{},
                    [change, &folder] { return change->undo(folder); },
                    [change, &folder] { return change->redo(folder); }};
}
