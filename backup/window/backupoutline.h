// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/backupoutlook.h"
#include "backup/model/holdings.h"
#include "backup/window/holdingsmodel.h"

#include <QObject>

#include <optional>
#include <vector>

class ThreadedStep;
struct Program;

/// What a backup would take along, and where it would go: found out on a thread of its own.
class BackupOutline final : public QObject
{
    Q_OBJECT
public:
    explicit BackupOutline(const Program &program, QObject *parent);
    ~BackupOutline() override;

    /// Looks at what the household has now.
    void look();
    const Holdings &holdings() const { return m_holdings; }
    bool isKnown() const { return m_isKnown; }
    /// A row for each function and group that has something.
    std::vector<HoldingsModel::Row> rows() const;

    /// Finds out what copying these functions to `folder` would do; an empty folder: nothing is known.
    void plan(const QStringList &keys, const QString &folder, std::optional<DiskRoom> room,
              BackupOutlook::Form form);
    /// What came of that; none while it is not known.
    const std::optional<BackupOutlook> &outlook() const { return m_outlook; }

signals:
    void known();
    void planned();

private:
    const Program &m_program;
    ThreadedStep *m_step;
    Holdings m_holdings;
    std::optional<BackupOutlook> m_outlook;
    bool m_isKnown = false;
    int m_wanted = 0; ///< the plan that was asked for last
};
