// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/sealing/recoverycode.h"

#include "storage/sealing/secretbytes.h"

#include <sodium.h>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype keyLength = 26;
constexpr qsizetype groupLength = 4;
constexpr QLatin1StringView alphabet("0123456789ABCDEFGHJKMNPQRSTVWXYZ");

/// The first ten bits of the BLAKE2b-256 of the characters.
QString checkOf(QStringView key)
{
    QByteArray characters = key.toLatin1();
    std::array<unsigned char, crypto_generichash_BYTES> hash{};
    crypto_generichash(hash.data(), hash.size(), reinterpret_cast<const unsigned char *>(characters.data()),
                       std::size_t(characters.size()), nullptr, 0);
    SecretBytes::wipe(characters);
    const unsigned bits = unsigned(hash[0]) << 2 | unsigned(hash[1]) >> 6;
    return QString(QChar(alphabet[bits >> 5])) + QChar(alphabet[bits & 31]);
}

/// The character that is meant; none for a blank or a dash, nothing for what no code has.
std::optional<QString> meant(QChar typed)
{
    const QChar upper = typed.toUpper();
    if (typed.isSpace() || typed.category() == QChar::Punctuation_Dash)
        return QString();
    if (upper == u'O')
        return u"0"_s;
    if (upper == u'I' || upper == u'L')
        return u"1"_s;
    if (!alphabet.contains(upper))
        return std::nullopt;
    return QString(upper);
}

} // namespace

QString RecoveryCode::generate()
{
    if (sodium_init() < 0)
        qFatal("No source of random numbers");
    QString key;
    key.reserve(length + length / groupLength);
    for (qsizetype i = 0; i < keyLength; ++i)
        key += alphabet[randombytes_uniform(quint32(alphabet.size()))];
    key += checkOf(key);
    for (qsizetype at = length - groupLength; at > 0; at -= groupLength)
        key.insert(at, u'-');
    return key;
}

std::optional<QString> RecoveryCode::read(const QString &typed)
{
    QString code;
    code.reserve(length + 1);
    for (const QChar character : typed) {
        const std::optional<QString> read = meant(character);
        if (!read || code.size() > length)
            return std::nullopt;
        code += *read;
    }
    if (code.size() != length || code.sliced(keyLength) != checkOf(QStringView(code).first(keyLength)))
        return std::nullopt;
    return code.first(keyLength);
}
