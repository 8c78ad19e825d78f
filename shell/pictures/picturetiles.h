// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pictures/picturequeue.h"

#include <QAbstractListModel>

/// The pictures of a `PictureGrid`: what each of them is read from, and what stands under it.
class PictureTiles : public QAbstractListModel
{
    Q_OBJECT
public:
    using QAbstractListModel::QAbstractListModel;

    /// What stands under a picture.
    struct Tile {
        QString name;
        QString words; ///< in quiet letters
    };

    /// `row` must be one of the model's. No id is 0.
    virtual WantedPicture picture(int row) const = 0;
    virtual Tile tile(int row) const = 0;
};
