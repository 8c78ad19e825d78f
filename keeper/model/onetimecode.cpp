// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/onetimecode.h"

#include <QMessageAuthenticationCode>
#include <QUrl>
#include <QUrlQuery>
#include <QtEndian>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView alphabet = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ234567";
constexpr qsizetype longestText = 2000;
constexpr int longestPeriod = 3600;

struct AlgorithmName {
    QCryptographicHash::Algorithm algorithm;
    QStringView name;
};

constexpr std::array algorithms{AlgorithmName{QCryptographicHash::Sha1, u"SHA1"},
                                AlgorithmName{QCryptographicHash::Sha256, u"SHA256"},
                                AlgorithmName{QCryptographicHash::Sha512, u"SHA512"}};

/// The bytes of a Base32 text; bits that fill no byte are left out. Empty, with `problem`, for another text.
QByteArray fromBase32(const QString &text, QString &problem)
{
    QByteArray bytes;
    quint32 bits = 0;
    int count = 0;
    for (const QChar character : text.toUpper()) {
        if (character.isSpace() || character == u'-' || character == u'=')
            continue;
        const qsizetype value = alphabet.indexOf(character);
        if (value < 0) {
            problem = u"A key has letters and the digits 2 to 7 only, not \u201c%1\u201d"_s.arg(character);
            return {};
        }
        bits = (bits << 5 | quint32(value)) & 0xfff;
        count += 5;
        if (count >= 8) {
            count -= 8;
            bytes += char(bits >> count & 0xff);
        }
    }
    if (bytes.isEmpty())
        problem = u"The key is too short"_s;
    return bytes;
}

QString toBase32(const QByteArray &bytes)
{
    QString text;
    quint32 bits = 0;
    int count = 0;
    for (const char byte : bytes) {
        bits = (bits << 8 | quint8(byte)) & 0xfff;
        for (count += 8; count >= 5; count -= 5)
            text += alphabet[bits >> (count - 5) & 0x1f];
    }
    if (count > 0)
        text += alphabet[bits << (5 - count) & 0x1f];
    return text;
}

/// A whole number of the query, or `usual` where there is none; -1 for what is no number.
int number(const QUrlQuery &query, const QString &name, int usual)
{
    if (!query.hasQueryItem(name))
        return usual;
    bool isNumber = false;
    const int value = query.queryItemValue(name).toInt(&isNumber);
    return isNumber ? value : -1;
}

bool readAlgorithm(const QUrlQuery &query, OneTimeSecret &secret)
{
    QString name = query.queryItemValue(u"algorithm"_s).toUpper().remove(u'-').remove(u"HMAC"_s);
    if (name.isEmpty())
        return true;
    const auto *found = std::ranges::find(algorithms, name, &AlgorithmName::name);
    if (found == algorithms.end())
        return false;
    secret.algorithm = found->algorithm;
    return true;
}

/// What is wrong with the address; empty when nothing is.
QString readAddress(const QString &text, OneTimeSecret &secret)
{
    const QUrl address(text);
    if (!address.isValid())
        return u"This is no address of a one-time secret"_s;
    if (address.host().compare(u"totp"_s, Qt::CaseInsensitive) != 0)
        return u"Only codes that change with the time are known (otpauth://totp/)"_s;
    const QUrlQuery query(address);
    QString problem;
    secret.key = fromBase32(query.queryItemValue(u"secret"_s, QUrl::FullyDecoded), problem);
    if (!problem.isEmpty())
        return problem;
    if (!readAlgorithm(query, secret))
        return u"Only SHA-1, SHA-256 and SHA-512 are known"_s;
    secret.digits = number(query, u"digits"_s, 6);
    if (secret.digits != 6 && secret.digits != 8)
        return u"A code has 6 or 8 digits"_s;
    secret.period = number(query, u"period"_s, 30);
    if (secret.period < 1 || secret.period > longestPeriod)
        return u"A code holds for 1 second to an hour"_s;
    const QString label = address.path(QUrl::FullyDecoded).mid(1);
    const qsizetype colon = label.indexOf(u':');
    secret.account = label.mid(colon + 1).trimmed();
    secret.issuer = query.queryItemValue(u"issuer"_s, QUrl::FullyDecoded).replace(u'+', u' ');
    if (secret.issuer.isEmpty() && colon > 0)
        secret.issuer = label.left(colon).trimmed();
    return {};
}

} // namespace

std::optional<OneTimeSecret> OneTimeSecret::read(const QString &text, QString *problem)
{
    OneTimeSecret secret;
    QString found;
    if (text.size() > longestText)
        found = u"This is too long for a key"_s;
    else if (text.trimmed().startsWith(u"otpauth:"_s, Qt::CaseInsensitive))
        found = readAddress(text.trimmed(), secret);
    else
        secret.key = fromBase32(text, found);
    if (problem)
        *problem = found;
    return found.isEmpty() ? std::optional(std::move(secret)) : std::nullopt;
}

QString OneTimeSecret::code(qint64 time) const
{
    QByteArray counter(qsizetype(sizeof(qint64)), '\0');
    qToBigEndian(time / period, counter.data());
    const QByteArray hash = QMessageAuthenticationCode::hash(counter, key, algorithm);
    const int place = hash.back() & 0x0f;
    const quint32 number = qFromBigEndian<quint32>(hash.constData() + place) & 0x7fffffff;
    return QString::number(number % (digits == 8 ? 100'000'000 : 1'000'000)).rightJustified(digits, u'0');
}

int OneTimeSecret::secondsLeft(qint64 time) const
{
    return period - int(time % period);
}

QString OneTimeSecret::text() const
{
    const QString base32 = toBase32(key);
    if (algorithm == QCryptographicHash::Sha1 && digits == 6 && period == 30)
        return base32;
    const auto *name = std::ranges::find(algorithms, algorithm, &AlgorithmName::algorithm);
    QString label = QString::fromLatin1(QUrl::toPercentEncoding(account));
    if (!issuer.isEmpty())
        label.prepend(QString::fromLatin1(QUrl::toPercentEncoding(issuer)) + u':');
    QString address = u"otpauth://totp/%1?secret=%2&algorithm=%3&digits=%4&period=%5"_s.arg(
        label, base32, name->name.toString(), QString::number(digits), QString::number(period));
    if (!issuer.isEmpty())
        address += u"&issuer="_s + QString::fromLatin1(QUrl::toPercentEncoding(issuer));
    return address;
}
