// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/scrollpart.h"

#include "shell/controls/lowwindow.h"
#include "shell/controls/workscroll.h"

#include <QEvent>
#include <QResizeEvent>

#include <algorithm>

ScrollPart::ScrollPart(QWidget *content, QWidget *parent)
    : QScrollArea(parent)
    , m_content(content)
    , m_low(new LowWindow(this))
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    content->setParent(viewport());
    viewport()->setAutoFillBackground(false);
    connect(m_low, &LowWindow::changed, this, &QWidget::updateGeometry);
}

void ScrollPart::scrollByItself()
{
    m_isByItself = true;
    updateGeometry();
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
    const QSize least = QScrollArea::minimumSizeHint();
    return isWhole() ? QSize(least.width(), contentHeight()) : least;
}

/// What the content takes at this width.
int ScrollPart::contentHeight() const
{
    const QWidget &content = *widget();
    const int least = std::max(content.minimumHeight(), content.minimumSizeHint().height());
    return content.hasHeightForWidth() ? std::max(least, content.heightForWidth(viewport()->width())) : least;
}

bool ScrollPart::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest && isWhole())
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

void ScrollPart::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    if (isWhole() && event->size().width() != event->oldSize().width())
        updateGeometry();
}

bool ScrollPart::isWhole() const
{
    return !m_isByItself && m_low->isLow() && WorkScroll::around(this);
}
