// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <atomic>

/// The pictures of a restore that go to places outside the household's folder, one after the other.
class OutsideFiles
{
public:
    OutsideFiles(const DataFolder &folder, const std::atomic<bool> &isStopped);

    /// Whether the file can take its name by a changeset of the folder: it lies in it, and on its disk.
    bool isInside(const QString &path);
    /// Copies the file at `laid` to `path`, where there is none.
    [[nodiscard]] bool put(const QString &laid, const QString &path);
    /// They stay, whatever comes.
    void keep() { m_put.clear(); }
    /// Removes what was put there.
    void takeBack();

private:
    QString m_start; ///< of what lies in the folder
    QString m_disk;
    QHash<QString, bool> m_known; ///< by folders
    QStringList m_put;
    const std::atomic<bool> &m_isStopped;
};
