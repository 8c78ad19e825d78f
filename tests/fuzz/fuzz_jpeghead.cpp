// SPDX-License-Identifier: GPL-3.0-or-later
#include "fuzztarget.h"
#include "shell/pictures/jpeghead.h"

/// The beginning of a picture's file.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const JpegHead head = JpegHead::of(asBytes(data, size).toByteArray());
    require(head.orientation() >= 1 && head.orientation() <= 8, "a camera is held in eight ways");
    require(head.pixels().width() >= -1 && head.pixels().width() <= 0xFFFF, "a size is one of two bytes");
    static_cast<void>(head.preview());
    return 0;
}
