// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/alikepanel.h"

#include "album/model/photodatewords.h"
#include "album/model/photoshelf.h"
#include "album/window/aliketile.h"
#include "album/window/keepinglines.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/program/program.h"

#include <QHeaderView>
#include <QScrollArea>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int pictureSide = 360;
constexpr int listWidth = 300;
constexpr int mostTiles = 12; ///< of one group; more are seen when some of these are gone

/// By the name of the first of them.
std::vector<TableColumn<AlikePictures>> columns(const PhotoShelf &shelf)
{
    return {{u"Alike"_s, Qt::AlignLeft, [&shelf](const AlikePictures &group) {
                 const Photo *first = shelf.photo(group.records.value(0));
                 const QString words = KeepingLines::group(group.records.size(), group.isSameContent);
                 return first ? first->fileName() + u": "_s + words : words;
             }}};
}

} // namespace

AlikePanel::AlikePanel(const Program &program, PhotoShelf &shelf, const QString &thumbnails, QWidget *window,
                       QWidget *parent)
    : WalkPanel(u"alikePanel"_s, u"Alike"_s, parent)
    , m_program(program)
    , m_shelf(shelf)
    , m_window(window)
    , m_thumbnails(thumbnails)
    , m_alike(shelf, &m_thumbnails)
    , m_queue(thumbnails)
    , m_what(makeQuietLabel({}, this))
    , m_model(new RowsModel<AlikePictures>(columns(shelf), this))
    , m_view(named(new QTableView(this), u"alikeList"_s))
    , m_out(nullptr)
    , m_trash(nullptr)
{
    m_queue.setSide(int(pictureSide * devicePixelRatioF()));
    setWalkWork(makeWork());
    m_trash = addButton(u"alikeTrash"_s, u"&Move to Trash..."_s, ButtonKind::Plain, Side::Left);
    m_out = addButton(u"alikeOut"_s, u"Ta&ke Off the List"_s, ButtonKind::Main);
    setLeave(setLeaveButton(u"alikeClose"_s, u"C&lose"_s));
    setFocusProxy(m_view);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this, &AlikePanel::showGroup);
    connect(m_out, &QPushButton::clicked, this, &AlikePanel::takeOut);
    connect(m_trash, &QPushButton::clicked, this, &AlikePanel::moveToTrash);
    connect(&m_alike, &Alike::progressed, this, &AlikePanel::showWalk);
    connect(&m_alike, &Alike::finished, this, &AlikePanel::finish);
    const auto tileOf = [this](int record) -> AlikeTile * {
        const qsizetype at = shownRecords().indexOf(record);
        return at >= 0 && at < qsizetype(m_tiles.size()) ? m_tiles[std::size_t(at)] : nullptr;
    };
    connect(&m_queue, &PictureQueue::arrived, this, [tileOf](int record, const QImage &image) {
        if (AlikeTile *tile = tileOf(record))
            tile->setImage(image);
    });
    connect(&m_queue, &PictureQueue::failed, this, [tileOf](int record, const QString &reason) {
        if (AlikeTile *tile = tileOf(record))
            tile->setWords(reason);
    });
}

QWidget *AlikePanel::makeWork()
{
    m_view->setModel(m_model);
    setGridRows(m_view);
    m_view->setAccessibleName(u"Pictures that are there more than once"_s);
    m_view->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_view->horizontalHeader()->hide();
    m_view->setFixedWidth(boxWidth({}, listWidth));
    m_what->setWordWrap(true);
    auto *tiles = new QWidget;
    auto *row = new QHBoxLayout(tiles);
    row->setContentsMargins({});
    row->setSpacing(16);
    for (int place = 0; place < mostTiles; ++place) {
        auto *tile = new AlikeTile(place, tiles);
        tile->hide();
        row->addWidget(tile);
        connect(tile, &AlikeTile::goingChanged, this, &AlikePanel::follow);
        m_tiles.push_back(tile);
    }
    row->addStretch(1);
    auto *work = new QWidget(this);
    auto *both = new QHBoxLayout;
    both->setSpacing(16);
    both->addWidget(m_view);
    both->addWidget(makeScrolling(tiles, u"alikeScroll"_s, work), 1);
    auto *column = new QVBoxLayout(work);
    column->setContentsMargins({});
    column->setSpacing(12);
    column->addWidget(m_what);
    column->addLayout(both, 1);
    return work;
}

void AlikePanel::start(const QList<int> &photos, int album)
{
    if (isWalking())
        return;
    m_album = album;
    m_out->setText(album == 0 ? u"Ta&ke Off the List"_s : u"Ta&ke Out of the Album"_s);
    buttonRow().rearrange();
    m_model->setRows({});
    m_what->setText(u"The pictures are being compared..."_s);
    showGroup();
    showWalk(0, 0);
    m_alike.start(photos);
}

