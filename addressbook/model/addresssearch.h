// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "addressbook/model/addressbook.h"
#include "shell/core/searchsource.h"
#include "shell/core/textindex.h"
#include "storage/filestamp.h"

#include <vector>

/// What the search over everything finds in the address book: people, by anything that stands in their
/// entries. A telephone number is found by its digits, however they are separated.
class AddressSearch final : public SearchSource
{
public:
    explicit AddressSearch(const DataFolder &folder);

    bool prepare() override;
    QList<SearchHit> matches(QStringView text, int most) const override;

    /// The texts that are looked through, for measuring.
    const TextIndex &texts() const { return m_book.texts; }
    /// Bytes held, room for growth included.
    qsizetype memoryUsed() const;

private:
    /// The entries as they were at one time.
    struct Book {
        TextIndex texts;
        std::vector<int> records; ///< of each text
    };

    void add(int record, QByteArrayView bytes);

    const DataFolder &m_folder;
    AddressBook m_files;
    FileStamp m_seen;     ///< of the files that are read or being read
    int m_next = 0;       ///< the record to be read next; 0: all are read
    bool m_isAny = false; ///< whether they were ever read
    Book m_book;          ///< what is searched
    Book m_reading;       ///< a changed book takes its place when it is complete
};
