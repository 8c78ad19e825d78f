// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/spellhighlighter.h"

#include <QTextDocument>

#include <utility>

SpellHighlighter::SpellHighlighter(QTextDocument *document, Wrong wrong, LineStyles styles)
    : QSyntaxHighlighter(document)
    , m_wrong(std::move(wrong))
    , m_styles(std::move(styles))
{}

void SpellHighlighter::highlightBlock(const QString &line)
{
    if (document()->characterCount() > mostMarked)
        return;
    if (m_styles) {
        for (const QTextLayout::FormatRange &range : m_styles(line))
            setFormat(range.start, range.length, range.format);
    }
    for (const WordPlace &word : m_wrong(line, currentBlock().position()))
        underline(word);
}

/// A word may have more than one style: each of its parts keeps its own.
void SpellHighlighter::underline(const WordPlace &word)
{
    for (int at = int(word.at); at < int(word.end());) {
        QTextCharFormat mark = format(at);
        int end = at + 1;
        while (end < int(word.end()) && format(end) == mark)
            ++end;
        mark.setUnderlineStyle(QTextCharFormat::WaveUnderline);
        mark.setUnderlineColor(m_color);
        setFormat(at, end - at, mark);
        at = end;
    }
}
