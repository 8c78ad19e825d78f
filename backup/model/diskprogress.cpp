// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/diskprogress.h"

#include <algorithm>

namespace {

/// Before that much of it is done, the speed of a disk says nothing.
constexpr qint64 enoughSeconds = 3;
constexpr int enoughPercent = 2;

} // namespace

int DiskProgress::percent() const
{
    if (allBytes <= 0)
        return allFiles > 0 ? int(100 * qint64(files) / allFiles) : 0;
    const int done = int(100.0 * double(bytes) / double(allBytes));
    return std::clamp(done, 0, step == Step::Finishing ? 100 : 99);
}

qint64 DiskProgress::secondsLeft() const
{
    if (seconds < enoughSeconds || percent() < enoughPercent || bytes <= 0)
        return -1;
    return std::max<qint64>(0, qint64(double(seconds) * double(allBytes - bytes) / double(bytes)));
}
