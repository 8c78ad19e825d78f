// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/historyview.h"

#include "cars/model/historylines.h"
#include "cars/window/opencar.h"
#include "shell/controls/figurestrip.h"
#include "shell/controls/titleline.h"
#include "shell/program/program.h"

using namespace Qt::Literals::StringLiterals;

HistoryView::HistoryView(const QString &name, const CarDesk &desk, CarPart part, const LogPane::Names &names)
    : LogView(name, desk, part,
              new LogPane(desk, part, names,
                          {{u"Kilometers"_s},
                           {u"12/30/2026 "_s},
                           {u"Inspect Brake Linings"_s, CarColumns::Room::Words},
                           {u"99999.99"_s}}),
              u"&Add Entry"_s)
    , m_figures(new FigureStrip(name + u"Figures"_s, this))
{
    addParts({m_figures});
}

void HistoryView::showFigures()
{
    const DateStyle style = desk().program.state.dateStyle;
    const QDate today = desk().program.clock.today();
    const HistorySums sums = HistorySums::of(car().record(), part(), style, today);
    titleLine().setTitle(HistoryLines::newest(sums, part(), style));
    if (sums.count == 0)
        return m_figures->setFigures({});
    m_figures->setFigures(
        {{u"Entries"_s, QString::number(sums.count)},
         {u"In all"_s, HistoryLines::money(double(sums.cents))},
         {u"In "_s + QString::number(today.year()), HistoryLines::moneyOrNone(sums.thisYear)},
         {u"In "_s + QString::number(today.year() - 1), HistoryLines::moneyOrNone(sums.lastYear)}});
}
