// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/trash.h"

#include "storage/changeset.h"
#include "storage/log.h"
#include "storage/saving.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr quint32 magic = 0x51545231; // "QTR1"
constexpr auto streamVersion = QDataStream::Qt_6_4;
constexpr qsizetype checksumLength = 32;
/// What no household deletes in 30 days; such a file is left alone.
constexpr qint64 greatestSize = qint64(64) * 1024 * 1024;
constexpr int mostKept = 100;

QByteArray checksum(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

} // namespace

static QDataStream &operator<<(QDataStream &stream, const Trash::Item &item)
{
    stream << item.kind << item.deleted.toMSecsSinceEpoch() << item.title << quint32(item.pieces.size());
    for (const Trash::Piece &piece : item.pieces)
        stream << piece.file << qint32(piece.number) << piece.bytes;
    return stream;
}

static QDataStream &operator>>(QDataStream &stream, Trash::Item &item)
{
    qint64 deleted = 0;
    quint32 count = 0;
    stream >> item.kind >> deleted >> item.title >> count;
    item.deleted = QDateTime::fromMSecsSinceEpoch(deleted);
    if (!item.deleted.isValid() || item.deleted.toMSecsSinceEpoch() != deleted)
        stream.setStatus(QDataStream::ReadCorruptData);
    for (; count > 0 && stream.status() == QDataStream::Ok; --count) {
        Trash::Piece piece;
        qint32 number = 0;
        stream >> piece.file >> number >> piece.bytes;
        piece.number = number;
        item.pieces.push_back(piece);
    }
    return stream;
}

Trash::Trash(const DataFolder &folder)
    : m_folder(folder)
{
    QFile file(folder.filePath(fileName));
    const QFileInfo info(file);
    if (!info.exists())
        return;
    if (!info.isFile() || !info.isWritable() || info.size() > greatestSize ||
        !file.open(QIODevice::ReadOnly)) {
        qCWarning(storageLog).noquote() << "Out of reach:" << file.fileName();
        m_state = State::OutOfReach;
        return;
    }
    const QByteArray bytes = file.readAll();
    if (auto items = decode(bytes)) {
        m_items = *std::move(items);
    } else if (!bytes.isEmpty()) {
        m_state = State::Foreign;
        m_foreign = bytes;
    }
}

std::vector<Trash::Item> Trash::items(const QString &kind, const QDateTime &now) const
{
    std::vector<Item> found;
    std::ranges::copy_if(m_items, std::back_inserter(found), [&](const Item &item) {
        return item.kind == kind && item.deleted.addDays(days) >= now;
    });
    std::ranges::stable_sort(found, std::ranges::greater(), &Item::deleted);
    return found;
}

void Trash::put(const Item &item)
{
    std::erase_if(m_items, [&item](const Item &old) { return old.deleted.addDays(days) < item.deleted; });
    m_items.push_back(item);
}

void Trash::take(const Item &item)
{
    if (const auto at = std::ranges::find(m_items, item); at != m_items.end())
        m_items.erase(at);
}

void Trash::addTo(ChangeSet &change)
{
    if (m_state == State::Foreign && !keepAside())
        m_state = State::OutOfReach;
    if (m_state != State::OutOfReach)
        change.replace(fileName, encode(m_items));
}

/// True when the foreign file is kept under another name.
bool Trash::keepAside() const
{
    for (int number = 1; number <= mostKept; ++number) {
        const QString name = number == 1 ? keptName : QString(keptName + u'-' + QString::number(number));
        QFile kept(m_folder.filePath(name));
        if (!QFileInfo::exists(kept.fileName()))
            return Saving::replaceFile(m_folder, name, m_foreign);
        if (kept.open(QIODevice::ReadOnly) && kept.readAll() == m_foreign)
            return true;
    }
    return false;
}

QByteArray Trash::encode(const std::vector<Item> &items)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(streamVersion);
    stream << magic << quint32(items.size());
    for (const Item &item : items)
        stream << item;
    return bytes + checksum(bytes);
}

std::optional<std::vector<Trash::Item>> Trash::decode(const QByteArray &file)
{
    const QByteArray bytes = file.chopped(std::min(checksumLength, file.size()));
    if (file.last(file.size() - bytes.size()) != checksum(bytes))
        return {};
    QDataStream stream(bytes);
    stream.setVersion(streamVersion);
    quint32 start = 0;
    quint32 count = 0;
    stream >> start >> count;
    if (start != magic)
        return {};
    std::vector<Item> items;
    for (; count > 0 && stream.status() == QDataStream::Ok; --count) {
        Item item;
        stream >> item;
        items.push_back(item);
    }
    if (stream.status() != QDataStream::Ok || !stream.atEnd())
        return {};
    return items;
}
