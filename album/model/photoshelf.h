// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "album/model/shelfrecords.h"
#include "shell/core/undostep.h"
#include "storage/datafolder.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>

class ShelfChange;
class ShelfEdits;

/// The pictures and albums as both files have them. Each thing that is done is written at once, in one step
/// that can be taken back; nothing of it touches a picture's own file.
class PhotoShelf final : public QObject
{
    Q_OBJECT
public:
    using Edit = std::function<void(Photo &)>;

    /// Nothing is read before `load`.
    explicit PhotoShelf(const DataFolder &folder, QObject *parent = nullptr);

    const DataFolder &folder() const { return m_folder; }
    static QStringList fileNames();
    /// Reads both files, each in one pass.
    void load();

    /// Why nothing may be changed; empty where it may.
    QString whyLocked() const;
    /// Why the last thing that was refused was.
    QString refusal() const { return m_refusal; }
    /// Those of the files that hold nothing of ours: nothing is written to them.
    QStringList foreignFiles() const;
    /// Gives such a file another name, "Photobk3 (set aside).Fil", and begins an empty one. False, and the
    /// user was told, where the disk refuses.
    bool setAside(const QString &name);

    // What there is. Pointers are good until something changes.

    const std::vector<Photo> &photos() const { return m_records.photos(); }
    /// Null where there is none.
    const Photo *photo(int record) const { return m_records.photo(record); }
    /// The picture of this path, as records have it; null where there is none.
    const Photo *photoAt(const QString &storedPath) const;
    /// In the order of the list.
    const std::vector<PhotoAlbum> &albums() const { return m_records.albums(); }
    const PhotoAlbum *album(int number) const { return m_records.album(number); }
    /// The pictures of an album in the order that they were given by hand.
    QList<int> recordsIn(int album) const;
    int countIn(int album) const;
    /// The albums that a picture is in, in the order of the list.
    QList<int> albumsOf(int photo) const;
    /// What stands for the album: its cover or, where that has left it, its first picture; 0: it is empty.
    int coverOf(int album) const;
    const ShelfRecords &records() const { return m_records; }

    /// Where a picture's file lies; it may not be there.
    QString filePath(const Photo &photo) const;
    /// How records name a file or a folder.
    QString storedPath(const QString &file) const;

    // What can be done: one step each. False: nothing was, and the user was told why.

    /// Several pictures at once: `edit` is called with each of them, as the file has it. What is the same
    /// afterwards is not written.
    bool change(const QList<int> &photos, const QString &title, const Edit &edit);
    /// The same for what nobody did, such as what a file is like: it is not to be taken back.
    bool note(const QList<int> &photos, const Edit &edit);
    /// The same, whose step is not told of: it is part of another one. Nothing to be taken back where all
    /// was so already.
    std::optional<UndoStep> changeAsPart(const QList<int> &photos, const QString &title, const Edit &edit);
    /// Tells of steps that were parts as of one.
    void tell(const UndoStep &step);
    /// New pictures, at the end of an album unless that is 0. Their numbers; none where nothing was done.
    QList<int> addPhotos(std::vector<Photo> photos, int album = 0);
    /// The same as a part of something; each gets its number.
    std::optional<UndoStep> addPhotosAsPart(std::vector<Photo> &photos, int album = 0);
    /// Takes pictures off the list and out of all albums.
    bool removePhotos(const QList<int> &photos);

    /// A new album behind the others; its number, 0 where nothing was done.
    int addAlbum(PhotoAlbum album);
    bool changeAlbum(const QString &title, const PhotoAlbum &album);
    /// Puts an album before another one, or at the end.
    bool moveAlbum(int album, int before = 0);
    /// The pictures stay.
    bool removeAlbum(int album);

    /// Puts pictures into an album, before one of its pictures or at the end; those that are in it stay where
    /// they are.
    bool putInto(int album, const QList<int> &photos, int before = 0);
    std::optional<UndoStep> putIntoAsPart(int album, const QList<int> &photos);
    /// Moves pictures of an album before one of its pictures or to the end, in the order given.
    bool arrange(int album, const QList<int> &photos, int before = 0);
    bool takeOut(int album, const QList<int> &photos);

signals:
    /// Anything is another than before: read, changed, or a change taken back.
    void changed();
    /// What is known of these pictures is; each of them was there before and is now.
    void photosChanged(const QList<int> &photos);
    /// Pictures came, went, or changed places; albums did.
    void listChanged();
    /// Something was changed, and may be taken back.
    void edited(const UndoStep &step);
    /// The files were read or written here.
    void fileTouched();
    /// A quiet line for the status bar.
    void said(const QString &line);

private:
    using Work = std::function<std::shared_ptr<ShelfChange>(ShelfEdits &)>;
    using Way = ChangeResult (ShelfChange::*)(const DataFolder &);

    bool refuse(const QString &line);
    QString nameOf(int album) const;
    bool perform(const Work &work, const QString &title);
    std::optional<UndoStep> commit(const Work &work, const QString &title);
    ChangeResult exchange(ShelfChange &change, Way way);
    void reread(const ShelfChange &change);

    const DataFolder &m_folder;
    ShelfRecords m_records;
    QString m_whyLocked;
    QString m_refusal;
};
