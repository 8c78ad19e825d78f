// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pages/gridtypes.h"

#include <QRectF>
#include <QStringList>

#include <vector>

class QPainter;

/// A list of what found no room in its cell, with its day, in columns: at the foot of the sheet, or on one of
/// its own.
class GridRest
{
public:
    struct Entry {
        QDate date{};
        QString name{}; ///< of its day: "Sat 14"
        QString text{};
        int index = -1; ///< of its line
        int tone = 0;   ///< of a square before it; 0: none
        QRectF rect{};
        QStringList words{};
        double lead = 0;           ///< from the left edge to its text
        bool hasName = true;       ///< before it
        bool isBesideLast = false; ///< on the same level as the one before it, of the same day
    };

    /// How they stand.
    enum class Form {
        Columns,
        Running ///< side by side, which takes the least room
    };

    /// Without any.
    GridRest() = default;
    /// `most` is how much of the sheet's height may be taken, in points.
    GridRest(const GridTypes &types, const QString &title, std::vector<Entry> entries, double width,
             double most, Form form = Form::Columns);

    const std::vector<Entry> &entries() const { return m_entries; }
    /// How many of them the list has no room for.
    int leftOut() const { return int(m_entries.size() - m_placed); }
    /// Gives those away.
    std::vector<Entry> takeLeftOut();
    /// Of title and list.
    double height() const { return m_height; }

    /// Puts the list where it belongs; until then it stands at the sheet's corner.
    void moveTo(QPointF corner);
    void paint(QPainter &painter, const GridTypes &types) const;

private:
    void layOut(const PageType &type, double least, double room);
    double leadOf(const GridTypes &types) const;
    void wrapEntries(const PageType &type, double room);
    bool fill(double columnHeight);
    bool run(const GridTypes &types, double room);
    bool placeRunning(const GridTypes &types, Entry &entry, bool isNewDay, QPointF &next,
                      double bottom) const;

    QString m_title;
    std::vector<Entry> m_entries;
    std::vector<double> m_heights;
    double m_width = 0;
    double m_column = 0;
    int m_across = 1;
    double m_height = 0;
    std::size_t m_placed = 0;
    QPointF m_corner;
};
