// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/model/wallcalendar.h"
#include "shell/core/programstate.h"
#include "shell/core/searchsource.h"
#include "shell/core/textindex.h"
#include "storage/datafolder.h"
#include "storage/filestamp.h"

#include <optional>
#include <vector>

/// What the search over everything finds of the calendars, the latest of them first: titles, typed and edited
/// lines, and bars. What was filled in is found where it comes from. A hit leads to the number of the
/// calendar, its day and the line.
class CalendarSource final : public SearchSource
{
public:
    CalendarSource(const DataFolder &folder, DateStyle style);

    bool prepare() override;
    QList<SearchHit> matches(QStringView text, int most) const override;

private:
    struct Entry {
        QString text;
        QString title; ///< of its calendar
        Place place;
    };

    void begin();
    void add(int number);
    void add(const QString &text, const QString &title, const Place &place);
    SearchHit hit(const Entry &entry) const;

    const DataFolder &m_folder;
    DateStyle m_style;
    std::optional<FileStamp> m_seen;
    QList<int> m_left; ///< calendars that are not read yet, the next one last
    std::vector<Entry> m_entries;
    TextIndex m_texts;
};
