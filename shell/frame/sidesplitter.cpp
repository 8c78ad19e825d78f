// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/sidesplitter.h"

#include "shell/controls/workscroll.h"

#include <QSettings>

#include <algorithm>
#include <utility>

namespace {

constexpr int gap = 16; // between panels

} // namespace

SideSplitter::SideSplitter(const QString &name, QWidget *side, QWidget *work, SuitableWidth suitableWidth)
    : QSplitter(Qt::Horizontal)
    , m_suitableWidth(std::move(suitableWidth))
{
    setObjectName(name);
    addWidget(side);
    addWidget(new WorkScroll(work));
    setStretchFactor(1, 1);
    setHandleWidth(gap);
    setChildrenCollapsible(false);
    connect(this, &QSplitter::splitterMoved, this, [this] { m_isPlaced = true; });
}

void SideSplitter::suit()
{
    // What suits may also set the pane's least width, which holds wherever the handle stands.
    const int width = m_suitableWidth(window()->size());
    if (!m_isPlaced)
        setSizes({width, std::max(1, this->width() - width - handleWidth())});
}

void SideSplitter::forgetPlace()
{
    m_isPlaced = false;
    suit();
}

void SideSplitter::restore(const QSettings &store, const QString &key)
{
    m_isPlaced = restoreState(store.value(key).toByteArray());
    suit();
}

void SideSplitter::save(QSettings &store, const QString &key) const
{
    if (m_isPlaced)
        store.setValue(key, saveState());
    else
        store.remove(key);
}

void SideSplitter::resizeEvent(QResizeEvent *event)
{
    QSplitter::resizeEvent(event);
    suit();
}
