// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Pictures that belong together, for windows in which one of them is chosen.
struct PictureAlbum {
    QString title;
    QStringList paths; ///< in their order

    bool operator==(const PictureAlbum &) const = default;
};
