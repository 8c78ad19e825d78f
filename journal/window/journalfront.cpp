// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journalfront.h"

#include "journal/model/journal.h"
#include "journal/window/journaldoor.h"
#include "journal/window/journallock.h"
#include "journal/window/journalsealer.h"
#include "journal/window/openday.h"
#include "journal/window/seallines.h"
#include "shell/frame/functionwindow.h"
#include "storage/sealing/freememory.h"

#include <QDialog>

JournalFront::JournalFront(const JournalDesk &desk, std::chrono::milliseconds step, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_door(new JournalDoor(desk, step, this))
    , m_sealer(new JournalSealer(desk, this))
    , m_lock(new JournalLock(desk, this))
{
    connect(m_door, &JournalDoor::opened, this, &JournalFront::goIn);
    connect(m_door, &JournalDoor::cleared, this, &JournalFront::enter);
    connect(m_door, &JournalDoor::lockDue, this, &JournalFront::lock);
    connect(m_door, &JournalDoor::said, this, &JournalFront::said);
    connect(m_lock, &JournalLock::due, this, &JournalFront::lock);
    connect(m_lock, &JournalLock::said, this, &JournalFront::said);
    connect(m_sealer, &JournalSealer::said, this, &JournalFront::said);
    connect(m_sealer, &JournalSealer::codePrintWanted, this, &JournalFront::codePrintWanted);
    connect(m_sealer, &JournalSealer::codeLeft, this, &JournalFront::codeLeft);
    connect(m_sealer, &JournalSealer::progressed, this, &JournalFront::progressed);
    connect(m_sealer, &JournalSealer::walked, this, &JournalFront::walked);
    connect(&seal(), &JournalSeal::changed, this, [this] { m_state = seal().state(); });
}

JournalSeal &JournalFront::seal() const
{
    return m_desk.journal.seal();
}

void JournalFront::addLockCommands(QMenu *options)
{
    m_lock->addCommands(options);
}

void JournalFront::addSealCommands(QMenu *utilities)
{
    m_sealer->addCommands(utilities);
}

bool JournalFront::isOpen() const
{
    return m_state == JournalSeal::State::None || m_state == JournalSeal::State::Open;
}

void JournalFront::enter()
{
    m_state = seal().state();
    if (m_door->show())
        emit shut();
    else
        emit entered();
}

void JournalFront::goIn(const QString &line, bool isByCode)
{
    emit entered();
    if (m_desk.journal.isModified()) // what the disk had refused before
        m_desk.day.save();
    emit said(line);
    m_sealer->goOn(line, isByCode);
}

/// No box that stands open holds it up.
void JournalFront::lock()
{
    if (!seal().isOpen()) {
        m_door->lockBehind();
        return;
    }
    for (QDialog *dialog : m_desk.window.findChildren<QDialog *>())
        dialog->reject();
    m_desk.day.save();
    m_sealer->forget();
    emit forgetting();
    seal().lock();
    enter();
    if (m_desk.journal.isModified())
        emit said(SealLines::heldBySeal());
    // Behind what is deleted later.
    QMetaObject::invokeMethod(this, &FreeMemory::wipe, Qt::QueuedConnection);
}

bool JournalFront::follow()
{
    if (seal().state() == m_state)
        return false;
    m_sealer->forget();
    emit forgetting();
    enter();
    return true;
}

void JournalFront::minimised()
{
    m_lock->minimised();
}
