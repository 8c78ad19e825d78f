// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/picturehash.h"

#include <QTransform>

#include <bit>

namespace {

constexpr int columns = 9; ///< make eight differences
constexpr int rows = 8;
/// A picture is made this small before it is turned, which is quick then.
constexpr int turnedSide = 72;
/// Parts that differ by less are equally light: saving a picture anew changes them by as much.
constexpr int leastContrast = 2;
constexpr int mostDifferent = 6;

QImage squeezed(const QImage &picture, QSize size)
{
    return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

PictureHash PictureHash::of(const QImage &picture)
{
    if (picture.isNull())
        return {};
    // In two steps: smooth scaling to so few pixels at once is slow for a large picture.
    const QImage parts = squeezed(
        squeezed(picture.convertToFormat(QImage::Format_RGB32), {turnedSide, turnedSide}), {columns, rows});
    quint64 bits = 0;
    for (int y = 0; y < rows; ++y)
        for (int x = 0; x + 1 < columns; ++x)
            bits =
                bits << 1 | quint64(qGray(parts.pixel(x, y)) >= qGray(parts.pixel(x + 1, y)) + leastContrast);
    return PictureHash(bits);
}

std::array<PictureHash, 4> PictureHash::ofAllTurns(const QImage &picture)
{
    std::array<PictureHash, 4> hashes;
    if (picture.isNull())
        return hashes;
    const QImage small = squeezed(picture.convertToFormat(QImage::Format_RGB32), {turnedSide, turnedSide});
    for (int turns = 0; turns < 4; ++turns)
        hashes[std::size_t(turns)] = of(small.transformed(QTransform().rotate(90 * turns)));
    return hashes;
}

int PictureHash::distance(PictureHash other) const
{
    return std::popcount(m_bits ^ other.m_bits);
}

bool PictureHash::isAlike(PictureHash other) const
{
    return m_bits != 0 && other.m_bits != 0 && distance(other) <= mostDifferent;
}
