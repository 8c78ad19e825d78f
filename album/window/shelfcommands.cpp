// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/shelfcommands.h"

#include "album/model/photoshelf.h"
#include "album/window/albumview.h"
#include "album/window/photodetails.h"
#include "album/window/photogrid.h"
#include "album/window/shiftpanel.h"
#include "album/window/windowlines.h"
#include "shell/controls/taskpanel.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QMenu>
#include <QUrl>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr QKeyCombination turnLeft = Qt::CTRL | Qt::SHIFT | Qt::Key_R;
constexpr QKeyCombination turnRight = Qt::CTRL | Qt::Key_R;
constexpr int quartersOfAll = 4;
} // namespace

ShelfCommands::ShelfCommands(const AlbumDesk &desk, PhotoDetails &details, QObject *parent)
    : QObject(parent)
    , openFile(&QDesktopServices::openUrl)
    , m_desk(desk)
    , m_details(details)
{}

/// For pictures that are chosen; what was typed of them is taken first.
QAction *ShelfCommands::add(QMenu *menu, const QString &name, const QString &caption,
                            std::function<void()> run, const QKeySequence &key)
{
    const auto first = [this, run = std::move(run)] {
        m_details.finish();
        run();
    };
    return m_desk.commands.writing(m_desk.commands.add(
        menu, name, caption, first, [this] { return whyLocked(); }, key));
}

/// Behind a panel nobody sees which pictures are chosen.
QString ShelfCommands::whyPanel() const
{
    const bool isPanel = qobject_cast<TaskPanel *>(m_desk.views.currentWidget());
    return isPanel ? AlbumWindowLines::leavePanelFirst() : QString();
}

QString ShelfCommands::whyNone() const
{
    const QString why = whyPanel();
    return why.isEmpty() && m_desk.photos.chosen().isEmpty() ? AlbumWindowLines::choosePicture() : why;
}

QString ShelfCommands::whyLocked() const
{
    const QString why = m_desk.shelf.whyLocked();
    return why.isEmpty() ? whyNone() : why;
}

void ShelfCommands::addCommands(QMenu *edit)
{
    m_caption = add(
        edit, u"mECap"_s, u"&Caption"_s, [this] { m_details.typeCaption(); }, CommonKeys::change);
    addRatings(edit);
    m_left = add(
        edit, u"mELeft"_s, u"Turn &Left"_s, [this] { turn(-1); }, turnLeft);
    m_right = add(
        edit, u"mERight"_s, u"Turn R&ight"_s, [this] { turn(1); }, turnRight);
    add(edit, u"mEShift"_s, u"&Shift Dates..."_s, [this] { startShift(); });
    m_shows = add(edit, u"mEShows"_s, u"Leave Out of Slide Sho&ws"_s, [this] { leaveOutOfShows(); });
    m_shows->setCheckable(true);
    edit->addSeparator();
    addAlbums(edit);
    m_out = m_desk.commands.writing(m_desk.commands.add(
        edit, u"mEOut"_s, u"Take &Out of Album"_s, [this] { takeOut(); },
        [this] { return m_desk.photos.shownAlbum() ? whyLocked() : AlbumWindowLines::chooseAlbum(); }));
    m_desk.commands.setKeyIn(&m_desk.photos.grid(), m_out, CommonKeys::remove);
    add(edit, u"mEOff"_s, u"Take O&ff the List"_s, [this] { remove(); });
    edit->addSeparator();
    m_desk.commands.add(
        edit, u"mEOpen"_s, u"Open in Another &Program"_s, [this] { open(); },
        [this] {
            const QString why = whyNone();
            return why.isEmpty() && m_desk.photos.chosen().size() > 1 ? AlbumWindowLines::onlyOne() : why;
        });
    m_desk.commands.add(
        edit, u"mEAll"_s, u"Choose &All\tCtrl+A"_s, [this] { m_desk.photos.choose(m_desk.photos.records()); },
        [this] { return m_desk.photos.records().isEmpty() ? AlbumWindowLines::nothingShown() : whyPanel(); });
}

void ShelfCommands::addRatings(QMenu *edit)
{
    auto *ratings = new QMenu(u"&Rating"_s, edit);
    ratings->menuAction()->setObjectName(u"mERate"_s);
    edit->addMenu(ratings);
    for (int rating = 0; rating <= Photo::mostRating; ++rating) {
        add(ratings, u"mERate%1"_s.arg(rating), AlbumWindowLines::ratingEntry(rating),
            [this, rating] { rate(rating); });
    }
    connect(edit, &QMenu::aboutToShow, this, [this] {
        const QList<int> chosen = m_desk.photos.chosen();
        m_shows->setChecked(!chosen.isEmpty() && std::ranges::all_of(chosen, [this](int record) {
            return m_desk.shelf.photo(record)->has(Photo::LeftOutOfShows);
        }));
    });
}

