// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/todosearch.h"

#include <algorithm>

namespace {

char lowered(char byte)
{
    return byte >= 'A' && byte <= 'Z' ? char(byte - 'A' + 'a') : byte;
}

/// `lower` is not empty. Decoding the bytes would take ten times as long.
bool holdsPlain(QByteArrayView bytes, const QByteArray &lower)
{
    const auto isSame = [](char byte, char wanted) { return lowered(byte) == wanted; };
    return std::search(bytes.begin(), bytes.end(), lower.begin(), lower.end(), isSame) != bytes.end();
}

} // namespace

ToDoSearch::ToDoSearch(const QString &words)
{
    for (const QString &word : words.split(u' ', Qt::SkipEmptyParts)) {
        const bool isPlain = std::ranges::all_of(word, [](QChar c) { return c.unicode() < 0x80; });
        m_words.append({word, isPlain ? word.toLower().toLatin1() : QByteArray()});
    }
}

bool ToDoSearch::holds(QByteArrayView bytes, const Word &word)
{
    return word.lower.isEmpty() ? QString::fromUtf8(bytes).contains(word.text, Qt::CaseInsensitive)
                                : holdsPlain(bytes, word.lower);
}

bool ToDoSearch::finds(QByteArrayView text, QByteArrayView note) const
{
    return std::ranges::all_of(m_words,
                               [&](const Word &word) { return holds(text, word) || holds(note, word); });
}
