// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

/// The background of the main menu: the plain ground, or a picture whose file name begins with "WP". Sixteen
/// of them come with the program, one for each slot of the background selector.
class BackgroundChoice
{
public:
    static constexpr int slotCount = 16;

    /// The plain ground.
    BackgroundChoice() = default;

    /// The picture of slot 0 to 15; any other number gives the plain ground.
    static BackgroundChoice ofSlot(int slot);

    /// What the settings record holds. Everything but a plain file name that begins with "WP" is the plain
    /// ground.
    static BackgroundChoice ofRecord(const QString &text);

    bool isPlain() const { return m_name.isEmpty(); }

    /// The slot to mark in the selector: the number behind "WP" less one; none for the plain ground and for
    /// pictures that have no slot.
    std::optional<int> slot() const;

    /// "Def", or "WP2" for slot 1.
    QString recordText() const;

    /// "WP2.jpg" for slot 1; empty for the plain ground.
    QString fileName() const;

    bool operator==(const BackgroundChoice &) const = default;

private:
    explicit BackgroundChoice(const QString &name)
        : m_name(name)
    {}

    QString m_name;
};
