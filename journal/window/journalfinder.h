// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalsearch.h"

#include <QObject>

class SlicedWork;

/// Looks through all years while one types: some milliseconds at a time, the years beside the day that is
/// shown first.
class JournalFinder final : public QObject
{
    Q_OBJECT
public:
    JournalFinder(Journal &journal, QObject *parent);

    /// Begins anew; an empty question ends it.
    void ask(const QString &question, int nearestYear);
    bool isLooking() const;
    JournalSearch &search() { return m_search; }
    /// Nothing of any entry is left.
    void forget();

signals:
    /// There may be more hits.
    void found();

private:
    JournalSearch m_search;
    SlicedWork *m_work;
};
