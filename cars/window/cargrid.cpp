// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/cargrid.h"

#include "cars/window/carheadings.h"
#include "shell/controls/celldelegate.h"
#include "shell/controls/datebox.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <algorithm>
#include <numeric>

CarGrid::CarGrid(const Program &program, const QString &name, DatePicker *picker, QWidget *parent)
    : CellGrid(parent)
{
    setObjectName(name);
    if (picker)
        cells().takeDates({program.state.dateStyle, program.clock}, picker);
    setHorizontalHeader(new CarHeadings(this));
    setPlainRows();
}

void CarGrid::setWidths(std::vector<Width> widths)
{
    m_widths = std::move(widths);
    fitColumns(viewport()->width());
}

void CarGrid::fitColumns(int room)
{
    const int count = int(m_widths.size());
    if (!model() || model()->columnCount() != count || count == 0)
        return;
    const QFontMetrics body(TypeScale::body());
    std::vector<int> widths;
    for (const Width &width : m_widths)
        widths.push_back(body.horizontalAdvance(width.longest) + 2 * inset + 2);
    int least = std::accumulate(widths.begin(), widths.end(), 0);
    for (int column = 0; column < count && least > room; ++column) {
        if (!m_widths[std::size_t(column)].grows)
            continue; // words are still known where they are cut, numbers and dates are not
        const int cut = std::min(least - room, widths[std::size_t(column)] * 2 / 5);
        widths[std::size_t(column)] -= cut;
        least -= cut;
    }
    const auto growing = int(std::ranges::count_if(m_widths, &Width::grows));
    int left = room - least;
    for (int column = 0, to = growing == 0 ? count : growing; column < count; ++column) {
        int &width = widths[std::size_t(column)];
        if (left < 0) {
            width = width * room / least; // narrower than its texts: they are cut, and show themselves
        } else if (growing == 0 || m_widths[std::size_t(column)].grows) {
            const int share = left / to--;
            width += share;
            left -= share;
        }
        setColumnWidth(column, width);
    }
}

void CarGrid::resizeEvent(QResizeEvent *event)
{
    CellGrid::resizeEvent(event);
    if (!isEntry())
        fitColumns(viewport()->width());
    emit roomChanged(viewport()->width());
}
