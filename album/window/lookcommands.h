// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/window/albumdesk.h"
#include "album/window/shown.h"

#include <QObject>

#include <vector>

class AlbumCommands;
class AlbumPane;
class LargeView;
class QAction;
class QMenu;

/// What is looked at and how: the views, large or in the grid, in which order and size.
class LookCommands final : public QObject
{
    Q_OBJECT
public:
    LookCommands(const AlbumDesk &desk, LargeView &large, QObject *parent);

    void addCommands(QMenu *view, AlbumCommands &albums, AlbumPane &pane);
    QAction *largeCommand() const { return m_showLarge; }
    QAction *zoomCommand() const { return m_zoom; }
    QAction *previousCommand() const { return m_previous; }
    QAction *nextCommand() const { return m_next; }
    QAction *backCommand() const { return m_back; }
    /// Shows the current picture large.
    void openLarge();
    /// Back to the grid, at the picture that was seen last.
    void closeLarge();
    /// What the marks of the menus say.
    void refresh();

signals:
    void viewWanted(const PhotosShown &shown);

private:
    void addLarge(QMenu *view);
    void setSide(int by);
    QString whyNotLarge() const;

    AlbumDesk m_desk;
    LargeView &m_large;
    std::vector<std::pair<ShelfView::Kind, QAction *>> m_views;
    QAction *m_showLarge = nullptr;
    QAction *m_zoom = nullptr;
    QAction *m_previous = nullptr;
    QAction *m_next = nullptr;
    QAction *m_back = nullptr;
};
