// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "backup/model/backuprun.h"
#include "backup/model/diskrecords.h"
#include "backup/model/storednames.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QMap>
#include <QProcess>
#include <QStandardPaths>

#include <deque>
#include <functional>

/// Contents of files by their names.
using Contents = QMap<QString, QByteArray>;

/// All files below the folder but the record of a whole set.
inline Contents contentsIn(const QString &folder)
{
    Contents all;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = files.next();
        if (!file.endsWith(SetRecord::fileName))
            all.insert(file, contentOf(file));
    }
    return all;
}

/// Answers questions in turn, and remembers them.
class ScriptedAsker final : public DiskAsker
{
public:
    using Answer = std::function<DiskAnswer(const DiskQuestion &)>;

    explicit ScriptedAsker(std::deque<Answer> answers = {})
        : m_answers(std::move(answers))
    {}

    DiskAnswer ask(const DiskQuestion &question) override
    {
        asked.append(question);
        if (m_answers.empty() || asked.size() > most) // a run that asks for ever fails its test, and ends
            return {};
        const Answer answer = m_answers.front();
        // The last one stays.
        if (m_answers.size() > 1)
            m_answers.pop_front();
        return answer(question);
    }

    static DiskAnswer tryAgain(const DiskQuestion &) { return {DiskAnswer::Action::TryAgain, {}}; }
    static DiskAnswer stop(const DiskQuestion &) { return {}; }
    static Answer use(const QString &folder)
    {
        return [folder](const DiskQuestion &) { return DiskAnswer{DiskAnswer::Action::UseFolder, folder}; };
    }

    QList<DiskQuestion> asked;

private:
    static constexpr int most = 500;

    std::deque<Answer> m_answers;
};

/// A household, pictures that lie elsewhere, and folders in the place of disks.
class BackupHousehold
{
public:
    BackupHousehold()
    {
        QDir(m_dir.path()).mkpath(QStringLiteral("house"));
        QDir(m_dir.path()).mkpath(QStringLiteral("elsewhere"));
    }

    QString path(const QString &name) const { return m_dir.filePath(QStringLiteral("house/") + name); }
    QString elsewhere(const QString &name) const
    {
        return m_dir.filePath(QStringLiteral("elsewhere/") + name);
    }
    /// Made when it is first asked for.
    QString disk(int number) const
    {
        const QString folder = m_dir.filePath(QStringLiteral("disk%1").arg(number));
        QDir().mkpath(folder);
        return folder;
    }
    DataFolder folder() const { return DataFolder(m_dir.filePath(QStringLiteral("house"))); }

    void put(const QString &name, const QByteArray &content) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QVERIFY(makeFile(path(name), content));
    }
    void putElsewhere(const QString &name, const QByteArray &content) const
    {
        QVERIFY(makeFile(elsewhere(name), content));
    }

    Holdings holdings() const
    {
        QStringList pictures;
        for (const QString &name : QDir(m_dir.filePath(QStringLiteral("elsewhere"))).entryList(QDir::Files))
            pictures.append(elsewhere(name));
        return Holdings::of(folder(),
                            {{QStringLiteral("AddressBook"), {QStringLiteral("Addbk1.Fil")}, pictures}},
                            QByteArray("[desk]\n"));
    }
    /// To the first disk; a limit of room is each disk's.
    BackupJob job(qint64 room = 0) const
    {
        BackupJob job;
        job.items = holdings().items;
        job.household = folder();
        job.folder = disk(1);
        job.drive = QStringLiteral("SILVER");
        job.begun = QDateTime({2026, 11, 23}, {19, 30}, Qt::UTC);
        job.now = [] { return QDateTime({2026, 11, 23}, {19, 31}, Qt::UTC); };
        if (room > 0)
            job.room = DiskRoom{room, 512};
        return job;
    }

    /// What a restore would find, by the names in the records.
    Contents wanted() const
    {
        Contents all;
        for (const BackupItem &item : holdings().items)
            all.insert(item.name, item.path.isEmpty() ? item.content : contentOf(item.path));
        return all;
    }
    Contents house() const { return contentsIn(m_dir.filePath(QStringLiteral("house"))); }

    /// The folder of the last set on a disk.
    QString setFolder(int number) const
    {
        const QDir top(disk(number) + QStringLiteral("/Quillery Backup"));
        QStringList sets = top.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        sets.removeAll(QStringLiteral("Pictures"));
        return sets.isEmpty() ? QString() : top.filePath(sets.constLast());
    }
    /// Put together from the disks of the set whose record is on disk `last`.
    Contents stored(int last) const
    {
        Contents all;
        const auto set = DiskRecords::readSet(setFolder(last));
        if (!set)
            return all;
        QMap<QString, BackupFile> files;
        for (const BackupFile &file : set->files)
            files.insert(file.name, file);
        for (int number = 1; number <= last; ++number) {
            const auto disk = DiskRecords::readDisk(setFolder(number));
            if (!disk || disk->set != set->set)
                continue;
            const QStringList paths = PartPaths(setFolder(number), *disk).paths();
            for (qsizetype i = 0; i < paths.size(); ++i) {
                const BackupFile file = files.value(disk->parts[i].name);
                if (file.firstDisk <= number && number <= file.lastDisk)
                    all[file.name] += contentOf(paths[i]);
            }
        }
        return all;
    }

private:
    QTemporaryDir m_dir;
};

/// Whether `sha256sum -c` finds the files as they were written.
inline bool sumsAgree(const QString &folder)
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("sha256sum"));
    if (program.isEmpty())
        return true;
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(program, {QStringLiteral("-c"), QStringLiteral("--strict"), QStringLiteral("SHA256SUMS")});
    return process.waitForFinished() && process.exitCode() == 0;
}
