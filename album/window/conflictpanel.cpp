// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/conflictpanel.h"

#include "album/model/photodatewords.h"
#include "album/model/photoshelf.h"
#include "album/window/windowlines.h"
#include "shell/controls/tablework.h"
#include "shell/program/program.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableView>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString dateWords(const QString &edtf, const DateStyle &style)
{
    return PhotoDateWords::words(PhotoDate::fromEdtf(edtf.toLatin1()), style);
}

} // namespace

ConflictPanel::ConflictPanel(const Program &program, const PhotoShelf &shelf, ShelfLook &look,
                             QWidget *parent)
    : TaskPanel(u"conflictPanel"_s, u"Both Changed"_s, parent)
    , m_program(program)
    , m_shelf(shelf)
    , m_look(look)
    , m_what(named(makeQuietLabel({}, this), u"conflictWhat"_s))
    , m_model(new RowsModel<Row>(
          {{{}, Qt::AlignLeft, [](const Row &row) { return row.what; }},
           {u"In the album"_s, Qt::AlignLeft, [](const Row &row) { return row.inAlbum; }},
           {u"In the picture"_s, Qt::AlignLeft, [](const Row &row) { return row.inPicture; }}},
          this))
    , m_view(named(new QTableView(this), u"conflictTable"_s))
{
    m_view->setModel(m_model);
    auto *work = new TableWork(m_what, m_view, u"What the album and the picture say"_s, this);
    m_view->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    setWork(work);
    QPushButton *album = addButton(u"keepAlbum"_s, u"Keep the &Album's"_s);
    QPushButton *picture = addButton(u"takePicture"_s, u"Take the &Picture's"_s);
    setLeaveButton(u"conflictLater"_s, u"&Later"_s);
    setFocusProxy(album);
    connect(album, &QPushButton::clicked, this, [this] { settle(ShelfLook::Keep::InAlbum); });
    connect(picture, &QPushButton::clicked, this, [this] { settle(ShelfLook::Keep::InPicture); });
}

void ConflictPanel::start()
{
    const std::vector<TextsConflict> &waiting = m_look.conflicts();
    if (waiting.empty())
        return;
    const Photo *photo = m_shelf.photo(waiting.front().record);
    m_what->setText(
        AlbumWindowLines::bothChanged(photo ? photo->fileName() : QString(), int(waiting.size())));
    m_model->setRows(rowsOf(waiting.front()));
}

std::vector<ConflictPanel::Row> ConflictPanel::rowsOf(const TextsConflict &conflict) const
{
    const DateStyle style = m_program.state.dateStyle;
    const PictureTexts &album = conflict.inAlbum;
    const PictureTexts &picture = conflict.inPicture.texts;
    return {{u"Caption"_s, album.caption, picture.caption},
            {u"People"_s, album.people.join(u"; "_s), picture.people.join(u"; "_s)},
            {u"Taken"_s, dateWords(album.date, style), dateWords(picture.date, style)},
            {u"Tags"_s, album.tags.join(u"; "_s), picture.tags.join(u"; "_s)},
            {u"Rating"_s, QString::number(album.rating), QString::number(picture.rating)}};
}

void ConflictPanel::settle(ShelfLook::Keep keep)
{
    if (m_look.conflicts().empty())
        return;
    m_look.settle(m_look.conflicts().front().record, keep);
    if (m_look.conflicts().empty())
        leave();
    else
        start();
}
