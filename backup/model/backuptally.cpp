// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/backuptally.h"

BackupTally::BackupTally(const QList<BackupItem> &items)
    : m_states(std::size_t(items.size()))
    , m_open(int(items.size()))
{}

void BackupTally::takeOver(const SetRecord &unfinished, const QList<BackupItem> &items, int disk)
{
    QHash<QString, const BackupFile *> files;
    for (const BackupFile &file : unfinished.files)
        files.insert(file.name, &file);
    for (qsizetype i = 0; i < items.size(); ++i) {
        const BackupFile *file = files.value(items[i].name);
        const bool isSame = file && file->lastDisk < disk && file->size == items[i].size &&
                            file->changed == items[i].changed && items[i].content.isEmpty();
        if (!isSame)
            continue;
        m_states[std::size_t(i)] = {file->size,     file->changed, file->size, 0,    file->firstDisk,
                                    file->lastDisk, file->hash,    true,       false};
        --m_open;
    }
}

void BackupTally::beginAnew(int item)
{
    State &state = m_states[std::size_t(item)];
    m_open += state.isDone ? 1 : 0;
    state = {};
    m_whole.remove(item);
}

void BackupTally::put(int item, const BackupPart &part, int disk)
{
    State &state = m_states[std::size_t(item)];
    if (state.firstDisk == 0)
        state.firstDisk = disk;
    state.lastDisk = disk;
    state.size = part.size;
    state.changed = part.changed;
    state.offset = part.offset + part.bytes;
    state.pieces = part.piece;
    if (state.offset < part.size)
        return;
    state.hash = part.piece == 0 ? part.hash : m_whole[item].result();
    state.isDone = true;
    m_whole.remove(item);
    --m_open;
}

void BackupTally::leaveOut(int item)
{
    beginAnew(item);
    m_states[std::size_t(item)].isLeftOut = true;
    m_states[std::size_t(item)].isDone = true;
    --m_open;
}

QList<BackupFile> BackupTally::files(const QList<BackupItem> &items) const
{
    QList<BackupFile> files;
    files.reserve(items.size());
    for (qsizetype i = 0; i < items.size(); ++i) {
        const State &state = m_states[std::size_t(i)];
        if (state.isDone && !state.isLeftOut)
            files.append(
                {items[i].name, state.size, state.changed, state.hash, state.firstDisk, state.lastDisk});
    }
    return files;
}
