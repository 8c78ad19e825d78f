// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/foldedyear.h"
#include "shell/core/clock.h"
#include "shell/core/programstate.h"
#include "shell/core/searchsource.h"
#include "storage/datafolder.h"
#include "storage/filestamp.h"

#include <map>

/// What the search over everything finds of the journal: entries by their text, tags and captions, the latest
/// first. It keeps what is searched and reads the lines that it shows from the files. Of a journal with a
/// sealed year it says nothing, and keeps nothing.
class JournalSource final : public SearchSource
{
public:
    JournalSource(const DataFolder &folder, const Clock &clock, DateStyle style);

    bool prepare() override;
    QList<SearchHit> matches(QStringView text, int most) const override;

private:
    struct Year {
        FileStamp seen;
        FoldedYear folded{};
    };

    const DataFolder &m_folder;
    const Clock &m_clock;
    DateStyle m_style;
    mutable std::map<int, Year> m_years; ///< with what the last question found there
};
