// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/diskrecords.h"
#include "backup/model/filehash.h"
#include "backup/model/picturepool.h"
#include "backup/model/restorerun.h"
#include "backup/model/setfolder.h"
#include "backup/model/storednames.h"
#include "tests/support/testfiles.h"

#include <QDir>

#include <limits>

using namespace Qt::Literals::StringLiterals;

/// A file of a household, as a test has it.
struct TestFile {
    QString name;
    QByteArray content;
    QDateTime changed = QDateTime({2026, 11, 2}, {10, 30}, Qt::UTC);
};

/// A set that was laid down on disks, each a folder of its own, so that a disk has `room` bytes of files.
class TestSet
{
public:
    explicit TestSet(const QList<TestFile> &files, qint64 room = std::numeric_limits<qint64>::max())
        : m_room(room)
    {
        m_record.set = QByteArray(16, 'q');
        m_record.begun = QDateTime({2026, 11, 3}, {19, 30}, Qt::UTC);
        m_record.ended = m_record.begun.addSecs(60);
        m_record.drive = u"SILVER"_s;
        m_record.counts = {{u"AddressBook"_s, 2}};
        for (const TestFile &file : files)
            add(file);
        finishDisk();
        m_record.disks = m_disk.number;
        put(m_disk.number, SetRecord::fileName, DiskRecords::encoded(m_record));
    }

    const SetRecord &record() const { return m_record; }
    QString drive(int disk) const { return m_dir.filePath(u"disk %1"_s.arg(disk)); }
    /// Where the file of that stored name is on a disk.
    QString path(int disk, const QString &stored) const
    {
        return SetFolder::path(drive(disk), m_record.begun) + u'/' + stored;
    }

private:
    void add(const TestFile &file)
    {
        BackupFile entry{.name = file.name,
                         .size = file.content.size(),
                         .changed = file.changed,
                         .hash = FileHash::of(file.content)};
        qint64 offset = 0;
        int piece = 0;
        do {
            if (m_used == m_room)
                nextDisk();
            BackupPart part;
            part.name = file.name;
            part.size = entry.size;
            part.offset = offset;
            part.changed = file.changed;
            part.bytes = std::min(entry.size - offset, m_room - m_used);
            const QByteArray bytes = file.content.mid(offset, part.bytes);
            part.hash = FileHash::of(bytes);
            part.piece = part.bytes == part.size ? 0 : ++piece;
            if (offset == 0)
                entry.firstDisk = m_disk.number;
            entry.lastDisk = m_disk.number;
            m_disk.parts.append(part);
            putPart(part, bytes);
            offset += part.bytes;
            m_used += part.bytes;
        } while (offset < entry.size);
        m_record.files.append(entry);
    }

    void putPart(const BackupPart &part, const QByteArray &bytes)
    {
        if (SetFolder::isPicture(part.name) && part.piece == 0) {
            const PicturePool pool(SetFolder::picturesPath(drive(m_disk.number)));
            putFile(pool.pathFor(part.name, part.hash), bytes);
        } else {
            put(m_disk.number, m_names.add(part.name, part.piece), bytes);
        }
    }

    void put(int disk, const QString &stored, const QByteArray &bytes) { putFile(path(disk, stored), bytes); }

    static void putFile(const QString &path, const QByteArray &bytes)
    {
        QVERIFY(QDir().mkpath(QFileInfo(path).path()) && makeFile(path, bytes));
    }

    void finishDisk()
    {
        m_disk.set = m_record.set;
        m_disk.begun = m_record.begun;
        put(m_disk.number, DiskRecord::fileName, DiskRecords::encoded(m_disk));
    }

    void nextDisk()
    {
        finishDisk();
        ++m_disk.number;
        m_disk.parts.clear();
        m_names = {};
        m_used = 0;
    }

    QTemporaryDir m_dir;
    SetRecord m_record;
    DiskRecord m_disk;
    StoredNames m_names;
    qint64 m_room;
    qint64 m_used = 0;
};

/// Answers what a restore asks, in turn, and tells what was asked; without an answer left it stops.
class ScriptedDesk final : public RestoreAsker
{
public:
    DiskAnswer ask(const DiskQuestion &question) override
    {
        asked.append(question);
        if (prepare)
            prepare(question);
        return folders.isEmpty() ? DiskAnswer{}
                                 : DiskAnswer{DiskAnswer::Action::UseFolder, folders.takeFirst()};
    }
    bool takeTheRest(const QStringList &names) override
    {
        damaged = names;
        return takesRest;
    }
    bool takeDamaged(const QString &name) override
    {
        offered.append(name);
        return takesDamaged;
    }

    QStringList folders;
    std::function<void(const DiskQuestion &)> prepare; ///< before the answer
    bool takesRest = false;
    bool takesDamaged = false;
    QList<DiskQuestion> asked;
    QStringList damaged; ///< as the first question named them
    QStringList offered; ///< by the second question
};
