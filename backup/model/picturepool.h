// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

/// The pictures of a drive, each once, whatever it is called: "Garden party <32 digits of its hash>.jpg".
class PicturePool
{
public:
    /// Those that are in the folder at `path` now.
    explicit PicturePool(const QString &path);

    const QString &folder() const { return m_folder; }
    /// Where the picture of that hash is; empty when it is not there, or is not `size` bytes long.
    QString find(const QByteArray &hash, qint64 size) const;
    bool hasSize(qint64 size) const { return m_sizes.contains(size); }

    /// Where what was set aside under that hash is; empty when there is none.
    QString damaged(const QByteArray &hash) const;

    /// Where one called `name` is to be put. In place of one that was set aside, it gets that one's name,
    /// which older sets know.
    QString pathFor(const QString &name, const QByteArray &hash) const;
    /// It is there now.
    void add(const QString &path, const QByteArray &hash, qint64 size);

    /// What the picture at `path` holds has that hash: where its name says another, it is damaged and set
    /// aside, so that the next backup puts it there anew.
    static void look(const QString &path, const QByteArray &hash);

    /// The paths of all that have none of these hashes.
    QStringList without(const QSet<QByteArray> &hashes) const;

private:
    struct Picture {
        QString path;
        qint64 size = 0;
    };
    void insert(const QByteArray &key, const QString &path, qint64 size);

    QString m_folder;
    QHash<QByteArray, Picture> m_pictures; ///< by the digits in their names
    QHash<QByteArray, QString> m_damaged;  ///< the paths of what was set aside
    QSet<qint64> m_sizes;
};
