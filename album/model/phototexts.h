// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// The texts of pictures and albums: how long each may be, and lists in one text.
namespace PhotoTexts {

inline constexpr qsizetype pathBytes = 512;
inline constexpr qsizetype captionBytes = 320;
inline constexpr qsizetype storyBytes = 960;
inline constexpr qsizetype placeBytes = 80;
inline constexpr qsizetype tagsBytes = 160;
inline constexpr qsizetype peopleBytes = 256;
inline constexpr qsizetype albumNameBytes = 96;

/// The text as records have it: composed, without zeros.
QString composed(const QString &text);

/// Whether the text, composed, has room in so many bytes.
bool fits(const QString &text, qsizetype bytes);
/// Whether a record can keep the path of a file or folder: the very same one comes out again.
bool fitsPath(const QString &path);

/// The text where it fits; else as much as does, with an ellipsis by which `isCut` knows it.
QString cut(const QString &text, qsizetype bytes);
/// Whether it was cut: then it is never written over the whole one.
bool isCut(const QString &text, qsizetype bytes);

/// The entries of "garden; summer", each once and none empty.
QStringList list(const QString &text);
/// One text of them; a semicolon in an entry becomes a comma.
QString joined(const QStringList &list);

} // namespace PhotoTexts
