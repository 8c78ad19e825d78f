// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/slicedwork.h"
#include "shell/program/functions.h"

#include <QObject>

struct Program;

/// What the search over everything found in one function, best first.
struct SearchGroup {
    Function function;
    QList<SearchHit> hits;

    bool operator==(const SearchGroup &) const = default;
};

/// The search over everything: asks each function that has something to find, but none that the password
/// guards.
class HouseholdSearch final : public QObject
{
    Q_OBJECT
public:
    HouseholdSearch(Program &program, QObject *parent);

    /// Reads what is new in the files, a few milliseconds at a time. Cheap where nothing has changed.
    void refresh();
    /// Whether there is more to come; looking whether anything has changed does not count.
    bool isReading() const { return m_reading->isRunning() && hasNews(); }

    /// At most `most` hits of each function that has any, in the order of the cards.
    QList<SearchGroup> find(const QString &text, int most) const;

    /// The titles of the functions that are left out because the password guards them.
    QStringList guarded() const;

signals:
    /// More has been read.
    void progressed();

private:
    SearchSource *source(Function function) const;
    bool readNext() const;
    bool hasNews() const { return m_hasRead || !m_isComplete; }

    Program &m_program;
    SlicedWork *m_reading;
    bool m_hasRead = false;    ///< since it was last refreshed
    bool m_isComplete = false; ///< everything was read once
};
