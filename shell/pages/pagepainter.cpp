// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/pagepainter.h"

#include "shell/pages/pagelayout.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>
#include <numeric>
#include <utility>

using PageMetrics::pointsPerInch;

namespace {

constexpr double metersPerInch = 0.0254;
/// A sheet at more dots would not fit into an image.
constexpr double maximumDotsPerInch = 1200;

} // namespace

PagePainter::PagePainter(const Page &page, const PageSetup &setup, const PageFont &font)
    : m_font(font)
    , m_layout(std::make_unique<PageLayout>(page, setup, font))
{}

PagePainter::PagePainter(PageSheets sheets, const PageSetup &setup, const PageFont &font)
    : m_sheets(std::move(sheets))
    , m_font(font)
    , m_layout(std::make_unique<PageLayout>(m_sheets.make(0), setup, font))
{}

PagePainter::~PagePainter() = default;
PagePainter::PagePainter(PagePainter &&) noexcept = default;
PagePainter &PagePainter::operator=(PagePainter &&) noexcept = default;

int PagePainter::sheetCount() const
{
    return m_sheets.make ? m_sheets.count : m_layout->sheetCount();
}

/// The layout that has sheet `index`, as its only one where sheets are made one at a time.
const PageLayout &PagePainter::layoutOf(int index) const
{
    if (m_sheets.make && index != m_laidOut && index >= 0 && index < m_sheets.count) {
        m_layout = std::make_unique<PageLayout>(m_sheets.make(index), m_layout->setup(), m_font);
        m_laidOut = index;
    }
    return *m_layout;
}

QSizeF PagePainter::sheetSize() const
{
    return m_layout->sheet();
}

bool PagePainter::isTableCut() const
{
    return m_layout->isTableCut();
}

QString PagePainter::text(int index) const
{
    return layoutOf(index).text(m_sheets.make ? 0 : index);
}

void PagePainter::paintSheet(QPainter &painter, int index) const
{
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    const PageLayout &layout = layoutOf(index);
    layout.paint(painter, m_sheets.make ? 0 : index);
    if (m_sheets.make)
        layout.paintNumber(painter, index + 1, m_sheets.count);
    painter.restore();
}

QImage PagePainter::image(int index, double dotsPerInch) const
{
    const double scale = std::clamp(dotsPerInch, 1.0, maximumDotsPerInch) / pointsPerInch;
    QImage image((sheetSize() * scale).toSize().expandedTo({1, 1}), QImage::Format_RGB32);
    if (image.isNull())
        return image;
    const int dotsPerMeter = qRound(scale * pointsPerInch / metersPerInch);
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    paintSheet(painter, index);
    return image;
}

bool PagePainter::print(QPagedPaintDevice &device, const std::function<bool(int sheet)> &mayGoOn) const
{
    std::vector<int> sheets;
    sheets.resize(std::size_t(sheetCount()));
    std::iota(sheets.begin(), sheets.end(), 0);
    return print(device, sheets, mayGoOn);
}

bool PagePainter::print(QPagedPaintDevice &device, const std::vector<int> &sheets,
                        const std::function<bool(int sheet)> &mayGoOn) const
{
    if (sheets.empty())
        return false;
    device.setPageLayout(deviceLayout(m_layout->setup()));
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    bool isFirst = true;
    for (const int sheet : sheets) {
        if (mayGoOn && !mayGoOn(sheet))
            return false;
        if (!isFirst && !device.newPage())
            return false;
        isFirst = false;
        painter.save();
        painter.scale(device.logicalDpiX() / pointsPerInch, device.logicalDpiY() / pointsPerInch);
        paintSheet(painter, sheet);
        painter.restore();
    }
    return painter.end();
}

QPageLayout PagePainter::deviceLayout(const PageSetup &setup)
{
    const QPageSize size(setup.paper, QPageSize::Inch, {}, QPageSize::FuzzyMatch);
    const auto orientation =
        setup.orientation == PageSetup::Portrait ? QPageLayout::Portrait : QPageLayout::Landscape;
    QPageLayout layout(size, orientation, {}, QPageLayout::Inch);
    layout.setMode(QPageLayout::FullPageMode); // points count from the corner of the paper
    return layout;
}

PageSetup PagePainter::setupOf(const QPageLayout &layout)
{
    PageSetup setup;
    setup.orientation =
        layout.orientation() == QPageLayout::Portrait ? PageSetup::Portrait : PageSetup::Landscape;
    const QSizeF paper = layout.pageSize().size(QPageSize::Inch);
    if (paper.isValid())
        setup.paper = paper;
    return setup;
}
