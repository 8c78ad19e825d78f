// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/undosteps.h"

#include <algorithm>
#include <memory>
#include <tuple>

namespace {

using Steps = std::vector<UndoStep>;
using Way = std::function<ChangeResult()> UndoStep::*;

/// Goes through the steps one `way`; where one is refused, those before it go `back` again.
ChangeResult go(const Steps &steps, Way way, Way back)
{
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const ChangeResult result = (steps[i].*way)();
        if (result == ChangeResult::Done)
            continue;
        while (i > 0)
            std::ignore = (steps[--i].*back)();
        return result;
    }
    return ChangeResult::Done;
}

} // namespace

UndoStep UndoSteps::joined(const QString &title, const std::vector<UndoStep> &steps)
{
    const auto forth = std::make_shared<Steps>();
    std::ranges::copy_if(steps, std::back_inserter(*forth),
                         [](const UndoStep &step) { return bool(step.undo); });
    if (forth->empty())
        return {title, {}, {}};
    const auto back = std::make_shared<Steps>(forth->rbegin(), forth->rend());
    return {title, [back] { return go(*back, &UndoStep::undo, &UndoStep::redo); },
            [forth] { return go(*forth, &UndoStep::redo, &UndoStep::undo); }};
}
