// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/bytesearch.h"

#include <array>
#include <cstring>

namespace {

/// So many places are looked at together: without a branch in the loops, the compiler takes sixteen of them
/// at once; this decides how long a search takes.
constexpr qsizetype stride = 64;

/// The first, the middle and the last letter of what is sought, at their distances.
class Letters
{
public:
    explicit Letters(QByteArrayView sought)
        : m_middle(sought.size() / 2)
        , m_last(sought.size() - 1)
        , m_first(sought.front())
        , m_atMiddle(sought[m_middle])
        , m_atLast(sought[m_last])
    {}

    /// Whether they stand anywhere in the places from `at` on.
    bool areThere(const char *at) const
    {
        uchar found = 0;
        for (qsizetype i = 0; i < stride; ++i)
            found |= isThere(at, i);
        return found != 0;
    }

    /// In which of these places.
    std::array<uchar, stride> places(const char *at) const
    {
        std::array<uchar, stride> places{};
        for (qsizetype i = 0; i < stride; ++i)
            places[std::size_t(i)] = isThere(at, i);
        return places;
    }

private:
    uchar isThere(const char *at, qsizetype i) const
    {
        return uchar(uchar(at[i] == m_first) & uchar(at[i + m_middle] == m_atMiddle) &
                     uchar(at[i + m_last] == m_atLast));
    }

    qsizetype m_middle;
    qsizetype m_last;
    char m_first;
    char m_atMiddle;
    char m_atLast;
};

/// The first place of `sought` among those from `at` on where its letters are; null when it is at none.
const char *findAmong(const char *at, const Letters &letters, QByteArrayView sought)
{
    constexpr qsizetype allLetters = 3;
    const std::array<uchar, stride> places = letters.places(at);
    const uchar *place = places.data();
    const uchar *const end = place + stride;
    while ((place = static_cast<const uchar *>(std::memchr(place, 1, std::size_t(end - place))))) {
        const char *const found = at + (place - places.data());
        if (sought.size() <= allLetters || std::memcmp(found, sought.data(), std::size_t(sought.size())) == 0)
            return found;
        if (++place == end)
            break;
    }
    return nullptr;
}

} // namespace

const char *ByteSearch::find(const char *at, const char *end, QByteArrayView sought)
{
    const qsizetype length = sought.size();
    const auto letter = [&](const char *from, const char *to) {
        return static_cast<const char *>(std::memchr(from, sought.front(), std::size_t(to - from)));
    };
    if (end - at < length)
        return nullptr;
    const char *const stop = end - length + 1; // behind the last place where it can begin
    if (length == 1)
        return letter(at, stop);
    const Letters letters(sought);
    for (; stop - at >= stride; at += stride) {
        if (!letters.areThere(at))
            continue;
        if (const char *const found = findAmong(at, letters, sought))
            return found;
    }
    for (const char *found = letter(at, stop); found; found = letter(found + 1, stop)) {
        if (std::memcmp(found, sought.data(), std::size_t(length)) == 0)
            return found;
    }
    return nullptr;
}
