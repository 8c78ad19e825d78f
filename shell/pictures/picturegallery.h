// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pictures/pictureloader.h"
#include "shell/pictures/storedpicture.h"

#include <QListView>

class PictureGalleryModel;

/// A page of the family's pictures with their names, five beside one another. Pictures are read for the page
/// shown only, while the window goes on; one that is not there keeps its place.
class PictureGallery final : public QListView
{
    Q_OBJECT
public:
    static constexpr int columns = 5;

    /// Room for `perPage` pictures, a multiple of the columns.
    PictureGallery(const DataFolder &folder, int perPage, QWidget *parent = nullptr);
    ~PictureGallery() override;

    void setPictures(std::vector<NamedPicture> pictures);
    /// Pictures that are still being read.
    int waitingCount() const;

signals:
    /// A picture was read, or could not be.
    void progressed();
    /// The person wants to see one larger.
    void opened(const QString &stored, const QString &name);
    /// The page before or behind this one is wanted.
    void stepRequested(int step);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void fitTiles();
    void open(const QModelIndex &index);

    int m_rows;
    PictureLoader m_loader;
    PictureGalleryModel *m_model;
    int m_waiting = 0;
};
