// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photo.h"
#include "album/model/photoalbum.h"
#include "album/model/takein.h"
#include "album/window/shown.h"
#include "shell/core/programstate.h"
#include "shell/pictures/picturequeue.h"

#include <QString>

/// What the window of the photo album says quietly, and reads aloud.
namespace AlbumWindowLines {

using namespace Qt::Literals::StringLiterals;

// Pictures

/// Its caption, or the name of its file.
QString nameOf(const Photo &photo);
/// "★★★  about 1974": where there is little room, the date is cut.
QString starsAndDate(const Photo &photo, const DateStyle &style);
/// "Anne and Karin at the lake, about 1974, with Anne Lind and Karin, 3 stars".
QString spoken(const Photo &photo, const DateStyle &style);
/// "with Anne Lind and Karin"; empty without people.
QString withPeople(const Photo &photo);
/// Why a picture bears a sign: "Its disk is not plugged in"; empty where it bears none.
QString sign(const Photo &photo, PictureQueue::Look look);
/// "4000 x 3000, 2.3 MB, in Pictures/2019".
QString facts(const Photo &photo);
/// Where its date comes from: "from the picture".
QString dateFrom(const Photo &photo, QDate today);
/// Below the large picture: when, where and with whom, and its story.
QString below(const Photo &photo, const DateStyle &style);
/// Below the grid: "2,000 pictures", "3 of 2,000 pictures chosen".
/// `areMarked`: by Space, until Esc.
QString count(int chosen, int shown, bool areMarked);
/// "12 of 2,000".
QString place(int row, int count);

// What is shown

/// The row of the pane: "All Pictures".
QString nameOf(ShelfView::Kind kind);
QString viewSpoken(const QString &name, int count);
QString title(const PhotosShown &shown, const PhotoAlbum *album, QDate today, const DateStyle &style);
/// What stands in the place of the grid where nothing is in the view, and the quiet line under it.
QString emptiness(const PhotosShown &shown);
QString emptyLine(const PhotosShown &shown);
QString countOfAlbums(int count);

inline QString searchHint()
{
    return u"Search pictures"_s;
}

inline QString searchTip()
{
    return u"Captions, stories, people, tags, places, albums, file names, and dates: 1974, summer 82"_s;
}

inline QString years()
{
    return u"Years"_s;
}

inline QString albums()
{
    return u"Albums"_s;
}

inline QString noPictures()
{
    return u"Choose the folder of your pictures"_s;
}

inline QString theyStay()
{
    return u"They stay where they are: the album only remembers where that is."_s;
}

// The pane of what is known

inline QString nothingChosen()
{
    return u"Choose a picture to see what is known of it."_s;
}

inline QString namesKeptBack()
{
    return u"Names of the address book are offered once its password was given"_s;
}

inline QString severalHint()
{
    return u"What is typed here is said of all of them."_s;
}

/// Stands in a box while the pictures differ in it.
QString differing(bool isWhole);
QString changed(const QString &what, int count);
QString rated(int rating, int count);

inline QString textFull()
{
    return u"There is no room for more text"_s;
}

// Why a command cannot be used now

inline QString choosePicture()
{
    return u"Choose a picture first"_s;
}

inline QString chooseAlbum()
{
    return u"Choose an album at the left first"_s;
}

inline QString nothingShown()
{
    return u"There is no picture to show"_s;
}

inline QString noAlbums()
{
    return u"There is no album yet"_s;
}

inline QString notByHand()
{
    return u"Pictures are put in order by hand in an album whose order is By Hand"_s;
}

inline QString howToMark()
{
    return u"Space marks one more, Esc ends the marking"_s;
}

inline QString leavePanelFirst()
{
    return u"Close the panel first"_s;
}

inline QString onlyOne()
{
    return u"Choose one picture alone"_s;
}

inline QString fileNotThere()
{
    return u"The file of the picture is not there now"_s;
}

// What was done

QString turned(int count);
/// "212 pictures taken in, 3 were here already".
QString takenIn(const TakeIn::Result &result);
// On paper

QString printed(const QString &name, int count);
/// "9 to a sheet".
QString toASheet(int count);
QString toAPage(int count);

QString renamed(const QString &album);
QString intoTitle(PhotoAlbum::Into into);
QString orderTitle(PhotoAlbum::Sorting sorting);
QString watched(const QString &folder);
QString pathTooLong(const QString &path);
QString leftOut(bool isLeftOut, int count);
QString inAlready(const QString &album);
/// "&3 stars".
QString ratingEntry(int rating);
QString shiftTitle(int count);
/// "The first one: July 4, 2019, 3:12 PM becomes July 4, 2019, 6:12 PM".
QString shiftOutcome(const QString &before, const QString &after);
QString newAlbum();

/// "Both were changed since: Lake.jpg, and 2 others".
QString bothChanged(const QString &file, int count);
QString conflicts(int count);
/// "For the 12 others, too".
QString settleOthers(int count);
/// Which formats and fields this build has.
QString whatIsRead();

inline QString compare()
{
    return u"Compare"_s;
}

inline QString noConflicts()
{
    return u"No picture was changed both here and by another program"_s;
}

inline QString keepsNoTexts()
{
    return u"This build cannot write into pictures: what is said of them stands in the album alone"_s;
}

inline QString watchesNone()
{
    return u"The album watches no folder"_s;
}

inline QString noLongerWatched()
{
    return u"Its folder is no longer watched"_s;
}

inline QString coverTitle()
{
    return u"Changed: cover of the album"_s;
}

inline QString noProgram()
{
    return u"No program of this computer opens the picture"_s;
}

inline QString noShift()
{
    return u"Say first by how much the dates are wrong"_s;
}

inline QString takesIn()
{
    return u"Pictures are being taken in just now"_s;
}

inline QString makesReady()
{
    return u"The pictures are being made ready for paper"_s;
}

inline QString whatIsChosen()
{
    return u"What is chosen"_s;
}

inline QString showLargeFirst()
{
    return u"Show a picture large first"_s;
}

inline QString setAside()
{
    return u"Set Aside"_s;
}

inline QString isFirst()
{
    return u"This is the first picture"_s;
}

inline QString isLast()
{
    return u"This is the last picture"_s;
}

inline QString changedElsewhere()
{
    return u"Pictures or albums were changed by somebody else, and have been read again"_s;
}

} // namespace AlbumWindowLines
