// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalhit.h"

#include "journal/model/journalfold.h"
#include "shell/core/lightmarks.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// How much of a line is shown, and how much of that in front of the first word.
constexpr qsizetype room = 120;
constexpr qsizetype inFront = 40;
const QString cut = u"\u2026"_s;

using Words = std::vector<QByteArray>;
using Marks = QList<std::pair<qsizetype, qsizetype>>;

/// The next line, without its end; of one that is very long the next part.
QStringView takeLine(QStringView &text)
{
    constexpr qsizetype longest = 8000;
    const QStringView ahead = text.left(longest);
    const qsizetype end = ahead.indexOf(u'\n');
    if (end < 0 && ahead.size() < text.size()) {
        const qsizetype blank = ahead.lastIndexOf(u' ');
        const QStringView part = blank > 0 ? ahead.first(blank) : ahead;
        text = text.sliced(part.size());
        return part;
    }
    const QStringView line = end < 0 ? ahead : ahead.first(end);
    text = end < 0 ? QStringView() : text.sliced(end + 1);
    return line;
}

/// The line that holds the most of `words`, the first of these.
QString bestLine(const QString &text, const Words &words)
{
    constexpr qsizetype longestSign = 32;
    QStringView best;
    std::ptrdiff_t most = -1;
    QStringView rest = text;
    while (!rest.isEmpty() && most < std::ssize(words)) {
        const QStringView line = takeLine(rest);
        if (line.trimmed().isEmpty() ||
            (line.size() < longestSign && LightMarks::of(line).kind == MarkedLine::Picture))
            continue;
        const QByteArray folded = words.empty() ? QByteArray() : JournalFold::of(line);
        const auto count =
            std::ranges::count_if(words, [&folded](const QByteArray &word) { return folded.contains(word); });
        if (count > most) {
            most = count;
            best = line;
        }
    }
    return LightMarks::plain(best);
}

Marks marksIn(const QString &line, const Words &words)
{
    Marks marks;
    if (words.empty())
        return marks;
    const JournalFold::Line folded = JournalFold::line(line);
    for (const QByteArray &word : words) {
        for (qsizetype at = 0; (at = folded.folded.indexOf(word, at)) >= 0; at += word.size()) {
            const qsizetype from = folded.places[std::size_t(at)];
            const qsizetype last = folded.places[std::size_t(at + word.size() - 1)];
            const qsizetype to = *std::ranges::upper_bound(folded.places, last);
            marks.append({from, to - from});
        }
    }
    std::ranges::sort(marks);
    return marks;
}

/// Where to cut the beginning of `line` off so that `at` is in sight: at a blank, if there is one at hand.
qsizetype startFor(const QString &line, qsizetype at)
{
    constexpr qsizetype longest = 20;
    if (at <= inFront)
        return 0;
    const qsizetype start = at - inFront;
    const qsizetype blank = line.lastIndexOf(u' ', start);
    return blank >= start - longest ? blank + 1 : start;
}

} // namespace

JournalHit JournalHit::of(const JournalEntry &entry, const JournalQuestion &question)
{
    JournalHit hit{.date = entry.date, .context = bestLine(entry.text, question.words())};
    hit.marks = marksIn(hit.context, question.words());
    for (const JournalPicture &picture : entry.pictures) {
        if (!hit.marks.isEmpty() || question.words().empty())
            break;
        if (const Marks marks = marksIn(picture.caption, question.words()); !marks.isEmpty()) {
            hit.context = picture.caption;
            hit.marks = marks;
        }
    }
    const qsizetype from = hit.marks.isEmpty() ? 0 : startFor(hit.context, hit.marks.front().first);
    const qsizetype end = std::min(hit.context.size(), from + room);
    const QString shown = hit.context.sliced(from, end - from);
    const qsizetype moved = from > 0 ? from - cut.size() : 0;
    hit.context = (from > 0 ? cut : QString()) + shown + (end < hit.context.size() ? cut : QString());
    hit.marks.removeIf([end](const auto &mark) { return mark.first + mark.second > end; });
    for (auto &mark : hit.marks)
        mark.first -= moved;
    return hit;
}

QList<std::pair<qsizetype, qsizetype>> JournalHit::places(const QString &text,
                                                          const JournalQuestion &question)
{
    Marks places;
    qsizetype at = 0;
    for (const QString &line : text.split(u'\n')) {
        for (const auto &[from, length] : marksIn(line, question.words()))
            places.append({at + from, length});
        at += line.size() + 1;
    }
    return places;
}
