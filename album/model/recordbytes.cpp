// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/recordbytes.h"

#include "storage/utf8text.h"

#include <algorithm>
#include <cstring>

QByteArrayView RecordBytes::textBytes(QByteArrayView record, qsizetype at, qsizetype width)
{
    const QByteArrayView field =
        record.sliced(std::min(at, record.size())).first(std::clamp<qsizetype>(record.size() - at, 0, width));
    const void *end = field.isEmpty() ? nullptr : std::memchr(field.data(), '\0', std::size_t(field.size()));
    return end == nullptr ? field : field.first(static_cast<const char *>(end) - field.data());
}

QString RecordBytes::text(QByteArrayView record, qsizetype at, qsizetype width)
{
    const QByteArrayView bytes = textBytes(record, at, width);
    if (bytes.isEmpty())
        return {};
    return QUtf8StringView(bytes).isValidUtf8() ? QString::fromUtf8(bytes) : Utf8Text::decode(bytes);
}

void RecordBytes::putText(QByteArray &record, qsizetype at, qsizetype width, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    qsizetype length = 0;
    while (length < bytes.size()) {
        const qsizetype next = length + std::max<qsizetype>(Utf8Text::characterAt(bytes, length), 1);
        if (next > width)
            break;
        length = next;
    }
    std::copy_n(bytes.data(), length, record.data() + at);
}
