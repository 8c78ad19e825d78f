// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/entrypaper.h"

#include "journal/model/pagelines.h"
#include "shell/core/dates.h"
#include "shell/core/lightmarks.h"

#include <set>

using namespace Qt::Literals::StringLiterals;

namespace {

using JournalPages::PictureSize;

/// The largest place for a picture, in inches.
QSizeF placeOf(PictureSize size, const PageContext &context)
{
    const QSizeF sheet = context.setup.sheet();
    switch (size) {
    case PictureSize::Small:
        return {0.4 * sheet.width(), 0.2 * sheet.height()};
    case PictureSize::Medium:
        return {0.6 * sheet.width(), 0.32 * sheet.height()};
    case PictureSize::Large:
    case PictureSize::None:
        break;
    }
    return {sheet.width(), 0.6 * sheet.height()};
}

std::vector<PageItem::Run> runsOf(const MarkedLine &marked, QStringView line)
{
    std::vector<PageItem::Run> runs;
    runs.reserve(marked.runs.size());
    for (const MarkedRun &run : marked.runs)
        runs.push_back({line.sliced(run.at, run.length).toString(), run.isBold, run.isItalic});
    return runs;
}

} // namespace

EntryPaper::EntryPaper(Page &page, const JournalPages::Source &source, const JournalPages::Options &options,
                       const PageContext &context)
    : m_page(page)
    , m_source(source)
    , m_options(options)
    , m_context(context)
{}

void EntryPaper::add(const JournalEntry &entry, const QString &heading, int mark)
{
    m_isBelowHeading = !heading.isEmpty();
    if (m_isBelowHeading)
        m_page.paragraph({.runs = {{heading}}, .role = TextRole::Heading, .mark = mark});
    if (const QString facts = factsOf(entry.date); !facts.isEmpty()) {
        addQuiet(facts, true);
        addQuiet({}, true); // room, behind which no sheet ends either
    }
    m_hasTextAbove = false;
    m_isGapDue = false;
    addText(entry);
    QStringList below;
    if (!entry.tags.isEmpty())
        below << entry.tags.join(u", "_s);
    if (const QString words = writtenOn(entry); !words.isEmpty())
        below << words;
    if (m_last && !below.isEmpty())
        m_last->staysWithNext = true;
    endParagraph();
    if (below.isEmpty())
        return;
    m_isGapDue = m_hasTextAbove;
    fillGap();
    addQuiet(below.join(u"  \u00b7  "_s), false);
}

void EntryPaper::addText(const JournalEntry &entry)
{
    std::set<int> shown;
    const qsizetype end = QStringView(entry.text).trimmed().isEmpty() ? 0 : entry.text.size();
    for (qsizetype begin = 0; begin < end;) {
        const qsizetype found = entry.text.indexOf(u'\n', begin);
        const qsizetype stop = found < 0 ? end : found;
        const QStringView line = QStringView(entry.text).sliced(begin, stop - begin);
        const int number = LightMarks::of(line).picture;
        if (number > 0 && number <= entry.pictures.size()) {
            addPicture(entry.pictures[number - 1]);
            shown.insert(number);
        } else {
            addLine(line);
        }
        begin = stop + 1;
    }
    for (int number = 1; number <= int(entry.pictures.size()); ++number) {
        if (!shown.contains(number))
            addPicture(entry.pictures[number - 1]);
    }
}

void EntryPaper::addLine(QStringView line)
{
    if (line.trimmed().isEmpty()) {
        m_isGapDue = m_hasTextAbove;
        return;
    }
    const MarkedLine marked = LightMarks::of(line);
    PageItem::Paragraph paragraph{.runs = runsOf(marked, line)};
    if (marked.kind == MarkedLine::Picture) // of a picture that there is not
        paragraph.runs = {{line.toString()}};
    if (marked.kind == MarkedLine::Heading) {
        m_isGapDue = m_hasTextAbove;
        paragraph.role = m_isBelowHeading ? TextRole::Strong : TextRole::Heading;
        paragraph.staysWithNext = true;
    } else if (marked.kind == MarkedLine::List) {
        paragraph.listLevel = marked.indent + 1;
    }
    fillGap();
    m_last = std::move(paragraph);
    m_hasTextAbove = true;
}

/// It waits for what comes behind it.
void EntryPaper::endParagraph()
{
    if (m_last)
        m_page.paragraph(std::move(*m_last));
    m_last.reset();
}

/// Several empty lines are one, and none stands beside a picture or at the end.
void EntryPaper::fillGap()
{
    endParagraph();
    if (m_isGapDue)
        m_page.blankLine();
    m_isGapDue = false;
}

void EntryPaper::addPicture(const JournalPicture &picture)
{
    if (m_options.pictures == PictureSize::None)
        return;
    endParagraph();
    const QString found = m_source.picturePath ? m_source.picturePath(picture.path) : QString();
    const QString path = found.isEmpty() ? picture.path : found; // a frame with its name
    m_page.figure(path, placeOf(m_options.pictures, m_context), picture.caption);
    m_hasTextAbove = false;
    m_isGapDue = false;
}

void EntryPaper::addQuiet(const QString &words, bool staysWithNext)
{
    m_page.paragraph(
        {.runs = {{words, false, true}}, .role = TextRole::Small, .staysWithNext = staysWithNext});
}

QString EntryPaper::factsOf(QDate date) const
{
    const bool isWanted = m_options.hasFacts && m_source.facts;
    return isWanted ? m_source.facts(date).join(u"  \u00b7  "_s) : QString();
}

QString EntryPaper::writtenOn(const JournalEntry &entry) const
{
    const QDate written = entry.written.date();
    if (!written.isValid() || written == entry.date)
        return {};
    return PageLines::writtenOn(written.year() == entry.date.year()
                                    ? PageLines::monthDay(written, m_context.style)
                                    : Dates::monthDayYear(written, m_context.style));
}
