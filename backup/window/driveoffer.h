// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/drives.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <optional>

class QTimer;
class ThreadedStep;
struct Program;

/// Offers a backup in the status bar when the drive of the last one is plugged in while another one is due.
/// A drive that is not there is no error, and nothing is said of it.
class DriveOffer final : public QObject
{
    Q_OBJECT
public:
    /// `drives` is asked for those that are plugged in, on another thread, once the offer has begun.
    DriveOffer(Program &program, std::function<QList<Drive>()> drives, QObject *parent = nullptr);
    ~DriveOffer() override;

    /// What is plugged in now counts as just plugged in.
    void begin();
    /// Looks whether one has come.
    void look();

private:
    void take(const QStringList &names);

    Program &m_program;
    std::function<QList<Drive>()> m_drives;
    ThreadedStep *m_step;
    QTimer *m_timer;
    QStringList m_known; ///< the drives that were plugged in at the last look
};
