// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/setcheck.h"

#include "backup/model/copycount.h"
#include "backup/model/diskrecords.h"
#include "backup/model/filecopier.h"
#include "backup/model/picturepool.h"
#include "backup/model/setfolder.h"
#include "backup/model/storednames.h"
#include "backup/model/sumsfile.h"
#include "storage/saving.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int daysBetweenTests = 90;
constexpr qint64 tellEvery = 100; ///< milliseconds
constexpr qint64 longestSums = 1000;

} // namespace

/// Reads the disks from the last to the first: the one with the set's record is there when a test is asked
/// for.
class SetCheck::Work
{
public:
    Work(const Job &job, DiskAsker &asker, const Progress &progress, const std::atomic_bool &isStopped)
        : m_job(job)
        , m_asker(asker)
        , m_progress(progress)
        , m_isStopped(isStopped)
        , m_drive(job.drive)
        , m_copier([this](qint64 bytes) { return goOn(bytes); })
        , m_count(job.count)
    {
        m_clock.start();
    }

    CheckReport run()
    {
        const std::optional<SetRecord> set = DiskRecords::readSet(m_job.folder);
        if (!set)
            return m_report;
        m_report.set = *set;
        begin();
        for (int left = set->disks; left > 0; --left) {
            // The last one is there; the others come in their order.
            const int number = left == set->disks ? set->disks : set->disks - left;
            const QString folder = number == set->disks ? m_job.folder : ask(number);
            if (folder.isEmpty() || !readDisk(folder, number))
                return m_report;
        }
        finish();
        return m_report;
    }

private:
    /// What is known of a file from the parts that were read.
    struct Found {
        qint64 bytes = 0;
        bool isDamaged = false;
    };

    void begin()
    {
        for (const BackupFile &file : std::as_const(m_report.set.files)) {
            m_files.insert(file.name, &file);
            m_shown.allBytes += file.size;
        }
        m_shown.allFiles = int(m_report.set.files.size());
        m_shown.disks = m_report.set.disks;
        m_shown.step = DiskProgress::Step::ReadingBack;
    }

    /// The folder of the set on its disk `number`; empty where the test is stopped.
    QString ask(int number)
    {
        DiskQuestion question{
            .kind = DiskQuestion::Kind::NextDisk, .disk = number, .disks = m_report.set.disks};
        while (!m_isStopped) {
            question.folder = m_drive;
            const DiskAnswer answer = m_asker.ask(question);
            if (answer.action == DiskAnswer::Action::Stop)
                break;
            if (answer.action == DiskAnswer::Action::UseFolder)
                m_drive = answer.folder;
            question.foundSet = {};
            question.foundNumber = 0;
            if (QString folder = folderOf(question); !folder.isEmpty())
                return folder;
            question.kind = question.foundNumber > 0     ? DiskQuestion::Kind::WrongDisk
                            : QFileInfo(m_drive).isDir() ? DiskQuestion::Kind::NotRead
                                                         : DiskQuestion::Kind::NextDisk;
        }
        return {};
    }

