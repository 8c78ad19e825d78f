// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/shelflook.h"
#include "album/window/albumdesk.h"
#include "shell/controls/rowsmodel.h"
#include "shell/controls/taskpanel.h"

class PictureFrame;
class QCheckBox;
class QLabel;
class QTableView;

/// "Both Changed": what the album says of a picture and what its file says by now, side by side. Which of
/// them stays is the person's choice; until then both stay as they are.
class ConflictPanel final : public TaskPanel
{
    Q_OBJECT
public:
    ConflictPanel(const AlbumDesk &desk, ShelfLook &look, QWidget *parent = nullptr);

    /// Shows the first of those that wait.
    void start();

private:
    struct Row {
        QString what;
        QString inAlbum;
        QString inPicture;
    };

    QWidget *makeWork();
    /// What is shown may be another one by now, or wait no longer.
    void follow();
    void showPicture(const Photo &photo);
    void settle(ShelfLook::Keep keep);
    std::vector<Row> rowsOf(const Photo &photo, const FoundTexts &inPicture) const;

    AlbumDesk m_desk;
    ShelfLook &m_look;
    int m_record = 0;
    QLabel *m_what;
    PictureFrame *m_frame;
    RowsModel<Row> *m_model;
    QTableView *m_view;
    QCheckBox *m_others;
};
