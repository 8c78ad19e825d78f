// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/foldercommands.h"

#include "album/model/photoshelf.h"
#include "album/window/albumview.h"
#include "album/window/conflictpanel.h"
#include "album/window/shelfcare.h"
#include "album/window/windowlines.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QDir>
#include <QMenu>
#include <QSettings>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace {
const QString copyKey = u"Windows/PhotoVIEW1/copies"_s;
const QString folderKey = u"Windows/PhotoVIEW1/folder"_s;
} // namespace

FolderCommands::FolderCommands(const AlbumDesk &desk, ShelfCare &care, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_care(care)
{}

void FolderCommands::addCommands(QMenu *pictures)
{
    Commands &commands = m_desk.commands;
    m_add = commands.writing(commands.add(
        pictures, u"mPAdd"_s, u"&Add Folder..."_s, [this] { choose(); },
        [this] {
            const QString why = m_desk.shelf.whyLocked();
            return why.isEmpty() && m_care.isTakingIn() ? AlbumWindowLines::takesIn() : why;
        },
        QKeySequence(Qt::CTRL | Qt::Key_O)));
    commands.tool(m_add, "folder"_L1, u"Add Folder"_s);
    m_copy = commands.writing(
        commands.add(pictures, u"mPCopy"_s, u"&Copy into the Household's Pictures"_s,
                     [this] { m_desk.program.store.setValue(copyKey, m_copy->isChecked()); }));
    m_copy->setCheckable(true);
    m_copy->setChecked(m_desk.program.store.value(copyKey).toBool());
}

void FolderCommands::addFurther(QMenu *pictures)
{
    Commands &commands = m_desk.commands;
    commands.writing(commands.add(
        pictures, u"mPBoth"_s, u"B&oth Changed..."_s, [this] { openConflicts(); },
        [this] { return m_care.look().conflicts().empty() ? AlbumWindowLines::noConflicts() : QString(); }));
    commands.add(pictures, u"mPReads"_s, u"&What Can Be Read"_s, [this] {
        m_desk.program.dialogs.ask(&m_desk.window, {u"Photo Album"_s, AlbumWindowLines::whatIsRead()});
    });
}

void FolderCommands::openConflicts()
{
    if (m_care.look().conflicts().empty())
        return;
    if (!m_conflicts) {
        m_conflicts = new ConflictPanel(m_desk, m_care.look());
        m_desk.views.addPanel(m_conflicts);
    }
    m_desk.window.closePreview();
    m_conflicts->start();
    m_desk.views.open(m_conflicts);
    m_conflicts->setFocus();
}

/// The one that was chosen last, or where the system keeps pictures, as far as it is there.
QString FolderCommands::usualFolder() const
{
    for (const QString &folder : {m_desk.program.store.value(folderKey).toString(),
                                  QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)}) {
        if (!folder.isEmpty() && QDir(folder).exists())
            return folder;
    }
    return QDir::homePath();
}

/// An album that is shown takes them in.
void FolderCommands::choose()
{
    const std::optional<QString> folder =
        m_desk.program.dialogs.chooseFolder(&m_desk.window, AlbumWindowLines::noPictures(), usualFolder());
    if (!folder)
        return;
    m_desk.program.store.setValue(folderKey, *folder);
    take({*folder});
}

void FolderCommands::take(const QStringList &paths)
{
    const PhotoAlbum *album = m_desk.photos.shownAlbum();
    m_care.takeIn(paths, album ? album->record : 0,
                  m_copy->isChecked() ? TakeIn::Copy::Pictures : TakeIn::Copy::No);
}
