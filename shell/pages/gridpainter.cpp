// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/gridpainter.h"

#include "shell/pages/pagefigure.h"
#include "shell/pages/pagepicture.h"
#include "shell/pages/sharpline.h"

#include <QFileInfo>
#include <QPainter>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;
using PageMetrics::pointsPerInch;

namespace {

constexpr double thin = 0.5;
constexpr double rule = 0.9;
constexpr double corner = 3;
constexpr double openGap = 1.5; ///< around a tone where there are no lines
constexpr double footPoints = 7.5;
constexpr double leftPoints = 7.5;
constexpr double captionPoints = 9;
constexpr double captionDrop = 3;
constexpr double weekPoints = 8;
constexpr double cutMark = 14;
constexpr double spanInset = 4;
constexpr double rim = 0.4;
constexpr double beginning = 1.8;        ///< of a bar
constexpr QColor grey(0x6B, 0x66, 0x5E); ///< of other months' numbers: also dark enough on a tone

/// What a text drawn between two lines stands at, in their middle.
double middle(const PageType &type, const QRectF &rect)
{
    return rect.top() + (rect.height() - type.lineHeight()) / 2;
}

/// Before the row of this number: beside numbers alone, where they stand.
QRectF headPlace(const GridFrame &frame, const LaidBlock &block, int row)
{
    const auto first = std::size_t(row) * std::size_t(frame.columnCount());
    const bool isBesideNumbers = frame.block().form == GridForm::Numbers && first < block.cells.size();
    return isBesideNumbers ? block.cells[first].number : block.rows[std::size_t(row)];
}

} // namespace

