// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/programstate.h"
#include "shell/core/searchsource.h"
#include "storage/datafolder.h"
#include "storage/filestamp.h"

#include <QByteArray>
#include <QList>

#include <optional>
#include <vector>

/// What the search over everything finds in the photo album: the names of albums, and pictures by what is
/// said of them. Texts are folded, so that neither case nor accents count; the texts of a hit are read when
/// it is told.
class AlbumSource final : public SearchSource
{
public:
    AlbumSource(const DataFolder &folder, DateStyle style);

    bool prepare() override;
    QList<SearchHit> matches(QStringView text, int most) const override;

    /// The album that a place leads to; 0 where it leads to a picture, or nowhere.
    static int albumOf(const Place &place);

private:
    struct Entry {
        Place place;
        QByteArray title;
        QByteArray texts; ///< the title among them
    };

    void readAlbums();
    bool readPictures();
    SearchHit hit(const Place &place) const;

    const DataFolder &m_folder;
    DateStyle m_style;
    std::optional<FileStamp> m_seen;
    int m_next = 0; ///< the record that is read next; 0: none is
    std::vector<Entry> m_entries;
};
