// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/albumcommands.h"

#include "album/model/kepttexts.h"
#include "album/model/photoshelf.h"
#include "album/model/phototexts.h"
#include "album/window/albumpane.h"
#include "album/window/albumview.h"
#include "album/window/windowlines.h"
#include "shell/controls/taskpanel.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QActionGroup>
#include <QMenu>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Choice {
    QString name;
    QString caption;
};

const std::array<Choice, 3> &intoChoices()
{
    static const std::array<Choice, 3> choices{{{u"mAIntoNo"_s, u"&Nowhere Else"_s},
                                                {u"mAIntoPic"_s, u"Into the &Pictures"_s},
                                                {u"mAIntoXmp"_s, u"Into Files &Beside Them"_s}}};
    return choices;
}

const std::array<Choice, 3> &orderChoices()
{
    static const std::array<Choice, 3> choices{
        {{u"mVHand"_s, u"By &Hand"_s}, {u"mVDay"_s, u"By &Day"_s}, {u"mVName"_s, u"By &Name"_s}}};
    return choices;
}

} // namespace

AlbumCommands::AlbumCommands(const AlbumDesk &desk, AlbumPane &pane, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_pane(pane)
{}

QString AlbumCommands::whyNoAlbum() const
{
    QString why = m_desk.shelf.whyLocked();
    if (!why.isEmpty())
        return why;
    return m_desk.photos.shownAlbum() ? QString() : AlbumWindowLines::chooseAlbum();
}

void AlbumCommands::addCommands(QMenu *albums)
{
    Commands &commands = m_desk.commands;
    const auto unlessNone = [this] { return whyNoAlbum(); };
    m_create = commands.writing(commands.add(
        albums, u"mANew"_s, u"&New Album"_s, [this] { create(); },
        [this] { return m_desk.shelf.whyLocked(); }, CommonKeys::newEntry));
    commands.tool(m_create, "new-entry"_L1, u"New Album"_s);
    commands.writing(commands.add(
        albums, u"mARen"_s, u"&Rename Album"_s, [this] { m_pane.rename(m_desk.photos.shownAlbum()->record); },
        unlessNone));
    commands.writing(commands.add(
        albums, u"mACover"_s, u"Use Picture as &Cover"_s, [this] { setCover(); },
        [this] {
            const QString why = whyNoAlbum();
            if (why.isEmpty() && qobject_cast<TaskPanel *>(m_desk.views.currentWidget()))
                return AlbumWindowLines::leavePanelFirst();
            return !why.isEmpty() || m_desk.photos.chosen().size() == 1 ? why : AlbumWindowLines::onlyOne();
        }));
    albums->addSeparator();
    addInto(albums);
    addFolder(albums);
    albums->addSeparator();
    commands.writing(commands.add(
        albums, u"mADel"_s, u"&Delete Album"_s,
        [this] { m_desk.shelf.removeAlbum(m_desk.photos.shownAlbum()->record); }, unlessNone));
}

/// Where what is said of the pictures of an album is written to.
void AlbumCommands::addInto(QMenu *albums)
{
    auto *menu = new QMenu(u"Captions Also &Go"_s, albums);
    menu->menuAction()->setObjectName(u"mAInto"_s);
    albums->addMenu(menu);
    auto *group = new QActionGroup(this);
    for (std::size_t i = 0; i < intoChoices().size(); ++i) {
        const auto into = PhotoAlbum::Into(i);
        QAction *action = m_desk.commands.writing(m_desk.commands.add(
            menu, intoChoices()[i].name, intoChoices()[i].caption,
            [this, into] {
                change(AlbumWindowLines::intoTitle(into), [into](PhotoAlbum &album) { album.into = into; });
                emit intoChanged();
            },
            [this, into] {
                const QString why = whyNoAlbum();
                const bool canWrite = into == PhotoAlbum::Into::Nowhere || KeptTexts::isBuiltIn();
                return !why.isEmpty() || canWrite ? why : AlbumWindowLines::keepsNoTexts();
            }));
        action->setCheckable(true);
        group->addAction(action);
        m_into.push_back(action);
    }
}

void AlbumCommands::addFolder(QMenu *albums)
{
    Commands &commands = m_desk.commands;
    commands.writing(commands.add(
        albums, u"mAWatch"_s, u"&Watch a Folder..."_s, [this] { watch(); }, [this] { return whyNoAlbum(); }));
    commands.writing(commands.add(
        albums, u"mAUnwatch"_s, u"&Stop Watching"_s,
        [this] {
            change(AlbumWindowLines::noLongerWatched(), [](PhotoAlbum &album) { album.folder.clear(); });
        },
        [this] {
            const QString why = whyNoAlbum();
            return !why.isEmpty() || !m_desk.photos.shownAlbum()->folder.isEmpty()
                       ? why
                       : AlbumWindowLines::watchesNone();
        }));
}

void AlbumCommands::addOrders(QMenu *view)
{
    auto *group = new QActionGroup(this);
    for (std::size_t i = 0; i < orderChoices().size(); ++i) {
        const auto sorting = PhotoAlbum::Sorting(i);
        const bool isByHand = sorting == PhotoAlbum::Sorting::ByHand;
        QAction *action = m_desk.commands.add(
            view, orderChoices()[i].name, orderChoices()[i].caption, [this, sorting] { setOrder(sorting); },
            [this, isByHand] { return isByHand ? whyNoAlbum() : QString(); });
        action->setCheckable(true);
        group->addAction(action);
        m_orders.push_back(action);
    }
}

void AlbumCommands::setOrder(PhotoAlbum::Sorting sorting)
{
    if (m_desk.photos.shownAlbum())
        change(AlbumWindowLines::orderTitle(sorting),
               [sorting](PhotoAlbum &album) { album.sorting = sorting; });
    else
        m_desk.photos.setSorting(sorting);
    m_desk.commands.refresh();
}

void AlbumCommands::refresh()
{
    const PhotoAlbum *album = m_desk.photos.shownAlbum();
    for (std::size_t i = 0; i < m_into.size(); ++i)
        m_into[i]->setChecked(album && album->into == PhotoAlbum::Into(i));
    for (std::size_t i = 0; i < m_orders.size(); ++i)
        m_orders[i]->setChecked(m_desk.photos.sorting() == PhotoAlbum::Sorting(i));
}

/// A name that none has yet, to be typed over.
void AlbumCommands::create()
{
    PhotoAlbum album;
    album.name = AlbumWindowLines::newAlbum();
    const auto isTaken = [this](const QString &name) {
        return std::ranges::count(m_desk.shelf.albums(), name, &PhotoAlbum::name) > 0;
    };
    for (int number = 2; isTaken(album.name); ++number)
        album.name = AlbumWindowLines::newAlbum() + u' ' + QString::number(number);
    const int record = m_desk.shelf.addAlbum(album);
    if (record == 0)
        return;
    emit albumWanted(record);
    m_pane.rename(record);
}

void AlbumCommands::rename(int album, const QString &name)
{
    const PhotoAlbum *before = m_desk.shelf.album(album);
    if (!before)
        return;
    PhotoAlbum after = *before;
    after.name = PhotoTexts::composed(name).trimmed();
    m_desk.shelf.changeAlbum(AlbumWindowLines::renamed(after.name), after);
}

void AlbumCommands::change(const QString &title, const std::function<void(PhotoAlbum &)> &edit)
{
    PhotoAlbum album = *m_desk.photos.shownAlbum();
    edit(album);
    if (album != *m_desk.photos.shownAlbum())
        m_desk.shelf.changeAlbum(title, album);
    refresh();
}

void AlbumCommands::setCover()
{
    change(AlbumWindowLines::coverTitle(),
           [cover = m_desk.photos.chosen().first()](PhotoAlbum &album) { album.cover = cover; });
}

void AlbumCommands::watch()
{
    const std::optional<QString> folder = m_desk.program.dialogs.chooseFolder(
        &m_desk.window, u"Watch a Folder"_s, m_desk.photos.shownAlbum()->folder);
    if (!folder)
        return;
    if (!PhotoTexts::fitsPath(*folder)) {
        emit said(AlbumWindowLines::pathTooLong(*folder));
        return;
    }
    change(AlbumWindowLines::watched(*folder), [&folder](PhotoAlbum &album) { album.folder = *folder; });
}
