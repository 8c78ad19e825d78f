// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalnews.h"

#include "journal/model/journalfiles.h"
#include "journal/model/journalseal.h"
#include "journal/model/journalwords.h"
#include "journal/model/journalyear.h"

#include <QFile>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int evening = 18;
constexpr qint64 piece = 4096;
const QByteArray dateLine = "\n=== ";
constexpr qsizetype dateLength = 10;

QByteArray readAt(QFile &file, qint64 at, qint64 length)
{
    return file.seek(at) ? file.read(length) : QByteArray();
}

/// Looks for an entry in a file of ascending dates, by halves.
class DaySeeker
{
public:
    DaySeeker(QFile &file, QDate date)
        : m_file(file)
        , m_sought(date.toString(Qt::ISODate).toLatin1())
        , m_line(dateLine + m_sought)
        , m_high(file.size())
    {}

    bool isThere()
    {
        while (m_high - m_low > piece) {
            const qint64 middle = m_low + (m_high - m_low) / 2;
            const qint64 at = nextDate(middle);
            if (at >= 0 && m_date == m_sought && isEntry(readAt(m_file, at, piece)))
                return true;
            if (at < 0 || m_date >= m_sought)
                m_high = middle;
            else
                m_low = at;
        }
        // The line that was looked for may begin right before the end.
        const QByteArray rest = readAt(m_file, m_low, m_high - m_low + piece);
        const qsizetype at = rest.indexOf(m_line);
        return at >= 0 && isEntry(rest.sliced(at));
    }

private:
    /// Whether the line with a date is that of an entry, and not of an earlier version.
    static bool isEntry(const QByteArray &line)
    {
        const QByteArray behind = line.mid(dateLine.size() + dateLength, 1);
        return behind == "\r" || behind == "\n";
    }

    /// Where the next date stands from `from` on, which goes into `m_date`; -1 when there is none before the
    /// end.
    qint64 nextDate(qint64 from)
    {
        for (qint64 at = from; at < m_high; at += piece) {
            const QByteArray bytes = readAt(m_file, at, piece + dateLine.size() + dateLength);
            const qsizetype found = bytes.indexOf(dateLine);
            if (found >= 0 && found < piece) {
                m_date = bytes.mid(found + dateLine.size(), dateLength);
                return at + found;
            }
        }
        return -1;
    }

    QFile &m_file;
    QByteArray m_sought; ///< the date
    QByteArray m_line;   ///< with which its entry begins
    QByteArray m_date;
    qint64 m_low = 0;
    qint64 m_high;
};

int onThisDay(const DataFolder &folder, QDate today)
{
    int count = 0;
    for (const int year : JournalFiles::years(folder)) {
        const QDate day(year, today.month(), today.day());
        QFile file(folder.filePath(JournalFiles::name(year)));
        if (year != today.year() && day.isValid() && file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) &&
            JournalForm::formOf(file.read(piece)) == JournalForm::Form::Plain)
            count += DaySeeker(file, day).isThere() ? 1 : 0;
    }
    return count;
}

} // namespace

std::optional<LiveLine> JournalNews::liveLine(const DataFolder &folder, const QDateTime &now)
{
    const QDate today = now.date();
    const QList<int> years = JournalFiles::years(folder);
    if (years.isEmpty())
        return {};
    const int last = years.contains(today.year()) ? today.year() : years.last();
    // A walk over the years that was cut short has left plain ones, of which nothing is told either.
    if (JournalFiles::isSealed(folder, last) ||
        (folder.exists(JournalSeal::keyFile) && JournalSeal::isSealed(folder)))
        return LiveLine{.text = u"Sealed"_s, .sentence = {}};

    const QByteArray bytes = JournalFiles::read(folder, today.year()).value_or(QByteArray());
    JournalYear year;
    year.setBlocks(JournalForm::blocks(bytes, today.year()));
    const auto entry = year.entry(today, JournalBlock::Entry);
    if (entry && !entry->isEmpty()) {
        const int words = JournalWords::count(entry->text);
        return LiveLine{.text =
                            words == 1 ? u"Written today, 1 word"_s : u"Written today, %1 words"_s.arg(words),
                        .sentence = {},
                        .shorter = {u"Written today"_s}};
    }
    const QString notYet = u"Not written yet today"_s;
    const int others = now.time().hour() >= evening ? onThisDay(folder, today) : 0;
    if (others == 0)
        return LiveLine{.text = notYet, .sentence = {}};
    const QString entries = others == 1 ? u"1 entry"_s : u"%1 entries"_s.arg(others);
    const QString line = notYet + u", "_s + entries + u" on this day"_s;
    return LiveLine{.text = line, .sentence = {}, .shorter = {notYet}};
}

QStringList JournalNews::liveFiles(QDate today)
{
    return {JournalFiles::name(today.year()), JournalSeal::keyFile};
}
