// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocale>
#include <QString>

#include <cmath>

/// What the password keeper says quietly, in its status bar and beside its boxes.
namespace KeeperLines {

using namespace Qt::Literals::StringLiterals;

/// What stands in place of a secret, however long that is.
inline QString hidden()
{
    return u"\u2022\u2022\u2022\u2022\u2022\u2022\u2022\u2022"_s;
}

/// The same for a screen reader.
inline QString hiddenAloud()
{
    return u"hidden"_s;
}

/// "1 entry", "3 entries".
inline QString entries(qsizetype count)
{
    return count == 1 ? u"1 entry"_s : u"%1 entries"_s.arg(count);
}

// Passwords

/// Of a password that the program has drawn; rounded down, so that no more is promised than there is.
inline QString drawn(double bits)
{
    return u"%1 bits, drawn at random"_s.arg(QLocale::c().toString(std::floor(bits * 10) / 10, 'f', 1));
}

inline QString noKindOfCharacter()
{
    return u"Choose one kind of characters at least"_s;
}

inline QString weakMaster()
{
    return u"This can be guessed: it has less than 50 bits. Four drawn words or more are better. It is taken "
           u"if you want it so."_s;
}

inline QString masterMissing()
{
    return u"Type the master password first."_s;
}

inline QString mastersDiffer()
{
    return u"The two master passwords differ. Type the same one again."_s;
}

} // namespace KeeperLines
