// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/photo.h"

#include <QString>

#include <atomic>
#include <optional>

/// By what a picture is known, wherever it lies: BLAKE2b-256 of its file.
namespace ContentHash {

/// Nothing where the file cannot be read to its end, or a stop comes in between. On any thread.
std::optional<Photo::Hash> of(const QString &path, const std::atomic_bool &isStopped);

} // namespace ContentHash
