// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/barchart.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

QString BarChart::Bar::text() const
{
    const QString figures = share.isEmpty() ? amount : amount + u", "_s + share;
    return name + u": "_s + figures;
}

double BarChart::largest() const
{
    const auto bar = std::ranges::max_element(bars, {}, &Bar::value);
    return bar == bars.end() ? 0 : std::max(0.0, bar->value);
}

QString BarChart::axisText(double value) const
{
    const bool isWhole = std::abs(value - std::round(value)) < 1e-9;
    return unit + QLocale(QLocale::English, QLocale::UnitedStates).toString(value, 'f', isWhole ? 0 : 2);
}

QString BarChart::description() const
{
    if (bars.isEmpty())
        return title + u". No bars."_s;
    const auto [least, most] = std::ranges::minmax_element(bars, {}, &Bar::value);
    const QString count = bars.size() == 1 ? u"1 bar"_s : u"%1 bars"_s.arg(bars.size());
    QString text = title + u". Bar chart, "_s + count + u". Down: "_s + names + u", "_s + bars.first().name +
                   u" to "_s + bars.last().name + u". Across: "_s + values + u", "_s + axisText(0) +
                   u" to "_s + most->amount + u". Most: "_s + most->text() + u". Least: "_s + least->text() +
                   u'.';
    if (!caption.isEmpty())
        text += u' ' + caption + u'.';
    return text;
}
