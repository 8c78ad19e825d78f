// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/sameaddress.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array fields{Address1, Address2, City, State, PostalCode, HomePhone};

QString joined(const SameAddress::Texts &texts)
{
    QStringList parts;
    for (const AddressField field : fields) {
        if (const QString text = texts[field].trimmed(); !text.isEmpty())
            parts.append(text);
    }
    return parts.join(u", "_s);
}

} // namespace

bool SameAddress::hasAny(const AddressEntry &from)
{
    return !joined(from.texts).isEmpty();
}

SameAddress::Texts SameAddress::taken(const AddressEntry &from, Texts own)
{
    for (const AddressField field : fields) {
        // Half an old address under a new one would be none; a number of one's own may well stay.
        if (field != HomePhone || !from[field].trimmed().isEmpty())
            own[field] = from[field];
    }
    return own;
}

QString SameAddress::onOneLine(const Texts &texts)
{
    return joined(texts);
}

QString SameAddress::replaced(const AddressEntry &from, const Texts &own)
{
    const Texts after = taken(from, own);
    Texts lost;
    for (const AddressField field : fields) {
        if (after[field] != own[field])
            lost[field] = own[field];
    }
    return joined(lost);
}
