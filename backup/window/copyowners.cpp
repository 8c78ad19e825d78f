// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/copyowners.h"

#include "backup/window/householdsources.h"
#include "shell/program/program.h"

#include <QFile>

CopyOwners::CopyOwners(const Program &program, const QList<BackupFile> &files, const QString &copy)
{
    for (const BackupFile &file : files) {
        if (file.name.contains(u'/')) // what lies deeper is no function's
            continue;
        QFile name(m_names.filePath(file.name));
        // Some functions have no use for a file without a byte.
        if (name.open(QIODevice::WriteOnly) && file.size > 0)
            name.putChar('\0');
    }
    add(program, m_names.path());
    if (!copy.isEmpty())
        add(program, copy);
    m_places.append({program.folder, HouseholdSources::all(program)});
}

void CopyOwners::add(const Program &program, const QString &path)
{
    const DataFolder folder(path);
    const Program there{folder,        program.programFolder, program.settings,  program.state,
                        program.clock, program.dialogs,       program.functions, program.gate,
                        program.store, program.changes,       program.idle};
    m_places.append({folder, HouseholdSources::all(there)});
}

void CopyOwners::find()
{
    for (const Place &place : std::as_const(m_places)) {
        m_here.clear();
        const Holdings holdings = Holdings::of(place.folder, place.sources, {});
        for (const BackupItem &item : holdings.items) {
            m_here.append(item.name);
            if (item.function != Holdings::others || !m_all.contains(item.name))
                m_all.insert(item.name, item.function);
        }
    }
    m_all.insert(QString(Holdings::deskName), QString(Holdings::settings));
}
