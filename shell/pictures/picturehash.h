// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

#include <array>

/// 64 bits that say what a picture looks like: the same picture in another size or quality has the same ones
/// but for a few. Each tells which of two parts beside one another is lighter.
class PictureHash
{
public:
    PictureHash() = default;
    /// As `bits` gave it.
    explicit PictureHash(quint64 bits)
        : m_bits(bits)
    {}

    /// Of a picture in any size, its thumbnail for one.
    static PictureHash of(const QImage &picture);
    /// Of the picture as it is, and turned by one, two and three quarters to the right.
    static std::array<PictureHash, 4> ofAllTurns(const QImage &picture);

    quint64 bits() const { return m_bits; }
    /// In how many bits the two differ.
    int distance(PictureHash other) const;
    /// Whether both are most likely of the same picture. One without any contrast is like no other.
    bool isAlike(PictureHash other) const;

    bool operator==(const PictureHash &) const = default;

private:
    quint64 m_bits = 0;
};
