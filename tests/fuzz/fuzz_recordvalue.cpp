// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzztarget.h"
#include "storage/recordlayout.h"
#include "storage/recordvalue.h"

#include <algorithm>

namespace {

constexpr qsizetype recordLength = 60;

struct Row {
    std::array<QString, 3> texts;
    QString mark;

    bool operator==(const Row &) const = default;
};

constexpr auto rowLayout =
    recordLayout<Row>(TextArrayField{&Row::texts, 5}, BlankField<Row>{2}, TextField{&Row::mark, 10});

void tryTexts(QByteArrayView record)
{
    const QString text = RecordValue::decodeText(record);
    const auto again = RecordValue::encodeText(text, record.size());
    require(text.isEmpty() || (again && RecordValue::decodeText(*again) == text),
            "a counted text comes back");

    const QString tagged = RecordValue::decodeTagged(record);
    const auto taggedAgain = RecordValue::encodeTaggedText(tagged, recordLength + 2);
    require(tagged.isEmpty() || (taggedAgain && RecordValue::decodeTagged(*taggedAgain) == tagged),
            "a tagged value comes back");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArrayView record =
        asBytes(data, size).first(std::min<qsizetype>(qsizetype(size), recordLength));
    tryTexts(record);
    require(record.size() < 2 ||
                RecordValue::encodeNumber(RecordValue::decodeNumber(record)) == record.first(2),
            "a number comes back");

    const Row row = rowLayout.decode(record);
    const QByteArray bytes = rowLayout.encode(row);
    require(bytes.size() == rowLayout.size(), "a record has the length of its layout");
    require(rowLayout.decode(bytes) == row, "a record comes back");
    return 0;
}
