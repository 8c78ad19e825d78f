// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/linechartview.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"
#include "weight/window/weighttracker.h"
#include "weight/window/windowlines.h"

#include <QComboBox>
#include <QListView>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

namespace {

enum Person { Karin, Nils, Zoe, Jose };

const QString whole = u"Weigh In Dates"_s;
const QString limited = u"Weigh In Dates (Graph Limited to Last 50 Entries)"_s;

} // namespace

/// The graph of a person and what stands beside it, on 21 November 2026.
class TestGraphView : public OpenWindow<WeightTracker>
{
    Q_OBJECT
private slots:
    void cleanup() { close(); }

    void showsTheLastFiftyOrAll_data()
    {
        rows<int, int, int, QString, QDate>({
            {"nobody weighed", Karin, 0, 0, whole, {}},
            {"49", Nils, 0, 49, whole, {2026, 1, 5}},
            {"50 count as limited", Zoe, 0, 50, limited, {2026, 1, 5}},
            {"51", Jose, 0, 50, limited, {2026, 1, 9}},
            {"51, the whole history", Jose, 1, 51, whole, {2026, 1, 5}},
        });
    }
    void showsTheLastFiftyOrAll()
    {
        const auto [person, choice, count, axis, first] = row<int, int, int, QString, QDate>();
        open(person);
        find<QComboBox>("graphShown")->setCurrentIndex(choice);
        QCOMPARE(chart().across.name, axis);
        QVERIFY(chart().title.endsWith(u" Weight Tracker Graph"_s));
        const QString description = find<LineChartView>("Chart2D1")->accessibleDescription();
        QVERIFY(description.startsWith(chart().title));
        QCOMPARE(chart().isEmpty(), count == 0);
        if (count == 0)
            return;
        QCOMPARE(chart().series.first().points.size(), count);
        QCOMPARE(LineChart::dateAt(chart().series.first().points.first().x), first);
        QCOMPARE(chart().levels.size(), 2);
        QVERIFY(description.contains(u"Across: "_s + axis));
    }

    void followsWhatIsSavedAndTakenBack()
    {
        open(Nils);
        trigger("mVWeigh");
        find<QWidget>("weighInWeight")->setFocus();
        typeInto(find<QWidget>("weighInWeight"), u"191.4"_s);
        QTest::keyClick(find<QWidget>("weighInWeight"), Qt::Key_Return);
        trigger("mVGraph");
        QCOMPARE(chart().series.first().points.size(), 50);
        QCOMPARE(chart().across.name, limited);
        trigger("mEUndo");
        QCOMPARE(chart().series.first().points.size(), 49);
        QCOMPARE(chart().across.name, whole);
        trigger("mERedo");
    }

    void tellsWhenTheGoalIsReached()
    {
        open(Nils);
        QVERIFY(!chart().forecast);
        QCOMPARE(chart().caption, u"No day for the goal: no weigh-in in the last four weeks"_s);
        close();
        open(Nils, QDate(2026, 8, 11));
        QVERIFY(chart().forecast->name.startsWith(u"Goal about "_s));
        QVERIFY(chart().forecast->from <= chart().forecast->at);
        QVERIFY(figures().last().startsWith(u"Goal expected: "_s));
    }

    void zoomsWithKeys()
    {
        open(Jose);
        auto *view = find<LineChartView>("Chart2D1");
        view->setFocus();
        QTest::keyClick(view, Qt::Key_Plus);
        QVERIFY(view->isZoomed());
        choose(Nils); // another person's graph is shown whole
        QVERIFY(!view->isZoomed());
    }

    void comparesPeriods()
    {
        open(Nils);
        auto *choice = find<QComboBox>("graphShown");
        choice->setCurrentIndex(choice->findText(u"Compare months"_s));
        auto *table = find<QTableView>("graphPeriods");
        QVERIFY(table->isVisible());
        QStringList cells;
        for (int column = 0; column < table->model()->columnCount(); ++column)
            cells << table->model()->index(0, column).data().toString();
        QCOMPARE(cells, (QStringList{u"August 2026"_s, u"192.7"_s, u"-2.5"_s, u"-0.8"_s, u"192.2"_s,
                                     u"193.1"_s, u"3"_s}));
        choose(Karin);
        QCOMPARE(table->model()->rowCount(), 0);
    }

    void showsThenAndNow()
    {
        open(Karin);
        trigger("mVPhotos");
        QVERIFY(!isOffered("thenAndNow"));
        QCOMPARE(find<QPushButton>("thenAndNow")->toolTip(), TrackerLines::noPhotoYet());
        choose(Jose);
        click("thenAndNow");
        QCOMPARE(labelText("ThenName"), u"Then, Jan 5, 2026: 180"_s);
        QCOMPARE(labelText("NowName"), u"Now"_s);
        QTest::keyClick(find<QWidget>("thenAndNowPanel"), Qt::Key_Escape);
        QVERIFY(find<QWidget>("photosView")->isVisible());
    }

private:
    void open(int person, QDate today = {2026, 11, 21})
    {
        m_test = std::make_unique<TestProgram>(TestProgram::Household);
        m_test->clock.time.setDate(today);
        m_window = new WeightTracker(m_test->program);
        showActive(*m_window);
        choose(person);
        trigger("mVGraph");
    }
    void choose(int person) const
    {
        auto *list = find<QListView>("Combo1");
        const QModelIndex index = list->model()->index(person, 0);
        list->scrollTo(index);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
    }
    const LineChart &chart() const { return find<LineChartView>("Chart2D1")->chart(); }
    /// "Goal expected: Sep 4, 2026".
    QStringList figures() const
    {
        QStringList found;
        for (const QLabel *label : find<QWidget>("graphFigures")->findChildren<QLabel *>()) {
            if (!label->accessibleName().isEmpty())
                found << label->accessibleName();
        }
        return found;
    }
};

QTEST_MAIN(TestGraphView)
#include "tst_graphview.moc"
