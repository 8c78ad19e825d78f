// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QList>
#include <QPen>

class QWidget;

/// What charts are drawn with: on the screen the colours of the panel that they stand on, on paper black and
/// what prints well.
struct ChartStyle {
    QColor ground, text, quiet, line;
    QColor series;       ///< bars
    QList<QColor> lines; ///< one after the other; on paper dashes tell them apart
    bool isOnPaper = false;
    QFont title, body, label;
    int rowHeight = 0; ///< of a bar with its name
    int inset = 0;     ///< between the left edge and what is written

    QColor lineColor(qsizetype index) const { return lines.isEmpty() ? series : lines[index % lines.size()]; }
    QPen linePen(qsizetype index) const;

    static ChartStyle onScreen(const QWidget *widget);
    /// The colour behind `widget`, which in a part that scrolls is not that of its own palette.
    static QColor groundOf(const QWidget *widget);
    /// For a picture of 96 points to the inch, drawn larger.
    static ChartStyle onPaper(int inset = 0);
};
