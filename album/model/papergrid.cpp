// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/papergrid.h"

#include <algorithm>
#include <cmath>

namespace {

using AlbumPages::PhotoSize;
using PageMetrics::lineHeight;

constexpr double titleRoom = 0.55;
constexpr double footRoom = 0.5; ///< of the last sheet's closing lines, and of the numbers of sheets
constexpr double gap = 0.15;
constexpr double textGap = 0.05;
/// What printers leave white, and the room that marks take between photographs.
constexpr double photographMargin = 0.25;
constexpr double markRoom = 0.2;

/// Across and down on an upright sheet.
std::pair<int, int> shapeOf(int perSheet)
{
    switch (perSheet) {
    case 2:
        return {1, 2};
    case 4:
        return {2, 2};
    case 6:
        return {2, 3};
    case 9:
        return {3, 3};
    case 20:
        return {4, 5};
    default:
        return {1, 1};
    }
}

/// The sheet between its title and its foot.
QRectF bodyOf(const PageSetup &setup)
{
    const double margin = PageMetrics::margin;
    return QRectF({}, setup.sheet()).adjusted(margin, margin + titleRoom, -margin, -margin - footRoom);
}

PaperGrid divided(const QRectF &body, int across, int down, double textHeight)
{
    const QSizeF cell((body.width() + gap) / across, (body.height() + gap) / down);
    const QSizeF picture(cell.width() - gap, std::max(cell.height() - gap - textHeight, 0.2));
    return {body.topLeft(), cell, picture, across, down};
}

/// How many of `length` have room in `room`.
int countOf(double room, double length)
{
    return int(std::floor((room + markRoom + 0.001) / (length + markRoom)));
}

QSizeF sizeOf(PhotoSize size)
{
    constexpr double inch = PageMetrics::millimetersPerInch;
    switch (size) {
    case PhotoSize::Inches4x6:
        return {4, 6};
    case PhotoSize::Inches5x7:
        return {5, 7};
    case PhotoSize::Centimeters10x15:
        return {100 / inch, 150 / inch};
    case PhotoSize::Centimeters13x18:
        return {130 / inch, 180 / inch};
    }
    return {4, 6};
}

} // namespace

QRectF PaperGrid::place(int index) const
{
    const QPointF at(corner.x() + cell.width() * (index % across),
                     corner.y() + cell.height() * (index / across));
    return {at, picture};
}

int PaperGrid::captionLines(int perSheet)
{
    return perSheet <= 2 ? 3 : perSheet <= 9 ? 2 : 1;
}

TextRole PaperGrid::captionRole(int perSheet)
{
    return perSheet <= 4 ? TextRole::Body : TextRole::Small;
}

PaperGrid PaperGrid::ofSheets(const AlbumPages::Options &options, const PageSetup &setup)
{
    auto [across, down] = shapeOf(options.perSheet);
    if (setup.orientation == PageSetup::Landscape)
        std::swap(across, down);
    double text =
        options.hasCaptions ? captionLines(options.perSheet) * lineHeight(captionRole(options.perSheet)) : 0;
    text += options.hasDates ? lineHeight(TextRole::Small) : 0;
    return divided(bodyOf(setup), across, down, text > 0 ? text + textGap : 0);
}

PaperGrid PaperGrid::ofContacts(const PageSetup &setup)
{
    const bool isUpright = setup.orientation == PageSetup::Portrait;
    return divided(bodyOf(setup), isUpright ? 5 : 7, isUpright ? 6 : 4, 2 * lineHeight(TextRole::Small));
}

PaperGrid PaperGrid::ofPhotographs(PhotoSize size, const PageSetup &setup)
{
    const QSizeF sheet = setup.sheet();
    const QSizeF room = sheet - QSizeF(2 * photographMargin, 2 * photographMargin);
    PaperGrid best;
    best.across = 0;
    for (const QSizeF photo : {sizeOf(size), sizeOf(size).transposed()}) {
        const int across = countOf(room.width(), photo.width());
        const int down = countOf(room.height(), photo.height());
        if (across * down <= best.count() && best.across > 0)
            continue;
        best = {{}, photo + QSizeF(markRoom, markRoom), photo, across, down};
    }
    if (best.count() == 0) { // a sheet of that very size, or a smaller one
        const bool isUpright = sheet.width() < sheet.height();
        const QSizeF photo = isUpright ? sizeOf(size) : sizeOf(size).transposed();
        const bool fits = photo.width() <= sheet.width() + 0.01 && photo.height() <= sheet.height() + 0.01;
        best = {{}, sheet, fits ? photo : photo.scaled(sheet, Qt::KeepAspectRatio), 1, 1};
    }
    const QSizeF all(best.picture.width() + best.cell.width() * (best.across - 1),
                     best.picture.height() + best.cell.height() * (best.down - 1));
    best.corner = {(sheet.width() - all.width()) / 2, (sheet.height() - all.height()) / 2};
    return best;
}

PaperGrid PaperGrid::ofBook(const PageSetup &setup, double margin, double top, double height)
{
    const QRectF body(margin, top, setup.sheet().width() - 2 * margin, height);
    return divided(body, 2, 2, 2 * lineHeight(TextRole::Body) + 2 * lineHeight(TextRole::Small) + textGap);
}
