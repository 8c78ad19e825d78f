// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/sealing/freememory.h"

#include <cstdlib>

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

#include <cstdint>
#include <malloc.h>
#include <sodium.h>
#include <unistd.h>

namespace {

constexpr std::size_t largest = 65'536;
/// Up to here the library keeps pieces of each length apart, which only that length gets again.
constexpr std::size_t largestKept = 1'032;
constexpr std::size_t smallest = 24;
constexpr std::size_t step = 16;

/// Pieces that were taken, a chain through their first bytes.
class Pieces
{
public:
    ~Pieces()
    {
        while (m_first) {
            Piece *next = m_first->next;
            sodium_memzero(m_first, sizeof(Piece));
            std::free(m_first);
            m_first = next;
        }
    }

    /// Takes free pieces of `size` bytes that lie below `end`, as long as there are any, and overwrites them.
    void take(std::size_t size, std::uintptr_t end)
    {
        for (bool isBelow = true; isBelow;) {
            auto *piece = static_cast<Piece *>(std::malloc(size));
            if (!piece)
                return;
            isBelow = reinterpret_cast<std::uintptr_t>(piece) < end;
            sodium_memzero(piece, malloc_usable_size(piece));
            piece->next = m_first;
            m_first = piece;
        }
    }

private:
    struct Piece {
        Piece *next;
    };
    Piece *m_first = nullptr;
};

} // namespace

/// Whole pages go back to the system. What is left is between pieces in use: it is asked for, the long pieces
/// first, until there is only new memory from the end of the heap.
void FreeMemory::wipe()
{
    if (sodium_init() < 0)
        return;
    malloc_trim(0);
    const auto end = reinterpret_cast<std::uintptr_t>(sbrk(0)) - mallinfo2().keepcost;
    {
        Pieces pieces;
        for (std::size_t size = largest; size > largestKept; size /= 2)
            pieces.take(size, end);
        for (std::size_t size = largestKept; size >= smallest; size -= step)
            pieces.take(size, end);
    }
    malloc_trim(0);
}

#else

void FreeMemory::wipe() {}

#endif
