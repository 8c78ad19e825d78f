// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "weight/window/photosview.h"

#include <QObject>

class PersonViews;
class PicturePanel;
class QMenu;
class ThenAndNow;

/// Chooses the photos of the open person in the picture panel, and shows both over the whole work.
class PersonPictures final : public QObject
{
    Q_OBJECT
public:
    PersonPictures(const WeightDesk &desk, PersonViews &views, QObject *parent);

    /// "Then and Now".
    void addCommand(QMenu *view);

signals:
    void said(const QString &line);

private:
    void choose(PhotosView::Photo photo);
    void enter(const QString &path);
    void compare();
    QString whyNoComparison() const;

    WeightDesk m_desk;
    PersonViews &m_views;
    PicturePanel *m_panel;
    ThenAndNow *m_comparison;
    PhotosView::Photo m_photo = PhotosView::Beginning; ///< the one that is being chosen
};
