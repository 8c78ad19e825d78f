// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalentry.h"
#include "journal/window/journaldesk.h"

#include <QObject>

#include <utility>
#include <vector>

class ExportPanel;
class JournalImportPanel;
class QMenu;

/// What comes into the journal from a file, and what leaves it as one.
class JournalExchange final : public QObject
{
    Q_OBJECT
public:
    JournalExchange(const JournalDesk &desk, QObject *parent);

    void addCommands(QMenu *utilities);
    /// Undoes the last import, but for days that were changed since.
    void takeBack();
    /// Nothing of any entry is left.
    void forget();

signals:
    void said(const QString &line);
    void progressed(int done, int total);
    /// Days came in, which `takeBack` undoes, or were taken back.
    void broughtIn();
    void tookBack();
    /// These are to become pages in a file, all of one tag where there is one.
    void pagesWanted(const QList<JournalEntry> &entries, const QString &tag);

private:
    void openImport();
    void keep(const QList<JournalEntry> &before);
    void openExport();
    JournalEntry entryOf(QDate date) const;
    void exportTo();

    JournalDesk m_desk;
    JournalImportPanel *m_import = nullptr;
    ExportPanel *m_export = nullptr;
    /// Days as the last import found them and as it left them.
    std::vector<std::pair<JournalEntry, JournalEntry>> m_cameIn;
};
