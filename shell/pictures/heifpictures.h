// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

class QIODevice;

/// The pictures of telephones, HEIC and AVIF, which every reader of pictures in the program knows once this
/// is linked. What decodes them is loaded when the first such file is met.
namespace HeifPictures {

/// "HEIC" or "AVIF" where the file begins as one of them does, else empty; `first` are 12 bytes or more.
QByteArray kind(QByteArrayView first);

/// Whether this program has what decodes them.
bool areReadable();

/// The preview that lies in the file; null when there is none.
QImage preview(QIODevice &file);

} // namespace HeifPictures
