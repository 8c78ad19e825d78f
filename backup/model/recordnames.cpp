// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/recordnames.h"

#include <QStringDecoder>

#include <algorithm>

namespace {

bool isPlain(char byte)
{
    return byte >= ' ' && byte <= '~' && byte != '%' && byte != '"' && byte != '\'';
}

int hexValue(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    return digit >= 'A' && digit <= 'F' ? digit - 'A' + 10 : -1;
}

} // namespace

QByteArray RecordNames::encoded(const QString &name)
{
    static constexpr char digits[] = "0123456789ABCDEF";
    QByteArray bytes = name.toUtf8();
    if (std::ranges::all_of(bytes, isPlain))
        return bytes;
    QByteArray text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        if (isPlain(byte)) {
            text.append(byte);
            continue;
        }
        const auto value = static_cast<unsigned char>(byte);
        text.append('%').append(digits[value >> 4U]).append(digits[value & 15U]);
    }
    return text;
}

std::optional<QString> RecordNames::decoded(const QByteArray &text)
{
    if (std::ranges::all_of(text, isPlain))
        return QString::fromLatin1(text);
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (isPlain(text[i])) {
            bytes.append(text[i]);
            continue;
        }
        if (text[i] != '%' || i + 2 >= text.size())
            return std::nullopt;
        const int high = hexValue(text[i + 1]);
        const int low = hexValue(text[i + 2]);
        if (high < 0 || low < 0)
            return std::nullopt;
        bytes.append(static_cast<char>(high * 16 + low));
        i += 2;
    }
    QStringDecoder decoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    QString name = decoder(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return name;
}
