// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photoalbum.h"
#include "album/window/albumdesk.h"

#include <QObject>

#include <functional>
#include <vector>

class AlbumPane;
class QAction;
class QMenu;

/// What is done to whole albums: made, renamed, deleted, put in order, and where what is said of their
/// pictures is written to.
class AlbumCommands final : public QObject
{
    Q_OBJECT
public:
    AlbumCommands(const AlbumDesk &desk, AlbumPane &pane, QObject *parent);

    void addCommands(QMenu *albums);
    /// The order of the pictures, for the menu "View".
    void addOrders(QMenu *view);
    /// "New Album", for buttons.
    QAction *createCommand() const { return m_create; }
    void rename(int album, const QString &name);
    void setOrder(PhotoAlbum::Sorting sorting);
    /// What the marks of the menus say.
    void refresh();

signals:
    void said(const QString &line);
    void albumWanted(int album);
    /// What is said of an album's pictures is to be written elsewhere from now on.
    void intoChanged();

private:
    QString whyNoAlbum() const;
    void addInto(QMenu *albums);
    void addFolder(QMenu *albums);
    void create();
    void change(const QString &title, const std::function<void(PhotoAlbum &)> &edit);
    void setCover();
    void watch();

    AlbumDesk m_desk;
    AlbumPane &m_pane;
    QAction *m_create = nullptr;
    std::vector<QAction *> m_into;
    std::vector<QAction *> m_orders;
};
