// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>

#include <vector>

class QAction;
class QWidget;
class WorkViews;

/// Marks, in menu and toolbar, the view that is in front.
class ViewMarks final : public QObject
{
    Q_OBJECT
public:
    explicit ViewMarks(WorkViews *views);

    /// `actions` lead to `view`, and bear the mark while it is in front.
    void add(const QWidget *view, const QList<QAction *> &actions);

private:
    struct Marked {
        const QWidget *view;
        QList<QAction *> actions;
    };

    void refresh() const;

    WorkViews *m_views;
    std::vector<Marked> m_marked;
};