/// The albums by name, as they are when the menu opens.
void ShelfCommands::addAlbums(QMenu *edit)
{
    m_albums = new QMenu(u"Put into Al&bum"_s, edit);
    m_albums->setObjectName(u"putIntoAlbum"_s);
    m_albums->menuAction()->setObjectName(u"mEPut"_s);
    edit->addMenu(m_albums);
    connect(edit, &QMenu::aboutToShow, this, &ShelfCommands::fillAlbums);
    connect(m_albums, &QMenu::aboutToShow, this, &ShelfCommands::fillAlbums);
}

void ShelfCommands::fillAlbums()
{
    m_albums->clear();
    for (const PhotoAlbum &album : m_desk.shelf.albums()) {
        QString name = album.name;
        QAction *entry = m_albums->addAction(name.replace(u"&"_s, u"&&"_s), this, [this, to = album.record] {
            m_details.finish();
            putInto(to, m_desk.photos.chosen());
        });
        entry->setEnabled(album.record !=
                          (m_desk.photos.shownAlbum() ? m_desk.photos.shownAlbum()->record : 0));
    }
    const QString why = m_desk.shelf.albums().empty() ? AlbumWindowLines::noAlbums() : whyLocked();
    setUnavailable(m_albums->menuAction(), why);
}

void ShelfCommands::putInto(int album, const QList<int> &records)
{
    if (m_desk.shelf.album(album) && !m_desk.shelf.putInto(album, records))
        emit said(AlbumWindowLines::inAlready(m_desk.shelf.album(album)->name));
}

void ShelfCommands::rate(int rating)
{
    const QList<int> chosen = m_desk.photos.chosen();
    if (chosen.isEmpty())
        return;
    m_desk.shelf.change(chosen, AlbumWindowLines::rated(rating, int(chosen.size())),
                        [rating](Photo &photo) { photo.rating = quint8(rating); });
}

/// The picture's own file stays as it is.
void ShelfCommands::turn(int quarters)
{
    const QList<int> chosen = m_desk.photos.chosen();
    m_desk.shelf.change(chosen, AlbumWindowLines::turned(int(chosen.size())), [quarters](Photo &photo) {
        photo.turns = quint8((photo.turns + quarters + quartersOfAll) % quartersOfAll);
    });
}

void ShelfCommands::takeOut()
{
    m_desk.shelf.takeOut(m_desk.photos.shownAlbum()->record, m_desk.photos.chosen());
}

void ShelfCommands::remove()
{
    m_desk.shelf.removePhotos(m_desk.photos.chosen());
}

void ShelfCommands::leaveOutOfShows()
{
    const QList<int> chosen = m_desk.photos.chosen();
    const bool isLeftOut = m_shows->isChecked();
    m_desk.shelf.change(chosen, AlbumWindowLines::leftOut(isLeftOut, int(chosen.size())),
                        [isLeftOut](Photo &photo) { photo.set(Photo::LeftOutOfShows, isLeftOut); });
}

void ShelfCommands::startShift()
{
    if (!m_shift) {
        m_shift = new ShiftPanel(m_desk.program, &m_desk.window);
        m_desk.views.addPanel(m_shift);
        connect(m_shift, &ShiftPanel::accepted, this, &ShelfCommands::shift);
    }
    const QList<int> chosen = m_desk.photos.chosen();
    m_desk.window.closePreview();
    m_shift->start(m_desk.shelf.photo(chosen.first())->date, int(chosen.size()));
    m_desk.views.open(m_shift);
    m_shift->setFocus();
}

void ShelfCommands::shift(qint64 seconds)
{
    const QList<int> chosen = m_desk.photos.chosen();
    m_desk.views.goHome();
    m_desk.shelf.change(chosen, AlbumWindowLines::changed(u"Date"_s, int(chosen.size())),
                        [seconds](Photo &photo) {
                            const PhotoDate after = photo.date.shifted(seconds);
                            if (after != photo.date)
                                photo.dateFrom = Photo::DateFrom::Typed;
                            photo.date = after;
                        });
}

void ShelfCommands::open()
{
    const Photo *photo = m_desk.shelf.photo(m_desk.photos.chosen().value(0));
    const QString path = photo ? m_desk.shelf.filePath(*photo) : QString();
    if (!QFileInfo(path).isFile())
        emit said(AlbumWindowLines::fileNotThere());
    else if (!openFile(QUrl::fromLocalFile(path)))
        emit said(AlbumWindowLines::noProgram());
}