GridPainter::GridPainter(QPainter &painter, const PageGrid &grid, const GridTypes &types)
    : m_painter(painter)
    , m_grid(grid)
    , m_types(types)
{
    m_painter.save();
    m_painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

GridPainter::~GridPainter()
{
    m_painter.restore();
}

double GridPainter::titlePoints(const PageGrid &grid, double width)
{
    const double most = grid.style == GridStyle::Open ? 32 : 26;
    return std::clamp(width / 14, 14.0, most);
}

void GridPainter::fill(const QRectF &line, const QColor &color) const
{
    fillSharpLine(m_painter, line, color);
}

void GridPainter::round(const QRectF &rect, double corner, const QColor &color) const
{
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(color);
    m_painter.drawRoundedRect(rect, corner, corner);
}

void GridPainter::paintBlock(const GridFrame &frame, const LaidBlock &block) const
{
    const PageType &title = m_types.of(frame.titlePoints(), GridTypes::Strong);
    if (frame.title().height() > 0)
        title.draw(m_painter, {frame.title().left(), middle(title, frame.title())}, frame.block().title);
    paintTints(frame, block);
    paintLines(frame, block);
    paintSpans(frame, block);
    paintHeads(frame);
    for (int row = 0; row < int(std::min(frame.block().rows.size(), qsizetype(block.rows.size()))); ++row)
        paintRowHead(frame, frame.block().rows[row], headPlace(frame, block, row));
    for (const LaidCell &cell : block.cells)
        paintCell(frame, cell);
    for (const LaidLine &note : block.notes)
        paintEntry(frame, note);
}

void GridPainter::paintTints(const GridFrame &frame, const LaidBlock &block) const
{
    const bool isOpen = frame.style() == GridStyle::Open && frame.block().form == GridForm::Weeks;
    for (const LaidCell &cell : block.cells) {
        if (!cell.cell->isTinted)
            continue;
        if (isOpen)
            round(cell.rect.adjusted(openGap, openGap, -openGap, -openGap), corner, GridColors::tint);
        else
            m_painter.fillRect(cell.rect, GridColors::tint);
    }
    if (frame.block().form != GridForm::Days)
        return;
    for (int row = 0; row < int(std::min(frame.block().rows.size(), qsizetype(block.rows.size()))); ++row) {
        QRectF head = block.rows[std::size_t(row)];
        head.setRight(head.left());
        head.setLeft(frame.rect().left());
        if (frame.block().rows[row].isTinted)
            m_painter.fillRect(head, GridColors::tint);
    }
}

void GridPainter::paintSpans(const GridFrame &frame, const LaidBlock &block) const
{
    for (const LaidSpan &span : block.spans) {
        if (span.words.isEmpty())
            round(span.rect, std::min({2.0, span.rect.height() / 2, span.rect.width() / 2}),
                  GridColors::toneEdge(span.span->tone));
        else
            paintBar(frame, span);
    }
}

/// With a rim, so that it is seen on a weekend in black and white; an end that goes on elsewhere is open.
void GridPainter::paintBar(const GridFrame &frame, const LaidSpan &span) const
{
    const QColor edge = GridColors::toneEdge(span.span->tone);
    const QRectF &bar = span.rect;
    m_painter.fillRect(bar, GridColors::tone(span.span->tone));
    m_painter.fillRect(QRectF(bar.left(), bar.top(), bar.width(), rim), edge);
    m_painter.fillRect(QRectF(bar.left(), bar.bottom() - rim, bar.width(), rim), edge);
    if (span.span->beginsHere)
        m_painter.fillRect(QRectF(bar.left(), bar.top(), beginning, bar.height()), edge);
    if (span.span->endsHere)
        m_painter.fillRect(QRectF(bar.right() - rim, bar.top(), rim, bar.height()), edge);
    const PageType &type = m_types.line(frame.points());
    const double height = double(span.words.size()) * frame.pitch();
    double y = bar.top() + (bar.height() - height) / 2 + GridTypes::lift(type, frame.points());
    for (const QString &words : span.words) {
        type.draw(m_painter, {bar.left() + spanInset, y}, words);
        y += frame.pitch();
    }
}

void GridPainter::paintLines(const GridFrame &frame, const LaidBlock &block) const
{
    if (frame.style() == GridStyle::Open || frame.block().form == GridForm::Numbers || block.rows.empty())
        return;
    const bool isThin = frame.style() == GridStyle::Thin;
    const bool isWeeks = frame.block().form == GridForm::Weeks;
    const double left = isWeeks ? frame.body().left() : frame.rect().left();
    const double right = frame.body().right();
    const double top = block.rows.front().top();
    const double bottom = block.rows.back().bottom();
    const QColor level = isWeeks ? GridColors::line : GridColors::thinLine;
    for (std::size_t row = 1; row < block.rows.size(); ++row) {
        const auto at = qsizetype(row);
        const bool beginsWeek = at < frame.block().rows.size() && frame.block().rows[at].beginsWeek;
        fill({left, block.rows[row].top(), right - left, thin}, beginsWeek ? GridColors::quiet : level);
    }
    fill({left, bottom - thin / 2, right - left, thin}, GridColors::line);
    for (int column = 1; column < frame.columnCount(); ++column)
        fill({frame.columnLeft(column), top, thin, bottom - top},
             isThin ? GridColors::line : GridColors::thinLine);
    if (!isWeeks && isThin)
        fill({frame.body().left(), top, thin, bottom - top}, GridColors::line);
    if (isThin) {
        fill({left, top, thin, bottom - top}, GridColors::line);
        fill({right - thin, top, thin, bottom - top}, GridColors::line);
    }
}

void GridPainter::paintHeads(const GridFrame &frame) const
{
    const QRectF heads = frame.heads();
    if (heads.height() <= 0)
        return;
    const bool isBand = frame.style() == GridStyle::Band;
    const bool isNumbers = frame.block().form == GridForm::Numbers;
    if (isBand)
        m_painter.fillRect(heads, GridColors::band);
    else if (frame.style() == GridStyle::Thin)
        fill({heads.left(), heads.bottom() - rule / 2, heads.width(), rule}, GridColors::quiet);
    const QColor color = isBand ? GridColors::onBand : isNumbers ? GridColors::quiet : GridColors::ink;
    const PageType &type = m_types.of(frame.headPoints(), GridTypes::Strong, color);
    const double width = frame.columnWidth() - 2 * frame.inset();
    const bool isShort = std::ranges::any_of(frame.block().columns, [&](const GridHead &head) {
        return !head.note.isEmpty() && type.width(head.text) > width - frame.inset();
    });
    for (int column = 0; column < frame.columnCount(); ++column) {
        const GridHead &head = frame.block().columns[column];
        const QString words = type.elided(isShort ? head.note : head.text, width);
        const QPointF at(frame.columnLeft(column) + frame.inset(), middle(type, heads));
        type.draw(m_painter, at, width, isBand || isNumbers ? Qt::AlignHCenter : Qt::AlignLeft, words);
    }
}

void GridPainter::paintRowHead(const GridFrame &frame, const GridHead &head, const QRectF &row) const
{
    const PageType &week = m_types.of(weekPoints, GridTypes::Normal, GridColors::quiet);
    const double left = frame.rect().left();
    if (frame.block().form != GridForm::Days) {
        const bool isSmall = frame.block().form == GridForm::Numbers;
        const double y = isSmall ? middle(week, row) : row.top() + frame.inset();
        week.draw(m_painter, {left, y}, frame.weekGutter() - 5, Qt::AlignRight, head.week);
        return;
    }
    const PageType &line = m_types.line(frame.points());
    const double base =
        row.top() + frame.dayInset() + GridTypes::lift(line, frame.points()) + line.baseline();
    week.draw(m_painter, {left, base - week.baseline()}, frame.weekGutter() - 3, Qt::AlignRight, head.week);
    const GridTypes::Weight weight = head.isStrong ? GridTypes::Strong : GridTypes::Normal;
    const PageType &number = m_types.of(frame.numberPoints(), weight);
    const double at = left + frame.weekGutter() + frame.inset();
    number.draw(m_painter, {at, base - number.baseline()}, frame.numberWidth(), Qt::AlignRight, head.text);
    const PageType &name = m_types.of(frame.points(), weight, GridColors::quiet);
    name.draw(m_painter, {at + frame.numberWidth() + 4, base - name.baseline()}, head.note);
}

void GridPainter::paintCell(const GridFrame &frame, const LaidCell &cell) const
{
    if (!cell.cell->number.isEmpty())
        paintNumber(frame, cell);
    for (const LaidLine &line : cell.lines)
        paintEntry(frame, line);
    if (cell.left > 0)
        paintLeft(frame, cell);
}

/// "+3" where a day has more than stands there: beside its number, or at its foot where that place is taken.
void GridPainter::paintLeft(const GridFrame &frame, const LaidCell &cell) const
{
    const PageType &type = m_types.of(leftPoints, GridTypes::Strong, GridColors::quiet);
    const QString words = u'+' + QString::number(cell.left);
    const double width = type.width(words) + 2;
    const double height = GridTypes::pitch(leftPoints);
    QRectF place(cell.rect.right() - width - 1.5, cell.rect.top() + 1.5, width, height);
    const bool isWeek = frame.block().form == GridForm::Weeks;
    if (isWeek && !cell.lines.empty() && cell.lines.front().rect.top() < cell.number.bottom())
        place.moveBottom(cell.rect.bottom() - 1);
    m_painter.fillRect(place, cell.cell->isTinted ? GridColors::tint : QColor(Qt::white));
    type.draw(m_painter, {place.left() + 1, middle(type, place)}, words);
}

void GridPainter::paintNumber(const GridFrame &frame, const LaidCell &cell) const
{
    const GridTypes::Weight weight = cell.cell->isStrong ? GridTypes::Strong : GridTypes::Normal;
    const PageType &type =
        m_types.of(frame.numberPoints(), weight, cell.cell->isQuiet ? grey : GridColors::ink);
    if (frame.block().form == GridForm::Weeks) {
        type.draw(m_painter, {cell.number.left(), middle(type, cell.number)}, cell.cell->number);
        return;
    }
    const double y = middle(type, cell.number);
    type.draw(m_painter, {cell.number.left(), y}, cell.number.width(), Qt::AlignHCenter, cell.cell->number);
    if (cell.cell->hasDot) {
        const double size = std::clamp(frame.numberPoints() * 0.2, 1.5, 3.0);
        // Below the number or, in a low row, where it would be taken for a part of the next one, beside it.
        const bool isBelow = y + type.baseline() + size * 2 <= cell.number.bottom();
        const double beside = cell.number.center().x() + type.width(cell.cell->number) / 2 + size * 1.2;
        const QPointF at = isBelow ? QPointF(cell.number.center().x(), y + type.baseline() + size * 1.5)
                                   : QPointF(beside, y + type.baseline() - frame.numberPoints() * 0.35);
        round(QRectF(at - QPointF(size / 2, size / 2), QSizeF(size, size)), size / 2, GridColors::ink);
    }
}

void GridPainter::paintEntry(const GridFrame &frame, const LaidLine &line) const
{
    const PageType &type =
        m_types.line(frame.points(), line.line->isStrong ? GridTypes::Strong : GridTypes::Normal);
    const QPointF top = line.rect.topLeft() + QPointF(0, GridTypes::lift(type, frame.points()));
    double lead = line.lead;
    if (line.line->tone > 0) {
        const double size = frame.points() * 0.62;
        const double before = frame.points() * 0.95;
        const double y = top.y() + type.baseline() - size + 0.3;
        round({line.rect.left() + lead - before, y, size, size}, 1, GridColors::toneEdge(line.line->tone));
    }
    if (line.isBesideLast) {
        const double size = frame.points() * 0.18;
        const QPointF at(line.rect.left() - frame.points() * 0.65,
                         top.y() + type.baseline() - frame.points() * 0.3);
        round(QRectF(at - QPointF(size, size) / 2, QSizeF(size, size)), size / 2, GridColors::quiet);
    }
    if (line.hasLead && !line.line->lead.isEmpty())
        m_types.line(frame.points(), GridTypes::Strong).draw(m_painter, top, line.line->lead);
    for (qsizetype i = 0; i < line.words.size(); ++i)
        type.draw(m_painter, top + QPointF(lead + (i > 0 ? line.indent : 0), double(i) * frame.pitch()),
                  line.words[i]);
}

void GridPainter::paintTitle(const QRectF &head) const
{
    const double points = titlePoints(m_grid, head.width());
    const PageType &type = m_types.of(points, GridTypes::Strong);
    const PageType &light = m_types.of(points, GridTypes::Light, GridColors::quiet);
    const double top = head.bottom() - type.lineHeight();
    type.draw(m_painter, {head.left(), top}, m_grid.title);
    const double left = head.left() + type.width(m_grid.title) + points * 0.3;
    light.draw(m_painter, {left, top + type.baseline() - light.baseline()}, m_grid.titleLight);
}

void GridPainter::paintPhoto(const QRectF &place) const
{
    const PageType &name = m_types.of(captionPoints, GridTypes::Normal, GridColors::quiet);
    paintCaption(place, PageFigure::drawIn(m_painter, place, m_grid.photo.path, name));
}

void GridPainter::paintPhoto(const QRectF &place, const QImage &picture, QSizeF dots) const
{
    const QRectF shown = PageFigure::placeIn(place, dots);
    m_painter.save();
    m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
    m_painter.drawImage(shown, picture);
    m_painter.restore();
    paintCaption(place, shown.bottom());
}

void GridPainter::paintCaption(const QRectF &place, double bottom) const
{
    const PageType &type = m_types.of(captionPoints, GridTypes::Normal, GridColors::quiet);
    type.draw(m_painter, {place.left(), bottom + captionDrop}, place.width(), Qt::AlignHCenter,
              type.elided(PageType::onOneLine(m_grid.photo.caption), place.width()));
}

void GridPainter::paintCutMarks(const QRectF &body) const
{
    const QPointF center = body.center();
    const std::array<QRectF, 6> marks{
        QRectF(center.x(), body.top(), thin, cutMark),
        QRectF(center.x(), body.bottom() - cutMark, thin, cutMark),
        QRectF(center.x(), center.y() - cutMark / 2, thin, cutMark),
        QRectF(body.left(), center.y(), cutMark, thin),
        QRectF(body.right() - cutMark, center.y(), cutMark, thin),
        QRectF(center.x() - cutMark / 2, center.y(), cutMark, thin),
    };
    for (const QRectF &mark : marks)
        fill(mark, GridColors::quiet);
}

void GridPainter::paintFoot(bool isLast) const
{
    const QRectF foot(m_grid.foot.topLeft() * pointsPerInch, m_grid.foot.size() * pointsPerInch);
    const PageType &type = m_types.of(footPoints, GridTypes::Normal, GridColors::quiet);
    const QPointF at(foot.left(), middle(type, foot));
    const QString ending = isLast ? m_grid.footRight : QString();
    const double right = type.width(ending);
    const double room = foot.width() - right - 20;
    type.draw(m_painter, at, type.elided(PageType::onOneLine(m_grid.footLeft), std::max(0.0, room)));
    type.draw(m_painter, at, foot.width(), Qt::AlignRight, ending);
}
