// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/picturepanel.h"

#include "shell/controls/busycursor.h"
#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/core/framelines.h"
#include "shell/core/shellmessages.h"
#include "shell/look/theme.h"
#include "shell/pictures/pictureframe.h"
#include "shell/pictures/picturelines.h"
#include "shell/program/program.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>
#include <QStorageInfo>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int PathRole = Qt::UserRole;
constexpr int mostAlbumRows = 5;
constexpr int leastFileWidth = 136; ///< for a name of a dozen letters beside a bar

QListWidget *makeList(const QString &name, QWidget *parent)
{
    auto *list = named(new QListWidget(parent), name);
    setListRows(list);
    return list;
}

/// `list` at a height of whole rows; its label leads to it.
QWidget *wholeRows(QListWidget *list)
{
    auto *rows = new WholeRows(list, nullptr, list->parentWidget());
    rows->setFocusProxy(list);
    return rows;
}

bool isReadableFolder(const QString &path)
{
    const QFileInfo folder(path);
    return folder.isDir() && folder.isReadable() && folder.isExecutable();
}

} // namespace

PicturePanel::PicturePanel(Program &program, PictureUse use, Drives drives, QWidget *parent)
    : TaskPanel(u"picturePanel"_s, use.title, parent)
    , m_program(program)
    , m_use(std::move(use))
    , m_pictures(program.folder)
    , m_drives(std::move(drives))
{
    auto *work = new QWidget(this);
    auto *layout = new QVBoxLayout(work);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
    auto *pathLine = new QHBoxLayout;
    pathLine->setSpacing(8);
    m_path = named(new ElidedLabel(this), u"picturePath"_s);
    pathLine->addWidget(makeFieldLabel(u"Path:"_s, nullptr, this));
    pathLine->addWidget(m_path, 1);
    layout->addLayout(pathLine);
    auto *middle = new QHBoxLayout;
    middle->setSpacing(24);
    middle->addWidget(makeLists(), 3);
    middle->addWidget(makePreview(), 2);
    layout->addLayout(middle, 1);
    setWork(work);
    makeButtons();
}

QWidget *PicturePanel::makeLists()
{
    auto *lists = new QWidget(this);
    auto *layout = new QHBoxLayout(lists);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(14);
    m_driveList = named(new QComboBox(this), u"Drive1"_s);
    m_driveList->setAccessibleName(u"Drives"_s);
    m_driveList->view()->setAccessibleName(u"Drives"_s);
    m_driveList->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_folderList = makeList(u"Dir1"_s, this);
    m_fileList = makeList(u"File1"_s, this);
    m_fileList->setTextElideMode(Qt::ElideMiddle); // names of cameras differ at their end
    m_fileList->setMinimumWidth(TypeScale::wide(leastFileWidth));
    auto *places = new QVBoxLayout;
    places->setSpacing(12);
    places->addLayout(labelled(u"Drives:"_s, m_driveList));
    places->addLayout(labelled(u"Folders:"_s, wholeRows(m_folderList)), 1);
    places->addWidget(makeAlbums());
    layout->addLayout(places, 1);
    layout->addLayout(labelled(u"File:"_s, wholeRows(m_fileList)), 1);
    connect(m_driveList, &QComboBox::activated, this, &PicturePanel::chooseDrive);
    connect(m_folderList, &QListWidget::itemActivated, this,
            [this](QListWidgetItem *item) { openFolder(m_folderList->row(item)); });
    connect(m_fileList, &QListWidget::itemSelectionChanged, this, &PicturePanel::previewFile);
    connect(m_fileList, &QListWidget::itemActivated, this, &PicturePanel::enterPicture);
    return lists;
}

/// The albums of the household, in place of a folder.
QWidget *PicturePanel::makeAlbums()
{
    m_albums = new QWidget(this);
    m_albumList = makeList(u"albums1"_s, m_albums);
    auto *layout = new QVBoxLayout(m_albums);
    layout->setContentsMargins({});
    layout->addLayout(labelled(u"Albums:"_s, m_albumList));
    connect(m_albumList, &QListWidget::itemClicked, this,
            [this](QListWidgetItem *item) { showAlbum(m_albumList->row(item)); });
    connect(m_albumList, &QListWidget::itemActivated, this,
            [this](QListWidgetItem *item) { showAlbum(m_albumList->row(item)); });
    return m_albums;
}

