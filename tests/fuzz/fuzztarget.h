// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// The function that every fuzz target defines; always returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

inline QByteArrayView asBytes(const std::uint8_t *data, std::size_t size)
{
    return {reinterpret_cast<const char *>(data), qsizetype(size)};
}

/// Stops the run, so that the input is kept, when what must be true of any input is not.
inline void require(bool isTrue, const char *what)
{
    if (isTrue)
        return;
    std::fprintf(stderr, "not true of this input: %s\n", what);
    std::abort();
}
