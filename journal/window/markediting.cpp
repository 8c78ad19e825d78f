// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/markediting.h"

#include "shell/core/lightmarks.h"

#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView step(u"  ");
constexpr qsizetype mostSigns = 3; ///< bold and italic

/// Words that stand in one line, by their places in the document.
struct Words {
    int begin;
    int end;
};

std::vector<QTextBlock> linesOf(const QTextCursor &cursor)
{
    std::vector<QTextBlock> lines;
    const QTextBlock last = cursor.document()->findBlock(cursor.selectionEnd());
    for (QTextBlock line = cursor.document()->findBlock(cursor.selectionStart()); line.isValid();
         line = line.next()) {
        lines.push_back(line);
        if (line == last)
            break;
    }
    // What is chosen down to the beginning of a line has nothing of that.
    if (lines.size() > 1 && last.position() == cursor.selectionEnd())
        lines.pop_back();
    return lines;
}

/// The text of a line, with 0 for what stands before it in the document.
struct Line {
    QString text;
    int at;

    QChar operator[](int place) const
    {
        const int i = place - at;
        return i >= 0 && i < text.size() ? text[i] : QChar();
    }
};

Line lineOf(const QTextBlock &block)
{
    return {block.text(), block.position()};
}

/// What is chosen of a line, without blanks and signs at its ends.
Words within(const QTextBlock &block, int begin, int end)
{
    const Line line = lineOf(block);
    const int textBegin = line.at + int(LightMarks::of(line.text).begin);
    begin = std::max(begin, textBegin);
    end = std::min(end, line.at + int(line.text.size()));
    const auto isEdge = [&](int place) { return line[place].isSpace() || line[place] == u'*'; };
    while (begin < end && isEdge(begin))
        ++begin;
    while (end > begin && isEdge(end - 1))
        --end;
    return {begin, end};
}

/// How many asterisks stand around the words, as many on both sides.
int signsAround(const QTextBlock &block, const Words &words)
{
    const Line line = lineOf(block);
    int count = 0;
    while (line[words.begin - 1 - count] == u'*' && line[words.end + count] == u'*')
        ++count;
    return count;
}

bool hasSign(const QTextBlock &block, const Words &words, qsizetype sign)
{
    const int around = signsAround(block, words);
    return around == sign || around == mostSigns;
}

void setSign(QTextCursor cursor, const Words &words, const QString &sign, bool isSet)
{
    const int length = int(sign.size());
    if (isSet) {
        cursor.setPosition(words.end);
        cursor.insertText(sign);
        cursor.setPosition(words.begin);
        cursor.insertText(sign);
        return;
    }
    for (const int place : {words.end, words.begin - length}) {
        cursor.setPosition(place);
        cursor.setPosition(place + length, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
    }
}

/// The runs in a line between signs of this length, with these: where each begins and ends in the document.
std::vector<Words> runsOf(const QTextBlock &block, qsizetype length)
{
    std::vector<Words> runs;
    bool isOpen = false;
    for (const auto &[at, count] : LightMarks::of(block.text()).signs) {
        if (count != length)
            continue;
        const int place = block.position() + int(at);
        if (!isOpen)
            runs.push_back({place, place});
        runs.back().end = place + int(count);
        isOpen = !isOpen;
    }
    return runs;
}

/// Takes the sign from each run that `words` has a part of. All of such a run is chosen then.
void takeRuns(QTextCursor &words, qsizetype sign)
{
    const QTextBlock block = words.document()->findBlock(words.selectionStart());
    for (const qsizetype length : {sign, mostSigns}) {
        const std::vector<Words> runs = runsOf(block, length);
        for (auto run = runs.rbegin(); run != runs.rend(); ++run) {
            const int begin = words.selectionStart();
            const int end = words.selectionEnd();
            if (run->begin >= end || run->end <= begin)
                continue;
            words.setPosition(std::min(begin, run->begin));
            words.setPosition(std::max(end, run->end), QTextCursor::KeepAnchor);
            QTextCursor signs(words.document());
            for (const int place : {run->end - int(sign), run->begin}) {
                signs.setPosition(place);
                signs.setPosition(place + int(sign), QTextCursor::KeepAnchor);
                signs.removeSelectedText();
            }
        }
    }
}

/// What is to have a sign as a whole has none in its parts.
void takeRuns(std::vector<std::pair<QTextBlock, Words>> &parts, qsizetype sign)
{
    std::vector<QTextCursor> all;
    all.reserve(parts.size());
    for (const auto &[line, words] : parts) {
        all.emplace_back(line);
        all.back().setPosition(words.begin);
        all.back().setPosition(words.end, QTextCursor::KeepAnchor);
    }
    for (std::size_t i = 0; i < all.size(); ++i)
        takeRuns(all[i], sign);
    for (std::size_t i = 0; i < all.size(); ++i)
        parts[i].second = {all[i].selectionStart(), all[i].selectionEnd()};
}

/// At the end of what was just typed the sign behind the cursor is stepped over; between two signs without
/// anything they go.
bool leaveSign(QTextCursor &cursor, const QString &sign)
{
    const Line line = lineOf(cursor.block());
    const int place = cursor.position();
    const int length = int(sign.size());
    int behind = 0;
    while (line[place + behind] == u'*')
        ++behind;
    int before = 0;
    while (line[place - 1 - before] == u'*')
        ++before;
    if (behind < length)
        return false;
    if (before >= length)
        setSign(cursor, {place, place}, sign, false);
    else
        cursor.setPosition(place + length);
    return true;
}

void toggleHere(QTextCursor &cursor, const QString &sign)
{
    if (leaveSign(cursor, sign))
        return;
    QTextCursor word = cursor;
    word.select(QTextCursor::WordUnderCursor);
    const Words words = within(cursor.block(), word.selectionStart(), word.selectionEnd());
    if (words.begin < words.end && lineOf(cursor.block())[words.begin].isLetterOrNumber()) {
        setSign(cursor, words, sign, !hasSign(cursor.block(), words, sign.size()));
        return;
    }
    cursor.insertText(sign + sign);
    cursor.setPosition(cursor.position() - int(sign.size()));
}

} // namespace

