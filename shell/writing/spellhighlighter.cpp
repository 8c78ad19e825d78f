// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/spellhighlighter.h"

#include <utility>

SpellHighlighter::SpellHighlighter(QTextDocument *document, Wrong wrong)
    : QSyntaxHighlighter(document)
    , m_wrong(std::move(wrong))
{}

void SpellHighlighter::highlightBlock(const QString &line)
{
    QTextCharFormat mark;
    mark.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    mark.setUnderlineColor(m_color);
    for (const WordPlace &word : m_wrong(line, currentBlock().position()))
        setFormat(int(word.at), int(word.length), mark);
}
