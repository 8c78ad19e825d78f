// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/calendarpapers.h"

#include "shell/core/page.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double tolerance = 0.02; // inches: sizes are rounded to points and millimetres

struct Paper {
    QLatin1String name;
    QSizeF size;
};

constexpr std::array<Paper, 6> papers{{
    {QLatin1String("A3"), QSizeF(PageMetrics::a4.height(), 2 * PageMetrics::a4.width())},
    {QLatin1String("A4"), PageMetrics::a4},
    {QLatin1String("A5"), PageMetrics::a5},
    {QLatin1String("Letter"), PageMetrics::letter},
    {QLatin1String("Legal"), QSizeF(8.5, 14)},
    {QLatin1String("Tabloid"), QSizeF(11, 17)},
}};

} // namespace

QStringList CalendarPapers::names()
{
    QStringList names;
    for (const Paper &paper : papers)
        names << paper.name;
    return names;
}

QSizeF CalendarPapers::sizeOf(const QString &name)
{
    const auto found = std::ranges::find_if(
        papers, [&name](const Paper &paper) { return name.compare(paper.name, Qt::CaseInsensitive) == 0; });
    return found == papers.end() ? PageMetrics::a4 : found->size;
}

QString CalendarPapers::nameOf(QSizeF inches)
{
    const auto found = std::ranges::find_if(papers, [inches](const Paper &paper) {
        return std::abs(paper.size.width() - inches.width()) < tolerance &&
               std::abs(paper.size.height() - inches.height()) < tolerance;
    });
    return found == papers.end() ? QString() : QString(found->name);
}
