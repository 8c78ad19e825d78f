// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/window/albumwork.h"

#include "shell/look/theme.h"

#include <QResizeEvent>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int enoughWidth = 760; ///< for both side by side
constexpr int lowHeight = 560;   ///< too little for one below the other, if there is any width
constexpr int leastWidth = 540;
constexpr int detailsWidth = 288;
constexpr double detailsShare = 0.34; ///< of the height, below
} // namespace

AlbumWork::AlbumWork(QWidget *pictures, QWidget *details, QWidget *parent)
    : QSplitter(Qt::Horizontal, parent)
    , m_details(details)
{
    setObjectName(u"albumWork"_s);
    addWidget(pictures);
    addWidget(details);
    setStretchFactor(0, 1);
    setStretchFactor(1, 0);
    setChildrenCollapsible(false);
    connect(this, &QSplitter::splitterMoved, this, [this] { m_isPlaced = true; });
}

void AlbumWork::resizeEvent(QResizeEvent *event)
{
    const int enough = height() < TypeScale::wide(lowHeight) ? leastWidth : enoughWidth;
    const Qt::Orientation wanted = width() < TypeScale::wide(enough) ? Qt::Vertical : Qt::Horizontal;
    const bool isTurned = wanted != orientation();
    if (isTurned) {
        setOrientation(wanted);
        m_isPlaced = false;
    }
    const bool isBeside = wanted == Qt::Horizontal;
    m_details->setContentsMargins(isBeside ? 4 : 20, isBeside ? 18 : 4, 4, isBeside ? 18 : 12);
    QSplitter::resizeEvent(event);
    if (!m_isPlaced)
        share();
}

void AlbumWork::share()
{
    const bool isBeside = orientation() == Qt::Horizontal;
    const int whole = isBeside ? width() : height();
    const int details = isBeside ? TypeScale::wide(detailsWidth) : qRound(whole * detailsShare);
    setSizes({whole - details, details});
}
