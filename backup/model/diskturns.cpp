// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/diskturns.h"

#include <QFileInfo>

#include <utility>

DiskTurns::DiskTurns(const RestoreSource &source, DiskAsker &asker, int disks, QString drive,
                     const std::atomic_bool &isStopped)
    : m_source(source)
    , m_asker(asker)
    , m_disks(disks)
    , m_drive(std::move(drive))
    , m_isStopped(isStopped)
{}

/// The drive of the disk before is tried first: a disk in its place has been changed perhaps, or all of them
/// are folders of one drive.
bool DiskTurns::read(int number, const Read &attempt)
{
    bool isAsked = false;
    DiskQuestion question{.disk = number, .disks = m_disks};
    for (;;) {
        if (isAsked || m_drive.isEmpty()) {
            const DiskAnswer answer = m_asker.ask(question);
            if (answer.action == DiskAnswer::Action::Stop || m_isStopped)
                return false;
            if (answer.action == DiskAnswer::Action::UseFolder)
                m_drive = answer.folder;
            isAsked = true;
        }
        const std::optional<Attempt> came = attempt(m_drive);
        if (!came || came->reading == RestoreSource::Reading::Done)
            return came.has_value();
        question = questionAfter(*came, number, isAsked);
        isAsked = true;
    }
}

DiskQuestion DiskTurns::questionAfter(const Attempt &attempt, int number, bool isAsked) const
{
    using Kind = DiskQuestion::Kind;
    DiskQuestion question{.disk = number, .disks = m_disks, .folder = m_drive};
    if (attempt.reading == RestoreSource::Reading::Damaged) {
        question.kind = Kind::NotRead;
        question.file = DiskRecord::fileName;
    } else if (attempt.hasBegun) {
        question.kind = Kind::DiskGone;
    } else if (isAsked && QFileInfo(m_drive).isDir()) {
        question.kind = Kind::WrongDisk;
        if (const std::optional<DiskRecord> found = m_source.diskAt(m_drive)) {
            question.foundSet = found->begun;
            question.foundNumber = found->number;
        }
    }
    return question;
}
