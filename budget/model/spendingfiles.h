// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/spending.h"
#include "storage/datafolder.h"

class ChangeSet;

/// What was spent in each year, "Quillery.spent-2026": UTF-8, a line for each thing, its parts separated by
/// tabs. The first line names the file and its version.
class SpendingFiles
{
public:
    enum class State {
        Missing,
        Whole,
        Newer,     ///< of a later version: shown, never written
        OutOfReach ///< there, but it cannot be read; never written
    };

    struct Found {
        Spending spending;
        State state = State::Missing;

        bool mayBeWritten() const { return state == State::Missing || state == State::Whole; }
    };

    explicit SpendingFiles(const DataFolder &folder)
        : m_folder(folder)
    {}

    static QString fileName(int year);

    /// What was spent in `year`. A year without a file begins with the due days and the rules of the year
    /// before it.
    Found read(int year) const;

    /// Adds to `change` that the file of `year` holds `spending`.
    void addTo(ChangeSet &change, int year, const Spending &spending) const;

    /// The years that have a file, in order.
    QList<int> years() const;

    /// What the bytes of the file of `year` say; lines that are damaged or unknown are kept as they are.
    static Found decode(const QByteArray &bytes, int year);
    static QByteArray encode(const Spending &spending);

private:
    const DataFolder &m_folder;
};
