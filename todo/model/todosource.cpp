// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/todosource.h"

#include "shell/core/dates.h"
#include "storage/ansitext.h"
#include "storage/tabline.h"
#include "todo/model/todofiles.h"

#include <QSet>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::size_t rowsAtATime = 1000;

} // namespace

ToDoSource::ToDoSource(const DataFolder &folder, DateStyle style)
    : m_folder(folder)
    , m_style(style)
{}

bool ToDoSource::prepare()
{
    const auto count = std::size_t(m_texts.count());
    if (count == m_rows.size()) {
        const FileStamp now = FileStamp::of(m_folder, ToDoFiles::names());
        if (m_seen == now)
            return false;
        m_seen = now;
        begin();
        return true;
    }
    for (std::size_t i = count; i < std::min(count + rowsAtATime, m_rows.size()); ++i)
        add(m_rows[i]);
    if (std::size_t(m_texts.count()) == m_rows.size())
        m_texts.squeeze();
    return true;
}

void ToDoSource::begin()
{
    m_sheet = ToDoFiles(m_folder).read(m_style, {});
    m_rows.clear();
    m_texts.clear();
    QSet<int> templates;
    for (const ToDoList &list : m_sheet.lists()) {
        if (list.kind == ListKind::Template)
            templates.insert(list.id);
    }
    for (int row = 0; row < m_sheet.rowCount(); ++row) {
        if (m_sheet.levelOf(row) != ItemLevel::Heading && !templates.contains(m_sheet.listOf(row)))
            m_rows.push_back(row);
    }
    const auto done =
        std::stable_partition(m_rows.begin(), m_rows.end(), [this](int row) { return m_sheet.isOpen(row); });
    std::stable_sort(done, m_rows.end(),
                     [this](int one, int other) { return m_sheet.actualOf(one) > m_sheet.actualOf(other); });
}

void ToDoSource::add(int row)
{
    m_texts.beginText();
    m_texts.addLine(AnsiText::encode(TabLine::text(m_sheet.textBytes(row))));
    for (const QString &line : TabLine::text(m_sheet.noteBytes(row)).split(u'\n', Qt::SkipEmptyParts))
        m_texts.addLine(AnsiText::encode(line));
}

/// Beside its text stand the line of the note in which it was found, its list, and its date.
SearchHit ToDoSource::hit(const TextIndex::Hit &found) const
{
    const int row = m_rows[std::size_t(found.text)];
    QStringList context;
    if (found.line > 0)
        context << TabLine::text(m_sheet.noteBytes(row))
                       .split(u'\n', Qt::SkipEmptyParts)
                       .value(found.line - 1)
                       .simplified();
    if (const ToDoList *list = m_sheet.list(m_sheet.listOf(row)))
        context << list->name;
    const QDate due = m_sheet.dueOf(row);
    if (m_sheet.isDone(row))
        context << u"done "_s + Dates::shortWithYear(m_sheet.actualOf(row), m_style);
    else if (due.isValid())
        context << u"due "_s + Dates::shortWithYear(due, m_style);
    return {TabLine::text(m_sheet.textBytes(row)).simplified(),
            context.join(u", "_s),
            {.record = m_sheet.idOf(row)}};
}

QList<SearchHit> ToDoSource::matches(QStringView text, int most) const
{
    const TextIndex::Words words(text);
    std::array<std::vector<TextIndex::Hit>, TextIndex::rankCount> found;
    m_texts.find(words, [&](const TextIndex::Hit &hit) {
        if (std::vector<TextIndex::Hit> &like = found[std::size_t(hit.rank)]; int(like.size()) < most)
            like.push_back(hit);
        return int(found.front().size()) < most;
    });
    QList<SearchHit> hits;
    for (const std::vector<TextIndex::Hit> &like : found) {
        for (const TextIndex::Hit &one : like) {
            if (int(hits.size()) < most)
                hits.append(hit(one));
        }
    }
    return hits;
}
