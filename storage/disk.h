// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QFile>
#include <QString>
#include <QStringList>

#include <functional>
#include <utility>
#include <vector>

/// The steps by which bytes and names reach the disk itself, where a power cut cannot take them. A step that
/// fails says so in the log.
namespace Disk {

/// Writes `bytes` to the open file, from `offset` on. False when only a part of them, or nothing, got there.
[[nodiscard]] bool writeAt(QFile &file, qint64 offset, QByteArrayView bytes);

/// Puts `bytes` in the place of `former`, the bytes that the file has from `offset` on, as many or fewer at
/// its end, and flushes them when asked to. False when that fails: then the file is as it was, since half a
/// record is worse than none; where even that fails, the log says that it is torn.
[[nodiscard]] bool replaceAt(QFile &file, qint64 offset, QByteArrayView bytes, QByteArrayView former,
                             bool andFlush);

/// Puts what was written to `file` on the disk.
[[nodiscard]] bool flush(QFile &file);

/// Puts the files at `paths`, all of them written before, on the disk that the folder at `folder` lies on: in
/// one step where the system has one for that.
[[nodiscard]] bool flushAll(const QString &folder, const QStringList &paths);

/// Puts the names of the folder at `path` on the disk. Without it a power cut may undo a rename or a removal,
/// never tear a file.
void flushNames(const QString &path);

/// Makes the file at `path` hold `content`, on the disk.
[[nodiscard]] bool writeWhole(const QString &path, QByteArrayView content);
/// The same for several files, all of which are written before the first is flushed: the disk then has more
/// to do at once, and less in all. `files` are paths and contents.
[[nodiscard]] bool writeAllWhole(const std::vector<std::pair<QString, QByteArray>> &files);

/// Gives the file `from` the name `to`, in place of the file of that name.
[[nodiscard]] bool renameOver(const QString &from, const QString &to);

/// Removes the file at `path`. True when there was none.
[[nodiscard]] bool remove(const QString &path);

/// For tests: asked before each of these steps but `flushNames`, and refuses it by answering false; half of
/// what a refused write should have written is written. One refusal is a disk that is full, refusing
/// everything from one step on is the program's sudden end. An empty gate lets all pass.
void setGate(std::function<bool()> gate);

} // namespace Disk
