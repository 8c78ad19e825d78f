#include "planner/model/rowsearch.h"

#include <algorithm>

namespace {

constexpr qsizetype timesLength = qsizetype(PlannerDay::rowCount) * PlannerDay::timeWidth;
constexpr qsizetype fieldsLength = timesLength + qsizetype(PlannerDay::rowCount) * PlannerDay::textWidth;

/// Letters of the code page whose small form it lacks stay themselves.
std::array<uchar, 256> caseTable()
{
    std::array<uchar, 256> table{};
    for (std::size_t byte = 0; byte < table.size(); ++byte) {
        const char one = char(byte);
        const QString small = AnsiText::decode({&one, 1}).toCaseFolded();
        const bool isHeld = small.size() == 1 && AnsiText::isHoldable(small);
        table[byte] = isHeld ? uchar(AnsiText::encode(small).front()) : uchar(byte);
    }
    return table;
}

} // namespace

RowSearch::RowSearch(QStringView text)
    : m_folded(caseTable())
    , m_text(AnsiText::isHoldable(text) ? AnsiText::encode(text) : QByteArray())
{
    for (char &byte : m_text)
        byte = char(m_folded[uchar(byte)]);
    if (m_text.isEmpty())
        return;
    // First, middle and last: neighbours would all stand in the same common syllable.
    for (std::size_t i = 0; i < sampleCount; ++i) {
        const std::size_t offset = i * (std::size_t(m_text.size()) - 1) / (sampleCount - 1);
        const uchar small = uchar(m_text[qsizetype(offset)]);
        uchar large = small;
        for (std::size_t byte = 0; byte < m_folded.size(); ++byte)
            large = m_folded[byte] == small && byte != small ? uchar(byte) : large;
        m_samples[i] = {offset, small, large};
    }
}

/// Whether the sampled letters stand anywhere at their distances. Without a branch in the loop, the compiler
/// looks at sixteen places at once; this decides how long a search takes.
bool RowSearch::mayHold(QByteArrayView fields) const
{
    const auto *bytes = reinterpret_cast<const uchar *>(fields.data());
    const auto [first, middle, last] = m_samples;
    const auto is = [](uchar byte, const Sample &sample) {
        return uchar(uchar(byte == sample.small) | uchar(byte == sample.large));
    };
    uchar found = 0;
    for (qsizetype i = 0, end = fields.size() - m_text.size() + 1; i < end; ++i) {
        found |= is(bytes[i], first) & is(bytes[std::size_t(i) + middle.offset], middle) &
                 is(bytes[std::size_t(i) + last.offset], last);
    }
    return found != 0;
}

bool RowSearch::holds(QByteArrayView field) const
{
    const auto isSame = [this](char byte, char wanted) { return m_folded[uchar(byte)] == uchar(wanted); };
    return std::search(field.begin(), field.end(), m_text.begin(), m_text.end(), isSame) != field.end();
}

RowSearch::Rows RowSearch::find(QByteArrayView record) const
{
    Rows rows;
    if (m_text.isEmpty() || record.size() < fieldsLength || !mayHold(record.first(fieldsLength)))
        return rows;
    for (std::size_t row = 0; row < PlannerDay::rowCount; ++row) {
        const auto at = qsizetype(row);
        rows.set(row,
                 holds(record.sliced(at * PlannerDay::timeWidth, PlannerDay::timeWidth)) ||
                     holds(record.sliced(timesLength + at * PlannerDay::textWidth, PlannerDay::textWidth)));
    }
    return rows;
}
