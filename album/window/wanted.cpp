// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/wanted.h"

#include "album/model/photoshelf.h"

WantedPicture wantedPicture(const PhotoShelf &shelf, int record)
{
    const Photo *photo = shelf.photo(record);
    if (!photo)
        return {};
    return {.id = photo->record,
            .path = shelf.filePath(*photo),
            .turns = photo->turns,
            .size = photo->size,
            .time = photo->fileTime};
}
