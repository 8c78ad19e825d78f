// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/sidetoolbar.h"

#include "shell/controls/controls.h"
#include "shell/controls/flowtoolbar.h"

#include <QScrollBar>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int usualWidth = 102;
constexpr int iconSide = 24;

} // namespace

SideToolbar::SideToolbar(const QString &name, Side side, QWidget *parent)
    : QScrollArea(parent)
    , m_bar(named(new FlowToolBar(Qt::Vertical, this), name))
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    // One pixel at the inner side is the line against the picture.
    setViewportMargins(side == Right ? 1 : 0, 0, side == Left ? 1 : 0, 0);
    m_bar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_bar->setIconSize(iconSide);
    // Words as wide as the bar: the buttons' usual room at both sides is left out.
    m_bar->setStyleSheet(u"QToolButton { padding: 0; }"_s);
    setWidget(m_bar);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, &QWidget::updateGeometry);
}

QSize SideToolbar::sizeHint() const
{
    const int scroll = verticalScrollBar()->maximum() > 0 ? verticalScrollBar()->sizeHint().width() : 0;
    return {std::max(usualWidth, m_bar->sizeHint().width() + 1) + scroll, m_bar->sizeHint().height()};
}

QSize SideToolbar::minimumSizeHint() const
{
    return {sizeHint().width(), 1};
}
