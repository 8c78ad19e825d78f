// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keeperpayload.h"

#include "keeper/model/keeperrecord.h"

#include <QStringConverter>
#include <QtEndian>

#include <algorithm>
#include <limits>

namespace {

constexpr qsizetype headLength = 4; ///< number, flags, length
constexpr uchar secretFlag = 1;
constexpr qsizetype longestText = std::numeric_limits<quint16>::max();
constexpr qsizetype passwordChangedLength = headLength + 20; // "2026-11-23T02:15:00Z"

bool isOwn(const KeeperText &field)
{
    return field.id == KeeperField::Own;
}

/// Bytes of the text in the file, counted without a copy of them.
qsizetype lengthOf(const QString &text)
{
    QString composed = text.normalized(QString::NormalizationForm_C);
    qsizetype length = 0;
    for (qsizetype i = 0; i < composed.size(); ++i) {
        const QChar unit = composed[i];
        const bool isPair =
            unit.isHighSurrogate() && i + 1 < composed.size() && composed[i + 1].isLowSurrogate();
        i += isPair ? 1 : 0;
        length += isPair ? 4 : unit < u'\u0080' ? 1 : unit < u'\u0800' ? 2 : 3;
    }
    SecretBytes::wipe(composed); // which spares the entry's own letters
    return length;
}

/// Puts fields into a buffer that is large enough.
class Writer
{
public:
    explicit Writer(SecretBytes &bytes)
        : m_bytes(bytes)
    {}

    void add(quint8 id, bool isSecret, const QString &name, const QString &text)
    {
        char *const head = m_bytes.data() + m_at;
        head[0] = char(id);
        head[1] = char(isSecret ? secretFlag : 0);
        m_at += headLength;
        if (id == KeeperField::Own) {
            put(name);
            m_bytes.data()[m_at++] = '\0';
        }
        put(text);
        qToLittleEndian<quint16>(quint16(m_bytes.data() + m_at - head - headLength), head + 2);
    }

    qsizetype size() const { return m_at; }

private:
    /// Straight into the memory that is wiped.
    void put(const QString &text)
    {
        QString composed = text.normalized(QString::NormalizationForm_C);
        QStringEncoder encoder(QStringEncoder::Utf8);
        m_at = encoder.appendToBuffer(m_bytes.data() + m_at, composed) - m_bytes.data();
        SecretBytes::wipe(composed);
    }

    SecretBytes &m_bytes;
    qsizetype m_at = 0;
};

} // namespace

void KeeperPayload::forEach(QByteArrayView bytes, const std::function<void(const Field &)> &visit)
{
    while (bytes.size() >= headLength) {
        const qsizetype length = qFromLittleEndian<quint16>(bytes.data() + 2);
        if (bytes.size() < headLength + length)
            return;
        visit({quint8(bytes[0]), (uchar(bytes[1]) & secretFlag) != 0, bytes.sliced(headLength, length)});
        bytes = bytes.sliced(headLength + length);
    }
}

KeeperEntry KeeperPayload::decoded(QByteArrayView bytes)
{
    KeeperEntry entry;
    forEach(bytes, [&entry](const Field &field) {
        if (field.id == passwordChangedField)
            return;
        KeeperText text{field.id, field.isSecret, {}, {}};
        QByteArrayView rest = field.text;
        if (const qsizetype zero = rest.indexOf('\0'); isOwn(text) && zero >= 0) {
            text.name = QString::fromUtf8(rest.first(zero));
            rest = rest.sliced(zero + 1);
        }
        text.text = QString::fromUtf8(rest);
        entry.fields.append(text);
    });
    return entry;
}

SecretBytes KeeperPayload::encoded(const KeeperEntry &entry, const QDateTime &passwordChanged)
{
    const qsizetype size = sizeOf(entry);
    if (size > KeeperRecord::longestPayload)
        return {};
    SecretBytes bytes(size - (passwordChanged.isValid() ? 0 : passwordChangedLength));
    Writer writer(bytes);
    for (const KeeperText &field : entry.fields)
        writer.add(field.id, field.isSecret, field.name, field.text);
    if (passwordChanged.isValid())
        writer.add(passwordChangedField, false, {}, passwordChanged.toUTC().toString(Qt::ISODate));
    return writer.size() == bytes.size() ? std::move(bytes)
                                         : SecretBytes::copyOf(bytes.view().first(writer.size()));
}

qsizetype KeeperPayload::sizeOf(const KeeperEntry &entry)
{
    qsizetype size = passwordChangedLength;
    for (const KeeperText &field : entry.fields) {
        const qsizetype length = lengthOf(field.text) + (isOwn(field) ? lengthOf(field.name) + 1 : 0);
        if (length > longestText)
            return KeeperRecord::longestPayload + 1;
        size += headLength + length;
    }
    return size;
}

bool KeeperPayload::fits(const KeeperEntry &entry)
{
    return sizeOf(entry) <= KeeperRecord::longestPayload;
}
