// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>

/// Where the program learns the time from; a test hands in a clock of its own.
class Clock
{
public:
    virtual ~Clock() = default;
    virtual QDateTime now() const = 0;
    QDate today() const { return now().date(); }
};

/// The time of the computer.
class SystemClock final : public Clock
{
public:
    QDateTime now() const override { return QDateTime::currentDateTime(); }
};
