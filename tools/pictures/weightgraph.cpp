// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/pictures/albums.h"
#include "tools/pictures/picturesession.h"
#include "weight/model/personfiles.h"
#include "weight/window/graphview.h"

#include <QTest>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Weigh-ins every three days or so up to a week ago, with the ups and downs that scales show.
WeightSheet weighed(WeightSheet sheet, int count)
{
    sheet.weighIns = {};
    for (int i = 0; i < count; ++i) {
        const int before = count - 1 - i;
        const QDate day = QDate(2026, 11, 14).addDays(-3 * before - before % 2);
        const double weight = 182 + before * 22.0 / std::max(60, count) + std::sin(i * 1.7) + i % 3 * 0.3;
        sheet.weighIns.append({day.toString(u"MM/dd/yyyy"), QString::number(weight, 'f', 1)});
    }
    sheet.field(WeightSheet::BeginningWeight) =
        count > 0 ? sheet.weighIns.weight(0) : sheet.field(WeightSheet::BeginningWeight);
    sheet.field(WeightSheet::GoalWeight) = u"175."_s;
    return sheet;
}

void show(PictureSession &session, GraphView::Shown shown)
{
    session.find<GraphView>("graphView").setShown(shown);
}

} // namespace

void Albums::weightGraph(const Camera &camera)
{
    {
        PictureSession session(camera);
        session.open(Function::WeightTracker);
        session.clickRow("Combo1", 1);
        session.trigger("mVGraph");
        session.take("weight-graph");
        show(session, GraphView::Months);
        session.take("weight-graph-months");
        session.clickRow("Combo1", 2);
        show(session, GraphView::Last50);
        session.take("weight-graph-gain");
    }
    for (const int count : {0, 1, 49, 50, 400}) {
        PictureSession session(camera);
        PersonFiles files(session.program().folder);
        const QString karin = u"Karin Holm"_s;
        if (!files.save(karin, weighed(files.read(karin).sheet, count)))
            qFatal("a person cannot be written");
        session.open(Function::WeightTracker);
        const QByteArray name = "weight-graph-" + QByteArray::number(count);
        session.trigger("mVGraph");
        session.take(name.constData());
        if (count != 400)
            continue;
        show(session, GraphView::Everything);
        session.take("weight-graph-history");
        session.focus("Chart2D1");
        for (int i = 0; i < 6; ++i)
            session.key(Qt::Key_Plus);
        session.take("weight-graph-part");
        show(session, GraphView::Years);
        session.take("weight-graph-years");
        show(session, GraphView::FourWeeks);
        session.take("weight-graph-four-weeks");
    }
}
