// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressentry.h"
#include "addressbook/model/entrylines.h"
#include "shell/frame/picturepanel.h"

/// What the panel of pictures chooses one for in the address book.
inline PictureUse addressPictureUse()
{
    using namespace Qt::Literals::StringLiterals;
    return {u"Select Family/Friends Picture"_s, addressPictureWidth, AddressLines::pathNotStorable(),
            AddressLines::noPictureToDelete()};
}
