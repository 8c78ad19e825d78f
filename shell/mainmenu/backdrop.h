// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

class QPainter;
struct Theme;

/// A picture that covers an area, anchored at its bottom, in the colours of the theme. It is decoded no
/// larger than the area needs and scaled when it is painted; without a picture the area is plain ground.
class Backdrop
{
public:
    /// Largest picture that is kept: the size that the program's own backgrounds have.
    static constexpr QSize largest{1920, 1200};

    /// Takes another picture file; an empty path is the plain ground. Nothing is read before `fit`.
    void setFile(const QString &path);

    /// Decodes the picture for an area of `size` device pixels, unless it is there in the right size already.
    /// A file that cannot be read is plain ground.
    void fit(QSize size, const Theme &theme);
    bool isFitted() const { return m_isFitted; }
    bool hasPicture() const { return !m_image.isNull(); }

    /// Covers `area` (in the painter's coordinates).
    void paint(QPainter &painter, const QRect &area, const Theme &theme) const;

    /// The mean colour of what `paint` draws at `part` of `area`.
    QColor meanColor(const QRect &part, const QRect &area, const Theme &theme) const;

private:
    QRectF sourceOf(const QRect &area) const;

    QString m_path;
    bool m_isFitted = false;
    QImage m_image;
};
