// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalseal.h"

#include <QList>
#include <QStringList>

/// The walk over the years that seals them, opens the seal, or renews their copies of the key record: a year
/// a step. What it leaves when it is cut short can be read, sealed and plain years side by side, and a new
/// walk goes on from there.
class SealingWalk
{
public:
    /// `seal` is open, and outlives this.
    explicit SealingWalk(JournalSeal &seal);

    /// How many years there are to walk over; 0 where nothing waits.
    int count() const { return int(m_years.size()); }
    int done() const { return m_done; }

    /// Does one more year; behind the last one made plain, the key file goes. False when nothing is left.
    bool step();

    /// Years that the disk refused. They are as they were.
    const QList<int> &refused() const { return m_refused; }
    /// Years that stay sealed since they hold records that do not open, which would be lost outside.
    const QList<int> &heldBack() const { return m_heldBack; }
    /// Whether every year is what it should be, and the key file too.
    bool isComplete() const;

    /// The files of the journal that sealing leaves readable: what this version cannot read (of another
    /// program, of a later version, not text), and what was set aside.
    static QStringList leftUnsealed(const DataFolder &folder);
    /// Those that are sealed.
    static QStringList leftSealed(const DataFolder &folder);

private:
    enum class Work { None, Seal, Open, Renew };
    Work workOf(QByteArrayView bytes) const;
    bool walk(int year);
    bool seal(int year, const QByteArray &bytes);
    bool open(int year, const QByteArray &bytes);
    bool renew(int year, const QByteArray &bytes);
    bool replace(int year, const QByteArray &content, const QByteArray &plain, const QByteArray &former);

    JournalSeal &m_seal;
    QList<int> m_years;
    int m_done = 0;
    QList<int> m_refused;
    QList<int> m_heldBack;
    bool m_isSealGone = false;
};
