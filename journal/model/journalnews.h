// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/liveline.h"
#include "storage/datafolder.h"

#include <QDateTime>
#include <QStringList>

#include <optional>

/// What the journal says on its card on the main menu.
namespace JournalNews {

/// "Written today, 212 words", else "Not written yet today", in the evening with what other years have on
/// this day; "Sealed" where the journal is. Nothing before there is an entry at all. Of the files it reads
/// that of the year, and in the evening a few lines of the others.
std::optional<LiveLine> liveLine(const DataFolder &folder, const QDateTime &now);

/// The files that this comes from.
QStringList liveFiles(QDate today);

} // namespace JournalNews
