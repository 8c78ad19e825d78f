// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalpages.h"
#include "journal/window/journaldesk.h"

#include <QObject>

class JournalPrintPanel;
class QMenu;

/// What of the journal leaves the window onto paper.
class JournalPrint final : public QObject
{
    Q_OBJECT
public:
    JournalPrint(const JournalDesk &desk, QObject *parent);

    void addCommands(QMenu *options);
    /// The sheet with a recovery code that was just made.
    void showRecoverySheet(const QString &code);
    /// No page of it is left.
    void forget();

signals:
    void said(const QString &line);

private:
    void openPanel();
    void print();
    JournalPages::Source sourceOf(const QList<JournalEntry> &entries) const;
    void show(QDate from, QDate to, const QString &tag,
              std::function<Page(const JournalPages::Source &, const PageContext &)> builder,
              const QString &name);

    JournalDesk m_desk;
    JournalPrintPanel *m_panel = nullptr;
    bool m_hasPages = false;
};
