// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journalimportpanel.h"

#include "journal/model/journalimport.h"
#include "journal/window/windowlines.h"

using namespace Qt::Literals::StringLiterals;

JournalImportPanel::JournalImportPanel(Journal &journal)
    : ImportPreview({.name = u"journalImport"_s,
                     .take = u"&Take These Days"_s,
                     .lines = u"Days of the file"_s,
                     .filters = JournalImport::filters()})
    , m_journal(journal)
{}

bool JournalImportPanel::open(const QString &path)
{
    const auto bytes = contents(path);
    if (!bytes)
        return false;
    auto import = std::make_unique<JournalImport>(*bytes, m_journal);
    m_import = import.get();
    read(std::move(import));
    return true;
}

QString JournalImportPanel::hint() const
{
    return JournalWindowLines::whatIsTaken();
}

QString JournalImportPanel::whatBecomes() const
{
    return JournalWindowLines::toBeTaken(m_import->chosenCount(), int(m_import->lineCount()));
}

void JournalImportPanel::take()
{
    emit taking();
    const QList<JournalEntry> before = m_import->take();
    leave();
    forget();
    emit taken(before);
}

void JournalImportPanel::forget()
{
    if (!m_import)
        return;
    auto nothing = std::make_unique<JournalImport>(QByteArray(), m_journal);
    m_import = nothing.get();
    read(std::move(nothing));
}
