// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/bytesearch.h"

#include <cstring>

namespace {

/// Whether the sought bytes' first, middle and last letter stand at their distances anywhere in the `stride`
/// places from `at`. Without a branch in the loop, the compiler looks at sixteen places at once; this decides
/// how long a search takes.
constexpr qsizetype stride = 64;
bool mayBegin(const char *at, QByteArrayView sought)
{
    const qsizetype middle = sought.size() / 2;
    const qsizetype last = sought.size() - 1;
    const char *const atMiddle = at + middle;
    const char *const atLast = at + last;
    const char first = sought.front();
    const char between = sought[middle];
    const char end = sought[last];
    uchar found = 0;
    for (qsizetype i = 0; i < stride; ++i)
        found |= uchar(uchar(at[i] == first) & uchar(atMiddle[i] == between) & uchar(atLast[i] == end));
    return found != 0;
}

} // namespace

const char *ByteSearch::find(const char *at, const char *end, QByteArrayView sought)
{
    const auto length = std::size_t(sought.size());
    const auto letter = [&](const char *from, const char *to) {
        return static_cast<const char *>(std::memchr(from, sought.front(), std::size_t(to - from)));
    };
    while (end - at >= sought.size()) {
        const char *const lastStart = end - sought.size();
        const char *stop = lastStart + 1;
        if (length > 1 && stop - at >= stride) {
            stop = at + stride;
            if (!mayBegin(at, sought)) {
                at = stop;
                continue;
            }
        }
        for (const char *found = letter(at, stop); found; found = letter(found + 1, stop)) {
            if (std::memcmp(found, sought.data(), length) == 0)
                return found;
        }
        at = stop;
    }
    return nullptr;
}
