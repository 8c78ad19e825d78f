// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/window/albumdesk.h"

#include <QObject>

class QAction;
class QMenu;
class ConflictPanel;
class ShelfCare;

/// How pictures come into the album: folders that are chosen, files that are dropped; and what to do where
/// other programs have changed them meanwhile.
class FolderCommands final : public QObject
{
    Q_OBJECT
public:
    FolderCommands(const AlbumDesk &desk, ShelfCare &care, QObject *parent);

    void addCommands(QMenu *pictures);
    /// Those that stand at the end of the menu.
    void addFurther(QMenu *pictures);
    /// "Add Folder...", for buttons.
    QAction *addCommand() const { return m_add; }
    /// Takes in what was dropped, into the album that is shown.
    void take(const QStringList &paths);
    /// Shows what was changed in the album and in the picture, both.
    void openConflicts();

private:
    QString usualFolder() const;
    void choose();

    AlbumDesk m_desk;
    ShelfCare &m_care;
    QAction *m_add = nullptr;
    QAction *m_copy = nullptr;
    ConflictPanel *m_conflicts = nullptr;
};
