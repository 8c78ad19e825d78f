// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/preview/pagestepper.h"

#include <functional>
#include <memory>

class PagePainter;

/// Sheets as they will be printed, one at a time on its desk, with the steps between them below it. Each is
/// laid out when it is shown, so that a hundred of them cost no more than one.
class SheetPane final : public QWidget
{
    Q_OBJECT
public:
    /// Lays out the sheet of this number, counted from 0, as the only one of a painter.
    using LayOut = std::function<PagePainter(int sheet)>;

    SheetPane(const QString &viewName, const PageStepper::Names &steps, QWidget *parent = nullptr);
    ~SheetPane() override;

    SheetView *view() const { return m_view; }

    /// Shows `count` sheets anew, and of them the one that was shown, as far as there are so many.
    void setSheets(int count, LayOut layOut);
    /// Of the sheets that are set next, the first will be shown.
    void startOver() { m_sheet = 0; }
    /// The nearest there is.
    void showSheet(int sheet);
    int sheet() const { return m_sheet; }

private:
    int m_sheet = 0;
    int m_count = 1;
    LayOut m_layOut;
    std::unique_ptr<PagePainter> m_painter;
    SheetView *m_view;
    PageStepper *m_steps;
};
