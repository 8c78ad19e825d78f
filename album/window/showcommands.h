// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/window/albumdesk.h"

#include <QObject>

class QAction;
class QMenu;
class SlidePanel;

/// Shows what is chosen, or all that is shown, one after the other on the whole screen.
class ShowCommands final : public QObject
{
    Q_OBJECT
public:
    ShowCommands(const AlbumDesk &desk, QString thumbnails, QObject *parent);

    void addCommands(QMenu *pictures);

signals:
    /// The show is over; the picture that was seen last.
    void ended(int record);

private:
    SlidePanel &panel();
    void open();
    void startNow();
    void start();

    AlbumDesk m_desk;
    QString m_thumbnails;
    SlidePanel *m_panel = nullptr;
};
