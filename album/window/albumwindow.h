// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/window/albumdesk.h"
#include "album/window/shown.h"
#include "shell/frame/functionwindow.h"

class AlbumCommands;
class AlbumPane;
class AlbumPrint;
class FolderCommands;
class KeepCommands;
class LargeView;
class LookCommands;
class ShelfCommands;
class PhotoDetails;
class ShelfCare;
class ShowCommands;
struct Place;

/// The photo album, also called the photo keeper: views and albums at the left, the pictures in the middle,
/// and beside them what is known of the one that is chosen.
class PhotoVIEW1 final : public FunctionWindow
{
    Q_OBJECT
public:
    explicit PhotoVIEW1(Program &program, QWidget *parent = nullptr);
    ~PhotoVIEW1() override;

    /// Everything is on the disk as soon as it is typed.
    bool isModified() const override;

    /// Shows the picture whose record is that of `place`.
    void showPlace(const Place &place);

protected:
    void filesChanged() override;
    void showEvent(QShowEvent *event) override;

private:
    AlbumDesk desk();
    QWidget *makeWorkPanel();
    void makeCommands();
    void makeButtons();
    void connectShelf();
    void connectParts();
    void connectLarge();
    void connectCare();
    void bring(const PhotosShown &shown);
    void bringUnlessRefused(const PhotosShown &shown);
    void showTaken(const QList<int> &records);
    void followChoice();
    bool returnsToRefused();
    void followView();
    void tellLocked();

    PhotoShelf *m_shelf;
    PictureQueue *m_queue;
    WorkViews *m_stack;
    AlbumView *m_photos;
    LargeView *m_large;
    AlbumPane *m_pane;
    PhotoDetails *m_details;
    ShelfCommands *m_commands;
    AlbumCommands *m_albums;
    LookCommands *m_look;
    ShelfCare *m_care;
    FolderCommands *m_folders;
    ShowCommands *m_shows;
    KeepCommands *m_keep;
    AlbumPrint *m_print;
    bool m_isReturning = false; ///< to what was refused
    bool m_isBegun = false;     ///< the files were looked after once
};
