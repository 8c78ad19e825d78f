// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/taskpanel.h"
#include "shell/core/picturealbum.h"
#include "shell/pictures/picturefolder.h"

#include <functional>

class ElidedLabel;
class PictureFrame;
class QComboBox;
class QListWidget;
class QPushButton;
struct Message;
struct Program;

/// What a panel of pictures chooses one for.
struct PictureUse {
    QString title;           ///< of the panel
    qsizetype width;         ///< of the field that keeps the path, in bytes
    QString notStorable;     ///< what is said of a path that the field cannot keep
    QString nothingToDelete; ///< why there is no picture to be deleted

    static constexpr qsizetype anyPath = 0; ///< a width for what is kept elsewhere than in a field
};

/// "Select Family/Friends Picture" and the like: drives, folders and picture files, with a preview. It starts
/// in the folder used last and remembers the one that a picture was taken from.
class PicturePanel final : public TaskPanel
{
    Q_OBJECT
public:
    /// The roots that the drive list offers; the first one is where it falls back to.
    using Drives = std::function<QStringList()>;

    PicturePanel(Program &program, PictureUse use, Drives drives = systemDrives, QWidget *parent = nullptr);

    /// Reads drives and folders anew; `hasPicture`: there is one now, which may be deleted.
    void start(bool hasPicture);
    /// Whether there was an album to choose from when it began.
    bool hasAlbums() const { return !m_pictureAlbums.isEmpty(); }

    static QStringList systemDrives();

signals:
    void pictureEntered(const QString &path);
    void pictureDeleted();
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    QWidget *makeLists();
    QWidget *makeAlbums();
    QWidget *makePreview();
    void makeButtons();
    void fillDrives();
    void fillAlbums();
    void showAlbum(int row);
    QString startFolder() const;
    bool showFolder(const QString &path);
    void chooseDrive(int index);
    void openFolder(int row);
    void selectDriveOf(const QString &path);
    void fallBack(const Message &message);
    void previewFile();
    void enterPicture();
    QString chosenFile() const;

    Program &m_program;
    PictureUse m_use;
    PictureFolder m_pictures;
    Drives m_drives;
    QString m_folder;
    QComboBox *m_driveList = nullptr;
    QListWidget *m_folderList = nullptr;
    QWidget *m_albums = nullptr; ///< the list of them with its label
    QListWidget *m_albumList = nullptr;
    QList<PictureAlbum> m_pictureAlbums;
    QListWidget *m_fileList = nullptr;
    ElidedLabel *m_path = nullptr;
    PictureFrame *m_preview = nullptr;
    QPushButton *m_enter = nullptr;
    QPushButton *m_delete = nullptr;
};
