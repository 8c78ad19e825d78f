// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/narrowtoolbar.h"

#include "shell/controls/lowwindow.h"

#include <QAction>
#include <QResizeEvent>
#include <QWidget>

NarrowToolbar::NarrowToolbar(QWidget *window)
    : QObject(window)
{
    window->installEventFilter(this);
}

void NarrowToolbar::leaveOut(QAction *tool)
{
    m_leftOut.push_back(tool);
}

void NarrowToolbar::shorten(QAction *tool, const QString &word)
{
    m_words.push_back({tool, tool->iconText(), word});
}

bool NarrowToolbar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize)
        fit(static_cast<const QResizeEvent *>(event)->size());
    return QObject::eventFilter(watched, event);
}

void NarrowToolbar::fit(QSize window) const
{
    const bool isWide = window.width() >= wideFrom;
    for (QAction *tool : m_leftOut)
        tool->setVisible(isWide || window.height() < LowWindow::below); // "More" has it then
    for (const Word &word : m_words)
        word.tool->setIconText(isWide ? word.wide : word.narrow);
}
