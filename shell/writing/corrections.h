// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <map>
#include <vector>

/// A slip of the fingers and what was meant.
struct Correction {
    QString wrong;
    QString right;

    bool operator==(const Correction &) const = default;
};

/// The table of slips that are corrected while one types.
class Corrections
{
public:
    /// What the program comes with: about 150 common slips.
    static Corrections firstTable();
    static Corrections of(const std::vector<Correction> &pairs);

    /// In alphabetical order.
    std::vector<Correction> pairs() const;
    bool has(QStringView wrong) const;
    /// What was meant by `typed`, with its first capital; empty where nothing is known of it. A word in
    /// capitals is left alone.
    QString rightFor(QStringView typed) const;

    /// Adds the pair, in place of the one with the same wrong word.
    void set(const QString &wrong, const QString &right);
    void remove(const QString &wrong);

    bool operator==(const Corrections &) const = default;

private:
    std::map<QString, Correction> m_pairs; ///< by the wrong word in small letters
};
