// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pictures/picturequeue.h"

class PhotoShelf;

/// The picture of this record for a queue, turned as the album has it; none where it has left the list.
WantedPicture wantedPicture(const PhotoShelf &shelf, int record);
