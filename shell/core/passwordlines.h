// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Quiet words about a password of a function's own, and the code that opens what a forgotten one does not.
namespace PasswordLines {

using namespace Qt::Literals::StringLiterals;

inline QString typeRecoveryCode()
{
    return u"Type the recovery code from your paper. Blanks, dashes and small letters do not matter."_s;
}

inline QString recoveryCode()
{
    return u"Recovery code"_s;
}

inline QString useRecoveryCode()
{
    return u"Use the &recovery code"_s;
}

inline QString recoveryCodeMissing()
{
    return u"Type the recovery code first."_s;
}

inline QString recoveryCodeSlip()
{
    return u"That is not a whole recovery code: a character is missing, too many or mistyped."_s;
}

inline QString passwordsDiffer()
{
    return u"The two passwords differ"_s;
}

inline QString passwordAgain()
{
    return u"The same once more"_s;
}

inline QString passwordHint()
{
    return u"Any length is taken; longer is better. Four or five words that have nothing to do with each other are easy to remember and hard to guess."_s;
}

} // namespace PasswordLines
