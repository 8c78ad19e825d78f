// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QStringList>

#include <vector>

/// Finds the persons whom a household knows in what it writes: "Anne Lind" by her whole name, and as "Anne"
/// where nobody else is called so.
class NamesFound
{
public:
    explicit NamesFound(const QStringList &people);

    /// Those named in `text`, each once. Two of the same first name are told by that name alone where no more
    /// of it stands there.
    QStringList in(const QString &text) const;

private:
    QHash<QString, QStringList> m_byFirst; ///< whole names by their first word
};
