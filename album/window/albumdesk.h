// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Commands;
class FunctionWindow;
class PhotoShelf;
class AlbumView;
class PictureQueue;
class WorkViews;
struct Program;

/// What the parts of the photo album work with.
struct AlbumDesk {
    Program &program;
    FunctionWindow &window; ///< questions and pages stand over it
    PhotoShelf &shelf;      ///< the pictures and albums of the household
    Commands &commands;
    WorkViews &views;
    AlbumView &photos;   ///< which of them are shown and marked
    PictureQueue &queue; ///< reads them for the grid
};
