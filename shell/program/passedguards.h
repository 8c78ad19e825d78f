// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <functional>

/// Whether a function may tell other windows of what it has: it is not guarded, or the password of a way into
/// it was given, as `isPassed` says of an area.
inline bool mayTell(const Program &program, const FunctionFace &face,
                    const std::function<bool(int area)> &isPassed)
{
    return !face.isGuarded(program.state.protectedAreas) || isPassed(face.area) ||
           (face.buttonArea != Area::None && isPassed(face.buttonArea));
}
