// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocale>
#include <QString>

/// What the photo album says quietly: in its status bar, behind Undo and on its card.
namespace AlbumLines {

using namespace Qt::Literals::StringLiterals;

/// "2,000"
inline QString number(qint64 count)
{
    return QLocale(QLocale::English, QLocale::UnitedStates).toString(count);
}

/// "1 picture", "2,000 pictures"
inline QString pictures(qsizetype count)
{
    return count == 1 ? u"1 picture"_s : number(count) + u" pictures"_s;
}

/// "1 album", "14 albums"
inline QString albums(qsizetype count)
{
    return count == 1 ? u"1 album"_s : number(count) + u" albums"_s;
}

/// Where a picture would stand on paper.
inline QString notShown(const QString &file, const QString &reason)
{
    return file + (reason.isEmpty() ? u" cannot be shown"_s : u": "_s + reason);
}

inline QString quoted(const QString &name)
{
    return u"\u201c%1\u201d"_s.arg(name);
}

inline QString foreignFile(const QString &file)
{
    return file + u" is not a file of this photo album: it is left as it is."_s;
}

inline QString unreadableFile(const QString &file)
{
    return file + u" cannot be read: nothing can be changed."_s;
}

inline QString notSaved()
{
    return u"The disk refused to save this"_s;
}

inline QString notSetAside(const QString &file)
{
    return file + u" could not be set aside: the disk refused"_s;
}

inline QString setAside(const QString &file, const QString &name)
{
    return file + u" is kept as "_s + name;
}

/// Another program has written to the same records in between.
inline QString changedMeanwhile()
{
    return u"Somebody else has changed the album meanwhile: what is there now is shown"_s;
}

inline QString noMorePictures()
{
    return u"The list is full: it has room for 100,000 pictures"_s;
}

inline QString noMoreAlbums()
{
    return u"The albums are full"_s;
}

inline QString pathTooLong(const QString &path)
{
    return u"The path of %1 is too long or has characters that cannot be kept"_s.arg(path);
}

/// "The list of people of IMG_7.jpg would be too long"
inline QString textTooLong(const QString &what, const QString &picture)
{
    return u"The %1 of %2 would be too long"_s.arg(what, picture);
}

inline QString nameTooLong()
{
    return u"This name is too long"_s;
}

// What was done, for the status bar and Undo.

inline QString added(qsizetype count)
{
    return u"Taken in: "_s + pictures(count);
}

inline QString removed(const QString &what)
{
    return u"Taken off the list: "_s + what;
}

/// "What the album says was kept: 2 pictures"
inline QString settled(qsizetype count, bool isForAlbum)
{
    return (isForAlbum ? u"What the album says was kept: "_s : u"What the picture says was taken: "_s) +
           pictures(count);
}

inline QString albumAdded(const QString &album)
{
    return u"New album "_s + quoted(album);
}

inline QString albumRemoved(const QString &album)
{
    return u"Album %1 deleted, its pictures stay"_s.arg(quoted(album));
}

inline QString albumMoved(const QString &album)
{
    return u"Album %1 moved"_s.arg(quoted(album));
}

inline QString putInto(qsizetype count, const QString &album)
{
    return u"%1 put into %2"_s.arg(pictures(count), quoted(album));
}

inline QString takenOut(qsizetype count, const QString &album)
{
    return u"%1 taken out of %2"_s.arg(pictures(count), quoted(album));
}

inline QString arranged(qsizetype count, const QString &album)
{
    return u"%1 moved in %2"_s.arg(pictures(count), quoted(album));
}

} // namespace AlbumLines
