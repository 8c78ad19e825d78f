// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/corrections.h"

#include "shell/writing/wordbreaks.h"

Corrections Corrections::of(const std::vector<Correction> &pairs)
{
    Corrections table;
    for (const Correction &pair : pairs)
        table.set(pair.wrong, pair.right);
    return table;
}

std::vector<Correction> Corrections::pairs() const
{
    std::vector<Correction> pairs;
    pairs.reserve(m_pairs.size());
    for (const auto &[key, pair] : m_pairs)
        pairs.push_back(pair);
    return pairs;
}

bool Corrections::has(QStringView wrong) const
{
    return m_pairs.contains(wrong.toString().toLower());
}

QString Corrections::rightFor(QStringView typed) const
{
    if (typed.isEmpty() || WordBreaks::isInCapitals(typed))
        return {};
    const auto found = m_pairs.find(typed.toString().toLower());
    if (found == m_pairs.end())
        return {};
    QString right = found->second.right;
    if (typed.front().isUpper() && !right.isEmpty())
        right[0] = right[0].toUpper();
    return right == typed ? QString() : right;
}

void Corrections::set(const QString &wrong, const QString &right)
{
    m_pairs[wrong.toLower()] = {wrong, right};
}

void Corrections::remove(const QString &wrong)
{
    m_pairs.erase(wrong.toLower());
}
