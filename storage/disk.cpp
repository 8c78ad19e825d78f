// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/disk.h"

#include "storage/log.h"
#include "storage/systemfile.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <system_error>

namespace {

std::function<bool()> &gate()
{
    static std::function<bool()> instance;
    return instance;
}

bool isRefused()
{
    return gate() && !gate()();
}

bool said(bool isDone, const char *step, const QFile &file)
{
    if (!isDone)
        qCWarning(storageLog).noquote() << "Cannot" << step << file.fileName() << '-' << file.errorString();
    return isDone;
}

bool openToReplace(QFile &file)
{
    return said(file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered), "write", file);
}

} // namespace

void Disk::setGate(std::function<bool()> gate)
{
    ::gate() = std::move(gate);
}

bool Disk::writeAt(QFile &file, qint64 offset, QByteArrayView bytes)
{
    const bool isTorn = isRefused();
    const qsizetype length = isTorn ? bytes.size() / 2 : bytes.size();
    const bool isWritten = file.seek(offset) && file.write(bytes.data(), length) == length && file.flush();
    return said(isWritten && !isTorn, "write", file);
}

bool Disk::replaceAt(QFile &file, qint64 offset, QByteArrayView bytes, QByteArrayView former, bool andFlush)
{
    const qint64 size = file.size();
    if (writeAt(file, offset, bytes) && (!andFlush || flush(file)))
        return true;
    if (!writeAt(file, offset, former) || !file.resize(size))
        qCWarning(storageLog).noquote() << "Torn at" << offset << "bytes:" << file.fileName();
    return false;
}

bool Disk::remove(const QString &path)
{
    QFile file(path);
    return said(!isRefused() && (!file.exists() || file.remove()), "remove", file);
}

bool Disk::flush(QFile &file)
{
    const bool isFlushed = file.flush() && SystemFile::flush(file.handle());
    return said(isFlushed && !isRefused(), "flush", file);
}

bool Disk::flushAll(const QString &folder, const QStringList &paths)
{
    if (const std::optional<bool> isFlushed = SystemFile::flushAll(folder)) {
        const bool isDone = !isRefused() && *isFlushed;
        if (!isDone)
            qCWarning(storageLog).noquote() << "Cannot flush" << folder;
        return isDone;
    }
    return std::ranges::all_of(paths, [](const QString &path) {
        QFile file(path);
        return said(file.open(QIODevice::ReadWrite | QIODevice::Unbuffered), "flush", file) && flush(file);
    });
}

void Disk::flushNames(const QString &path)
{
    SystemFile::flushNames(path);
}

bool Disk::writeWhole(const QString &path, QByteArrayView content)
{
    QFile file(path);
    return openToReplace(file) && writeAt(file, 0, content) && flush(file);
}

bool Disk::writeAllWhole(const std::vector<std::pair<QString, QByteArray>> &files)
{
    std::vector<std::unique_ptr<QFile>> open;
    open.reserve(files.size());
    for (const auto &[path, content] : files) {
        QFile &file = *open.emplace_back(std::make_unique<QFile>(path));
        if (!openToReplace(file) || !writeAt(file, 0, content))
            return false;
    }
    return std::ranges::all_of(open, [](const std::unique_ptr<QFile> &file) { return flush(*file); });
}

bool Disk::renameOver(const QString &from, const QString &to)
{
    const std::error_code failure =
        isRefused() ? std::make_error_code(std::errc::no_space_on_device) : SystemFile::renameOver(from, to);
    if (failure)
        qCWarning(storageLog).noquote()
            << "Cannot rename" << from << "to" << to << '-' << QString::fromLocal8Bit(failure.message());
    return !failure;
}
