// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/walkbutton.h"

#include <QPixmap>

/// One picture of the background selector: its thumbnail in a mat, its name below. The one in use says so.
class BackgroundSlot final : public WalkButton
{
    Q_OBJECT
public:
    /// Thumbnails are read at this size, in logical pixels, and shown at it or smaller.
    static constexpr QSize thumbnail{230, 122};
    static constexpr int smallestPicture = 64;

    BackgroundSlot(int slot, QWidget *parent);

    /// Reads the thumbnail; a missing or unreadable file leaves it empty.
    void load(const QString &path);

    void setInUse(bool inUse);

    /// Shows the picture at `size`; the name below may make the slot wider, up to `widest` pixels.
    void setPictureSize(QSize size, int widest);

    /// Pixels around the picture: mat, focus ring, and the name below.
    QSize frame() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void tell();
    QString words() const;

    int m_slot;
    QPixmap m_picture;
    QSize m_size = thumbnail;
    bool m_inUse = false;
};
