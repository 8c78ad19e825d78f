// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/pagegrid.h"

#include <QStringList>

namespace {

void addBlock(const GridBlock &block, QStringList &lines)
{
    if (!block.title.isEmpty())
        lines << block.title;
    for (qsizetype i = 0; i < block.cells.size(); ++i) {
        const GridCell &cell = block.cells[i];
        for (const GridSpan &span : block.spans) {
            const bool isHere = span.row * block.columns.size() + span.column == i;
            if (isHere && !span.isContinued && !span.text.isEmpty())
                lines << cell.name + u'\t' + span.text;
        }
        for (const GridLine &line : cell.lines)
            lines << cell.name + u'\t' + line.text;
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
