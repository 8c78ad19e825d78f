// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

/// What the module `heif` has for the program: it decodes the pictures of telephones, HEIC and AVIF, and
/// turns and crops them as their files say.
struct HeifModule {
    /// Of the picture as it is shown; empty when the bytes are none.
    QSize (*size)(const QByteArray &file);
    /// The picture, which fits `bound` where that is not empty; null when it is damaged.
    QImage (*read)(const QByteArray &file, QSize bound);
    /// The preview that lies in the file; null when there is none.
    QImage (*preview)(const QByteArray &file);

    static constexpr auto name = "heif";
    static constexpr auto entry = "quilleryHeif";
    /// The type of the function `entry`.
    using Entry = const HeifModule *();
};
