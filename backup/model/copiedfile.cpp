// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/copiedfile.h"

#include "backup/model/filehash.h"

namespace {

using Kind = DiskQuestion::Kind;
using Reading = RestoreSource::Reading;

/// Takes the one file and nothing else.
class Catcher final : public RestoreSource::Visitor
{
public:
    explicit Catcher(const BackupFile &file)
        : m_file(file)
    {}

    bool wants(const BackupPart &part) override
    {
        m_isCaught = m_isCaught || part.name == m_file.name;
        return part.name == m_file.name && part.bytes <= CopiedFile::mostBytes;
    }
    bool take(QByteArrayView bytes) override
    {
        m_bytes += bytes;
        return true;
    }
    bool end(bool) override { return false; }

    bool isCaught() const { return m_isCaught; }
    QByteArray content() const { return FileHash::of(m_bytes) == m_file.hash ? m_bytes : QByteArray(); }

private:
    const BackupFile &m_file;
    QByteArray m_bytes;
    bool m_isCaught = false;
};

} // namespace

std::optional<QByteArray> CopiedFile::read(RestoreSource &source, const SetRecord &set,
                                           const BackupFile &file, QString &drive, DiskAsker &asker)
{
    DiskQuestion question{.disk = file.firstDisk, .disks = set.disks};
    for (;;) {
        Catcher catcher(file);
        const Reading reading = source.read(drive, file.firstDisk, catcher);
        // The source has stopped where it was told to, or there is no such file on its disk.
        if (reading == Reading::Done || catcher.isCaught())
            return catcher.content();
        question.folder = drive;
        const DiskAnswer answer = asker.ask(question);
        if (answer.action == DiskAnswer::Action::Stop)
            return std::nullopt;
        if (answer.action == DiskAnswer::Action::UseFolder)
            drive = answer.folder;
        question.kind = reading == Reading::WrongDisk ? Kind::WrongDisk : Kind::NextDisk;
    }
}
