// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalpages.h"

#include <optional>

/// Entries of the journal on their way to paper: the text with its light marks, and the pictures at their
/// place.
class EntryPaper
{
public:
    EntryPaper(Page &page, const JournalPages::Source &source, const JournalPages::Options &options,
               const PageContext &context);

    /// The entry below `heading`, which tells its date; without one, the page's title does. `mark` is that of
    /// its sheet.
    void add(const JournalEntry &entry, const QString &heading = {}, int mark = 0);

private:
    void addText(const JournalEntry &entry);
    void addLine(QStringView line);
    void addPicture(const JournalPicture &picture);
    void addQuiet(const QString &words, bool staysWithNext);
    void endParagraph();
    void fillGap();
    QString factsOf(QDate date) const;
    QString writtenOn(const JournalEntry &entry) const;

    Page &m_page;
    const JournalPages::Source &m_source;
    const JournalPages::Options &m_options;
    const PageContext &m_context;
    bool m_isBelowHeading = false;               ///< headings of the text are smaller than those of the days
    bool m_hasTextAbove = false;                 ///< of the same entry, right above
    bool m_isGapDue = false;                     ///< a blank line, as soon as more text comes
    std::optional<PageItem::Paragraph> m_last{}; ///< of the text, not on the page yet
};
