// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/runlines.h"

#include <QPainter>
#include <QTextLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double listStep = 16;
constexpr double dotGap = 11; ///< from the dot to the letters
constexpr int mostLevels = 5;
/// Runs of a longer paragraph begin a line each: nobody sets marks in a text of that length.
constexpr qsizetype longest = 20'000;

/// A run with the face that it is set in, and the place of its text in the paragraph's.
struct SetRun {
    const PageType *type;
    qsizetype at;
    qsizetype length;
};

void appendPlain(const QString &text, const PageType &type, double width, std::vector<RunLine> &lines)
{
    for (const QString &line : type.wrapped(text, width))
        lines.push_back({RunPiece{&type, 0, line}});
}

/// The pieces of a line of `text` from `at` on.
RunLine piecesOf(const QTextLine &line, const QString &text, const std::vector<SetRun> &runs)
{
    RunLine pieces;
    qsizetype end = line.textStart() + line.textLength();
    while (end > line.textStart() && text[end - 1] == u' ')
        --end;
    for (const SetRun &run : runs) {
        const qsizetype from = std::max<qsizetype>(run.at, line.textStart());
        const qsizetype to = std::min(run.at + run.length, end);
        if (from < to)
            pieces.push_back(
                {run.type, line.cursorToX(int(from)) / PageType::fine, text.mid(from, to - from)});
    }
    return pieces;
}

std::vector<RunLine> wrapped(const QString &text, const std::vector<SetRun> &runs, double width)
{
    QList<QTextLayout::FormatRange> formats;
    formats.reserve(qsizetype(runs.size()));
    for (const SetRun &run : runs) {
        QTextCharFormat format;
        format.setFont(run.type->font());
        formats.push_back({int(run.at), int(run.length), format});
    }
    QTextLayout layout(text, runs.front().type->font());
    layout.setFormats(formats);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    std::vector<RunLine> lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max(1.0, width) * PageType::fine);
        lines.push_back(piecesOf(line, text, runs));
    }
    layout.endLayout();
    return lines;
}

} // namespace

double RunLines::indentOf(const PageItem::Paragraph &paragraph)
{
    return listStep * std::clamp(paragraph.listLevel, 0, mostLevels);
}

std::vector<RunLine> RunLines::of(const PageItem::Paragraph &paragraph, const PageTypes &types, double width)
{
    std::vector<SetRun> runs;
    QString text;
    for (const PageItem::Run &run : paragraph.runs) {
        const QString words = PageType::onOneLine(run.text);
        if (!words.isEmpty())
            runs.push_back({&types.of(paragraph.role, run.isBold, run.isItalic), text.size(), words.size()});
        text += words;
    }
    width -= indentOf(paragraph);
    std::vector<RunLine> lines;
    if (runs.empty())
        lines.emplace_back();
    else if (runs.size() > 1 && text.size() <= longest)
        lines = wrapped(text, runs, width);
    else
        for (const SetRun &run : runs)
            appendPlain(text.mid(run.at, run.length), *run.type, width, lines);
    return lines;
}

void RunLines::draw(QPainter &painter, QPointF top, const RunLine &line)
{
    for (const RunPiece &piece : line)
        piece.type->draw(painter, top + QPointF(piece.x, 0), piece.text);
}

void RunLines::drawDot(QPainter &painter, QPointF top, const PageType &type)
{
    type.draw(painter, top - QPointF(dotGap, 0), u"\u2022"_s);
}
