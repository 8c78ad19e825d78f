// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pictures/picturequeue.h"

#include <QListView>

class PictureTiles;
class QTimer;

/// Thousands of pictures in rows as wide as the view. What is seen is read first; a picture stands in its
/// place from the first moment, rough or empty, and never moves. Arrow keys go on in the next row at the end
/// of one, Space marks what the next command is for, and letters jump by name.
class PictureGrid : public QListView
{
    Q_OBJECT
public:
    static constexpr int leastSide = 96;
    static constexpr int greatestSide = 320;
    static constexpr int usualSide = 176;

    /// The queue must be told of no other view than this one.
    explicit PictureGrid(PictureQueue &queue, QWidget *parent = nullptr);

    void setTiles(PictureTiles *tiles);
    const PictureTiles &tiles() const { return *m_tiles; }

    /// The longer side of the pictures, in logical pixels.
    void setSide(int side);
    int side() const { return m_side; }
    int columns() const;

    /// What is known of the picture in this row.
    PictureQueue::Kept kept(int row) const;
    /// The rows that are marked, in their order.
    QList<int> chosenRows() const;
    /// Marks these rows and goes to the first of them.
    void choose(const QList<int> &rows);
    /// Space has marked something, and arrow keys leave that so. Esc ends it, as does whatever chooses anew.
    bool isMarking() const { return m_isMarking; }

    void keyboardSearch(const QString &letters) override;

signals:
    /// Another side was chosen with the mouse.
    void sideChanged(int side);
    /// One is to be seen large.
    void opened(int row);
    /// A digit from 0 to 9 was typed.
    void digitTyped(int digit);
    /// Other rows are marked, or another one is the current one.
    void choiceChanged();
    /// Space has begun to mark, or what is marked is no longer kept.
    void markingChanged();

protected:
    bool event(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;

private:
    void startOver();
    void fitTiles();
    void readSeen();
    void mark();
    void setMarking(bool isMarking);
    void endMarking();
    int rowsInSight() const;

    PictureQueue &m_queue;
    PictureTiles *m_tiles = nullptr;
    QTimer *m_seen; ///< other rows are in sight
    int m_side = usualSide;
    bool m_isMarking = false;
};
