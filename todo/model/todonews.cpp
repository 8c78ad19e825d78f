// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/todonews.h"

#include "shell/core/dates.h"
#include "storage/tabline.h"
#include "todo/model/todofiles.h"

#include <QLocale>
#include <QSet>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What a sheet has for the household.
class Told
{
public:
    explicit Told(const ToDoSheet &sheet)
        : m_sheet(sheet)
    {
        for (const ToDoList &list : sheet.lists()) {
            if (list.kind == ListKind::Template)
                m_templates.insert(list.id);
        }
    }

    bool isOpen(int row) const { return m_sheet.isOpen(row) && isTold(row); }
    bool isDone(int row) const { return m_sheet.isDone(row) && isTold(row); }
    QString text(int row) const { return TabLine::text(m_sheet.textBytes(row)).simplified(); }

private:
    bool isTold(int row) const
    {
        const ItemLevel level = m_sheet.levelOf(row);
        return (level == ItemLevel::Item || (level == ItemLevel::Step && m_sheet.dueOf(row).isValid())) &&
               !m_templates.contains(m_sheet.listOf(row));
    }

    const ToDoSheet &m_sheet;
    QSet<int> m_templates;
};

/// How much there is to do.
struct Sums {
    int open = 0;
    int today = 0;
    int overdue = 0;
    int next = -1; ///< the row of the next date from today on
};

Sums sumsOf(const ToDoSheet &sheet, const Told &told, QDate today)
{
    Sums sums;
    for (int row = 0; row < sheet.rowCount(); ++row) {
        if (!told.isOpen(row))
            continue;
        const QDate due = sheet.dueOf(row);
        sums.open += sheet.levelOf(row) == ItemLevel::Item ? 1 : 0;
        sums.today += due == today ? 1 : 0;
        sums.overdue += due.isValid() && due < today ? 1 : 0;
        if (due >= today && (sums.next < 0 || due < sheet.dueOf(sums.next)))
            sums.next = row;
    }
    return sums;
}

QString countWord(int count)
{
    static const std::array words{u"one"_s, u"two"_s,   u"three"_s, u"four"_s, u"five"_s,
                                  u"six"_s, u"seven"_s, u"eight"_s, u"nine"_s};
    return count <= int(words.size()) ? words[std::size_t(count - 1)] : QString::number(count);
}

/// "Two things to do today, one is overdue."
QString sentenceOf(const Sums &sums)
{
    const int all = sums.today + sums.overdue;
    if (all == 0)
        return {};
    QString sentence = countWord(all) + (all == 1 ? u" thing to do"_s : u" things to do"_s);
    sentence[0] = sentence[0].toUpper();
    const QString are = sums.overdue == 1 ? u" is overdue."_s : u" are overdue."_s;
    if (sums.today == 0)
        return sentence + are;
    sentence += u" today"_s;
    if (sums.overdue > 0)
        sentence += u", "_s + countWord(sums.overdue) + are.chopped(1);
    return sentence + u'.';
}

LiveLine overdueLine(const Sums &sums)
{
    LiveLine line{.text = u"%1 overdue"_s.arg(sums.overdue),
                  .urgency = LiveLine::Overdue,
                  .sentence = sentenceOf(sums)};
    if (sums.today > 0) {
        line.shorter = {line.text};
        line.text += u", %1 today"_s.arg(sums.today);
    }
    return line;
}

/// "today", "tomorrow", "Tuesday", "Dec 4", "Mar 15, 2027".
QString dayWords(QDate day, DateStyle style, QDate today)
{
    constexpr qint64 daysOfWeek = 7;
    const qint64 days = today.daysTo(day);
    if (days < 2)
        return days == 0 ? u"today"_s : u"tomorrow"_s;
    if (days < daysOfWeek)
        return QLocale::c().dayName(day.dayOfWeek());
    return day.year() == today.year() ? Dates::shortText(day, style) : Dates::shortWithYear(day, style);
}

