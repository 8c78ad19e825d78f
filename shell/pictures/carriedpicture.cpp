// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/carriedpicture.h"

#include <QMimeData>
#include <QUrl>

QString CarriedPicture::fileIn(const QMimeData &data)
{
    for (const QUrl &url : data.urls()) {
        if (url.isLocalFile())
            return url.toLocalFile();
    }
    return {};
}

bool CarriedPicture::mayBeIn(const QMimeData *data)
{
    return data && (data->hasImage() || !fileIn(*data).isEmpty());
}
