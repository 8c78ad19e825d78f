// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTableView>

/// A grid of texts: alternate rows of one height, thin lines, the current cell marked and rimmed. A click on
/// a heading sorts, a third one brings the first order back.
class GridView final : public QTableView
{
    Q_OBJECT
public:
    /// Cells of which `linkRole` is true are drawn as links and followed by a click.
    GridView(int linkRole, QWidget *parent = nullptr);

    static int rowHeight();
    int linkRole() const { return m_linkRole; }

signals:
    void linkFollowed(const QModelIndex &index);
    /// Enter was pressed on a cell, or the cell clicked twice.
    void opened(const QModelIndex &index);
    /// The grid is on the screen for the first time.
    void firstPainted();
    /// The cells have more room now, or less.
    void resized();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    bool viewportEvent(QEvent *event) override;

private:
    bool isOnLink(QPoint place) const;

    int m_linkRole;
    QPersistentModelIndex m_pressedLink;
    bool m_wasPainted = false;
};
