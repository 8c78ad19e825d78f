// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/householdsnapshot.h"

#include "backup/window/householdsources.h"
#include "backup/window/snapshotchoice.h"
#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

namespace {

KeptAs keptAs(HouseholdSources::Copy copy)
{
    switch (copy) {
    case HouseholdSources::Copy::Guarded:
        return KeptAs::Guarded;
    case HouseholdSources::Copy::Sealed:
        return KeptAs::Sealed;
    case HouseholdSources::Copy::Readable:
    case HouseholdSources::Copy::Verifier:
        break;
    }
    return KeptAs::Readable;
}

} // namespace

SnapshotJob HouseholdSnapshot::job(const Program &program)
{
    const SnapshotChoice choice = SnapshotChoice::read(program.store, program.folder);
    SnapshotJob job;
    job.folder = choice.folder;
    job.limit = choice.limit;
    job.now = program.clock.now();
    QList<BackupSource> sources;
    for (const FunctionFace &face : FunctionFaces::cards()) {
        const FunctionEntry *entry = program.functions.entry(face.function);
        if (!entry || !entry->files)
            continue;
        const QString key = HouseholdSources::key(face.function);
        sources.append({key, entry->files(program), {}});
        SnapshotFunction function{key, keptAs(HouseholdSources::copyOf(program, key)), nullptr};
        if (function.keptAs == KeptAs::Readable && entry->records)
            function.records = entry->records(program, program.folder);
        job.functions.append(function);
    }
    job.items = [folder = program.folder, sources, desk = HouseholdSources::desk(program)] {
        return Holdings::of(folder, sources, desk).items;
    };
    return job;
}
