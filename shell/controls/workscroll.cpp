// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/workscroll.h"

#include "shell/controls/lowwindow.h"

#include <QApplication>
#include <QEvent>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastHeight = 100;
constexpr int roomAroundFocus = 32; // the label above a box

} // namespace

WorkScroll::WorkScroll(QWidget *work, QWidget *parent)
    : QScrollArea(parent)
    , m_content(new QWidget(viewport()))
    , m_low(new LowWindow(this))
    , m_settled(new QTimer(this))
{
    setObjectName(u"workScroll"_s);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto *layout = new QVBoxLayout(m_content);
    layout->setContentsMargins({});
    layout->addWidget(work);
    setFocusProxy(work->focusProxy());
    viewport()->setAutoFillBackground(false);
    connect(m_low, &LowWindow::changed, this, &WorkScroll::fit);
    m_settled->setSingleShot(true);
    m_settled->setInterval(0);
    connect(m_settled, &QTimer::timeout, this, &WorkScroll::settle);
    // Now, and once more when what changes along with the focus has its place.
    connect(qApp, &QApplication::focusChanged, this, [this] {
        if (m_hasSettled)
            m_startsAtTop = false;
        follow();
    });
    connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, [this] { m_startsAtTop = false; });
    connect(qApp, &QApplication::focusChanged, m_settled, qOverload<>(&QTimer::start));
}

/// The focus goes on once more when the work is deleted, and there is nothing left here to follow it.
WorkScroll::~WorkScroll()
{
    disconnect(qApp, nullptr, this, nullptr);
}

WorkScroll *WorkScroll::around(const QWidget *part)
{
    QWidget *parent = part->parentWidget();
    while (parent && !qobject_cast<WorkScroll *>(parent))
        parent = parent->parentWidget();
    return static_cast<WorkScroll *>(parent);
}

bool WorkScroll::event(QEvent *event)
{
    if (event->type() == QEvent::Polish && !widget()) {
        setWidget(m_content);
        m_content->setAutoFillBackground(false);
    }
    return QScrollArea::event(event);
}

QSize WorkScroll::sizeHint() const
{
    ensurePolished();
    return widget()->sizeHint();
}

QSize WorkScroll::minimumSizeHint() const
{
    ensurePolished();
    const QSize least = widget()->minimumSizeHint();
    return {least.width(), std::min(least.height(), leastHeight)};
}

bool WorkScroll::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest) {
        updateGeometry();
        fit();
    }
    return QScrollArea::eventFilter(watched, event);
}

void WorkScroll::resizeEvent(QResizeEvent *event)
{
    fit();
    QScrollArea::resizeEvent(event);
}

void WorkScroll::fit()
{
    if (!widget())
        return;
    const QSize whole = maximumViewportSize();
    const int least = m_low->isLow() ? widget()->layout()->totalMinimumSize().height() : 0;
    const int bar = least > whole.height() ? verticalScrollBar()->sizeHint().width() : 0;
    const QSize size(whole.width() - bar, std::max(whole.height(), least));
    if (size == widget()->size())
        return;
    widget()->resize(size);
    m_settled->start();
}

void WorkScroll::startAtTop()
{
    verticalScrollBar()->setValue(0);
    m_startsAtTop = true;
    m_hasSettled = false;
    m_settled->start();
}

void WorkScroll::settle()
{
    m_hasSettled = true;
    if (m_startsAtTop)
        verticalScrollBar()->setValue(0);
    follow();
}

/// What is clicked is in sight, and stays where the mouse is.
void WorkScroll::follow()
{
    QWidget *focused = QApplication::focusWidget();
    if (focused && m_content->isAncestorOf(focused) && QGuiApplication::mouseButtons() == Qt::NoButton)
        ensureWidgetVisible(focused, 0, roomAroundFocus);
}
