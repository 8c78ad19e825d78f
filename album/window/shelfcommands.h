// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/window/albumdesk.h"

#include <QList>
#include <QObject>

#include <functional>

class PhotoDetails;
class QAction;
class QMenu;
class QUrl;
class ShiftPanel;

/// What is done to the pictures that are chosen: said of them, turned, put into albums, taken out and off.
class ShelfCommands final : public QObject
{
    Q_OBJECT
public:
    /// Opens a file in the system's program; false when none takes it.
    using OpenFile = std::function<bool(const QUrl &)>;

    ShelfCommands(const AlbumDesk &desk, PhotoDetails &details, QObject *parent);

    void addCommands(QMenu *edit);
    QAction *captionCommand() const { return m_caption; }
    QAction *leftCommand() const { return m_left; }
    QAction *rightCommand() const { return m_right; }
    QAction *outCommand() const { return m_out; }
    /// The chosen ones are rated with so many stars.
    void rate(int rating);
    void putInto(int album, const QList<int> &records);

    OpenFile openFile; ///< the desktop, unless a test has another

signals:
    void said(const QString &line);

private:
    QAction *add(QMenu *menu, const QString &name, const QString &caption, std::function<void()> run,
                 const QKeySequence &key = {});
    void addRatings(QMenu *edit);
    void addAlbums(QMenu *edit);
    void fillAlbums();
    QString whyPanel() const;
    QString whyNone() const;
    QString whyLocked() const;
    void turn(int quarters);
    void takeOut();
    void remove();
    void startShift();
    void shift(qint64 seconds);
    void leaveOutOfShows();
    void open();

    AlbumDesk m_desk;
    PhotoDetails &m_details;
    QMenu *m_albums = nullptr;
    QAction *m_caption = nullptr;
    QAction *m_left = nullptr;
    QAction *m_right = nullptr;
    QAction *m_out = nullptr;
    QAction *m_shows = nullptr;
    ShiftPanel *m_shift = nullptr;
};
