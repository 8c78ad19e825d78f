// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalfold.h"

#include "journal/model/journalform.h"
#include "shell/core/lightmarks.h"
#include "storage/foldedtext.h"

#include <algorithm>

namespace {

/// The most bytes that a text folded can take: each line has a blank behind it.
qsizetype roomFor(QByteArrayView body)
{
    return FoldedText::mostGrowth * body.size() + 1;
}

/// Asterisks mark what is bold or italic; a word does not end there.
void dropAsterisks(QByteArray &folded, qsizetype from)
{
    if (folded.indexOf('*', from) >= 0)
        folded.erase(std::remove(folded.begin() + from, folded.end(), '*'), folded.end());
}

bool isPicture(QByteArrayView line)
{
    constexpr qsizetype longest = 32;
    return line.startsWith("[picture ") && line.size() < longest &&
           LightMarks::of(QString::fromLatin1(line)).kind == MarkedLine::Picture;
}

} // namespace

qsizetype JournalFold::append(QByteArray &folded, const JournalBlock &block)
{
    const JournalForm::Parts parts = JournalForm::partsOf(block.bytes);
    const qsizetype begin = folded.size();
    folded.resize(begin + roomFor(parts.body));
    char *out = folded.data() + begin;
    JournalForm::forEachLine(parts.body, [&out](QByteArrayView line) {
        if (isPicture(line))
            return;
        out = FoldedText::write(out, line.startsWith('\\') ? line.sliced(1) : line);
        *out++ = ' ';
    });
    folded.resize(out - folded.constData());
    dropAsterisks(folded, begin);
    folded += partEnd;
    const bool hasMore = std::ranges::any_of(parts.head, [](QByteArrayView line) {
        return line.startsWith("tags ") || line.startsWith("picture ");
    });
    if (!hasMore) {
        folded += partEnd;
        return folded.size();
    }
    // One after the other: a sum of texts would double what is held for what follows.
    const auto add = [&folded](const QString &text, char end) {
        folded += of(text);
        folded += end;
    };
    const JournalEntry entry = JournalForm::head(block);
    for (const JournalPicture &picture : entry.pictures)
        add(picture.caption, ' ');
    folded += partEnd;
    const qsizetype tags = folded.size();
    for (const QString &tag : entry.tags)
        add(tag, ',');
    return tags;
}

QByteArray JournalFold::of(QStringView text)
{
    QByteArray folded = FoldedText::of(text);
    dropAsterisks(folded, 0);
    return folded;
}

JournalFold::Line JournalFold::line(QStringView text)
{
    Line line;
    line.folded.reserve(text.size());
    line.places.reserve(std::size_t(text.size()) + 1);
    for (qsizetype at = 0; at < text.size();) {
        const bool isPair =
            at + 1 < text.size() && text[at].isHighSurrogate() && text[at + 1].isLowSurrogate();
        if (text[at] != u'*')
            FoldedText::append(line.folded, isPair ? QChar::surrogateToUcs4(text[at], text[at + 1])
                                                   : char32_t(text[at].unicode()));
        line.places.resize(std::size_t(line.folded.size()), at);
        at += isPair ? 2 : 1;
    }
    line.places.push_back(text.size());
    return line;
}
