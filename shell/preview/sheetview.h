// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractScrollArea>
#include <QColor>
#include <QImage>
#include <QTimer>

class PagePainter;

/// One sheet of a page on its desk, fitted whole or enlarged to the desk's width and scrolled. It asks for
/// other sheets; it does not choose them.
class SheetView final : public QAbstractScrollArea
{
    Q_OBJECT
public:
    enum class Zoom { Whole, Enlarged };
    enum class Edge { Top, Bottom };

    explicit SheetView(QWidget *parent = nullptr);

    /// Shows sheet `index` of `painter`, which must live until the next call; null empties the desk. An
    /// enlarged sheet starts at `edge`.
    void setSheet(const PagePainter *painter, int index, Edge edge = Edge::Top);

    void setZoom(Zoom zoom);
    Zoom zoom() const { return m_zoom; }

    void setDeskColor(const QColor &color); ///< invalid: as designed
    QColor deskColor() const;

    /// Where the sheet stands, in the viewport's logical pixels.
    QRectF sheetRect() const;

    QSize sizeHint() const override;

    /// Steps and scrolls as keys on the view itself do. False: not a key of the preview.
    bool handleKey(int key);

signals:
    /// Another sheet is wanted, `step` sheets on; an enlarged one is to start at `edge`.
    void stepRequested(int step, SheetView::Edge edge);
    void firstRequested();
    void lastRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QSizeF sheetSize() const;
    void updateScrollBars();
    const QImage &picture(QSize pixels);
    bool scrollPage(int direction);

    const PagePainter *m_painter = nullptr;
    int m_index = 0;
    Zoom m_zoom = Zoom::Whole;
    QColor m_deskColor;
    QImage m_picture;
    QTimer m_settling; ///< runs while the view is being resized: the sheet is drawn anew only when that has
                       ///< ended
    int m_wheel = 0;
};
