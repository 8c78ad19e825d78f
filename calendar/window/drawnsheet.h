// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "calendar/window/calendarsheet.h"
#include "calendar/window/daysofsheet.h"

#include <QPixmap>
#include <QTableView>

#include <memory>

/// A sheet of a calendar on its desk, fitted whole or as wide as the view: a table whose cells stand where
/// the sheet has its days.
class DrawnSheet : public QTableView
{
    Q_OBJECT
public:
    explicit DrawnSheet(QWidget *parent = nullptr);

    enum class Zoom {
        Readable, ///< the whole sheet where it can be read then, else larger
        WholeSheet,
        SheetWidth
    };
    void setZoom(Zoom zoom);
    /// Whether the whole sheet is shown.
    bool isWhole() const;

    QRect visualRect(const QModelIndex &index) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    QModelIndex indexAt(const QPoint &point) const override;
    QSize sizeHint() const override { return {760, 540}; }
    QSize minimumSizeHint() const override { return {320, 160}; }

protected:
    /// Returns whether its days are others than before.
    bool setSheet(std::shared_ptr<const CalendarSheet> sheet, DaysOfSheet::Words words);
    bool hasSheet() const { return bool(m_sheet); }
    const SheetPlan &plan() const { return m_days->plan(); }
    const DaysOfSheet &days() const { return *m_days; }
    QPointF onSheet(QPoint point) const;
    QRect onScreen(const QRectF &place) const;
    /// Scrolls as little as brings a part of the sheet into sight.
    void bring(const QRectF &place);

    /// What stands over the sheet is to be placed anew.
    virtual void placeOver() = 0;
    virtual void paintMarks(QPainter &painter) const = 0;
    /// Marks are laid on the paper, which stays white in the dark.
    static void layOver(QPainter &painter, const QRect &place, const QColor &color);
    static void drawRim(QPainter &painter, const QRect &place, double width);

    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void setSelection(const QRect &rect, QItemSelectionModel::SelectionFlags flags) override;
    QRegion visualRegionForSelection(const QItemSelection &selection) const override;

private:
    double scale() const;
    QRectF seen() const;
    QPoint origin() const; ///< of the sheet in the viewport
    const QPixmap &picture();

    std::shared_ptr<const CalendarSheet> m_sheet;
    DaysOfSheet *m_days;
    Zoom m_zoom = Zoom::Readable;
    QPixmap m_picture;
    double m_pictureScale = 0;
};
