// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/albumprint.h"

#include "album/model/photoshelf.h"
#include "album/window/albumprintpanel.h"
#include "album/window/albumview.h"
#include "album/window/windowlines.h"
#include "shell/controls/activitybar.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/pictures/picturereading.h"
#include "shell/preview/previewpane.h"
#include "shell/program/program.h"

#include <QMenu>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double dotsPerInch = 300;

PaperPicture forPaper(const Photo &photo, QSizeF place, const AlbumPages::Options &options)
{
    return {.name = photo.fileName(),
            .stored = photo.path,
            .place = (place * dotsPerInch).toSize(),
            .turns = photo.turns,
            .isFilling = options.isFilled,
            .mayBeTurned = AlbumPages::mayTurn(options)};
}

} // namespace

AlbumPrint::AlbumPrint(const AlbumDesk &desk, Places places, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_places(std::move(places))
    , m_copies(desk.program.folder)
{
    connect(&m_copies, &PictureCopies::progressed, this,
            [this](int done, int total) { m_places.activity.showProgress(done, total, true); });
    connect(&m_copies, &PictureCopies::ready, this, &AlbumPrint::showPages);
    connect(&m_places.activity, &ActivityBar::stopRequested, this, [this] {
        if (!m_copies.isBusy())
            return;
        m_copies.stop();
        m_places.activity.showProgress(0, 0);
        m_desk.commands.refresh();
    });
}

void AlbumPrint::addCommands(QMenu *options)
{
    QAction *print = m_desk.commands.add(
        options, u"mOPrt"_s, u"&Print..."_s, [this] { openPanel(); }, [this] { return whyNone(); },
        CommonKeys::print);
    m_desk.commands.tool(print, "print"_L1, u"Print"_s);
}

QString AlbumPrint::whyNone() const
{
    if (m_copies.isBusy())
        return AlbumWindowLines::makesReady();
    return m_desk.photos.records().isEmpty() ? AlbumWindowLines::nothingShown() : QString();
}

void AlbumPrint::openPanel()
{
    if (!m_panel) {
        m_panel = new AlbumPrintPanel;
        m_desk.views.addPanel(m_panel);
        connect(m_panel, &AlbumPrintPanel::accepted, this, &AlbumPrint::makeReady);
    }
    const bool areSeveral = m_desk.photos.chosen().size() > 1;
    m_records = m_desk.photos.chosenOrAll();
    const PhotoAlbum *album = m_desk.photos.shownAlbum();
    m_album = album ? album->record : 0;
    m_name = AlbumWindowLines::title(m_desk.photos.shown(), m_desk.photos.shownAlbum(),
                                     m_desk.program.clock.today(), m_desk.program.state.dateStyle);
    m_desk.window.closePreview();
    m_panel->start(areSeveral ? AlbumWindowLines::whatIsChosen() : m_name, int(m_records.size()));
    m_desk.views.open(m_panel);
    m_panel->setFocus();
}

/// No larger than they are printed: neither preview nor printer waits for the pictures themselves.
void AlbumPrint::makeReady()
{
    if (m_copies.isBusy())
        return;
    m_options = m_panel->options();
    const PageSetup setup = PreviewPane::usualSetup(m_desk.program.state.dateStyle);
    const QSizeF place = AlbumPages::placeSize(m_options, setup);
    m_records.removeIf([this](int record) { return !m_desk.shelf.photo(record); });
    std::vector<PaperPicture> pictures;
    pictures.reserve(std::size_t(m_records.size()));
    for (const int record : m_records)
        pictures.push_back(forPaper(*m_desk.shelf.photo(record), place, m_options));
    m_copies.make(std::move(pictures));
    m_desk.commands.refresh();
}

/// What cannot be read is given up soon, however large it is.
QString AlbumPrint::whyNotReady(int record) const
{
    const Photo *photo = m_desk.shelf.photo(record);
    return photo ? PictureReading::read(m_desk.shelf.filePath(*photo), {16, 16}).reason : QString();
}

void AlbumPrint::showPages()
{
    m_places.activity.showProgress(0, 0);
    m_records.removeIf([this](int record) { return !m_desk.shelf.photo(record); });
    std::vector<AlbumPages::Picture> pictures =
        AlbumPages::picturesOf(m_desk.shelf, m_records, m_desk.program.state.dateStyle);
    const std::size_t count = std::min(pictures.size(), m_copies.pictures().size());
    for (std::size_t i = 0; i < count; ++i) {
        pictures[i].path = m_copies.pictures()[i].path;
        pictures[i].pixels = m_copies.pictures()[i].pixels;
        if (pictures[i].path.isEmpty())
            pictures[i].reason = whyNotReady(m_records[qsizetype(i)]);
    }
    if (const PhotoAlbum *album = m_desk.shelf.album(m_album))
        m_options.cover = int(std::max<qsizetype>(0, m_records.indexOf(m_desk.shelf.coverOf(album->record))));
    m_desk.commands.refresh();
    m_desk.window.showPreview(
        [name = m_name, pictures = std::move(pictures), options = m_options](const PageContext &context) {
            return AlbumPages::page(name, pictures, options, context);
        },
        m_name);
}
