// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalimport.h"

#include "journal/model/journalform.h"
#include "journal/model/journalwords.h"
#include "journal/model/lines.h"
#include "journal/model/pictureplaces.h"
#include "shell/core/csvfile.h"
#include "storage/utf8text.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype bytesAtATime = 65'536;

/// "=== 2026-03-14", or what somebody took for it.
const QRegularExpression &ownBegin()
{
    static const QRegularExpression pattern(u"^=== (\\d{4}-\\d\\d?-\\d\\d?)( earlier)?\\s*$"_s);
    return pattern;
}

/// "[2026-03-14 08:12] ...": the time may have seconds, and may be missing.
const QRegularExpression &logBegin()
{
    static const QRegularExpression pattern(
        u"^\\[(\\d{4}-\\d\\d?-\\d\\d?)(?:[ T]+(\\d\\d?:\\d\\d)(?::\\d\\d)?( ?[AaPp][Mm])?)?\\] ?(.*)$"_s);
    return pattern;
}

QTime timeOf(const QString &digits, const QString &half)
{
    if (half.isEmpty())
        return QTime::fromString(digits, u"h:mm"_s);
    return QTime::fromString(digits + half.trimmed().toUpper(), u"h:mmAP"_s);
}

/// Whether `lines` stand one behind the other in `text`.
bool hasLines(const QString &text, const QString &lines)
{
    return lines.trimmed().isEmpty() || QString(u'\n' + text + u'\n').contains(u'\n' + lines + u'\n');
}

/// The day with what comes in under it, as far as it has not got it.
JournalEntry added(const JournalEntry &there, JournalEntry incoming)
{
    const qsizetype count = incoming.pictures.size();
    for (qsizetype before = 0; before + count <= there.pictures.size(); ++before) {
        if (there.pictures.sliced(before, count) != incoming.pictures ||
            !hasLines(there.text, PicturePlaces::behind(incoming.text, before)))
            continue;
        incoming.text.clear();
        incoming.pictures.clear();
        incoming.written = {};
        break;
    }
    incoming.otherLines.removeIf([&there](const QString &line) { return there.otherLines.contains(line); });
    return JournalForm::joined(there, incoming);
}

} // namespace

/// A line with which a piece begins.
struct JournalImport::Begin {
    bool isOne = false;
    QString date{}; ///< as it stands there
    QString problem{};
    QDate day{};
    QTime time{};
    QString text{}; ///< behind it on the line
};

JournalImport::JournalImport(const QByteArray &bytes, Journal &journal)
    : m_bytes(bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF") ? CsvFile::decode(bytes).toUtf8()
                                                                           : bytes)
    , m_journal(journal)
    , m_rest(m_bytes)
{
    if (m_rest.startsWith("\xEF\xBB\xBF"))
        m_rest = m_rest.sliced(3);
    const JournalForm::Form form = JournalForm::formOf(m_rest);
    const bool begins = ownBegin()
                            .match(QString::fromLatin1(
                                m_rest.first(std::min<qsizetype>(m_rest.size(), m_rest.indexOf('\n') + 1))))
                            .hasMatch();
    m_isOwnForm = form == JournalForm::Form::Plain || begins;
    if (form == JournalForm::Form::Plain) {
        const qsizetype end = m_rest.indexOf('\n');
        m_rest = end < 0 ? QByteArrayView() : m_rest.sliced(end + 1);
        m_line = 1;
    }
}

QStringList JournalImport::filters()
{
    return {u"All entries"_s, u"New days"_s, u"Added to a day"_s, u"Not taken"_s};
}

QStringList JournalImport::headings() const
{
    return {u"Date"_s, u"Text"_s};
}

double JournalImport::progress() const
{
    return m_bytes.isEmpty() ? 1 : 1 - double(m_rest.size()) / double(m_bytes.size());
}

JournalImport::Begin JournalImport::beginOf(QByteArrayView bytes) const
{
    Begin begin;
    if (!bytes.startsWith(m_isOwnForm ? "=== " : "["))
        return begin;
    const QRegularExpressionMatch match =
        (m_isOwnForm ? ownBegin() : logBegin()).match(Utf8Text::decode(bytes));
    if (!match.hasMatch())
        return begin;
    begin.isOne = true;
    begin.date = match.captured(1);
    begin.day = QDate::fromString(begin.date, u"yyyy-M-d"_s);
    if (!Journal::isPossible(begin.day))
        begin.problem = JournalLines::noDate(begin.date);
    else if (m_isOwnForm && match.hasCaptured(2))
        begin.problem = JournalLines::earlierVersion();
    if (m_isOwnForm)
        return begin;
    begin.text = match.captured(4);
    begin.time = timeOf(match.captured(2), match.captured(3));
    if (begin.problem.isEmpty() && !match.captured(2).isEmpty() && !begin.time.isValid())
        begin.problem = JournalLines::noTime(match.captured(2) + match.captured(3));
    return begin;
}

