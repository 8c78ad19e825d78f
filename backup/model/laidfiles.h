// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QDateTime>
#include <QFile>
#include <QSet>
#include <QString>

#include <memory>

/// Files that are laid down in the household's folder, to take their names by one changeset when all of them
/// are there. One is written at a time, each under its number.
class LaidFiles
{
public:
    explicit LaidFiles(const DataFolder &folder);
    ~LaidFiles() { drop(); }
    Q_DISABLE_COPY_MOVE(LaidFiles)

    /// Makes the folder that they lie in, empty.
    [[nodiscard]] bool begin();

    /// Goes on with file `number`, of which `offset` bytes are there.
    [[nodiscard]] bool open(int number, qint64 offset);
    [[nodiscard]] bool write(QByteArrayView bytes);
    /// What is to be written of it now is there; it gets its time.
    void close(const QDateTime &changed);
    /// Nothing more comes of it now.
    void leave() { m_file.reset(); }
    /// Puts all that was closed on the disk.
    [[nodiscard]] bool flush();

    static QString name(int number) { return QString::number(number); }
    QString path(int number) const { return m_path + u'/' + name(number); }
    /// Takes all of them away that were not handed over.
    void drop();
    /// They belong to a changeset now.
    void handOver() { m_isHandedOver = true; }

private:
    QString m_path;
    std::unique_ptr<QFile> m_file;
    qint64 m_offset = 0;
    qint64 m_begun = 0;    ///< from there on the disk was not told yet to take it
    QSet<QString> m_paths; ///< of those that were closed
    bool m_isHandedOver = false;
};