void AlikePanel::finish(bool wasStopped)
{
    endWalk();
    m_model->setRows(m_alike.groups());
    m_what->setText(KeepingLines::alikeFound(qsizetype(m_model->rows().size()), wasStopped));
    if (!m_model->rows().empty())
        m_view->setCurrentIndex(m_model->index(0, 0));
    showGroup();
    m_view->setFocus();
}

QList<int> AlikePanel::shownRecords() const
{
    const QModelIndex current = m_view->currentIndex();
    return current.isValid() ? m_model->row(current.row()).records.mid(0, mostTiles) : QList<int>();
}

void AlikePanel::showGroup()
{
    const QList<int> records = shownRecords();
    for (std::size_t i = 0; i < m_tiles.size(); ++i) {
        const Photo *photo =
            qsizetype(i) < records.size() ? m_shelf.photo(records.at(qsizetype(i))) : nullptr;
        m_tiles[i]->setVisible(photo != nullptr);
        if (!photo)
            continue;
        QStringList albums;
        for (const int album : m_shelf.albumsOf(photo->record))
            albums << m_shelf.album(album)->name;
        const QString date = PhotoDateWords::heading(photo->date, m_program.state.dateStyle);
        m_tiles[i]->show(photo->fileName(),
                         KeepingLines::alikeFacts(*photo, photo->date.isNone() ? QString() : date, albums));
    }
    bring(records);
    follow();
}

void AlikePanel::bring(const QList<int> &records)
{
    std::vector<WantedPicture> wanted;
    for (const int record : records) {
        const Photo *photo = m_shelf.photo(record);
        if (!photo)
            continue;
        wanted.push_back({record, m_shelf.filePath(*photo), photo->turns, photo->size, photo->fileTime});
        const PictureQueue::Kept kept = m_queue.kept(record);
        AlikeTile *tile = m_tiles[std::size_t(records.indexOf(record))];
        if (!kept.image.isNull())
            tile->setImage(kept.image);
        else if (!kept.reason.isEmpty())
            tile->setWords(kept.reason);
    }
    m_queue.show(wanted, {});
}

QList<int> AlikePanel::going() const
{
    const QList<int> records = shownRecords();
    QList<int> some;
    for (qsizetype i = 0; i < records.size() && i < qsizetype(m_tiles.size()); ++i) {
        if (m_tiles[std::size_t(i)]->isGoing())
            some << records.at(i);
    }
    return some;
}

void AlikePanel::follow()
{
    QString why = m_shelf.whyLocked();
    if (why.isEmpty() && going().isEmpty())
        why = KeepingLines::takesLocked();
    setUnavailable(m_out, why);
    setUnavailable(m_trash, why);
}

void AlikePanel::takeOut()
{
    const QList<int> records = going();
    const bool isOut = m_album == 0 ? m_shelf.removePhotos(records) : m_shelf.takeOut(m_album, records);
    if (isOut)
        drop(records);
}

void AlikePanel::moveToTrash()
{
    const QList<int> records = going();
    const auto namesOf = [this](const QList<int> &some) {
        QStringList names;
        for (const int record : some) {
            if (const Photo *photo = m_shelf.photo(record))
                names << photo->fileName();
        }
        return names;
    };
    if (m_program.dialogs.ask(m_window, KeepingLines::trashQuestion(namesOf(records))) != Answer::Yes)
        return;
    const QList<int> stayed = m_alike.moveToTrash(records);
    QList<int> gone = records;
    gone.removeIf([&stayed](int record) { return stayed.contains(record); });
    emit said(stayed.isEmpty() ? KeepingLines::trashed(gone.size())
                               : KeepingLines::notTrashed(namesOf(stayed)));
    drop(gone);
}

/// The group has them no longer; one that is alone is none.
void AlikePanel::drop(const QList<int> &records)
{
    std::vector<AlikePictures> groups = m_model->rows();
    const int row = m_view->currentIndex().row();
    for (AlikePictures &group : groups)
        group.records.removeIf([&records](int record) { return records.contains(record); });
    std::erase_if(groups, [](const AlikePictures &group) { return group.records.size() < 2; });
    m_model->setRows(std::move(groups));
    const int last = m_model->rowCount() - 1;
    if (last >= 0)
        m_view->setCurrentIndex(m_model->index(std::min(row, last), 0));
    m_what->setText(KeepingLines::alikeFound(last + 1, false));
    showGroup();
    m_view->setFocus();
}

void AlikePanel::stopWalk()
{
    m_alike.stop();
}
