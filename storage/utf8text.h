// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

/// Texts in UTF-8 that a person's editor may have been in: bytes that are no UTF-8 count as Windows-1252.
namespace Utf8Text {

/// How many bytes from `at` on are one character; 0 where they are none.
qsizetype characterAt(QByteArrayView bytes, qsizetype at);

/// The text of `bytes`. A byte order mark is a character like any other.
QString decode(QByteArrayView bytes);

} // namespace Utf8Text
