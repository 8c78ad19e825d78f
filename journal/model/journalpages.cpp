// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalpages.h"

#include "journal/model/entrypaper.h"
#include "journal/model/pagelines.h"
#include "shell/core/dates.h"
#include "shell/core/lightmarks.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using PageMetrics::lineHeight;

namespace {

using JournalPages::Options;
using JournalPages::Source;

constexpr int daysPerWeek = 7;
constexpr double inset = 0.06;
constexpr double closingRoom = 0.72; ///< below the calendar
constexpr double titleRoom = 0.55;
/// Of a day in the calendar; more finds no room.
constexpr qsizetype mostCharacters = 400;

QString journalOf(const PageContext &context)
{
    return context.family.isEmpty() ? PageLines::journal() : context.family + u' ' + PageLines::journal();
}

/// Entries under headings with their dates.
void addAll(Page &page, const Source &source, const Options &options, const PageContext &context,
            const QList<const JournalEntry *> &entries)
{
    EntryPaper paper(page, source, options, context);
    for (const JournalEntry *entry : entries) {
        if (options.eachOnNewSheet)
            page.breakPage();
        else if (entry != entries.constFirst())
            page.blankLine();
        paper.add(*entry, Dates::longText(entry->date, context.style));
    }
    if (entries.isEmpty())
        page.line(PageLines::nothingWritten());
}

/// The words of a text in one line, without marks and the places of pictures.
QString beginningOf(const QString &text)
{
    QString words;
    for (const QStringView line : QStringView(text).split(u'\n')) {
        if (LightMarks::of(line).picture == 0)
            words += LightMarks::plain(line) + u' ';
        if (words.size() > mostCharacters)
            break;
    }
    return words.simplified().left(mostCharacters);
}

void placeDay(Page &page, const QRectF &cell, QDate date, const JournalEntry *entry)
{
    const double line = lineHeight(TextRole::Body);
    const QRectF place = cell.adjusted(inset, inset / 2, -inset, -inset / 2);
    page.placeText({place.topLeft(), QSizeF(place.width(), line)}, QString::number(date.day()),
                   entry ? TextRole::Strong : TextRole::Body);
    const QString words = entry ? beginningOf(entry->text) : QString();
    if (!words.isEmpty())
        page.placeText(place.adjusted(0, line, 0, 0), words, TextRole::Small);
}

} // namespace

Page JournalPages::day(const Source &source, QDate date, const Options &options, const PageContext &context)
{
    Page page(Dates::longText(date, context.style), journalOf(context));
    const auto entry = std::ranges::find(source.entries, date, &JournalEntry::date);
    if (entry != source.entries.end())
        EntryPaper(page, source, options, context).add(*entry);
    else
        page.line(PageLines::nothingWritten());
    return page.close(context.today, context.style);
}

Page JournalPages::range(const Source &source, QDate from, QDate to, const Options &options,
                         const PageContext &context)
{
    Page page(journalOf(context), Dates::range(from, to, context.style));
    QList<const JournalEntry *> entries;
    for (const JournalEntry &entry : source.entries) {
        if (entry.date >= from && entry.date <= to)
            entries << &entry;
    }
    addAll(page, source, options, context, entries);
    return page.close(context.today, context.style);
}

Page JournalPages::tag(const Source &source, const QString &tag, const Options &options,
                       const PageContext &context)
{
    QList<const JournalEntry *> entries;
    for (const JournalEntry &entry : source.entries) {
        if (entry.tags.contains(tag, Qt::CaseInsensitive))
            entries << &entry;
    }
    Page page(journalOf(context) + u": "_s + tag, PageLines::entries(entries.size()));
    addAll(page, source, options, context, entries);
    return page.close(context.today, context.style);
}

Page JournalPages::month(const Source &source, QDate date, Qt::DayOfWeek firstDay, const PageContext &context)
{
    const QDate first(date.year(), date.month(), 1);
    const QDate start = first.addDays(-((first.dayOfWeek() - firstDay + daysPerWeek) % daysPerWeek));
    const int weeks = int(start.daysTo(first) + first.daysInMonth() + daysPerWeek - 1) / daysPerWeek;
    Page page(Dates::monthYear(first), journalOf(context));
    const QSizeF sheet = context.setup.sheet();
    const double margin = PageMetrics::margin;
    const double heads = lineHeight(TextRole::Body);
    const double top = margin + titleRoom + heads;
    const double width = (sheet.width() - 2 * margin) / daysPerWeek;
    const double height = (sheet.height() - top - margin - closingRoom) / weeks;
    for (int i = 0; i < weeks * daysPerWeek; ++i) {
        const QDate shown = start.addDays(i);
        const QRectF cell(margin + (i % daysPerWeek) * width, top + (i / daysPerWeek) * height, width,
                          height);
        if (i < daysPerWeek)
            page.placeText({cell.left() + inset, top - heads, width - inset, heads},
                           QLocale::c().dayName(shown.dayOfWeek(), QLocale::ShortFormat), TextRole::Strong);
        page.placeRule(cell);
        if (shown.month() != first.month())
            continue;
        const auto entry = std::ranges::find(source.entries, shown, &JournalEntry::date);
        placeDay(page, cell, shown, entry == source.entries.end() ? nullptr : &*entry);
    }
    return page.close(context.today, context.style);
}
