// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/window/keeperdesk.h"

#include <QByteArray>
#include <QList>
#include <QObject>

#include <functional>

class EntryWork;
class KeeperPane;
class QAction;
class QMenu;
class QUrl;
struct KeeperSummary;
struct UndoStep;

/// What can be done with the entries that are chosen: copied from, opened, changed, thrown away and brought
/// back.
class EntryCommands final : public QObject
{
    Q_OBJECT
public:
    EntryCommands(const KeeperDesk &desk, EntryWork &work, KeeperPane &pane, QObject *parent);

    void addEntryCommands(QMenu *edit);
    void addCopyCommands(QMenu *edit);
    void addTrashCommands(QMenu *edit);
    /// Buttons of the entry, of several, of the empty page.
    void makeButtons();

    QAction *newCommand() const { return m_new; }
    QAction *removeCommand() const { return m_remove; }

    /// Opens an address in the browser; a test puts its own in.
    std::function<bool(const QUrl &)> openAddress;

signals:
    void said(const QString &line);
    /// What `line` says was done and can be taken back.
    void done(const QString &line, const UndoStep &step);
    /// Asks about what was typed; the answer comes back through `isFree`.
    void replacing(bool *isFree);

private:
    using Reason = std::function<QString()>;

    void copy(quint8 field);
    void copyText(const QString &caption, const QString &text);
    void copyCode();
    void open(const QString &address);
    void startNew();
    void duplicate();
    void turnFavourite();
    void changeTags(const QString &tag, bool isGiven);
    void remove();
    void bringBack();
    void removeForGood();
    void emptyTrash();
    void giveUpDamaged();
    UndoStep trashing(const QString &title, const QList<QByteArray> &ids, bool isTrashed);

    const KeeperSummary *only() const;
    bool mayReplace();
    QString whyLocked() const;
    QString whyNoEntry() const;
    QString whyNoneChosen() const;
    QString whyNotInTrash() const;
    bool isTrashChosen() const;

    KeeperDesk m_desk;
    EntryWork &m_work;
    KeeperPane &m_pane;
    QAction *m_new = nullptr;
    QAction *m_save = nullptr;
    QAction *m_duplicate = nullptr;
    QAction *m_favourite = nullptr;
    QAction *m_remove = nullptr;
    QAction *m_back = nullptr;
    QAction *m_giveUp = nullptr;
};
