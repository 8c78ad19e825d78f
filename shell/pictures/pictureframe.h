// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

/// Reading picture files that may be anything: huge, cut short, no pictures at all.
namespace PictureFile {

/// The picture of `path`, scaled down while it is read so that it fits `bound` pixels; null when the file is
/// not there, not an ordinary file, or not a picture that this system can read.
QImage read(const QString &path, QSize bound);

/// The bytes of `image` as a JPEG file; what can be seen through is white. Empty when it cannot be written
/// so.
QByteArray asPhotograph(const QImage &image);

} // namespace PictureFile

/// An entry's picture on its white mat, or a dashed frame with a few words where there is none.
class PictureFrame final : public QWidget
{
    Q_OBJECT
public:
    explicit PictureFrame(QWidget *parent = nullptr);

    /// Shows the picture of this file; false, with the frame empty, when it cannot be shown.
    bool setPicture(const QString &path);
    /// Shows a picture that has been read already; a null one empties the frame.
    void setImage(const QImage &picture);
    /// Empties the frame.
    void clear();
    bool hasPicture() const { return !m_picture.isNull(); }

    /// What the empty frame says.
    void setWords(const QString &words);
    QString words() const { return m_words; }

    /// How far a picture may be stretched beyond its own pixels.
    void setGreatestStretch(double factor) { m_stretch = factor; }

    QSize sizeHint() const override { return {206, 190}; }
    QSize minimumSizeHint() const override { return {206, 190}; }

    /// Where the mat, or the dashed frame, stands in the widget.
    QRect mat() const;
    /// How high the mat could be at the widget's width; more height than that leaves a gap.
    int tallestMat() const;
    void setAlignment(Qt::Alignment alignment);

signals:
    /// The mat stands elsewhere now.
    void matChanged();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    QSize matFor(QSize room) const;
    void paintPicture(QPainter &painter) const;
    void paintEmpty(QPainter &painter) const;
    void tellChange();

    QPixmap m_picture;
    QString m_words;
    double m_stretch = 4.0;
    Qt::Alignment m_alignment = Qt::AlignLeft | Qt::AlignTop;
};
