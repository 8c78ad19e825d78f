// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"
#include "shell/core/searchsource.h"
#include "shell/core/textindex.h"
#include "storage/filestamp.h"
#include "todo/model/todosheet.h"

#include <optional>
#include <vector>

/// What the search over everything finds of the To Do list: things to do and their steps by text and note,
/// then those that were done, the last of them first. A hit leads to the item's id.
class ToDoSource final : public SearchSource
{
public:
    ToDoSource(const DataFolder &folder, DateStyle style);

    bool prepare() override;
    QList<SearchHit> matches(QStringView text, int most) const override;

private:
    void begin();
    void add(int row);
    SearchHit hit(const TextIndex::Hit &found) const;

    const DataFolder &m_folder;
    DateStyle m_style;
    std::optional<FileStamp> m_seen;
    ToDoSheet m_sheet;       ///< as the files were then
    std::vector<int> m_rows; ///< of it, in the order in which they are found
    TextIndex m_texts;       ///< of the first of them, as many as have been read
};
