// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/window/journaldesk.h"

#include <QObject>

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
    /// Nothing of any entry is left.
    void forget();

signals:
    void said(const QString &line);
    void progressed(int done, int total);
    /// Days came in, of which each can be brought back as it was.
    void broughtIn();

private:
    void openImport();
    void openExport();
    void exportTo();

    void tookBack();
    /// These are to become pages in a file, all of one tag where there is one.
    void pagesWanted(const QList<JournalEntry> &entries, const QString &tag);
    JournalDesk m_desk;
    JournalImportPanel *m_import = nullptr;
    ExportPanel *m_export = nullptr;
};
