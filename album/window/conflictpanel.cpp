// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/conflictpanel.h"

#include "album/model/photodatewords.h"
#include "album/model/photoshelf.h"
#include "album/window/windowlines.h"
#include "shell/controls/tablework.h"
#include "shell/pictures/pictureframe.h"
#include "shell/pictures/picturequeue.h"
#include "shell/program/program.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

ConflictPanel::ConflictPanel(const AlbumDesk &desk, ShelfLook &look, QWidget *parent)
    : TaskPanel(u"conflictPanel"_s, u"Both Changed"_s, parent)
    , m_desk(desk)
    , m_look(look)
    , m_what(named(makeQuietLabel({}, this), u"conflictWhat"_s))
    , m_frame(named(new PictureFrame(this), u"conflictPicture"_s))
    , m_model(new RowsModel<Row>(
          {{{}, Qt::AlignLeft, [](const Row &row) { return row.what; }},
           {u"In the album"_s, Qt::AlignLeft, [](const Row &row) { return row.inAlbum; }},
           {u"In the picture"_s, Qt::AlignLeft, [](const Row &row) { return row.inPicture; }}},
          this))
    , m_view(named(new QTableView(this), u"conflictTable"_s))
    , m_others(named(new QCheckBox(this), u"conflictOthers"_s))
{
    setWork(makeWork());
    QPushButton *album = addButton(u"keepAlbum"_s, u"Keep the Al&bum's"_s);
    QPushButton *picture = addButton(u"takePicture"_s, u"&Take the Picture's"_s);
    setLeaveButton(u"conflictLater"_s, u"&Later"_s);
    setFocusProxy(album);
    connect(album, &QPushButton::clicked, this, [this] { settle(ShelfLook::Keep::InAlbum); });
    connect(picture, &QPushButton::clicked, this, [this] { settle(ShelfLook::Keep::InPicture); });
    connect(&m_look, &ShelfLook::conflictsChanged, this, &ConflictPanel::follow);
    connect(&m_desk.shelf, &PhotoShelf::changed, this, &ConflictPanel::follow);
    connect(&m_desk.queue, &PictureQueue::arrived, this, [this](int record, const QImage &image) {
        if (record == m_record)
            m_frame->setImage(image);
    });
    connect(&m_desk.queue, &PictureQueue::failed, this, [this](int record, const QString &reason) {
        if (record == m_record)
            m_frame->setWords(reason);
    });
}

QWidget *ConflictPanel::makeWork()
{
    m_view->setModel(m_model);
    m_what->setWordWrap(true);
    auto *work = new QWidget(this);
    auto *table = new TableWork(m_what, m_view, u"What the album and the picture say"_s, work);
    m_view->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_view->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    auto *both = new QHBoxLayout;
    both->setSpacing(16);
    both->addWidget(m_frame);
    both->addWidget(table, 1);
    auto *column = new QVBoxLayout(work);
    column->setContentsMargins({});
    column->setSpacing(12);
    column->addLayout(both, 1);
    column->addWidget(m_others);
    return work;
}

void ConflictPanel::start()
{
    const std::vector<TextsConflict> &waiting = m_look.conflicts();
    const Photo *photo = waiting.empty() ? nullptr : m_desk.shelf.photo(waiting.front().record);
    if (!photo)
        return;
    m_what->setText(AlbumWindowLines::bothChanged(photo->fileName(), int(waiting.size())));
    m_model->setRows(rowsOf(*photo, waiting.front().inPicture));
    m_others->setText(AlbumWindowLines::settleOthers(int(waiting.size()) - 1));
    m_others->setVisible(waiting.size() > 1);
    if (m_record != photo->record)
        m_others->setChecked(false);
    m_record = photo->record;
    showPicture(*photo);
}

void ConflictPanel::showPicture(const Photo &photo)
{
    const PictureQueue::Kept kept = m_desk.queue.kept(photo.record);
    m_frame->setImage(kept.image);
    m_frame->setWords(kept.reason);
    m_frame->setAccessibleName(AlbumWindowLines::spoken(photo, m_desk.program.state.dateStyle));
    m_desk.queue.want({photo.record, m_desk.shelf.filePath(photo), photo.turns, photo.size, photo.fileTime},
                      PictureQueue::Priority::Seen);
}

void ConflictPanel::follow()
{
    if (!isVisible())
        return;
    if (m_look.conflicts().empty())
        leave();
    else
        start();
}

/// Those in which they differ.
std::vector<ConflictPanel::Row> ConflictPanel::rowsOf(const Photo &photo, const FoundTexts &inPicture) const
{
    const auto date = [style = m_desk.program.state.dateStyle](const PhotoDate &day) {
        return PhotoDateWords::words(day, style);
    };
    const auto stars = [](int rating) { return QString(rating, u'★'); };
    const PictureTexts &texts = inPicture.texts;
    const bool isDated = inPicture.dateFound == DateFound::Picture;
    std::vector<Row> rows{{u"Caption"_s, photo.caption, texts.caption},
                          {u"People"_s, photo.people, texts.people.join(u"; "_s)},
                          {u"Taken"_s, date(photo.date),
                           isDated ? date(PhotoDate::fromEdtf(texts.date.toLatin1())) : QString()},
                          {u"Tags"_s, photo.tags, texts.tags.join(u"; "_s)},
                          {u"Rating"_s, stars(photo.rating), stars(texts.rating)}};
    std::erase_if(rows, [](const Row &row) { return row.inAlbum == row.inPicture; });
    return rows;
}

void ConflictPanel::settle(ShelfLook::Keep keep)
{
    QList<int> records;
    for (const TextsConflict &conflict : m_look.conflicts()) {
        if (records.isEmpty() || m_others->isChecked())
            records.append(conflict.record);
    }
    m_look.settle(records, keep);
}
