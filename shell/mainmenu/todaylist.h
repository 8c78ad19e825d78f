// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListView>

class TodayDelegate;
class TodayModel;

/// The lines of today and the next days, in one or two columns that are walked with the arrow keys. Never
/// scrolls.
class TodayList final : public QListView
{
    Q_OBJECT
public:
    TodayList(TodayModel *model, QWidget *parent);

    static int rowHeight();
    /// Makes the columns as wide as the list allows.
    void setColumns(int columns);

signals:
    /// A line was clicked, or Enter pressed on it.
    void opened(int row);
    /// The day before a line was clicked.
    void dayOpened(QDate day);
    /// An arrow key leads up and out of the list.
    void leftUpward();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    bool isOnDay(const QModelIndex &index, const QPoint &place) const;
    void arrange();

    TodayModel *m_model;
    TodayDelegate *m_delegate;
    int m_columns = 1;
    QPersistentModelIndex m_pressed;
};
