// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/householdpictures.h"

#include "shell/program/passedguards.h"
#include "shell/program/program.h"

#include <algorithm>

namespace {

/// The functions that have pictures which can be missing, and may tell of them.
std::vector<const FunctionEntry *> tellers(const Program &program,
                                           const std::function<bool(int area)> &isPassed)
{
    std::vector<const FunctionEntry *> some;
    for (const FunctionFace &face : FunctionFaces::cards()) {
        const FunctionEntry *entry = program.functions.entry(face.function);
        if (entry && entry->missingPictures && entry->relinkPictures && mayTell(program, face, isPassed))
            some.push_back(entry);
    }
    return some;
}

} // namespace

QStringList HouseholdPictures::missing(const Program &program, const std::function<bool(int area)> &isPassed)
{
    QStringList all;
    for (const FunctionEntry *entry : tellers(program, isPassed))
        all += entry->missingPictures(program);
    all.removeDuplicates();
    return all;
}

std::optional<std::vector<UndoStep>> HouseholdPictures::relink(const Program &program,
                                                               const QHash<QString, QString> &files,
                                                               const std::function<bool(int area)> &isPassed)
{
    std::vector<UndoStep> steps;
    for (const FunctionEntry *entry : tellers(program, isPassed)) {
        const std::optional<UndoStep> step = entry->relinkPictures(program, files);
        if (step && step->undo)
            steps.push_back(*step);
        if (step)
            continue;
        std::ranges::for_each(steps.rbegin(), steps.rend(), [](const UndoStep &done) { done.undo(); });
        return std::nullopt;
    }
    return steps;
}
