// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/scrollpart.h"

#include <QEvent>

ScrollPart::ScrollPart(QWidget *content, QWidget *parent)
    : QScrollArea(parent)
    , m_content(content)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    content->setParent(viewport());
    viewport()->setAutoFillBackground(false);
}

bool ScrollPart::event(QEvent *event)
{
    if (event->type() == QEvent::Polish && !widget()) {
        setWidget(m_content);
        m_content->setAutoFillBackground(false);
    }
    return QScrollArea::event(event);
}

QSize ScrollPart::sizeHint() const
{
    ensurePolished();
    return QScrollArea::sizeHint();
}

QSize ScrollPart::minimumSizeHint() const
{
    ensurePolished();
    return QScrollArea::minimumSizeHint();
}
