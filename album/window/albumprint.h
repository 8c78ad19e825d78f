// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/albumpages.h"
#include "album/window/albumdesk.h"
#include "shell/pictures/picturecopies.h"

#include <QObject>

#include <functional>

class ActivityBar;
class AlbumPrintPanel;
class PreviewPane;
class QMenu;

/// Brings what is chosen, or all that is shown, onto paper: the pictures are made ready first, and then lie
/// in the preview.
class AlbumPrint final : public QObject
{
    Q_OBJECT
public:
    struct Places {
        std::function<PreviewPane &()> preview;
        ActivityBar &activity;
    };

    AlbumPrint(const AlbumDesk &desk, Places places, QObject *parent);

    void addCommands(QMenu *options);

private:
    QString whyNone() const;
    void openPanel();
    void makeReady();
    QString whyNotReady(int record) const;
    void showPages();

    AlbumDesk m_desk;
    Places m_places;
    PictureCopies m_copies;
    AlbumPrintPanel *m_panel = nullptr;
    QString m_name;
    int m_album = 0; ///< that is printed; 0: none
    QList<int> m_records;
    AlbumPages::Options m_options;
};