void MarkEditing::toggle(QTextCursor &cursor, const QString &sign)
{
    cursor.beginEditBlock();
    if (!cursor.hasSelection()) {
        toggleHere(cursor, sign);
        cursor.endEditBlock();
        return;
    }
    std::vector<std::pair<QTextBlock, Words>> parts;
    for (const QTextBlock &line : linesOf(cursor)) {
        const Words words = within(line, cursor.selectionStart(), cursor.selectionEnd());
        if (words.begin < words.end)
            parts.emplace_back(line, words);
    }
    const bool isSet = !std::ranges::all_of(
        parts, [&](const auto &part) { return hasSign(part.first, part.second, sign.size()); });
    if (isSet)
        takeRuns(parts, sign.size());
    const int length = int(sign.size());
    Words chosen{cursor.selectionStart(), cursor.selectionEnd()};
    if (!parts.empty()) {
        chosen.begin = parts.front().second.begin + (isSet ? length : -length);
        chosen.end = parts.back().second.end;
    }
    for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
        if (hasSign(part->first, part->second, length) == isSet)
            continue;
        setSign(cursor, part->second, sign, isSet);
        chosen.end += part == parts.rbegin() ? (isSet ? length : -length) : 2 * (isSet ? length : -length);
    }
    cursor.setPosition(chosen.begin);
    cursor.setPosition(chosen.end, QTextCursor::KeepAnchor);
    cursor.endEditBlock();
}

void MarkEditing::toggleLead(QTextCursor &cursor, const QString &lead)
{
    const std::vector<QTextBlock> lines = linesOf(cursor);
    const MarkedLine::Kind kind = lead == u"# " ? MarkedLine::Heading : MarkedLine::List;
    const bool isSet = !std::ranges::all_of(
        lines, [kind](const QTextBlock &line) { return LightMarks::of(line.text()).kind == kind; });
    cursor.beginEditBlock();
    for (const QTextBlock &line : lines) {
        const MarkedLine marked = LightMarks::of(line.text());
        if (marked.kind == MarkedLine::Picture || (isSet && marked.kind == kind))
            continue;
        if (isSet && line.text().trimmed().isEmpty() && lines.size() > 1)
            continue;
        QTextCursor begin(line);
        begin.setPosition(line.position() + int(marked.begin), QTextCursor::KeepAnchor);
        begin.insertText(isSet ? lead : QString());
    }
    cursor.endEditBlock();
}

bool MarkEditing::mayGoOn(const QTextCursor &cursor)
{
    const MarkedLine line = LightMarks::of(cursor.block().text());
    return !cursor.hasSelection() && line.kind == MarkedLine::List && cursor.positionInBlock() >= line.begin;
}

void MarkEditing::goOn(QTextCursor &cursor)
{
    const QString line = cursor.block().text();
    const qsizetype begin = LightMarks::of(line).begin;
    if (QStringView(line).sliced(begin).trimmed().isEmpty()) {
        cursor.movePosition(QTextCursor::StartOfBlock);
        cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
        cursor.removeSelectedText();
        return;
    }
    // The line end by itself, as if it were typed: it ends a word, which may be corrected.
    cursor.insertBlock();
    cursor.joinPreviousEditBlock();
    cursor.insertText(line.first(begin));
    cursor.endEditBlock();
}

bool MarkEditing::indent(QTextCursor &cursor, int steps)
{
    bool isList = false;
    cursor.beginEditBlock();
    for (const QTextBlock &line : linesOf(cursor)) {
        const MarkedLine marked = LightMarks::of(line.text());
        if (marked.kind != MarkedLine::List)
            continue;
        isList = true;
        QTextCursor begin(line);
        if (steps > 0 && marked.indent < LightMarks::mostIndent) {
            begin.insertText(step.toString());
        } else if (steps < 0 && marked.indent > 0) {
            const bool isTab = line.text().startsWith(u'\t');
            begin.setPosition(line.position() + (isTab ? 1 : int(step.size())), QTextCursor::KeepAnchor);
            begin.removeSelectedText();
        }
    }
    cursor.endEditBlock();
    return isList;
}

QString MarkEditing::cleaned(QString text)
{
    text.replace(u"\r\n"_s, u"\n"_s);
    for (const QChar end : {QChar(u'\r'), QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator),
                            QChar(u'\f'), QChar(u'\v')})
        text.replace(end, u'\n');
    text.removeIf([](QChar c) {
        return c.isNull() || c == QChar::ObjectReplacementCharacter || c == QChar(0xFDD0) ||
               c == QChar(0xFDD1);
    });
    return text;
}
