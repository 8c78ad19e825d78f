// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pages/pagelayout.h"

class QPainter;

/// What stands at the head of a sheet.
class SheetHead
{
public:
    /// Of sheet `number`, from 1.
    SheetHead(const PageLayout &layout, int number);

    /// Draws it, where there is a painter, and gives the height at which the flow begins.
    double place(QPainter *painter) const;

private:
    double placeTitle(QPainter *painter) const;
    double placeChapter(QPainter *painter) const;
    double placeRunning(QPainter *painter) const;

    const PageLayout &m_layout;
    int m_number;
    QRectF m_body;
};
