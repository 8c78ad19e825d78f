// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"

#include <QDateTime>
#include <QString>
#include <QStringView>

/// The wrong answers to a question for a password since the last right one.
struct WrongAnswers {
    int count = 0;
    QDateTime first; ///< invalid while there is none
    QDateTime last;

    /// One more, given at `time`.
    void add(const QDateTime &time);

    /// "3;2026-11-20T21:04:31;2026-11-21T08:00:05", as a file keeps it; empty while there is none.
    QString text() const;
    /// What `text()` gave; none for anything else.
    static WrongAnswers parsed(QStringView text);

    /// "3 wrong answers since Friday, 20 November, 21:04", or "... since Friday, November 20, 9:04 PM" under
    /// `Usa`; with the year when that is not `today`'s. Empty while there is none.
    QString words(DateStyle style, QDate today) const;

    bool operator==(const WrongAnswers &) const = default;
};
