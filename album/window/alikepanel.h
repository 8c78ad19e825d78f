// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/alike.h"
#include "album/window/walkpanel.h"
#include "shell/controls/rowsmodel.h"
#include "shell/pictures/picturequeue.h"

class AlikeTile;
class QLabel;
class QTableView;
struct Program;

/// "Alike": pictures that are there more than once, those of a group side by side. What is ticked goes out of
/// the album that is shown or off the list, or into the system's trash.
class AlikePanel final : public WalkPanel
{
    Q_OBJECT
public:
    AlikePanel(const Program &program, PhotoShelf &shelf, const QString &thumbnails, QWidget *window,
               QWidget *parent = nullptr);

    /// Looks through these pictures; what goes out goes out of `album`, or off the list where that is 0.
    void start(const QList<int> &photos, int album);

signals:
    void said(const QString &line);

protected:
    void stopWalk() override;

private:
    QWidget *makeWork();
    void finish(bool wasStopped);
    void showGroup();
    void bring(const QList<int> &records);
    void follow();
    void takeOut();
    void moveToTrash();
    void drop(const QList<int> &records);
    QList<int> shownRecords() const;
    QList<int> going() const;

    const Program &m_program;
    PhotoShelf &m_shelf;
    QWidget *m_window;
    Thumbnails m_thumbnails;
    Alike m_alike;
    PictureQueue m_queue;
    int m_album = 0;
    QLabel *m_what;
    RowsModel<AlikePictures> *m_model;
    QTableView *m_view;
    std::vector<AlikeTile *> m_tiles;
    QPushButton *m_out;
    QPushButton *m_trash;
};