QWidget *PicturePanel::makePreview()
{
    auto *side = new QWidget(this);
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(3);
    m_preview = named(new PictureFrame(this), u"picturePreview"_s);
    m_preview->setAccessibleName(u"Picture Preview"_s);
    layout->addWidget(makeFieldLabel(u"Picture Preview:"_s, nullptr, this));
    layout->addWidget(m_preview, 1);
    return side;
}

void PicturePanel::makeButtons()
{
    m_delete =
        addButton(u"pictureDelete"_s, u"Exit an &Delete Current Picture"_s, ButtonKind::Plain, Side::Left);
    m_enter = addButton(u"pictureEnter"_s, u"&Enter Picture Into Program"_s, ButtonKind::Main);
    setLeaveButton(u"pictureExit"_s, u"E&xit Without Entering Picture"_s);
    connect(m_delete, &QPushButton::clicked, this, &PicturePanel::pictureDeleted);
    connect(m_enter, &QPushButton::clicked, this, &PicturePanel::enterPicture);
}

QStringList PicturePanel::systemDrives()
{
    QStringList roots;
#ifdef Q_OS_WIN
    for (const QFileInfo &drive : QDir::drives())
        roots.append(drive.absoluteFilePath());
    // Where the list falls back to stands first.
    if (const qsizetype c = roots.indexOf(u"C:/"_s); c > 0)
        roots.move(c, 0);
#else
    roots.append(QDir::rootPath());
    roots.append(QDir::homePath());
    for (const QStorageInfo &volume : QStorageInfo::mountedVolumes()) {
        const QString root = volume.rootPath();
        // What a person would call a drive; the many mounts of the system's own are none.
        if (root.startsWith("/media/"_L1) || root.startsWith("/run/media/"_L1) || root.startsWith("/mnt/"_L1))
            roots.append(root);
    }
    roots.removeDuplicates();
#endif
    return roots;
}

void PicturePanel::start(bool hasPicture)
{
    setUnavailable(m_delete, hasPicture ? QString() : m_use.nothingToDelete);
    fillDrives();
    fillAlbums();
    if (!showFolder(startFolder()))
        showFolder(m_driveList->itemData(0).toString());
    m_fileList->setFocus();
}

void PicturePanel::fillDrives()
{
    const QSignalBlocker blocker(m_driveList);
    m_driveList->clear();
    for (const QString &root : m_drives())
        m_driveList->addItem(QDir::toNativeSeparators(root), root);
}

void PicturePanel::fillAlbums()
{
    const FunctionEntry *entry = m_program.functions.entry(Function::PhotoAlbum);
    m_pictureAlbums = entry && entry->pictureAlbums ? entry->pictureAlbums(m_program) : QList<PictureAlbum>();
    m_albumList->clear();
    for (const PictureAlbum &album : m_pictureAlbums)
        m_albumList->addItem(album.title);
    const int rows = std::min(int(m_pictureAlbums.size()), mostAlbumRows);
    m_albumList->setFixedHeight(rows * ListRowDelegate::rowHeight() + 2 * m_albumList->frameWidth() + 6);
    m_albums->setVisible(!m_pictureAlbums.isEmpty());
}

void PicturePanel::showAlbum(int row)
{
    const PictureAlbum &album = m_pictureAlbums[row];
    m_path->setText(u"Album: "_s + album.title);
    m_folderList->setCurrentItem(nullptr);
    m_fileList->clear();
    for (const QString &path : album.paths) {
        auto *item = new QListWidgetItem(QFileInfo(path).fileName(), m_fileList);
        item->setData(PathRole, path);
        item->setToolTip(item->text());
    }
    previewFile();
}

