// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pictures/storedpicture.h"
#include "storage/recordlayout.h"

#include <QString>

#include <array>

/// The thirteen texts of an entry, in the order of the entry boxes and of the record.
enum AddressField {
    LastName,
    FirstName,
    BirthDate,
    Address1,
    Address2,
    City,
    State,
    PostalCode,
    HomePhone,
    MobilePhone,
    Fax,
    Email,
    AnniversaryDate,
    AddressFieldCount
};

/// One person of the address book: a record of `Addbk1.Fil`.
struct AddressEntry {
    std::array<QString, AddressFieldCount> texts; ///< at most 40 bytes each
    QString picture;                              ///< full path, at most 200 bytes; "**" or empty without one

    const QString &operator[](AddressField field) const { return texts[field]; }
    QString &operator[](AddressField field) { return texts[field]; }

    bool hasPicture() const;
    /// Nothing typed and no picture.
    bool isEmpty() const;
    /// "Anne Miller": the names without outer blanks, for headings and questions.
    QString fullName() const;

    bool operator==(const AddressEntry &) const = default;
};

/// The label of a field on screen and on the clipboard: "Last Name:". The second address line has none.
QString addressLabel(AddressField field);

inline constexpr qsizetype addressTextWidth = 40;
inline constexpr qsizetype addressPictureWidth = 200;

inline constexpr auto addressLayout = recordLayout<AddressEntry>(
    TextArrayField{&AddressEntry::texts, addressTextWidth},
    TextField{&AddressEntry::picture, addressPictureWidth}, BlankField<AddressEntry>{4});
static_assert(addressLayout.size() == 724);
