// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/searchsource.h"
#include "shell/core/textindex.h"
#include "storage/datafolder.h"
#include "storage/filestamp.h"

#include <QStringList>

#include <map>
#include <vector>

/// What the search over everything finds of the weight tracker: the persons, by their name, exercises and
/// comments. No weight is found: those are for the person's own window. A hit leads to the person's place in
/// the list, from 1.
class WeightSource final : public SearchSource
{
public:
    explicit WeightSource(const DataFolder &folder);

    bool prepare() override;
    QList<SearchHit> matches(QStringView text, int most) const override;

private:
    /// A person as their file was at one time.
    struct Person {
        FileStamp seen;
        TextIndex texts;                 ///< one
        std::vector<QString> contexts{}; ///< of each of its lines
    };

    Person read(const QString &name) const;

    const DataFolder &m_folder;
    QStringList m_names;
    QStringList m_unchecked; ///< persons whose file is still to be compared with what was read
    bool m_isChecking = false;
    std::map<QString, Person> m_persons;
};
