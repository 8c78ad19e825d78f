// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/spendingfiles.h"
#include "shell/core/clock.h"
#include "shell/core/programstate.h"
#include "shell/core/searchsource.h"
#include "shell/core/textindex.h"
#include "storage/filestamp.h"

#include <map>
#include <vector>

/// What the search over everything finds in the budget: items and what was spent, by its note or its item;
/// the newest year first.
class BudgetSource final : public SearchSource
{
public:
    BudgetSource(const DataFolder &folder, const Clock &clock, DateStyle style);

    bool prepare() override;
    QList<SearchHit> matches(QStringView text, int most) const override;

private:
    /// A year as its files were at one time.
    struct Year {
        FileStamp seen;
        TextIndex texts;
        std::vector<SearchHit> hits; ///< of each text
    };

    Year read(int year) const;
    QList<int> years() const;

    const DataFolder &m_folder;
    const Clock &m_clock;
    DateStyle m_style;
    QList<int> m_unchecked; ///< years whose files are still to be compared with what was read
    bool m_isChecking = false;
    std::map<int, Year> m_years;
};
