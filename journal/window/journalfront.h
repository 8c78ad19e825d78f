// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalseal.h"
#include "journal/window/journaldesk.h"

#include <QObject>

#include <chrono>

class JournalDoor;
class JournalLock;
class JournalSealer;
class QMenu;

/// What stands between a sealed journal and the window that shows it: the question for its password, what
/// seals it and opens its seal, and the rules by which it locks itself.
class JournalFront final : public QObject
{
    Q_OBJECT
public:
    /// `step` is what each further wrong answer waits longer.
    JournalFront(const JournalDesk &desk, std::chrono::milliseconds step, QObject *parent);

    void addLockCommands(QMenu *options);
    void addSealCommands(QMenu *utilities);

    /// Whether the journal may be shown now.
    bool isOpen() const;
    /// Has the journal shown, or shows what stands in front of it.
    void enter();
    /// Closes what is open over a sealed journal, saves, and has everything forgotten; the key goes last.
    void lock();
    /// The same with what the files say now. False where that is what it was.
    bool follow();
    /// The window was minimised.
    void minimised();

signals:
    /// The journal is to be shown.
    void entered();
    /// Nothing of it is to be shown.
    void shut();
    /// Nothing of any entry is to be left in the window.
    void forgetting();
    /// The years on the disk are others now.
    void walked();
    void codePrintWanted(const QString &code);
    void codeLeft();
    void said(const QString &line);
    void progressed(int done, int total);

private:
    JournalSeal &seal() const;
    void goIn(const QString &line, bool isByCode);

    JournalDesk m_desk;
    JournalDoor *m_door;
    JournalSealer *m_sealer;
    JournalLock *m_lock;
    JournalSeal::State m_state = JournalSeal::State::None; ///< for which the window shows what it shows
};
