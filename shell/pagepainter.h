#pragma once

#include "shell/dialogs.h"
#include "shell/page.h"

#include <QImage>

#include <functional>
#include <memory>

class QPagedPaintDevice;
class QPainter;

/// Lays a page out in points and draws its sheets on any painter, so that preview, clipboard picture, PDF and paper
/// break alike.
class PagePainter
{
public:
    PagePainter(const Page &page, const PageSetup &setup, const PageFont &font);
    ~PagePainter();
    PagePainter(PagePainter &&) noexcept;
    PagePainter &operator=(PagePainter &&) noexcept;

    /// At least 1: an empty page is one empty sheet.
    int sheetCount() const;

    /// Draws sheet `index` (from 0) in points; the painter is scaled by the caller.
    void paintSheet(QPainter &painter, int index) const;

    /// Sheet `index` as a picture of `dotsPerInch`.
    QImage image(int index, double dotsPerInch) const;

    /// Prints all sheets; false when the device could not be opened or `mayGoOn` (asked before each sheet, with its
    /// index) said no.
    bool print(QPagedPaintDevice &device, const std::function<bool(int sheet)> &mayGoOn = {}) const;

private:
    struct Layout;
    std::unique_ptr<Layout> m_layout;
};
