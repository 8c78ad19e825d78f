// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/albumexport.h"
#include "album/model/lines.h"
#include "album/model/photo.h"
#include "shell/core/message.h"

/// What the panels say that find pictures again, find those alike, bring some in and give some out.
namespace KeepingLines {

using namespace Qt::Literals::StringLiterals;

/// "120 of 2,000"
QString progress(int done, int total);

// Find Again

/// "12 pictures are missing. ..."
QString missing(qsizetype count);
QString found(qsizetype count, qsizetype missing, const QString &folder, bool wasStopped);
/// "Lin&k 12 Pictures"
QString link(qsizetype count);
QString linked(qsizetype count);

inline QString whereNow()
{
    return u"Choose the folder in which the pictures are now"_s;
}

inline QString looks()
{
    return u"The folder is being looked through"_s;
}

inline QString tickFirst()
{
    return u"Tick those first that are to be linked"_s;
}

inline QString notLinked()
{
    return u"The disk refused to save this: nothing was changed"_s;
}

// Alike

QString alikeFound(qsizetype groups, bool wasStopped);
/// "3 pictures, the same content"
QString group(qsizetype count, bool isSame);
/// A line each: "IMG_0001.jpg", "4000 × 3000, 2.3 MB, Pictures/2019", "21 November 2026", "Grandmother".
QString alikeFacts(const Photo &photo, const QString &date, const QStringList &albums);
Message trashQuestion(const QStringList &names);
QString trashed(qsizetype count);
QString notTrashed(const QStringList &names);

inline QString alikeHint()
{
    return u"Tick what is to go. Nothing goes by itself."_s;
}

inline QString takesLocked()
{
    return u"Tick the pictures first that are to go"_s;
}

// Export

QString exported(const AlbumExport::Result &result, const QString &folder);
/// What could not be given out whole, for a message; empty where all could.
QString exportFaults(const AlbumExport::Result &result);
Message exportFaultsMessage(const AlbumExport::Result &result);

inline QString exportFolder()
{
    return u"Choose the folder that the pictures are copied to"_s;
}

inline QString noFolder()
{
    return u"Choose the folder first that the pictures are copied to"_s;
}

inline QString textsNotBuiltIn()
{
    return u"This edition cannot write texts into pictures"_s;
}

// Cards

/// "212 new pictures, 1,034 that are here already"
QString card(qsizetype fresh, int known);
/// "CANON_DC: 212 new pictures"
QString cardOffer(const QString &name, qsizetype fresh);
QString noCards();

inline QString bringIn()
{
    return u"Bring In"_s;
}

/// "Copy &In 212 Pictures"
QString copyIn(qsizetype count);

} // namespace KeepingLines
