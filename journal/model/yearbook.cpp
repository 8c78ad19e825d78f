// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/entrypaper.h"
#include "journal/model/journalfold.h"
#include "journal/model/journalpages.h"
#include "journal/model/namesfound.h"
#include "journal/model/pagelines.h"

#include <QLocale>

#include <algorithm>
#include <map>

using namespace Qt::Literals::StringLiterals;

namespace {

using JournalPages::Options;
using JournalPages::Source;

constexpr int months = 12;
constexpr int indexMark = months + 1; ///< months have their number; days that of the calendar

/// What leads to entries: marks by words, in the order of the alphabet.
using Index = std::map<QString, std::vector<int>>;

QString monthName(int month)
{
    return QLocale::c().monthName(month);
}

int markOf(QDate date)
{
    return int(date.toJulianDay());
}

/// "Saturday, March 14".
QString dayHeading(QDate date, DateStyle style)
{
    return QLocale::c().dayName(date.dayOfWeek()) + u", "_s + PageLines::monthDay(date, style);
}

/// A year on its way to paper.
class Book
{
public:
    Book(const Source &source, int year, const Options &options, const PageContext &context);

    Page page();

private:
    void addTitle();
    void addContents();
    void addMonths();
    void addIndex();
    void addWords(const Index &index);
    QString indexName() const { return PageLines::index(!m_tags.empty(), !m_people.empty()); }
    void collect(const JournalEntry &entry);
    QList<const JournalEntry *> of(int month) const;
    bool isSmall() const { return m_context.setup.sheet().width() < 6.5; }

    const Source &m_source;
    int m_year;
    const Options &m_options;
    const PageContext &m_context;
    QList<const JournalEntry *> m_entries;
    NamesFound m_names;
    Index m_tags;
    Index m_people;
    Page m_page;
};

Book::Book(const Source &source, int year, const Options &options, const PageContext &context)
    : m_source(source)
    , m_year(year)
    , m_options(options)
    , m_context(context)
    , m_names(source.people)
    , m_page(QString::number(year))
{
    for (const JournalEntry &entry : source.entries) {
        if (entry.date.year() != year)
            continue;
        m_entries << &entry;
        collect(entry);
    }
    m_page.setMargin(isSmall() ? 0.6 : 1.0);
    m_page.setHeads(SheetHeads::Running).numberSheets(SheetNumbers::Book);
}

void Book::collect(const JournalEntry &entry)
{
    for (const QString &tag : entry.tags) {
        const auto same = std::ranges::find_if(
            m_tags, [&tag](const auto &known) { return known.first.compare(tag, Qt::CaseInsensitive) == 0; });
        m_tags[same == m_tags.end() ? tag : same->first].push_back(markOf(entry.date));
    }
    QString text = entry.text;
    for (const JournalPicture &picture : entry.pictures)
        text += u'\n' + picture.caption;
    for (const QString &name : m_names.in(text))
        m_people[name].push_back(markOf(entry.date));
}

QList<const JournalEntry *> Book::of(int month) const
{
    QList<const JournalEntry *> entries;
    for (const JournalEntry *entry : m_entries) {
        if (entry->date.month() == month)
            entries << entry;
    }
    return entries;
}

Page Book::page()
{
    addTitle();
    if (m_entries.isEmpty())
        m_page.section(QString::number(m_year)).line(PageLines::nothingWritten());
    else
        addContents();
    addMonths();
    addIndex();
    return m_page.close(m_context.today, m_context.style);
}

/// The year in the upper third, as books have it.
void Book::addTitle()
{
    const QSizeF sheet = m_context.setup.sheet();
    const double left = m_page.margin();
    const double width = sheet.width() - 2 * left;
    double y = sheet.height() * 0.26;
    const auto place = [&](const QString &text, TextRole role, double below) {
        const double height = 1.1 * PageMetrics::lineHeight(role);
        m_page.placeText({left, y, width, height}, text, role, Qt::AlignHCenter | Qt::AlignTop);
        y += height + below;
    };
    if (!m_context.family.isEmpty())
        place(m_context.family, TextRole::Chapter, 0.05);
    place(PageLines::journal(), m_context.family.isEmpty() ? TextRole::Chapter : TextRole::Heading, 0.35);
    m_page.placeRule({sheet.width() / 2 - 0.5, y, 1, 0});
    y += 0.35;
    place(QString::number(m_year), TextRole::Cover, 0);
}

void Book::addContents()
{
    m_page.section(PageLines::contents());
    m_page.columns({3, 3, 1}, {}, {Qt::AlignLeft, Qt::AlignLeft, Qt::AlignRight});
    for (int month = 1; month <= months; ++month) {
        if (const auto entries = of(month); !entries.isEmpty())
            m_page.rowWithSheets({monthName(month), PageLines::entries(entries.size()), {}}, {month});
    }
    if (!m_tags.empty() || !m_people.empty())
        m_page.rowWithSheets({indexName(), {}, {}}, {indexMark});
}

void Book::addMonths()
{
    EntryPaper paper(m_page, m_source, m_options, m_context);
    for (int month = 1; month <= months; ++month) {
        const QList<const JournalEntry *> entries = of(month);
        if (!entries.isEmpty())
            m_page.section(monthName(month), month);
        for (const JournalEntry *entry : entries) {
            if (m_options.eachOnNewSheet)
                m_page.breakPage();
            else if (entry != entries.constFirst())
                m_page.blankLine().blankLine();
            paper.add(*entry, dayHeading(entry->date, m_context.style), markOf(entry->date));
        }
    }
}

void Book::addIndex()
{
    if (m_tags.empty() && m_people.empty())
        return;
    m_page.section(indexName(), indexMark);
    if (m_tags.empty() || m_people.empty()) {
        addWords(m_people.empty() ? m_tags : m_people);
        return;
    }
    m_page.line(PageLines::tags(), TextRole::Heading);
    addWords(m_tags);
    m_page.blankLine();
    m_page.line(PageLines::people(), TextRole::Heading);
    addWords(m_people);
}

void Book::addWords(const Index &index)
{
    PageItem::Columns columns;
    columns.weights = {1};
    columns.lines = TableLines::None;
    columns.across = isSmall() ? 1 : 2;
    columns.endsEven = true;
    m_page.table(columns);
    std::vector<std::pair<QString, std::vector<int>>> words(index.begin(), index.end());
    std::ranges::stable_sort(words, {}, [](const auto &word) { return JournalFold::of(word.first); });
    for (auto &[word, marks] : words)
        m_page.rowWithSheets({word}, std::move(marks), TextRole::Small);
}

} // namespace

Page JournalPages::yearbook(const Source &source, int year, const Options &options,
                            const PageContext &context)
{
    return Book(source, year, options, context).page();
}
