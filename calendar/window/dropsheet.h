// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/window/drawnsheet.h"

/// A sheet onto whose days lines are dropped.
class DropSheet : public DrawnSheet
{
    Q_OBJECT
public:
    explicit DropSheet(QWidget *parent = nullptr);

signals:
    void lineDropped(QDate from, int line, QDate to, bool isCopied);

protected:
    /// Draws the line away, until it is dropped somewhere.
    void drag(QDate day, int line);

    void paintMarks(QPainter &painter) const override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void setDropCell(int cell);

    int m_dropCell = -1; ///< where a line would fall that is over the sheet now; -1 where none is
};
