// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalentry.h"
#include "shell/controls/importpreview.h"

class Journal;
class JournalImport;

/// The preview of a text that comes into the journal: what each of its days becomes there.
class JournalImportPanel final : public ImportPreview
{
    Q_OBJECT
public:
    explicit JournalImportPanel(Journal &journal);

    /// Shows the file at `path`. False, with the reason said, when it cannot be read.
    bool open(const QString &path);
    /// Nothing of the file is left.
    void forget();

signals:
    /// What was typed is to be in the journal now.
    void taking();
    /// The ticked days are in the journal, which had these before.
    void taken(const QList<JournalEntry> &before);

protected:
    QString hint() const override;
    QString whatBecomes() const override;
    void take() override;

private:
    Journal &m_journal;
    JournalImport *m_import = nullptr;
};