    /// The folder of that disk on the drive. Where there is another disk, or another set, the question says
    /// so.
    QString folderOf(DiskQuestion &question) const
    {
        const QDir top(m_drive + u'/' + SetFolder::top);
        QStringList names = top.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::Reversed);
        names.removeAll(QString(SetFolder::pictures));
        for (const QString &name : std::as_const(names)) {
            const std::optional<DiskRecord> record = DiskRecords::readDisk(top.filePath(name));
            if (!record)
                continue;
            if (record->set == m_report.set.set && record->number == question.disk)
                return top.filePath(name);
            if (question.foundNumber == 0 || record->set == m_report.set.set) {
                question.foundSet = record->begun;
                question.foundNumber = record->number;
            }
        }
        return {};
    }

    bool readDisk(const QString &folder, int number)
    {
        m_shown.disk = number;
        const std::optional<DiskRecord> record = DiskRecords::readDisk(folder);
        const bool isIt = record && record->set == m_report.set.set;
        if (m_report.set.isSealed) {
            if (isIt)
                return readSealed(folder, number);
            addSealed(number);
        }
        if (!isIt) // its files are found to be missing at the end
            return true;
        const QStringList paths = PartPaths(folder, *record).paths();
        for (qsizetype i = 0; i < paths.size(); ++i) {
            const BackupPart &part = record->parts[i];
            const BackupFile *file = m_files.value(part.name);
            // A part that a later disk has anew.
            if (!file || number < file->firstDisk || number > file->lastDisk)
                continue;
            m_shown.file = part.name;
            QByteArray hash;
            const FileCopier::Result result = m_copier.readBack(paths[i], hash);
            if (result == FileCopier::Result::Stopped || m_isStopped)
                return false;
            Found &found = m_found[part.name];
            found.bytes += part.bytes;
            found.isDamaged = found.isDamaged || result != FileCopier::Result::Done || hash != part.hash ||
                              (part.piece == 0 && hash != file->hash);
            if (result == FileCopier::Result::Done && part.piece == 0 && SetFolder::isPicture(part.name))
                PicturePool::look(paths[i], hash);
            if (!found.isDamaged && part.piece == 0)
                m_count.add(part.name, paths[i]);
        }
        return true;
    }

    /// A sealed disk tells its hash to everybody, and what is in it to nobody.
    bool readSealed(const QString &folder, int number)
    {
        QFile list(folder + u'/' + SetFolder::sums);
        const QByteArray sums = list.open(QIODevice::ReadOnly) ? list.read(longestSums) : QByteArray();
        m_shown.file = SetFolder::sealed;
        QByteArray hash;
        const FileCopier::Result result = m_copier.readBack(folder + u'/' + m_shown.file, hash);
        if (result == FileCopier::Result::Stopped || m_isStopped)
            return false;
        if (result == FileCopier::Result::Done && sums == SumsFile::line(hash, m_shown.file))
            ++m_report.files;
        else
            addSealed(number);
        return true;
    }

    /// The sealed file of that disk is damaged: they all have one name.
    void addSealed(int number)
    {
        const QString name = SetFolder::sealed;
        m_report.damaged.append(m_report.set.disks > 1 ? u"%1 on disk %2"_s.arg(name).arg(number) : name);
    }

    void finish()
    {
        for (const BackupFile &file : std::as_const(m_report.set.files)) {
            const Found found = m_found.value(file.name);
            if (found.isDamaged || found.bytes != file.size || !m_found.contains(file.name))
                m_report.damaged.append(file.name);
            else
                ++m_report.files;
        }
        m_report.counts = m_count.ofGathered();
        m_report.end = CheckReport::End::Complete;
        if (m_report.damaged.isEmpty())
            note();
    }

    /// Only a test that found everything counts as one.
    void note()
    {
        m_report.set.tested = m_job.now();
        const QByteArray content = DiskRecords::encoded(m_report.set);
        m_report.isNoted = Saving::replaceFile(DataFolder(m_job.folder), SetRecord::fileName, content);
        const std::optional<SetRecord> last = DiskRecords::readSet(m_job.household.path());
        if (last && last->set == m_report.set.set)
            m_report.isNoted = Saving::replaceFile(m_job.household, SetRecord::fileName, content);
    }

    bool goOn(qint64 bytes)
    {
        m_shown.bytes = std::min(m_shown.bytes + bytes, m_shown.allBytes);
        const qint64 now = m_clock.elapsed();
        if (m_progress && (m_lastTold < 0 || now - m_lastTold >= tellEvery)) {
            m_lastTold = now;
            m_shown.seconds = now / 1000;
            m_shown.files = int(m_found.size());
            m_progress(m_shown);
        }
        return !m_isStopped;
    }

    const Job &m_job;
    DiskAsker &m_asker;
    const Progress &m_progress;
    const std::atomic_bool &m_isStopped;
    QString m_drive;
    FileCopier m_copier;
    CheckReport m_report;
    QHash<QString, const BackupFile *> m_files;
    QHash<QString, Found> m_found;
    CopyCount m_count;
    DiskProgress m_shown;
    QElapsedTimer m_clock;
    qint64 m_lastTold = -1;
};

SetCheck::SetCheck(Job job, DiskAsker &asker, Progress progress)
    : m_job(std::move(job))
    , m_asker(asker)
    , m_progress(std::move(progress))
{}

CheckReport SetCheck::run()
{
    return Work(m_job, m_asker, m_progress, m_isStopped).run();
}

bool isTestDue(const SetRecord &record, const QDateTime &now)
{
    const QDateTime last = record.tested.isValid() ? record.tested : record.ended;
    return last.isValid() && last.daysTo(now) >= daysBetweenTests;
}
