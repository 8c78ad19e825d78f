// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <cstddef>

/// The texts of a record while they are edited: as the file has them, and as the boxes took them. A text that
/// nobody touched stays as the file has it, even where a box cannot show all of it.
template <std::size_t Count>
class EditedTexts
{
public:
    using Texts = std::array<QString, Count>;

    /// `asShown`: what the boxes hold once they were given `asFile`.
    void load(const Texts &asFile, const Texts &asShown)
    {
        m_asFile = asFile;
        m_asShown = asShown;
    }

    /// What to save when the boxes hold `boxes`.
    Texts typed(Texts boxes) const
    {
        for (std::size_t i = 0; i < Count; ++i) {
            if (boxes[i] == m_asShown[i])
                boxes[i] = m_asFile[i];
        }
        return boxes;
    }

    /// Whether the box at `place`, which holds `box`, was typed into.
    bool isTyped(std::size_t place, const QString &box) const { return box != m_asShown[place]; }

    /// Whether saving `boxes` would change the file.
    bool isModified(const Texts &boxes) const { return typed(boxes) != m_asFile; }

private:
    Texts m_asFile;
    Texts m_asShown;
};
