// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/restorerule.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using RestoreRule::Case;
using RestoreRule::Demand;
using RestoreRule::Password;

QString damagedHere()
{
    return u"The password file of this household is damaged, and this backup has none with a password to put in its place. What a password can guard is not restored until then; the manual says how to mend it."_s;
}

QString damagedInCopy()
{
    return u"The password file of this backup is damaged, so that nobody can tell what it guards. Set a password here first, under Password Control, or restore only what no password can guard."_s;
}

Demand withoutPasswordHere(const Case &known)
{
    if (known.copy == Password::Damaged && known.isGuardable)
        return {.refusal = damagedInCopy()};
    const bool isGuarded = known.copy == Password::Set && known.isGuardedByCopy;
    const bool takesFile = known.isFileChosen || isGuarded;
    return {.asksCopy = takesFile && known.copy == Password::Set, .takesFile = takesFile};
}

/// Nobody can give the password that was set here: only the copy's can take its place.
Demand withDamageHere(const Case &known)
{
    if (!known.isFileChosen && !known.isGuardable)
        return {};
    if (known.copy != Password::Set)
        return {.refusal = damagedHere()};
    return {.asksCopy = true, .takesFile = true};
}

} // namespace

QString RestoreRule::whyFileIsRefused(Password copy)
{
    return copy == Password::Damaged ? u"The password file of this backup is damaged."_s : QString();
}

RestoreRule::Demand RestoreRule::of(const Case &known)
{
    if (known.isFileChosen && known.copy == Password::Damaged)
        return {.refusal = whyFileIsRefused(known.copy)};
    if (known.here == Password::None)
        return withoutPasswordHere(known);
    if (known.here == Password::Damaged)
        return withDamageHere(known);
    const bool isOther = known.isFileChosen && known.copy == Password::Set && !known.isSame;
    return {.asksHere = true, .asksCopy = isOther, .takesFile = known.isFileChosen};
}
