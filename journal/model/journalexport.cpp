// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalexport.h"

#include "journal/model/journalform.h"
#include "shell/core/lightmarks.h"

using namespace Qt::Literals::StringLiterals;

QList<JournalEntry> JournalExport::entries(Journal &journal, const Selection &selection)
{
    QList<JournalEntry> entries;
    for (const int year : journal.years()) {
        if ((selection.from.isValid() && year < selection.from.year()) ||
            (selection.to.isValid() && year > selection.to.year()))
            continue;
        for (const QDate date : journal.dates(year)) {
            if ((selection.from.isValid() && date < selection.from) ||
                (selection.to.isValid() && date > selection.to))
                continue;
            const std::optional<JournalEntry> entry = journal.entry(date);
            if (entry &&
                (selection.tag.isEmpty() || entry->tags.contains(selection.tag, Qt::CaseInsensitive)))
                entries.append(*entry);
        }
    }
    return entries;
}

QByteArray JournalExport::text(const QList<JournalEntry> &entries)
{
    JournalBlocks blocks;
    blocks.reserve(std::size_t(entries.size()));
    for (const JournalEntry &entry : entries)
        blocks.push_back(JournalForm::block(entry, JournalBlock::Entry));
    return JournalForm::file(blocks);
}

QString JournalExport::plainText(const JournalEntry &entry)
{
    QStringList lines;
    for (const QString &line : entry.text.split(u'\n')) {
        const MarkedLine marked = LightMarks::of(line);
        if (marked.kind == MarkedLine::Picture && marked.picture <= entry.pictures.size())
            lines.append(entry.pictures[marked.picture - 1].caption);
        else if (marked.kind == MarkedLine::List)
            lines.append(QString(2 * marked.indent, u' ') + u"- " + LightMarks::plain(line));
        else
            lines.append(LightMarks::plain(line));
    }
    return lines.join(u'\n');
}
