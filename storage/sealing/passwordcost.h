// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

/// How much work it takes to check one password: what slows a guessing machine down.
struct PasswordCost {
    unsigned long long operations; ///< passes over the memory
    std::size_t memory;            ///< bytes

    /// About a tenth of a second and 64 MiB.
    static PasswordCost interactive();
    /// About a second and 256 MiB, for what is sealed.
    static PasswordCost moderate();
    /// Hardly any: for tests.
    static PasswordCost minimum();

    /// Beyond these a file is noise: checking a password at such a cost would take hours.
    static constexpr unsigned long long mostOperations = 16;
    static constexpr std::size_t mostMemory = std::size_t(1024) * 1024 * 1024;

    /// Whether it is one that a file of ours can name.
    bool isBearable() const;

    bool operator==(const PasswordCost &) const = default;
};
