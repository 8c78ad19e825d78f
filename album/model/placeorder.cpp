// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/placeorder.h"

#include "album/model/albumfile.h"

#include <limits>

namespace {

constexpr quint64 step = AlbumFile::orderStep;

std::vector<quint32> anew(std::size_t count)
{
    std::vector<quint32> numbers;
    numbers.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        numbers.push_back(quint32((i + 1) * step));
    return numbers;
}

} // namespace

std::vector<quint32> PlaceOrder::inserted(const std::vector<quint32> &order, std::size_t at,
                                          std::size_t count)
{
    const quint64 before = at == 0 ? 0 : order[at - 1];
    const bool isAtEnd = at == order.size();
    const quint64 after = isAtEnd ? before + (count + 1) * step : order[at];
    const bool hasRoom = after > before + count && after <= std::numeric_limits<quint32>::max();
    if (!hasRoom)
        return anew(order.size() + count);
    std::vector<quint32> numbers(order.begin(), order.begin() + std::ptrdiff_t(at));
    for (std::size_t i = 1; i <= count; ++i)
        numbers.push_back(quint32(before + (after - before) * i / (count + 1)));
    numbers.insert(numbers.end(), order.begin() + std::ptrdiff_t(at), order.end());
    return numbers;
}
