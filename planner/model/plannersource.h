// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "planner/model/plannerfiles.h"
#include "shell/core/clock.h"
#include "shell/core/programstate.h"
#include "shell/core/searchsource.h"
#include "shell/core/textindex.h"
#include "storage/filestamp.h"

#include <map>
#include <vector>

/// What the search over everything finds in the planner: appointments of all years, those nearest to today
/// first.
class PlannerSource final : public SearchSource
{
public:
    PlannerSource(const DataFolder &folder, const Clock &clock, DateStyle style);

    bool prepare() override;
    QList<SearchHit> matches(QStringView text, int most) const override;

    /// The texts of a year that are looked through, for measuring.
    const TextIndex &texts(int year) const { return m_years.at(year).texts; }
    /// Bytes held, room for growth included.
    qsizetype memoryUsed() const;

private:
    /// A year as its file was at one time.
    struct Year {
        FileStamp seen;
        TextIndex texts;
        std::vector<quint16> rows; ///< of each text: record times rows of a day, and its row
    };
    struct Found {
        QDate date;
        int row;
        qint64 distance; ///< from today, in days
    };

    static Year read(const QByteArray &bytes);
    void look(int year, const TextIndex::Words &words, QDate today,
              std::array<std::vector<Found>, 2> &found) const;

    const DataFolder &m_folder;
    PlannerFiles m_files;
    const Clock &m_clock;
    DateStyle m_style;
    QList<int> m_unchecked; ///< years whose files are still to be compared with what was read
    bool m_isChecking = false;
    std::map<int, Year> m_years;
};