/// "15 March", with its year where that is not this one.
QString dueWords(QDate due, DateStyle style, QDate today)
{
    if (due.year() != today.year())
        return Dates::monthDayYear(due, style);
    const QString month = QLocale::c().monthName(due.month());
    const QString day = QString::number(due.day());
    return style == DateStyle::Usa ? month + u' ' + day : day + u' ' + month;
}

/// The notes of some days while they are made.
class Notes
{
public:
    Notes(const ToDoSheet &sheet, DateStyle style, QDate today)
        : m_sheet(sheet)
        , m_told(sheet)
        , m_style(style)
        , m_today(today)
    {}

    QList<DayNote> of(QDate from, QDate to) const
    {
        const auto isAsked = [from, to](QDate day) { return day.isValid() && day >= from && day <= to; };
        QList<DayNote> overdue;
        QList<DayNote> notes;
        for (int row = 0; row < m_sheet.rowCount(); ++row) {
            const QDate due = m_sheet.dueOf(row);
            const QDate actual = m_sheet.actualOf(row);
            if (isAsked(actual) && m_told.isDone(row)) {
                notes.append(note(row, actual, NoteKind::Done));
                notes.last().text += u", done"_s;
            }
            if (!due.isValid() || actual.isValid() || !m_told.isOpen(row))
                continue;
            if (isAsked(due))
                notes.append(note(row, due, NoteKind::ToDo));
            if (due < m_today && isAsked(m_today)) {
                overdue.append(note(row, due, NoteKind::Overdue));
                overdue.last().text += u", due "_s + dueWords(due, m_style, m_today);
            }
        }
        // The longest overdue first, before the rest of the day.
        std::ranges::stable_sort(overdue, {}, &DayNote::date);
        for (DayNote &late : overdue)
            late.date = m_today;
        notes = overdue + notes;
        std::ranges::stable_sort(notes, {}, &DayNote::date);
        return notes;
    }

private:
    DayNote note(int row, QDate day, NoteKind kind) const
    {
        const QString text = m_told.text(row);
        return {.date = day,
                .text = text,
                .source = u"To Do List"_s,
                .kind = kind,
                .place = {.record = m_sheet.idOf(row)},
                .nameLength = text.size()};
    }

    const ToDoSheet &m_sheet;
    Told m_told;
    DateStyle m_style;
    QDate m_today;
};

} // namespace

std::optional<LiveLine> ToDoNews::liveLine(const DataFolder &folder, DateStyle style, QDate today)
{
    const ToDoSheet sheet = ToDoFiles(folder).read(style, today);
    const Told told(sheet);
    const Sums sums = sumsOf(sheet, told, today);
    if (sums.overdue > 0)
        return overdueLine(sums);
    if (sums.next >= 0) {
        const QDate due = sheet.dueOf(sums.next);
        const QString text = told.text(sums.next);
        return LiveLine{.text = text + u", "_s + dayWords(due, style, today),
                        .urgency = due == today ? LiveLine::Due : LiveLine::Plain,
                        .sentence = sentenceOf(sums),
                        .nameLength = text.size()};
    }
    if (sums.open == 0)
        return {};
    return LiveLine{.text = sums.open == 1 ? u"1 thing to do"_s : u"%1 things to do"_s.arg(sums.open),
                    .sentence = {}};
}

QList<DayNote> ToDoNews::dayNotes(const DataFolder &folder, DateStyle style, QDate from, QDate to,
                                  QDate today)
{
    if (!from.isValid() || !to.isValid() || from > to)
        return {};
    const ToDoSheet sheet = ToDoFiles(folder).read(style, today);
    return Notes(sheet, style, today).of(from, to);
}

QStringList ToDoNews::files(const DataFolder &folder)
{
    QStringList files = ToDoFiles::names();
    files.removeIf([&folder](const QString &name) { return folder.existingFile({}, name).isEmpty(); });
    return files;
}
