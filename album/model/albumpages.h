// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/page.h"
#include "shell/core/pagecontext.h"

#include <QList>
#include <QSizeF>
#include <QString>

#include <array>
#include <vector>

class PhotoShelf;

/// Pictures on paper: several to a sheet, in the sizes of photographs, on a contact sheet, as a book.
namespace AlbumPages {

enum class Form { Sheets, Photographs, Contact, Book };
enum class PhotoSize { Inches4x6, Inches5x7, Centimeters10x15, Centimeters13x18 };
inline constexpr std::array perSheetOffered{1, 2, 4, 6, 9, 20};
inline constexpr std::array perBookSheetOffered{1, 4};

struct Options {
    Form form = Form::Sheets;
    int perSheet = 1; ///< of `Sheets`
    PhotoSize size = PhotoSize::Inches4x6;
    bool isFilled = false; ///< the pictures are cut to the shape of their places
    bool hasCaptions = true;
    bool hasDates = true;
    int perBookSheet = 1;
    int cover = 0; ///< of a book: which of the pictures stands on its title sheet

    bool operator==(const Options &) const = default;
};

struct Picture {
    QString fileName;
    QString caption;
    QString date;        ///< in words
    QString chapter;     ///< of a book: the year or the decade
    QString where{};     ///< and with whom: "Lake Siljan, with Karl and Anne"
    QStringList story{}; ///< its paragraphs
    QString path{};      ///< of the copy for paper; empty where the picture cannot be read
    QSize pixels{};      ///< of that copy
    QString reason{};    ///< why it cannot be read, where that is known
};

/// What is said of these pictures; their copies are still to come.
std::vector<Picture> picturesOf(const PhotoShelf &shelf, const QList<int> &records, DateStyle style);

/// "4 x 6 in", "10 x 15 cm"
QString sizeName(PhotoSize size);

/// The largest place of a picture, in inches: what its copy is made for.
QSizeF placeSize(const Options &options, const PageSetup &setup);
/// Whether a picture may be turned by a quarter to lie as its place does: where nothing stands below it.
bool mayTurn(const Options &options);

/// All sheets under the title of the album, or of what is shown.
Page page(const QString &title, const std::vector<Picture> &pictures, const Options &options,
          const PageContext &context);

} // namespace AlbumPages
