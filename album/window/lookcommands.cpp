// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/lookcommands.h"

#include "album/window/albumcommands.h"
#include "album/window/albumpane.h"
#include "album/window/albumview.h"
#include "album/window/largeview.h"
#include "album/window/photogrid.h"
#include "album/window/windowlines.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/pictures/picturecanvas.h"

#include <QMenu>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int sideStep = 32;

struct ViewFace {
    ShelfView::Kind kind;
    QString name;
    QString caption;
};

const std::array<ViewFace, 5> &viewFaces()
{
    static const std::array<ViewFace, 5> faces{
        {{ShelfView::Kind::All, u"mVAll"_s, u"&All Pictures"_s},
         {ShelfView::Kind::NoAlbum, u"mVNone"_s, u"In N&o Album"_s},
         {ShelfView::Kind::OnThisDay, u"mVDayOf"_s, u"On &This Day"_s},
         {ShelfView::Kind::NoDate, u"mVNoDate"_s, u"Without a Dat&e"_s},
         {ShelfView::Kind::Missing, u"mVMiss"_s, u"&Missing"_s}}};
    return faces;
}

} // namespace

LookCommands::LookCommands(const AlbumDesk &desk, LargeView &large, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_large(large)
{}

void LookCommands::addCommands(QMenu *view, AlbumCommands &albums, AlbumPane &pane)
{
    Commands &commands = m_desk.commands;
    for (std::size_t i = 0; i < viewFaces().size(); ++i) {
        const ViewFace &face = viewFaces()[i];
        QAction *command = commands.add(
            view, face.name, face.caption,
            [this, kind = face.kind] {
                emit viewWanted({{kind, 0}, {}});
                m_desk.photos.setFocus();
            },
            {}, CommonKeys::views[i]);
        command->setCheckable(true);
        m_views.emplace_back(face.kind, command);
    }
    view->addSeparator();
    addLarge(view);
    view->addSeparator();
    albums.addOrders(view);
    view->addSeparator();
    commands.add(
        view, u"mVBig"_s, u"Lar&ger Pictures"_s, [this] { setSide(sideStep); }, {},
        QKeySequence(Qt::CTRL | Qt::Key_Plus));
    commands.add(
        view, u"mVSmall"_s, u"&Smaller Pictures"_s, [this] { setSide(-sideStep); }, {},
        QKeySequence(Qt::CTRL | Qt::Key_Minus));
    view->addSeparator();
    commands.add(
        view, u"mVSearch"_s, u"Sear&ch"_s, [&pane] { pane.startSearch(); }, {}, CommonKeys::search);
}

void LookCommands::addLarge(QMenu *view)
{
    Commands &commands = m_desk.commands;
    const auto unlessLarge = [this] { return whyNotLarge(); };
    m_showLarge = commands.add(
        view, u"mVLarge"_s, u"Show &Large\tEnter"_s, [this] { openLarge(); },
        [this] { return m_desk.photos.current() != 0 ? QString() : AlbumWindowLines::choosePicture(); });
    commands.tool(m_showLarge, "zoom-in"_L1, u"Large"_s);
    m_zoom = commands.add(
        view, u"mVZoom"_s, u"&Full Size"_s, [this] { m_large.turnZoom(); }, unlessLarge,
        QKeySequence(Qt::CTRL | Qt::Key_0));
    m_previous = commands.add(
        view, u"mVPrev"_s, u"&Previous Picture\tPgUp"_s, [this] { m_large.step(-1); }, unlessLarge);
    m_next = commands.add(
        view, u"mVNext"_s, u"Ne&xt Picture\tPgDown"_s, [this] { m_large.step(1); }, unlessLarge);
    m_back = commands.add(
        view, u"mVBack"_s, u"&Back to All\tEsc"_s, [this] { closeLarge(); }, unlessLarge);
}

QString LookCommands::whyNotLarge() const
{
    return m_desk.views.isShown(&m_large) ? QString() : AlbumWindowLines::showLargeFirst();
}

void LookCommands::openLarge()
{
    m_desk.window.closePreview();
    m_desk.views.open(&m_large);
    m_large.show(m_desk.photos.records(), m_desk.photos.current());
    m_large.setFocus();
    refresh();
}

void LookCommands::closeLarge()
{
    m_desk.views.goHome();
    m_desk.photos.setFocus();
}

void LookCommands::setSide(int by)
{
    m_desk.photos.setSide(m_desk.photos.grid().side() + by);
}

void LookCommands::refresh()
{
    const PhotosShown &shown = m_desk.photos.shown();
    for (const auto &[kind, action] : m_views)
        action->setChecked(shown.isOf(kind));
    const bool isOneToOne = m_large.canvas().zoom() == PictureCanvas::Zoom::OneToOne;
    m_desk.commands.setCaption(m_zoom, isOneToOne ? u"&Fit to Window"_s : u"&Full Size"_s);
}
