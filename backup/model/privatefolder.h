// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLockFile>
#include <QString>
#include <QTemporaryDir>

#include <memory>

/// A folder for copies that lie open, which this user alone can look into. It goes with the object; what a
/// program left that was killed goes at the next start.
class PrivateFolder
{
public:
    PrivateFolder() = default;
    ~PrivateFolder();
    Q_DISABLE_COPY_MOVE(PrivateFolder)

    /// What lies in it elsewhere.
    enum class Content {
        Open,  ///< lies open there, too
        Sealed ///< is sealed: kept in memory, where the system has a place for that with room enough
    };

    /// Makes it, for `bytes` of files. False where there is no place with room for them.
    [[nodiscard]] bool make(Content content, qint64 bytes);
    /// Empty before it is made.
    QString path() const;

    /// Removes those whose programs are not there any more.
    static void removeLeft();

private:
    bool makeIn(const QString &place);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QLockFile> m_lock;
};
