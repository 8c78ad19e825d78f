// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pictures/picturefolder.h"

#include <QObject>

class EntryEditor;
class QAction;
class QImage;
class QMimeData;
struct PictureUse;
struct Program;

/// What the panel of pictures chooses one for here.
PictureUse addressPictureUse();

/// Makes a picture that is dropped on an entry's frame, or pasted there, the picture of the entry: a file of
/// a kind that the picture panel offers where it lies, anything else as a copy beside the records.
class PictureTaker final : public QObject
{
    Q_OBJECT
public:
    /// Belongs to `editor`. Nothing is taken while `load`, the command of the picture panel, is disabled; its
    /// reason is told.
    PictureTaker(Program &program, EntryEditor &editor, const QAction &load);

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void take(const QMimeData &data);
    void takeFile(const QString &path);
    void keep(const QImage &image);
    void setPicture(const QString &path);

    EntryEditor &m_editor;
    const QAction &m_load;
    PictureFolder m_pictures;
};
