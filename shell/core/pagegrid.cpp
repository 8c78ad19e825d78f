// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/pagegrid.h"

#include <QStringList>

#include <algorithm>

namespace {

/// "Tue 9 to Sat 13": from its beginning in this grid to its end there.
QString daysOf(const GridSpan &span, const GridBlock &block)
{
    const qsizetype across = block.columns.size();
    const qsizetype step = block.form == GridForm::Days ? across : 1;
    const qsizetype first = span.row * across + span.column;
    qsizetype last = first;
    for (const GridSpan &part : block.spans) { // one a week
        if (part.index == span.index)
            last = std::max(last, part.row * across + part.column + (part.length - 1) * step);
    }
    const QString begin = block.cells.value(first).name;
    return last == first ? begin : QString(begin + QStringLiteral(" to ") + block.cells.value(last).name);
}

void addBlock(const GridBlock &block, QStringList &lines)
{
    if (!block.title.isEmpty())
        lines << block.title;
    for (qsizetype i = 0; i < block.cells.size(); ++i) {
        const GridCell &cell = block.cells[i];
        for (const GridSpan &span : block.spans) {
            const bool isHere = span.row * block.columns.size() + span.column == i;
            // The bars of a grid of numbers stand among its notes.
            if (isHere && !span.isContinued && block.form != GridForm::Numbers)
                lines << daysOf(span, block) + u'\t' + span.text;
        }
        for (const GridLine &line : cell.lines) {
            if (line.tone == 0) // else they are the words of a bar
                lines << cell.name + u'\t' + line.text;
        }
    }
    for (const GridLine &note : block.notes)
        lines << (note.lead.isEmpty() ? note.text : note.lead + u'\t' + note.text);
}

} // namespace

QString PageGrid::text() const
{
    QStringList lines;
    if (!title.isEmpty())
        lines << QString(title + u' ' + titleLight).trimmed();
    if (hasPhoto && !photo.caption.isEmpty())
        lines << photo.caption;
    for (const GridBlock &block : blocks)
        addBlock(block, lines);
    for (const QString &words : {footLeft, footRight}) {
        if (!words.isEmpty())
            lines << words;
    }
    return lines.join(u'\n');
}
