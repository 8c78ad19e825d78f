// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/pagesheets.h"
#include "shell/pages/pagefont.h"

#include <QImage>

#include <functional>
#include <memory>
#include <vector>

class PageLayout;
class QPageLayout;
class QPagedPaintDevice;
class QPainter;

/// Lays a page out in points and draws its sheets on any painter, so that preview, clipboard picture, PDF and
/// paper break alike.
class PagePainter
{
public:
    PagePainter(const Page &page, const PageSetup &setup, const PageFont &font);
    /// Makes and lays out each sheet when it is drawn.
    PagePainter(PageSheets sheets, const PageSetup &setup, const PageFont &font);
    ~PagePainter();
    PagePainter(PagePainter &&) noexcept;
    PagePainter &operator=(PagePainter &&) noexcept;

    /// At least 1: an empty page is one empty sheet.
    int sheetCount() const;

    /// Width and height of the sheets in points.
    QSizeF sheetSize() const;

    /// Whether a table of numbers is too wide for the sheet, and was cut in two.
    bool isTableCut() const;

    /// The text of sheet `index`, with title and headings.
    QString text(int index) const;

    /// Draws sheet `index` (from 0) in points; the painter is scaled by the caller.
    void paintSheet(QPainter &painter, int index) const;

    /// Sheet `index` as a picture of `dotsPerInch`.
    QImage image(int index, double dotsPerInch) const;

    /// Prints all sheets; false when the device could not be opened or `mayGoOn` (asked before each sheet,
    /// with its index) said no.
    bool print(QPagedPaintDevice &device, const std::function<bool(int sheet)> &mayGoOn = {}) const;

    /// The same for some of the sheets, in this order.
    bool print(QPagedPaintDevice &device, const std::vector<int> &sheets,
               const std::function<bool(int sheet)> &mayGoOn = {}) const;

    /// How a device must be set to show pages of this setup, and the setup that a device asks for. Printing
    /// sets it by itself.
    static QPageLayout deviceLayout(const PageSetup &setup);
    static PageSetup setupOf(const QPageLayout &layout);

private:
    const PageLayout &layoutOf(int index) const;

    PageSheets m_sheets;
    PageFont m_font;
    mutable int m_laidOut = 0; ///< of the sheets that are made one at a time
    mutable std::unique_ptr<PageLayout> m_layout;
};
