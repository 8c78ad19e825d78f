// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/window/journaldesk.h"
#include "journal/window/sealpanel.h"

#include <QObject>

#include <functional>
#include <memory>

class JournalCodePanel;
class JournalSeal;
class QMenu;
class SealingWalk;
class SlicedWork;
class ThreadedStep;

/// Seals the journal, opens the seal for good, and gives it another password or recovery code. Keys are made
/// on a thread of their own; the years are walked over one at a time.
class JournalSealer final : public QObject
{
    Q_OBJECT
public:
    JournalSealer(const JournalDesk &desk, QObject *parent);
    ~JournalSealer() override;

    void addCommands(QMenu *utilities);
    /// The journal was unlocked: a walk that was cut short is finished, and whoever came by the recovery code
    /// is asked for a new password. `line` is what the unlocking says: what the walk says goes behind it.
    void goOn(const QString &line, bool isByCode);
    /// The journal is locked: a walk ends behind the year that it is at, and nothing that was typed or made
    /// is left.
    void forget();

signals:
    /// The years on the disk are others now.
    void walked();
    void codePrintWanted(const QString &code);
    /// The code is kept, or given up: no page of it is needed any more.
    void codeLeft();
    void said(const QString &line);
    void progressed(int done, int total);

private:
    struct Made;
    using MadeKeys = std::shared_ptr<Made>;

    JournalSeal &seal() const;
    QString strengthOf(const QString &typed) const;
    QString whyNotPlain() const;
    QString whyNotOpen() const;
    void openPanel(SealPanel::Kind kind);
    void chosen(const QString &old, const QString &password);
    void makeSeal(const QString &password);
    void makeCode();
    void askForCode(const MadeKeys &made);
    void useCode();
    void openSeal(const QString &password);
    void changePassword(const QString &old, const QString &password);
    using Words = std::function<QString()>;
    void walk(const Words &done);
    void endWalk(const Words &done);
    QString sealedWords() const;
    QString openedWords() const;
    void work(const std::function<void()> &slow, const std::function<void()> &then);

    JournalDesk m_desk;
    ThreadedStep *m_step;
    SlicedWork *m_walking;
    std::unique_ptr<SealingWalk> m_walk;
    SealPanel *m_panel = nullptr;
    JournalCodePanel *m_code = nullptr;
    SealPanel::Kind m_kind = SealPanel::Seal;
    QString m_before; ///< what the unlocking has said
    MadeKeys m_made;  ///< keys that wait for the code to be typed in
};
