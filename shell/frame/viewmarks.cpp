// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/viewmarks.h"

#include "shell/frame/workviews.h"

#include <QAction>

ViewMarks::ViewMarks(WorkViews *views)
    : QObject(views)
    , m_views(views)
{
    connect(views, &WorkViews::changed, this, &ViewMarks::refresh);
}

void ViewMarks::add(const QWidget *view, const QList<QAction *> &actions)
{
    m_marked.push_back({view, actions});
    for (QAction *action : actions) {
        action->setCheckable(true);
        // A click marks the action by itself, also where the way to the view was refused.
        connect(action, &QAction::triggered, this, &ViewMarks::refresh);
    }
    refresh();
}

void ViewMarks::refresh() const
{
    for (const Marked &marked : m_marked) {
        for (QAction *action : marked.actions)
            action->setChecked(m_views->isShown(marked.view));
    }
}
