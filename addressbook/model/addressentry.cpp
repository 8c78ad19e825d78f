// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/addressentry.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

bool AddressEntry::hasPicture() const
{
    const QStringView path = AnsiText::trimmedBlanks(picture);
    return !path.isEmpty() && path != noPicture;
}

bool AddressEntry::isEmpty() const
{
    return !hasPicture() && std::ranges::all_of(texts, &QString::isEmpty);
}

QString AddressEntry::fullName() const
{
    const QStringView first = AnsiText::trimmedBlanks(texts[FirstName]);
    const QStringView last = AnsiText::trimmedBlanks(texts[LastName]);
    const QString both = first.toString() + u' ' + last.toString();
    return AnsiText::trimmedBlanks(both).toString();
}

QString addressLabel(AddressField field)
{
    static const std::array<QString, AddressFieldCount> labels{
        u"Last Name:"_s,  u"First Name:"_s,    u"Date of Birth:"_s,   u"Address:"_s,    QString(),
        u"City:"_s,       u"State/Country:"_s, u"Postal Zip/Code:"_s, u"Home Phone:"_s, u"Mobile Phone:"_s,
        u"Fax Number:"_s, u"Email Address:"_s, u"Anniversary Date:"_s};
    return labels[field];
}
