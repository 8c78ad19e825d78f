// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/functionrecords.h"

#include <functional>

/// What `FunctionRecords` of which there are thousands are as well: all of them in one pass, with what they
/// say.
class RecordLines
{
public:
    virtual ~RecordLines() = default;

    /// As `FunctionRecords::all` and `lines`, without the content. `visit` answers false to stop.
    virtual void visitLines(
        const std::function<bool(const FunctionRecord &record, const QStringList &lines)> &visit) const = 0;

protected:
    RecordLines() = default;
    RecordLines(const RecordLines &) = default;
    RecordLines &operator=(const RecordLines &) = default;
};
