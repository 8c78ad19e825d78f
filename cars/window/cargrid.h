// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/cellgrid.h"

#include <vector>

class DatePicker;
struct Program;

/// A grid of a car's texts: its schedule, a history, the fuel tracker. Its columns share the width that there
/// is.
class CarGrid final : public CellGrid
{
    Q_OBJECT
public:
    /// How the columns share the width: each has room for its longest usual text, and those that grow take
    /// what is left, all of them where none does.
    struct Width {
        QString longest;
        bool grows = false;
    };

    /// `picker` is null in a grid without dates.
    CarGrid(const Program &program, const QString &name, DatePicker *picker, QWidget *parent = nullptr);

    void setWidths(std::vector<Width> widths);
    /// The columns share `room`, where that is not the grid's own.
    void fitColumns(int room);

signals:
    /// The cells have more room now, or less.
    void roomChanged(int width);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    std::vector<Width> m_widths;
};
