// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QByteArrayView>
#include <QString>

/// The files of pictures that records name by any path, inside the data folder or elsewhere.
namespace KeptPictures {

/// The file that a picture's path means: inside the data folder where it is relative, else as it stands, else
/// a file of its name in the data folder or its `Pictures` folder. Empty when there is none.
QString locate(const DataFolder &folder, const QString &path);

/// How a record names the file: relative to the data folder where it is inside.
QString stored(const DataFolder &folder, const QString &file);

/// Copies the file into the `Pictures` folder of the data, never over another one; how a record names it.
/// A file that is in the data folder already is not copied, and one that was copied before not twice. Empty
/// when it cannot be read, or the disk refuses.
[[nodiscard]] QString keepCopy(const DataFolder &folder, const QString &file);

/// The same for a picture that is no file yet; `name` is what it is to be called.
[[nodiscard]] QString keep(const DataFolder &folder, QByteArrayView bytes, const QString &name);

} // namespace KeptPictures
