// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/ansitext.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <cstddef>
#include <tuple>

/// One fixed-width text of a record.
template <typename Record>
struct TextField {
    QString Record::*member;
    qsizetype width;

    constexpr qsizetype size() const { return width; }
    void encode(const Record &record, QByteArray &bytes) const
    {
        bytes += AnsiText::field(record.*member, width);
    }
    void decode(QByteArrayView bytes, Record &record) const { record.*member = AnsiText::fieldText(bytes); }
};

template <typename Record>
TextField(QString Record::*, qsizetype) -> TextField<Record>;

/// `Count` texts of one width, one after another.
template <typename Record, std::size_t Count>
struct TextArrayField {
    std::array<QString, Count> Record::*member;
    qsizetype width;

    constexpr qsizetype size() const { return width * qsizetype(Count); }
    void encode(const Record &record, QByteArray &bytes) const
    {
        for (const QString &text : record.*member)
            bytes += AnsiText::field(text, width);
    }
    void decode(QByteArrayView bytes, Record &record) const
    {
        for (std::size_t i = 0; i < Count; ++i)
            (record.*member)[i] = AnsiText::fieldText(bytes.sliced(qsizetype(i) * width, width));
    }
};

template <typename Record, std::size_t Count>
TextArrayField(std::array<QString, Count> Record::*, qsizetype) -> TextArrayField<Record, Count>;

/// Bytes that are always written as blanks and never read.
template <typename Record>
struct BlankField {
    qsizetype width;

    constexpr qsizetype size() const { return width; }
    void encode(const Record &, QByteArray &bytes) const { bytes += QByteArray(width, ' '); }
    void decode(QByteArrayView, Record &) const {}
};

/// The fields of a record in file order. A short record decodes as if zero bytes followed it.
template <typename Record, typename... Fields>
class RecordLayout
{
public:
    constexpr explicit RecordLayout(Fields... fields)
        : m_fields(fields...)
    {}

    /// Bytes that the fields take; checked against the documented length when the layout is compiled.
    constexpr qsizetype size() const
    {
        return std::apply([](const auto &...field) { return (field.size() + ...); }, m_fields);
    }

    QByteArray encode(const Record &record) const
    {
        QByteArray bytes;
        bytes.reserve(size());
        std::apply([&](const auto &...field) { (field.encode(record, bytes), ...); }, m_fields);
        return bytes;
    }

    Record decode(QByteArrayView bytes) const
    {
        QByteArray whole;
        if (bytes.size() < size()) {
            whole = bytes.toByteArray();
            whole.resize(size(), '\0');
            bytes = whole;
        }
        Record record;
        qsizetype at = 0;
        const auto decodeField = [&](const auto &field) {
            field.decode(bytes.sliced(at, field.size()), record);
            at += field.size();
        };
        std::apply([&](const auto &...field) { (decodeField(field), ...); }, m_fields);
        return record;
    }

private:
    std::tuple<Fields...> m_fields;
};

template <typename Record, typename... Fields>
constexpr auto recordLayout(Fields... fields)
{
    return RecordLayout<Record, Fields...>(fields...);
}
