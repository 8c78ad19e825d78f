// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/shelflook.h"
#include "shell/controls/rowsmodel.h"
#include "shell/controls/taskpanel.h"

class QLabel;
class QTableView;
struct Program;

/// "Both Changed": what the album says of a picture and what its file says by now, side by side. Which of
/// them stays is the person's choice; until then both stay as they are.
class ConflictPanel final : public TaskPanel
{
    Q_OBJECT
public:
    ConflictPanel(const Program &program, const PhotoShelf &shelf, ShelfLook &look,
                  QWidget *parent = nullptr);

    /// Shows the first of those that wait.
    void start();

private:
    struct Row {
        QString what;
        QString inAlbum;
        QString inPicture;
    };

    void settle(ShelfLook::Keep keep);
    std::vector<Row> rowsOf(const TextsConflict &conflict) const;

    const Program &m_program;
    const PhotoShelf &m_shelf;
    ShelfLook &m_look;
    QLabel *m_what;
    RowsModel<Row> *m_model;
    QTableView *m_view;
};
