// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/plannerday.h"

#include <QByteArray>

#include <array>
#include <bitset>

/// Finds the rows of a day record that hold a text, on the bytes as they stand in the file: thirty years are
/// ten million bytes, and decoding them takes many times as long as reading them.
class RowSearch
{
public:
    using Rows = std::bitset<PlannerDay::rowCount>;

    explicit RowSearch(QStringView text);

    /// False for an empty text and for one with a character that no file can hold.
    bool isPossible() const { return !m_text.isEmpty(); }

    /// The rows of `record` whose time or text holds the text, upper and lower case alike; none of a record
    /// that is cut short.
    Rows find(QByteArrayView record) const;

private:
    /// One of the text's letters, in both cases, and where in it it stands.
    struct Sample {
        std::size_t offset;
        uchar letter;
        uchar otherCase;
    };
    static constexpr std::size_t sampleCount = 3;

    bool mayHold(QByteArrayView fields) const;

    QByteArray m_text; ///< folded
    std::array<Sample, sampleCount> m_samples{};
};
