// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/page.h"

#include <functional>
#include <vector>

class AddressViewer;

/// Paper that addresses are printed on: a sheet of labels, or an envelope. All measures in inches.
struct LabelSheet {
    QString name; ///< "A4, 3 x 7, 63.5 x 38.1 mm"
    QSizeF paper; ///< as it lies
    int columns = 1;
    int rows = 1;
    QPointF first; ///< corner of the first label
    QSizeF label;
    QPointF pitch; ///< from one label's corner to the next
    bool isEnvelope = false;

    int count() const { return columns * rows; }
    /// The label at `position` (from 0, row by row).
    QRectF place(int position) const;
    /// What its text may take of the label at `position`.
    QRectF room(int position) const;
    PageSetup setup() const;

    bool operator==(const LabelSheet &) const = default;

    /// The label sheets and envelopes that the program knows, labels first.
    static const std::vector<LabelSheet> &all();
};

/// Whether persons with the same address get one label together.
enum class LabelSharing { EachTheirOwn, OneForAnAddress };

/// The addresses of the viewer's rows, ready to be printed.
struct LabelTexts {
    std::vector<QString> texts; ///< lines separated by '\n': names, address, town
    int leftOut = 0;            ///< rows without an address

    /// Of the rows whose line of the index is `wanted`, in the order in which they are shown; a shared label
    /// stands where the first of its persons does.
    static LabelTexts of(const AddressViewer &viewer, LabelSharing sharing,
                         const std::function<bool(int line)> &wanted = {});
};

/// A person as a label names them.
struct LabelPerson {
    QString lastName;
    QString firstName;
};

/// How the fonts of a page set a text into the room of a label.
struct LabelType {
    std::function<QStringList(const QString &line, TextRole role)> wrapped; ///< to the room's width
    std::function<QString(const QString &line, TextRole role)> elided;      ///< one line
    std::function<int(TextRole role)> mostLines;
};

/// A label as it is set.
struct SetLabel {
    QString text; ///< lines separated by '\n'
    TextRole role = TextRole::Body;
    bool isShortened = false;
};

namespace LabelPages {

/// "Anne Miller"; "Anne & Karl Miller" where the last names agree; "Anne Miller & Karl Holm" elsewhere.
QString names(const std::vector<LabelPerson> &persons);

/// `text` in the type in which all of it has room. Where none is small enough the names are shortened first:
/// a letter finds its way without a name, and never without its town.
SetLabel fitted(const QString &text, const LabelType &type);

/// Sheets for so many labels when the first `used` places of the first sheet are gone already.
int sheetCount(const LabelSheet &sheet, int labels, int used);

/// What a run of labels needs besides the addresses.
struct Options {
    int used = 0;          ///< places of the first sheet that are gone already; 0 for envelopes
    QString returnAddress; ///< envelopes only; lines separated by '\n'
    bool hasRims = false;  ///< thin rims around the labels, for the screen
    QPointF offset{};      ///< in inches, by which all texts are moved: printers are a little off
};

/// Sheet `index` alone, or all of them.
Page sheet(const LabelSheet &sheet, const std::vector<SetLabel> &labels, const Options &options, int index);
Page sheets(const LabelSheet &sheet, const std::vector<SetLabel> &labels, const Options &options);

} // namespace LabelPages
