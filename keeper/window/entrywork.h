// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/model/keepersummary.h"
#include "keeper/window/keeperdesk.h"

#include <QObject>

#include <optional>

class EmptyPage;
class EntryView;
class KeeperPane;
class SeveralView;
class SecretBox;

/// What stands at the right of the list: one entry in its boxes, several that were chosen, or why there is
/// none.
class EntryWork final : public QObject
{
    Q_OBJECT
public:
    EntryWork(const KeeperDesk &desk, KeeperPane &pane, QObject *parent);

    EntryView &view() const { return *m_view; }
    SeveralView &several() const { return *m_several; }
    EmptyPage &emptyPage() const { return *m_empty; }
    EmptyPage &damagedPage() const { return *m_damaged; }

    /// Shows what is chosen in the list; nothing typed is asked about.
    void show(const QList<QByteArray> &ids);
    /// A new one, with `seed` in its boxes.
    void startNew(const KeeperEntry &seed);
    /// The entries are others; what is being typed stays.
    void followKeeper();
    /// The keeper was locked: nothing of an entry stays behind. What was typed is sealed, or kept where the
    /// disk refuses.
    void sealAway();
    /// The keeper was opened: the list, and what was being typed. Gives what is to be said of it.
    QString takeUp();
    /// What was typed into one of these goes with it.
    void forgetDraftOf(const QList<QByteArray> &ids);
    /// Whether the disk has refused what was typed, which is in memory alone.
    bool isDraftRefused() const { return m_kept.has_value(); }

    bool isModified() const;
    [[nodiscard]] bool save();
    void drop();

    /// The entry in the boxes; nothing while there is none.
    std::optional<KeeperEntry> entry() const;
    bool isNew() const { return m_isOpen && m_id.isEmpty(); }
    bool isLocked() const { return m_isLocked; }
    /// Of what is chosen; those that no file has are not.
    QList<QByteArray> chosen() const;
    QStringList chosenTitles() const;

signals:
    void said(const QString &line);
    void copyWanted(const QString &caption, const QString &text);
    void openWanted(const QString &address);
    void makeWanted(SecretBox *box);

private:
    void showOne(const QByteArray &id);
    void showHome(QWidget *home);
    void close();
    void forgetDraft();
    QString chipOf(const KeeperSummary *summary, const KeeperEntry &entry) const;
    QString wordsOf(const KeeperSummary *summary) const;
    void offer();
    void readHousehold();
    const KeeperSummary *summaryOf(const QByteArray &id) const;

    KeeperDesk m_desk;
    KeeperPane &m_pane;
    EntryView *m_view;
    SeveralView *m_several;
    EmptyPage *m_empty;
    EmptyPage *m_none;
    EmptyPage *m_damaged;
    QByteArray m_id; ///< of the entry in the boxes; empty for a new one
    bool m_isOpen = false;
    bool m_isLocked = false;
    QStringList m_household;           ///< the names that it knows
    std::optional<KeeperEntry> m_kept; ///< a draft that the disk refused
};
