// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalpages.h"
#include "journal/window/journaldesk.h"

#include <QObject>

#include <memory>

class JournalPrintPanel;
class QMenu;
class QMimeData;

/// What of the journal leaves the window onto paper.
class JournalPrint final : public QObject
{
    Q_OBJECT
public:
    JournalPrint(const JournalDesk &desk, QObject *parent);

    void addCommands(QMenu *options);
    /// The sheet with a recovery code that was just made.
    void showRecoverySheet(const QString &code);
    /// What the clipboard gets of a day: its text, and its page as a picture.
    std::unique_ptr<QMimeData> copied(const JournalEntry &entry) const;
    /// Asks where to, and saves the pages of these entries there, all of one tag where there is one.
    void savePages(const QList<JournalEntry> &entries, const QString &tag);
    /// No page of it is left.
    void forget();

signals:
    void said(const QString &line);

private:
    void openPanel();
    PageContext usualContext() const;
    void print();
    JournalPages::Source sourceOf(const QList<JournalEntry> &entries) const;
    void show(QDate from, QDate to, const QString &tag,
              std::function<Page(const JournalPages::Source &, const PageContext &)> builder,
              const QString &name);

    JournalDesk m_desk;
    JournalPrintPanel *m_panel = nullptr;
    bool m_hasPages = false;
};
