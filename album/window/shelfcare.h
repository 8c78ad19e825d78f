// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/shelflook.h"
#include "album/model/takein.h"
#include "album/model/textskeeper.h"
#include "album/window/albumdesk.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <deque>

class ActivityBar;

/// Keeps the album in step with the folders of the household while the window is open: takes pictures in,
/// also those that appear in the folders of albums, looks after the files of all others, and writes into them
/// what albums want written there.
class ShelfCare final : public QObject
{
    Q_OBJECT
public:
    ShelfCare(const AlbumDesk &desk, ActivityBar &activity, QObject *parent);

    /// Once the window stands: looks after all files, and into the folders of the albums.
    void start();
    /// Takes in what lies at these paths, into an album unless that is 0.
    void takeIn(const QStringList &paths, int album, TakeIn::Copy copy);
    bool isTakingIn() const { return m_takeIn.isRunning(); }
    ShelfLook &look() { return m_look; }
    /// Writes into files what an album wants there from now on.
    void catchUp();
    void stop();

signals:
    /// All files were looked at for the first time.
    void lookedFirst();
    void said(const QString &line);
    /// Something has begun or ended.
    void changed();
    /// These were taken in for the person who asked for it. What comes by itself draws nobody away.
    void taken(const QList<int> &records);

private:
    struct Wish {
        TakeIn::Wish wish;
        bool isAsked = false; ///< by the person, who is told the outcome in any case
    };

    void startNext();
    void finish(const TakeIn::Result &result);
    void watch();
    void watchInside();
    void readFolders();

    AlbumDesk m_desk;
    ActivityBar &m_activity;
    TakeIn m_takeIn;
    ShelfLook m_look;
    TextsKeeper m_keeper;
    QFileSystemWatcher m_watcher;
    QTimer m_settled; ///< nothing more happened in a folder for a while
    std::deque<Wish> m_wishes;
    Wish m_current;
    QDateTime m_since; ///< until when the album was at work the last time
    bool m_hasBegun = false;
    bool m_hasLooked = false;
    QStringList m_fresh;   ///< folders that were chosen just now, of which all is taken
    QStringList m_folders; ///< that are watched for albums
};
