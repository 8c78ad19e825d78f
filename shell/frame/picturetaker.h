// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/picturepanel.h"
#include "shell/pictures/picturefolder.h"

#include <QObject>

#include <functional>

class PictureFrame;
class QAction;
class QImage;
class QMimeData;
struct Program;

/// Takes a picture that is dropped on a frame, or pasted there: a file of a kind that the picture panel
/// offers where it lies, anything else as a copy beside the records.
class PictureTaker final : public QObject
{
    Q_OBJECT
public:
    struct Hands {
        std::function<QString()> name; ///< that a copy gets
        std::function<void(const QString &path)> setPicture;
    };

    /// Belongs to `frame`. Nothing is taken while `load`, the command of the picture panel, is disabled; its
    /// reason is told.
    PictureTaker(Program &program, PictureFrame *frame, PictureUse use, const QAction &load, Hands hands);

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

    PictureFrame *m_frame;
    PictureUse m_use;
    const QAction &m_load;
    Hands m_hands;
    PictureFolder m_pictures;
};
