// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/showcommands.h"

#include "album/model/photoshelf.h"
#include "album/window/albumview.h"
#include "album/window/slidepanel.h"
#include "album/window/slideshow.h"
#include "album/window/windowlines.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QMenu>

#include <utility>

using namespace Qt::Literals::StringLiterals;

ShowCommands::ShowCommands(const AlbumDesk &desk, QString thumbnails, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_thumbnails(std::move(thumbnails))
{}

void ShowCommands::addCommands(QMenu *pictures)
{
    Commands &commands = m_desk.commands;
    const auto unlessNone = [this] {
        return m_desk.photos.records().isEmpty() ? AlbumWindowLines::nothingShown() : QString();
    };
    commands.add(
        pictures, u"mPShow"_s, u"&Slide Show..."_s, [this] { open(); }, unlessNone, QKeySequence(Qt::Key_F5));
    QAction *now = commands.add(
        pictures, u"mPNow"_s, u"Start Slide S&how"_s, [this] { startNow(); }, unlessNone,
        QKeySequence(Qt::CTRL | Qt::Key_F5));
    commands.tool(now, "view"_L1, u"Slide Show"_s);
}

SlidePanel &ShowCommands::panel()
{
    if (!m_panel) {
        m_panel = new SlidePanel(m_desk.program, m_desk.shelf);
        m_desk.views.addPanel(m_panel);
        connect(m_panel, &SlidePanel::accepted, this, &ShowCommands::start);
    }
    const bool areChosen = m_desk.photos.chosen().size() > 1;
    m_panel->start(areChosen ? AlbumWindowLines::whatIsChosen()
                             : AlbumWindowLines::title(m_desk.photos.shown(), m_desk.photos.shownAlbum(),
                                                       m_desk.program.clock.today(),
                                                       m_desk.program.state.dateStyle),
                   m_desk.photos.chosenOrAll());
    return *m_panel;
}

void ShowCommands::open()
{
    SlidePanel &opened = panel();
    m_desk.window.closePreview();
    m_desk.views.open(&opened);
    opened.setFocus();
}

/// As the last one was.
void ShowCommands::startNow()
{
    panel();
    start();
}

/// It begins with the picture that one is at.
void ShowCommands::start()
{
    const QList<int> photos = m_panel->photos();
    const int first = m_desk.photos.current();
    m_desk.views.leave();
    auto *show =
        new SlideShow(m_desk.shelf, m_thumbnails, m_desk.program.state.dateStyle, m_panel->options());
    connect(show, &SlideShow::ended, this, &ShowCommands::ended);
    show->start(photos, first);
}
