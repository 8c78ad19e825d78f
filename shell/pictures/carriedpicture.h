// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QMimeData;

/// What is dropped or pasted, as a picture.
namespace CarriedPicture {

/// The file that was dragged or copied; empty when it is none of this machine.
QString fileIn(const QMimeData &data);

/// Whether it may hold a picture; `data` may be null.
bool mayBeIn(const QMimeData *data);

} // namespace CarriedPicture
