// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalentry.h"
#include "shell/core/programstate.h"
#include "storage/datafolder.h"

#include <QByteArray>

#include <vector>

/// Entries as one file for browsers, with its pictures in a folder beside it.
class JournalHtml
{
public:
    /// `title` stands on top. The pictures are looked for in `folder`; a missing one leaves a frame with its
    /// name.
    JournalHtml(const QList<JournalEntry> &entries, const QString &title, DateStyle style,
                const DataFolder &folder);

    /// What is written to the file at `path`, which says where the pictures stand.
    QByteArray file(const QString &path) const;

    /// Copies the pictures into the folder beside the file at `path`. The names of those that did not get
    /// there.
    [[nodiscard]] QStringList copyPictures(const QString &path) const;

    int pictureCount() const { return int(m_pictures.size()); }

private:
    struct Picture {
        QString source; ///< a file
        QString name;   ///< in the folder, once for each source
    };

    QString nameFor(const QString &source, QDate date);
    void addEntry(const JournalEntry &entry, DateStyle style);
    void addText(const JournalEntry &entry);
    void addPicture(const JournalPicture &picture, QDate date);
    static QString folderOf(const QString &path);

    const DataFolder &m_folder;
    QString m_title;
    QString m_body; ///< a control character stands for the folder of the pictures
    std::vector<Picture> m_pictures;
    QStringList m_missing; ///< names of those that are not there
};