bool JournalImport::step()
{
    const qsizetype end = std::max<qsizetype>(m_rest.size() - bytesAtATime, 0);
    while (m_rest.size() > end) {
        const qsizetype length = m_rest.indexOf('\n');
        QByteArrayView line = length < 0 ? m_rest : m_rest.first(length);
        m_rest = length < 0 ? QByteArrayView() : m_rest.sliced(length + 1);
        ++m_line;
        if (line.endsWith('\r'))
            line.chop(1);
        if (const Begin found = beginOf(line); found.isOne) {
            close();
            begin(found);
        } else if (m_begin > 0) {
            // A log's line can look like one of ours.
            if (!m_isOwnForm && (line.startsWith('=') || line.startsWith('\\')))
                m_block += '\\';
            m_block.append(line);
            m_block += '\n';
        } else if (!line.trimmed().isEmpty()) {
            add({.number = m_line,
                 .title = Utf8Text::decode(line.first(std::min<qsizetype>(line.size(), 500))).simplified(),
                 .problem = JournalLines::noDateAbove()});
        }
    }
    if (m_rest.isEmpty())
        close();
    return !m_rest.isEmpty();
}

/// A time stands in front of its text: a day can have several.
void JournalImport::begin(const Begin &begin)
{
    m_begin = m_line;
    m_problem = begin.problem;
    m_date = begin.date;
    const QDate day = Journal::isPossible(begin.day) ? begin.day : QDate(JournalForm::firstYear, 1, 1);
    if (m_isOwnForm) {
        m_block = "=== " + day.toString(Qt::ISODate).toLatin1() + '\n';
        return;
    }
    JournalEntry entry{.date = day};
    if (begin.time.isValid())
        entry.written = QDateTime(day, begin.time);
    entry.text = begin.time.isValid() ? begin.time.toString(u"hh:mm "_s) + begin.text : begin.text;
    m_block = JournalForm::block(entry, JournalBlock::Entry).bytes;
}

void JournalImport::close()
{
    if (m_begin == 0)
        return;
    const QDate day = QDate::fromString(QString::fromLatin1(m_block.mid(4, 10)), Qt::ISODate);
    Piece piece{.number = m_begin,
                .date = m_date,
                .entry = JournalForm::entry({.kind = JournalBlock::Entry, .date = day, .bytes = m_block}),
                .problem = m_problem};
    while (piece.entry.text.endsWith(u'\n'))
        piece.entry.text.chop(1);
    m_begin = 0;
    m_block.clear();
    add(std::move(piece));
}

void JournalImport::add(Piece piece)
{
    if (piece.problem.isEmpty() && piece.entry.isEmpty())
        piece.problem = JournalLines::saysNothing();
    if (piece.problem.isEmpty() && !m_journal.mayBeWritten(piece.entry.date))
        piece.problem = JournalLines::forReading(piece.entry.date.year());
    if (piece.problem.isEmpty()) {
        const QDate day = piece.entry.date;
        const std::optional<JournalEntry> there = m_journal.entry(day);
        if (there && added(*there, piece.entry) == *there)
            piece.problem = JournalLines::isThere();
        piece.isNewDay = !there && !m_days.contains(day);
        if (piece.problem.isEmpty())
            m_days.insert(day);
    }
    piece.isChosen = piece.problem.isEmpty();
    m_chosen += piece.isChosen ? 1 : 0;
    m_pieces.push_back(std::move(piece));
}

QString JournalImport::cell(std::size_t line, int column) const
{
    const Piece &piece = m_pieces[line];
    if (column == Date)
        return piece.date;
    return piece.title.isEmpty() ? JournalWords::firstLine(piece.entry.text) : piece.title;
}

QString JournalImport::whatBecomesOf(std::size_t line) const
{
    const Piece &piece = m_pieces[line];
    if (!piece.problem.isEmpty())
        return piece.problem;
    return piece.isNewDay ? JournalLines::newDay() : JournalLines::underTheDay();
}

bool JournalImport::isIn(std::size_t line, int filter) const
{
    const Piece &piece = m_pieces[line];
    switch (filter) {
    case NewDays:
        return piece.problem.isEmpty() && piece.isNewDay;
    case Added:
        return piece.problem.isEmpty() && !piece.isNewDay;
    case NotTaken:
        return !piece.problem.isEmpty();
    default:
        return true;
    }
}

void JournalImport::setChosen(std::size_t line, bool isChosen)
{
    Piece &piece = m_pieces[line];
    if (!piece.problem.isEmpty() || piece.isChosen == isChosen)
        return;
    piece.isChosen = isChosen;
    m_chosen += isChosen ? 1 : -1;
}

QList<JournalEntry> JournalImport::take()
{
    QList<JournalEntry> before;
    QSet<QDate> taken;
    for (Piece &piece : m_pieces) {
        if (!piece.isChosen)
            continue;
        const QDate day = piece.entry.date;
        const std::optional<JournalEntry> there = m_journal.entry(day);
        const JournalEntry now = there ? added(*there, piece.entry) : piece.entry;
        const bool isTwice = now == there; // the file can have a thing twice
        if (!isTwice && !m_journal.put(now))
            continue;
        if (!isTwice && !taken.contains(day)) {
            taken.insert(day);
            before.append(there.value_or(JournalEntry{.date = day}));
        }
        setChosen(std::size_t(&piece - m_pieces.data()), false);
        piece.problem = JournalLines::isThere();
    }
    return before;
}
