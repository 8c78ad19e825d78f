// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/pagecontext.h"
#include "weight/model/weightsheet.h"

#include <QSizeF>
#include <QString>

/// What is printed of a person's weight.
namespace WeightPages {

/// What the person chose; the names are those of the choices.
struct Options {
    bool graph = true;
    bool data = true;
    bool plan = true;
    bool beginningPicture = true;
    bool currentPicture = true;
    bool borderLines = false; ///< a frame around every sheet
    bool dividerLines = true; ///< between rows, and between what stands side by side

    bool hasContent() const { return graph || data || plan || beginningPicture || currentPicture; }

    bool operator==(const Options &) const = default;
};

/// The paths of files that are quick to read; a picture that is not there is empty.
struct Pictures {
    QString graph;
    QString beginning;
    QString current;
};

/// The size of the graph on paper, in inches.
QSizeF graphSize(const PageSetup &setup);

/// "Weight Tracker Printout": what the weigh-ins come to, with the graph; then, each from a new sheet on, the
/// table, the plan, the photos of then and now side by side.
Page printout(const WeightSheet &sheet, const Options &options, const Pictures &pictures,
              const PageContext &context);

} // namespace WeightPages
