// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/albumpages.h"

#include "album/model/albumbook.h"
#include "album/model/lines.h"
#include "album/model/papergrid.h"
#include "album/model/photodatewords.h"
#include "album/model/photoshelf.h"
#include "album/model/phototexts.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;
using PageMetrics::lineHeight;

namespace {

using AlbumPages::Form;
using AlbumPages::Options;
using AlbumPages::Picture;

constexpr double textGap = 0.05;
constexpr double markGap = 0.03;
constexpr double markLength = 0.12;

/// Lines outside the corners of a photograph: where it is to be cut off.
void addMarks(Page &page, const QRectF &photo)
{
    for (const double x : {photo.left(), photo.right()}) {
        page.placeRule({x, photo.top() - markGap - markLength, 0, markLength});
        page.placeRule({x, photo.bottom() + markGap, 0, markLength});
    }
    for (const double y : {photo.top(), photo.bottom()}) {
        page.placeRule({photo.left() - markGap - markLength, y, markLength, 0});
        page.placeRule({photo.right() + markGap, y, markLength, 0});
    }
}

/// Puts the pictures on as many sheets as they need; `add` puts one at its place.
template <typename Add>
void fill(Page &page, const std::vector<Picture> &pictures, const PaperGrid &grid, const Add &add)
{
    const int count = int(pictures.size());
    for (int i = 0; i < count; ++i) {
        if (i > 0 && i % grid.count() == 0)
            page.breakPage();
        add(pictures[std::size_t(i)], grid.place(i % grid.count()));
    }
}

Page sheets(const QString &title, const std::vector<Picture> &pictures, const Options &options,
            const PageContext &context)
{
    Page page(title);
    const TextRole role = PaperGrid::captionRole(options.perSheet);
    const double captionHeight = PaperGrid::captionLines(options.perSheet) * lineHeight(role);
    fill(page, pictures, PaperGrid::ofSheets(options, context.setup),
         [&](const Picture &picture, QRectF place) {
             const QRectF shown = AlbumBook::placePicture(page, picture, place);
             // Right below the picture, as wide as its place.
             double y = shown.bottom() + textGap;
             if (options.hasDates && !picture.date.isEmpty()) {
                 page.placeText({place.left(), y, place.width(), lineHeight(TextRole::Small)}, picture.date,
                                TextRole::Small, Qt::AlignHCenter | Qt::AlignTop);
                 y += lineHeight(TextRole::Small);
             }
             if (options.hasCaptions && !picture.caption.isEmpty())
                 page.placeText({place.left(), y, place.width(), captionHeight}, picture.caption, role,
                                Qt::AlignHCenter | Qt::AlignTop);
         });
    return page.close(context.today, context.style);
}

Page photographs(const std::vector<Picture> &pictures, const Options &options, const PageContext &context)
{
    Page page;
    page.numberSheets(SheetNumbers::None);
    fill(page, pictures, PaperGrid::ofPhotographs(options.size, context.setup),
         [&page](const Picture &picture, const QRectF &place) {
             AlbumBook::placePicture(page, picture, place);
             addMarks(page, place);
         });
    return page;
}

Page contacts(const QString &title, const std::vector<Picture> &pictures, const PageContext &context)
{
    Page page(title, AlbumLines::pictures(qsizetype(pictures.size())));
    fill(page, pictures, PaperGrid::ofContacts(context.setup), [&page](const Picture &picture, QRectF place) {
        AlbumBook::placePicture(page, picture, place);
        page.placeText({place.left(), place.bottom(), place.width(), 2 * lineHeight(TextRole::Small)},
                       picture.fileName, TextRole::Small, Qt::AlignHCenter | Qt::AlignTop);
    });
    return page.close(context.today, context.style);
}

/// "1974", "The 1970s"; what is vaguer has none.
QString chapterOf(const PhotoDate &date)
{
    if (const int year = date.year(); year != 0)
        return QString::number(year);
    const QDate first = date.first();
    const QDate last = date.last();
    const bool isDecade = first.isValid() && last.isValid() && first.year() / 10 == last.year() / 10;
    return isDecade ? u"The %1s"_s.arg(first.year() / 10 * 10) : PhotoDateWords::heading({}, DateStyle::Usa);
}

QString whereAndWithWhom(const Photo &photo)
{
    QStringList people = PhotoTexts::list(photo.people);
    if (people.isEmpty())
        return photo.place;
    const QString last = people.takeLast();
    const QString all = people.isEmpty() ? last : people.join(u", "_s) + u" and "_s + last;
    return (photo.place.isEmpty() ? u"With "_s : photo.place + u", with "_s) + all;
}

} // namespace

std::vector<AlbumPages::Picture> AlbumPages::picturesOf(const PhotoShelf &shelf, const QList<int> &records,
                                                        DateStyle style)
{
    std::vector<Picture> pictures;
    pictures.reserve(std::size_t(records.size()));
    for (const int record : records) {
        const Photo *photo = shelf.photo(record);
        if (!photo)
            continue;
        pictures.push_back({.fileName = photo->fileName(),
                            .caption = photo->caption,
                            .date = PhotoDateWords::words(photo->date, style),
                            .chapter = chapterOf(photo->date),
                            .where = whereAndWithWhom(*photo),
                            .story = photo->story.split(u'\n', Qt::SkipEmptyParts)});
    }
    return pictures;
}

QString AlbumPages::sizeName(PhotoSize size)
{
    switch (size) {
    case PhotoSize::Inches4x6:
        return u"4 \u00d7 6 in"_s;
    case PhotoSize::Inches5x7:
        return u"5 \u00d7 7 in"_s;
    case PhotoSize::Centimeters10x15:
        return u"10 \u00d7 15 cm"_s;
    case PhotoSize::Centimeters13x18:
        return u"13 \u00d7 18 cm"_s;
    }
    return {};
}

QSizeF AlbumPages::placeSize(const Options &options, const PageSetup &setup)
{
    switch (options.form) {
    case Form::Sheets:
        return PaperGrid::ofSheets(options, setup).picture;
    case Form::Photographs:
        return PaperGrid::ofPhotographs(options.size, setup).picture;
    case Form::Contact:
        return PaperGrid::ofContacts(setup).picture;
    case Form::Book:
        return AlbumBook::placeSize(options, setup);
    }
    return {};
}

bool AlbumPages::mayTurn(const Options &options)
{
    return options.form == Form::Photographs;
}

Page AlbumPages::page(const QString &title, const std::vector<Picture> &pictures, const Options &options,
                      const PageContext &context)
{
    switch (options.form) {
    case Form::Photographs:
        return photographs(pictures, options, context);
    case Form::Contact:
        return contacts(title, pictures, context);
    case Form::Book:
        return AlbumBook(title, pictures, options, context).page();
    case Form::Sheets:
        break;
    }
    return sheets(title, pictures, options, context);
}
