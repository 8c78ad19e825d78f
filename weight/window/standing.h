// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/figurestrip.h"
#include "weight/model/weightsheet.h"

#include <QDate>

/// How things stand with a person's weight, in the four figures that they open the tracker for.
namespace Standing {

/// Now, since the beginning, since the last entry, to the goal. What cannot be told is a dash.
QList<FigureStrip::Figure> figures(const WeightSheet &sheet, QDate today);

} // namespace Standing
