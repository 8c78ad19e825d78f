// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/householdnames.h"

#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

QStringList HouseholdNames::of(const Program &program)
{
    QStringList names;
    for (const FunctionFace &face : FunctionFaces::cards()) {
        const FunctionEntry *entry = program.functions.entry(face.function);
        if (entry && entry->names && !face.isGuarded(program.state.protectedAreas))
            names += entry->names(program);
    }
    return names;
}
