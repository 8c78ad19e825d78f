// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/mainmenu/todaynotes.h"
#include "shell/program/functions.h"

#include <QWidget>

#include <functional>

class QLabel;
class TodayList;
class TodayModel;

/// Today and the next seven days over all functions, on a card below those of the functions; not seen before
/// the notes are read, nor while it has nothing to show and not everything may be told.
class TodayPanel final : public QWidget
{
    Q_OBJECT
public:
    explicit TodayPanel(QWidget *parent = nullptr);

    void show(const TodayNotes &notes, DateStyle style);
    bool hasSomething() const { return m_hasSomething; }

    /// The height that it takes, margins included, when it is `width` wide and `room` high at most; it may be
    /// higher where the room is too small for anything.
    int heightFor(int width, int room) const;

signals:
    void opened(Function function, const Place &place);
    /// An arrow key leads up and out of the panel.
    void leftUpward();
    /// It has more or less to show than before.
    void sizeChanged();
    void focused();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void openLine(int row);
    void keepLine(const std::function<void()> &change);
    int columnsFor(int width) const;
    void place();

    TodayModel *m_model;
    TodayList *m_list;
    QLabel *m_nothing;
    bool m_hasSomething = false;
};
