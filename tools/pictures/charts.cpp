// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/linechartview.h"
#include "shell/charts/paperchart.h"
#include "shell/controls/controls.h"
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"

#include <QLabel>
#include <QTest>
#include <QVBoxLayout>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize panelSize(760, 380);
constexpr QSizeF frame(7.3, 3.2); ///< on paper, in inches

LineChart::Point on(QDate day, double y)
{
    return {.x = LineChart::dayAt(day), .y = y};
}

/// Fill-ups every ten days or so, one of them partial, one forgotten.
LineChart consumption()
{
    LineChart chart;
    chart.title = u"How far a gallon goes"_s;
    chart.caption = u"Partial fill-ups are hollow and left out of the average"_s;
    chart.up = {u"Miles per gallon"_s, {}, u" mpg"_s, 1};
    LineChart::Series series{u"Volvo"_s, {}};
    for (int i = 0; i < 34; ++i)
        series.points << on(QDate(2025, 9, 4).addDays(i * 13 + i % 3),
                            31 + 3 * std::sin(i * 0.7) + i % 4 * 0.6);
    series.points[12].note = u"partial fill-up"_s;
    series.points[12].y = 24.5;
    series.points[20].startsAnew = true;
    chart.series << series;
    chart.levels << LineChart::Level{u"Average"_s, 32.2};
    return chart;
}

LineChart weights()
{
    LineChart chart;
    chart.title = u"Mary's way to 150 pounds"_s;
    chart.across = {u"Weigh In Dates"_s};
    chart.up = {u"Pounds"_s, {}, u" lbs"_s, 1};
    LineChart::Series mary{u"Mary"_s, {}};
    LineChart::Series tom{u"Tom, who began later than all the others"_s, {}};
    LineChart::Series anne{u"Anne"_s, {}};
    for (int i = 0; i < 60; ++i) {
        const QDate day = QDate(2020, 2, 3).addDays(i * 40);
        mary.points << on(day, 183 - i * 0.45 + 2 * std::sin(i));
        anne.points << on(day, 156 + 3 * std::cos(i * 0.4));
        if (i > 20)
            tom.points << on(day, 171 - (i - 20) * 0.3 + std::sin(i * 1.3));
    }
    chart.series << mary << tom << anne;
    chart.levels << LineChart::Level{u"Goal"_s, 150}
                 << LineChart::Level{u"Beginning"_s, 183, LineChart::Level::Beginning};
    return chart;
}

LineChart odometer()
{
    LineChart chart;
    chart.title = u"Where the odometer stands"_s;
    chart.up = {u"Miles"_s, {}, u" miles"_s};
    chart.series << LineChart::Series{
        {}, {on({2026, 10, 30}, 84210), on({2026, 11, 5}, 84420), on({2026, 11, 21}, 85102)}};
    return chart;
}

LineChart none()
{
    LineChart chart = consumption();
    chart.series.clear();
    chart.levels.clear();
    chart.nothing = u"There are no fill-ups yet."_s;
    return chart;
}

void takeOnPanel(PictureSession &session, const char *name, const LineChart &chart,
                 const std::function<void(LineChartView &)> &use = {})
{
    PanelFrame panel;
    panel.resize(panelSize);
    auto *rows = new QVBoxLayout(&panel);
    rows->setContentsMargins(16, 16, 16, 16);
    auto *view = new LineChartView(u"chart"_s, &panel);
    rows->addWidget(view);
    view->setChart(chart);
    panel.show();
    view->setPalette({}); // of the panel, after the style has taken the view
    if (use)
        use(*view);
    session.takeWidget(name, panel);
}

void takeOnPaper(PictureSession &session, const char *name, const LineChart &chart)
{
    QLabel sheet;
    sheet.setPixmap(QPixmap::fromImage(
        PaperChart::draw(chart, frame).scaledToWidth(int(frame.width() * 110), Qt::SmoothTransformation)));
    sheet.resize(sheet.sizeHint());
    session.takeWidget(name, sheet);
}

} // namespace

void Albums::charts(const Camera &camera)
{
    PictureSession session(camera);
    session.openMainMenu();
    takeOnPanel(session, "chart-lines", consumption(), [](LineChartView &view) {
        view.setCurrent({{0, 12}});
    });
    takeOnPanel(session, "chart-lines-three", weights());
    takeOnPanel(session, "chart-lines-part", weights(), [](LineChartView &view) {
        view.zoom(0.15, LineChart::dayAt({2023, 3, 1}));
    });
    takeOnPanel(session, "chart-lines-table", weights(), [](LineChartView &view) {
        QTest::mouseClick(view.findChild<QWidget *>(u"chartAsTable"_s), Qt::LeftButton);
    });
    takeOnPanel(session, "chart-lines-days", odometer());
    takeOnPanel(session, "chart-lines-none", none());
    if (session.desk().takesPages) {
        takeOnPaper(session, "chart-lines-paper", consumption());
        takeOnPaper(session, "chart-lines-paper-three", weights());
    }
}
