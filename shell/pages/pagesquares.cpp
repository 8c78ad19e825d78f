// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pages/pagesquares.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

void drawPageSquares(QPainter &painter, const QRectF &place, const QStringList &rows)
{
    qsizetype count = rows.size();
    for (const QString &row : rows)
        count = std::max(count, row.size());
    if (count == 0)
        return;
    const double side = std::min(place.width(), place.height()) / double(count);
    // One path, and neighbours of a row in one piece, so that no hairline of white comes between them.
    QPainterPath path;
    for (qsizetype y = 0; y < rows.size(); ++y) {
        const QString &row = rows[y];
        for (qsizetype x = row.indexOf(u'#'); x >= 0; x = row.indexOf(u'#', x)) {
            qsizetype end = x;
            while (end < row.size() && row[end] == u'#')
                ++end;
            path.addRect(place.left() + double(x) * side, place.top() + double(y) * side,
                         double(end - x) * side, side);
            x = end;
        }
    }
    path.setFillRule(Qt::WindingFill);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.fillPath(path, Qt::black);
    painter.restore();
}
