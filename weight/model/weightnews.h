// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/liveline.h"
#include "storage/datafolder.h"

#include <QDate>
#include <QStringList>

#include <optional>

/// What the weight tracker has to say on the main menu. Weights are nobody else's business: a figure is told
/// only of those who said so.
namespace WeightNews {

/// "Anne: weighed 3 days ago", of those who weighed themselves last; "2 persons" where nobody has a dated
/// weigh-in; nothing without persons.
std::optional<LiveLine> liveLine(const DataFolder &folder, QDate today);

/// The files that the line comes from: those of the persons in the list, and the list.
QStringList liveFiles(const DataFolder &folder);

} // namespace WeightNews
