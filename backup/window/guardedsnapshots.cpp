// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/guardedsnapshots.h"

#include "backup/model/messages.h"
#include "backup/model/snapshotreader.h"
#include "backup/model/snapshots.h"
#include "backup/window/snapshotchoice.h"
#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <tuple>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Of the snapshots in `folder` those that hold a file of `functions` with less before it than it has now.
QStringList holding(const QString &folder, const QMap<QString, KeptAs> &functions)
{
    QStringList paths;
    for (const Snapshot &snapshot : Snapshots::in(folder)) {
        const auto files = SnapshotReader(snapshot.path).files();
        const auto isLess = [&functions](const SnapshotFile &file) {
            const auto now = functions.constFind(file.function);
            return now != functions.cend() && file.keptAs < *now;
        };
        if (files && std::ranges::any_of(*files, isLess))
            paths.append(snapshot.path);
    }
    return paths;
}

} // namespace

GuardedSnapshots::GuardedSnapshots(const Program &program)
    : m_program(program)
{
    connect(&program.changes, &ProgramSignals::guardsChanged, this, [this] {
        // What the signal came from is finished first.
        QTimer::singleShot(0, this, &GuardedSnapshots::look);
    });
}

GuardedSnapshots::Copies GuardedSnapshots::copiesNow() const
{
    Copies copies;
    for (const FunctionFace &face : FunctionFaces::cards()) {
        const QString key = HouseholdSources::key(face.function);
        if (m_program.functions.has(face.function))
            copies.insert(key, HouseholdSources::copyOf(m_program, key));
    }
    return copies;
}

void GuardedSnapshots::begin()
{
    m_copies = copiesNow();
}

void GuardedSnapshots::look()
{
    const Copies before = std::exchange(m_copies, copiesNow());
    QMap<QString, KeptAs> guarded;
    QStringList titles;
    for (auto copy = m_copies.cbegin(); copy != m_copies.cend(); ++copy) {
        if (!before.contains(copy.key()) || *copy <= before.value(copy.key()))
            continue;
        guarded.insert(copy.key(),
                       *copy == HouseholdSources::Copy::Sealed ? KeptAs::Sealed : KeptAs::Guarded);
        titles.append(HouseholdSources::title(copy.key()));
    }
    if (guarded.isEmpty() || m_program.folder.isReadOnly())
        return;
    const QString folder = SnapshotChoice::read(m_program.store, m_program.folder).folder;
    const auto paths = std::make_shared<QStringList>();
    m_step.start([paths, folder, guarded] { *paths = holding(folder, guarded); },
                 [this, paths, titles] { offer(titles.join(u", "_s), *paths); });
}

void GuardedSnapshots::offer(const QString &functions, const QStringList &paths)
{
    if (paths.isEmpty() ||
        m_program.dialogs.ask(QApplication::activeWindow(),
                              BackupMessages::olderSnapshots(functions, int(paths.size()))) != Answer::Yes)
        return;
    for (const QString &path : paths)
        std::ignore = Snapshots::remove({path, {}, 0}); // one that stays is told in the log
}
