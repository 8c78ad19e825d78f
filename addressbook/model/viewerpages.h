// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressviewer.h"
#include "shell/core/pagecontext.h"
#include "shell/pictures/storedpicture.h"

#include <vector>

/// What leaves the viewer: printed lists, pictures, the clipboard's text and the spreadsheet file.
namespace ViewerPages {

/// The word of a choice under "Select Information to View".
QString choice(Information information);

/// The heading of the information column; empty under `Pictures`, which has none.
QString heading(Information information, DateStyle style);

/// What the panel of print options chooses for a list.
struct ListOptions {
    bool hasTelephones = false; ///< behind each name its home number, or the mobile one, but not the column's
    bool hasAsOf = false;       ///< today's date on each page
    bool isTwoColumns = false;
    bool hasGridLines = false;

    bool operator==(const ListOptions &) const = default;
};

/// The rows as they are shown. Where the viewer shows pictures, the names alone.
Page list(const AddressViewer &viewer, const ListOptions &options, const PageContext &context);

/// Pictures on a portrait sheet: four columns of five.
inline constexpr int picturesPerSheet = 20;

/// The pictures with their names under them, from 0.25 inches of the left and 0.8 of the top on, two inches
/// apart. Each is drawn at 16.54 % of its size at 96 dots an inch, as far as its place allows and not below
/// an inch.
Page pictureList(const std::vector<ListedPicture> &pictures, const PageContext &context);

/// The rows that have a picture; the viewer was loaded with `Information::Pictures`.
std::vector<NamedPicture> picturesOf(const AddressViewer &viewer);

/// Headings and rows, cells separated by tabs; for the clipboard.
QString clipboardText(const AddressViewer &viewer, DateStyle style);

/// The same as a spreadsheet file: Windows-1252, a row a line, CRLF.
QByteArray exportText(const AddressViewer &viewer, DateStyle style);

/// The name of that file: the window's title with what no file name can hold made "-", and ".xls".
QString exportName(const QString &title);

} // namespace ViewerPages
