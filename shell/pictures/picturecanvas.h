// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractScrollArea>
#include <QImage>

/// One picture as large as there is room, or each of its pixels as one of the screen, to be pushed around
/// with the mouse or the arrow keys. Until it is there, and where it never will be, words stand in its place.
class PictureCanvas final : public QAbstractScrollArea
{
    Q_OBJECT
public:
    enum class Zoom { Whole, OneToOne };

    explicit PictureCanvas(QWidget *parent = nullptr);

    /// A null image shows the words alone.
    void setPicture(const QImage &image, const QString &words = {});
    void setZoom(Zoom zoom);
    Zoom zoom() const { return m_zoom; }
    /// The longer side in pixels of the screen that the whole picture can have here.
    int side() const;

signals:
    /// The picture before or behind this one is wanted.
    void stepRequested(int step);
    /// The first or the last one is wanted.
    void endRequested(bool isLast);
    /// The other zoom is wanted.
    void zoomRequested();
    /// There is room for another size.
    void resized();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void fitBars();
    QSize logicalSize() const;
    bool scrollBy(int dx, int dy);

    QImage m_image;
    QString m_words;
    Zoom m_zoom = Zoom::Whole;
    QPoint m_pushed; ///< where the mouse took hold of it
};