/// The folder used last; the household's own pictures, or the user's home, when it is not on this machine.
QString PicturePanel::startFolder() const
{
    for (const QString &folder : {m_pictures.lastUsed(), m_program.folder.filePath(u"Pictures"_s)}) {
        if (QDir::isAbsolutePath(folder) && isReadableFolder(folder))
            return folder;
    }
    return QDir::homePath();
}

bool PicturePanel::showFolder(const QString &path)
{
    if (!isReadableFolder(path))
        return false;
    const BusyCursor busy;
    const QDir folder(QDir::cleanPath(path));
    m_folder = folder.absolutePath();
    m_path->setText(QDir::toNativeSeparators(m_folder));
    selectDriveOf(m_folder);

    const Icons::Scheme scheme = Theme::of(this).scheme;
    m_folderList->clear();
    if (!folder.isRoot()) {
        auto *up = new QListWidgetItem(Icons::icon("up"_L1, scheme), u".."_s, m_folderList);
        up->setData(PathRole, QDir::cleanPath(m_folder + u"/.."_s));
        up->setToolTip(u"The folder above"_s);
    }
    const auto order = QDir::Name | QDir::IgnoreCase;
    for (const QString &name : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, order)) {
        auto *item = new QListWidgetItem(Icons::icon("folder"_L1, scheme), name, m_folderList);
        item->setData(PathRole, folder.absoluteFilePath(name));
    }
    m_albumList->setCurrentItem(nullptr);
    m_fileList->clear();
    m_fileList->addItems(folder.entryList(PictureFolder::fileKinds(), QDir::Files, order));
    previewFile();
    return true;
}

void PicturePanel::selectDriveOf(const QString &path)
{
    int best = -1;
    for (int i = 0; i < m_driveList->count(); ++i) {
        const QString root = m_driveList->itemData(i).toString();
        const QString start = root.endsWith(u'/') ? root : QString(root + u'/');
        const bool isBetter = best < 0 || root.size() > m_driveList->itemData(best).toString().size();
        if (isBetter && (path == root || path.startsWith(start)))
            best = i;
    }
    m_driveList->setCurrentIndex(best);
}

void PicturePanel::chooseDrive(int index)
{
    if (!showFolder(m_driveList->itemData(index).toString()))
        fallBack(ShellMessages::driveUnavailable());
}

void PicturePanel::openFolder(int row)
{
    const QListWidgetItem *item = m_folderList->item(row);
    if (!item)
        return;
    if (!showFolder(item->data(PathRole).toString()))
        fallBack(ShellMessages::deviceUnavailable());
    else
        m_folderList->setCurrentRow(0);
}

void PicturePanel::fallBack(const Message &message)
{
    m_program.dialogs.ask(this, message);
    showFolder(m_driveList->itemData(0).toString());
}

QString PicturePanel::chosenFile() const
{
    const QList<QListWidgetItem *> chosen = m_fileList->selectedItems();
    if (chosen.isEmpty())
        return {};
    const QString ofAlbum = chosen.first()->data(PathRole).toString();
    return ofAlbum.isEmpty() ? QDir(m_folder).absoluteFilePath(chosen.first()->text()) : ofAlbum;
}

void PicturePanel::previewFile()
{
    const BusyCursor busy;
    const QString file = chosenFile();
    const bool isPicture = !file.isEmpty() && m_preview->setPicture(file);
    if (file.isEmpty())
        m_preview->clear();
    const bool isUnreadable = !file.isEmpty() && !isPicture;
    m_preview->setWords(isUnreadable ? PictureLines::notAPicture() : QString());
    setUnavailable(m_enter, isPicture ? QString() : PictureLines::choosePictureFirst());
}

void PicturePanel::enterPicture()
{
    if (!m_preview->hasPicture())
        return;
    const QString path = QDir::toNativeSeparators(chosenFile());
    if (m_use.width != PictureUse::anyPath && !PictureFolder::isStorable(path, m_use.width)) {
        emit said(m_use.notStorable);
        return;
    }
    const bool isRemembered = m_pictures.remember(m_folder);
    emit pictureEntered(path);
    if (!isRemembered)
        emit said(FrameLines::settingNotSaved());
}
