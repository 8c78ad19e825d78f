// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/spokensecret.h"

#include <QChar>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Sign {
    char32_t character;
    QStringView name;
};

constexpr std::array signs{Sign{U' ', u"blank"},
                           Sign{U'!', u"exclamation mark"},
                           Sign{U'"', u"quotation mark"},
                           Sign{U'#', u"number sign"},
                           Sign{U'$', u"dollar sign"},
                           Sign{U'%', u"percent sign"},
                           Sign{U'&', u"ampersand"},
                           Sign{U'\'', u"apostrophe"},
                           Sign{U'(', u"left parenthesis"},
                           Sign{U')', u"right parenthesis"},
                           Sign{U'*', u"asterisk"},
                           Sign{U'+', u"plus sign"},
                           Sign{U',', u"comma"},
                           Sign{U'-', u"hyphen"},
                           Sign{U'.', u"full stop"},
                           Sign{U'/', u"slash"},
                           Sign{U':', u"colon"},
                           Sign{U';', u"semicolon"},
                           Sign{U'<', u"less-than sign"},
                           Sign{U'=', u"equals sign"},
                           Sign{U'>', u"greater-than sign"},
                           Sign{U'?', u"question mark"},
                           Sign{U'@', u"at sign"},
                           Sign{U'[', u"left bracket"},
                           Sign{U'\\', u"backslash"},
                           Sign{U']', u"right bracket"},
                           Sign{U'^', u"caret"},
                           Sign{U'_', u"underscore"},
                           Sign{U'`', u"grave accent"},
                           Sign{U'{', u"left brace"},
                           Sign{U'|', u"vertical bar"},
                           Sign{U'}', u"right brace"},
                           Sign{U'~', u"tilde"},
                           Sign{U'\u20ac', u"euro sign"},
                           Sign{U'\u00a3', u"pound sign"},
                           Sign{U'\u00a7', u"section sign"}};

} // namespace

namespace SpokenSecret {

Class classOf(char32_t character)
{
    if (QChar::isDigit(character))
        return Class::Digit;
    return QChar::isLetter(character) ? Class::Letter : Class::Sign;
}

QString nameOf(char32_t character)
{
    const auto *sign = std::ranges::find(signs, character, &Sign::character);
    if (sign != signs.end())
        return sign->name.toString();
    const QString shown = QString::fromUcs4(&character, 1);
    switch (classOf(character)) {
    case Class::Digit:
        return u"digit "_s + shown;
    case Class::Letter:
        return (QChar::isUpper(character) ? u"capital "_s : u"small "_s) + shown;
    case Class::Sign:
        break;
    }
    return u"sign "_s + shown;
}

} // namespace SpokenSecret
