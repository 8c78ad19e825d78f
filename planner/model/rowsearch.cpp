// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/rowsearch.h"

#include "storage/bytecase.h"

namespace {

constexpr qsizetype timesLength = qsizetype(PlannerDay::rowCount) * PlannerDay::timeWidth;
constexpr qsizetype fieldsLength = timesLength + qsizetype(PlannerDay::rowCount) * PlannerDay::textWidth;

} // namespace

RowSearch::RowSearch(QStringView text)
    : m_text(ByteCase::folded(text).value_or(QByteArray()))
{
    if (m_text.isEmpty())
        return;
    // First, middle and last: neighbours would all stand in the same common syllable.
    for (std::size_t i = 0; i < sampleCount; ++i) {
        const std::size_t offset = i * (std::size_t(m_text.size()) - 1) / (sampleCount - 1);
        const char letter = m_text[qsizetype(offset)];
        m_samples[i] = {offset, uchar(letter), uchar(ByteCase::otherCase(letter))};
    }
}

/// Whether the sampled letters stand anywhere at their distances. Without a branch in the loop, the compiler
/// looks at sixteen places at once; this decides how long a search takes.
bool RowSearch::mayHold(QByteArrayView fields) const
{
    const auto *bytes = reinterpret_cast<const uchar *>(fields.data());
    const auto [first, middle, last] = m_samples;
    const auto is = [](uchar byte, const Sample &sample) {
        return uchar(uchar(byte == sample.letter) | uchar(byte == sample.otherCase));
    };
    uchar found = 0;
    for (qsizetype i = 0, end = fields.size() - m_text.size() + 1; i < end; ++i) {
        found |= is(bytes[i], first) & is(bytes[std::size_t(i) + middle.offset], middle) &
                 is(bytes[std::size_t(i) + last.offset], last);
    }
    return found != 0;
}

RowSearch::Rows RowSearch::find(QByteArrayView record) const
{
    Rows rows;
    if (m_text.isEmpty() || record.size() < fieldsLength || !mayHold(record.first(fieldsLength)))
        return rows;
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        const auto at = qsizetype(row);
        const QByteArrayView time = record.sliced(at * PlannerDay::timeWidth, PlannerDay::timeWidth);
        const QByteArrayView words =
            record.sliced(timesLength + at * PlannerDay::textWidth, PlannerDay::textWidth);
        rows.set(row, ByteCase::contains(time, m_text) || ByteCase::contains(words, m_text));
    }
    return rows;
}
