// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program/householdpersons.h"

#include "shell/program/passedguards.h"
#include "shell/program/program.h"

#include <algorithm>

namespace {

bool knowsPersons(const Program &program, const FunctionFace &face)
{
    const FunctionEntry *entry = program.functions.entry(face.function);
    return entry && entry->persons;
}

} // namespace

QList<KnownPerson> HouseholdPersons::of(const Program &program, const std::function<bool(int area)> &isPassed)
{
    QList<KnownPerson> persons;
    for (const FunctionFace &face : FunctionFaces::cards()) {
        if (knowsPersons(program, face) && mayTell(program, face, isPassed))
            persons += program.functions.entry(face.function)->persons(program);
    }
    return persons;
}

bool HouseholdPersons::areKeptBack(const Program &program, const std::function<bool(int area)> &isPassed)
{
    return std::ranges::any_of(FunctionFaces::cards(), [&](const FunctionFace &face) {
        return knowsPersons(program, face) && !mayTell(program, face, isPassed);
    });
}
