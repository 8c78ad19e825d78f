// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/gridframe.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using PageMetrics::pointsPerInch;

namespace {

constexpr double weekWidth = 18; ///< for the number of a week
constexpr double dayGap = 4;     ///< between the number of a day and its name
constexpr double smallestHead = 6.5;

bool hasWeeks(const GridBlock &block)
{
    return std::ranges::any_of(block.rows, [](const GridHead &head) { return !head.week.isEmpty(); });
}

} // namespace

GridFrame::GridFrame(const GridBlock &block, const QRectF &rect, GridStyle style, const GridTypes &types,
                     double points, Lines lines)
    : m_block(&block)
    , m_style(style)
    , m_types(&types)
    , m_points(points)
    , m_lines(lines)
{
    const QSizeF padding = block.padding * pointsPerInch;
    m_rect = rect.adjusted(padding.width(), padding.height(), -padding.width(), -padding.height());
    setSizes();
    placeTitle();
    placeHeads();
}

const GridCell &GridFrame::cell(int row, int column) const
{
    return m_block->cells[qsizetype(row) * columnCount() + column];
}

double GridFrame::columnWidth() const
{
    return m_body.width() / std::max(1, columnCount());
}

double GridFrame::numberWidth() const
{
    return m_types->of(m_numberPoints, GridTypes::Strong).width(u"30"_s);
}

double GridFrame::columnWidth(const GridBlock &block, double width)
{
    const double whole = width * block.share.width() - 2 * block.padding.width() * pointsPerInch;
    const auto count = double(std::max<qsizetype>(1, block.columns.size()));
    switch (block.form) {
    case GridForm::Weeks:
        break;
    case GridForm::Days: // what stands before the days, and longer lines than in a narrow cell
        return 0.8 * (whole - 60) / count;
    case GridForm::Numbers: // two columns of notes
        return whole / 2;
    }
    return whole / count;
}

void GridFrame::setSizes()
{
    const double column = m_rect.width() / std::max(1, columnCount());
    const bool isOpen = m_style == GridStyle::Open;
    switch (m_block->form) {
    case GridForm::Weeks:
        m_numberPoints = std::clamp(column * 0.28, 11.0, isOpen ? 24.0 : 15.0);
        m_numberPoints = std::min(m_numberPoints, m_points * (isOpen ? 2.2 : 1.6));
        m_headPoints = std::clamp(column * 0.13, 8.0, 11.0);
        m_titlePoints = 14;
        break;
    case GridForm::Days:
        m_numberPoints = m_points * 1.05 + (isOpen ? std::min(2.0, m_points - GridTypes::smallestPoints) : 0);
        m_headPoints = std::clamp(column * 0.1, 9.0, 11.0);
        m_titlePoints = 14;
        break;
    case GridForm::Numbers:
        m_numberPoints = std::clamp(column * 0.38, 6.5, m_points * (isOpen ? 1.35 : 1.15));
        m_headPoints = std::clamp(m_numberPoints * 0.75, smallestHead, 10.0);
        m_titlePoints = std::clamp(m_numberPoints * 1.3, 8.0, 18.0);
        break;
    }
}

void GridFrame::placeTitle()
{
    const double height = m_block->title.isEmpty() ? 0 : m_titlePoints * 1.5;
    m_title = QRectF(m_rect.topLeft(), QSizeF(m_rect.width(), height));
}

void GridFrame::placeHeads()
{
    m_weekGutter = hasWeeks(*m_block) ? weekWidth : 0;
    m_gutter = m_weekGutter;
    if (m_block->form == GridForm::Days) {
        const double name = m_types->of(m_points).width(u"We"_s);
        m_gutter += numberWidth() + dayGap + name + 2 * inset();
    }
    const bool hasHeads =
        std::ranges::any_of(m_block->columns, [](const GridHead &head) { return !head.text.isEmpty(); });
    const double height = m_headPoints * (m_style == GridStyle::Band ? 1.75 : 1.6);
    m_heads = QRectF(m_rect.left(), m_title.bottom(), m_rect.width(), hasHeads ? height : 0);
    m_body = m_rect;
    m_body.setTop(m_heads.bottom());
    m_body.setLeft(m_rect.left() + m_gutter);
}
