// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/charts/barchartview.h"
#include "shell/charts/paperchart.h"
#include "shell/look/theme.h"
#include "tests/support/testprogram.h"

#include <QHelpEvent>
#include <QLabel>
#include <QScrollBar>
#include <QTest>
#include <QToolTip>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Each bar shorter than the one above it.
BarChart chartOf(int count)
{
    BarChart chart{u"Where it goes"_s, u"Percentage of all"_s, u"Item"_s, u"Total"_s, u"$"_s, {}};
    for (int bar = 0; bar < count; ++bar)
        chart.bars.append({u"Item %1"_s.arg(bar + 1), 1000.0 * (count - bar), u"$%1,000"_s.arg(count - bar),
                           u"%1.00%"_s.arg(count - bar)});
    return chart;
}

/// How many points of a picture have about this colour.
int count(const QImage &picture, const QRect &place, const QColor &color)
{
    int found = 0;
    for (int y = place.top(); y <= place.bottom(); ++y) {
        for (int x = place.left(); x <= place.right(); ++x) {
            const QColor at = picture.pixelColor(x, y);
            found += std::abs(at.red() - color.red()) + std::abs(at.green() - color.green()) +
                                 std::abs(at.blue() - color.blue()) <
                             12
                         ? 1
                         : 0;
        }
    }
    return found;
}

} // namespace

/// Bars on the screen, named by mouse and keys, and on paper.
class TestBarChart final : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_view = std::make_unique<BarChartView>(u"chart"_s);
        m_view->resize(600, 400);
        m_view->setChart(chartOf(50));
        showActive(*m_view);
        m_view->setFocus();
    }

    void tellsWhatItShows()
    {
        m_view->setChart(chartOf(3));
        QCOMPARE(m_view->accessibleName(), u"Where it goes"_s);
        QCOMPARE(
            m_view->accessibleDescription(),
            u"Where it goes. Bar chart, 3 bars. Down: Item, Item 1 to Item 3. Across: Total, $0 to $3,000. "
            "Most: Item 1: $3,000, 3.00%. Least: Item 3: $1,000, 1.00%. Percentage of all."_s);
        m_view->setChart({});
        QCOMPARE(m_view->current(), -1);
    }

    void keysNameTheBars()
    {
        QCOMPARE(reading(), u"Item 1: $50,000, 50.00%"_s);
        const struct {
            Qt::Key key;
            int bar;
        } steps[]{{Qt::Key_Down, 1},  {Qt::Key_Down, 2}, {Qt::Key_Up, 1}, {Qt::Key_End, 49},
                  {Qt::Key_Down, 49}, {Qt::Key_Home, 0}, {Qt::Key_Up, 0}};
        for (const auto &step : steps) {
            QTest::keyClick(m_view.get(), step.key);
            QCOMPARE(m_view->current(), step.bar);
            QVERIFY(m_view->barRect(step.bar).isValid()); // in view
        }
        QTest::keyClick(m_view.get(), Qt::Key_PageDown);
        QVERIFY(m_view->current() > 3);
    }

    void aChangeLeavesTheBarThatIsNamed()
    {
        QTest::keyClick(m_view.get(), Qt::Key_Down);
        BarChart chart = chartOf(50);
        chart.bars[1].share = u"7.50%"_s;
        m_view->setChart(chart);
        QCOMPARE(reading(), u"Item 2: $49,000, 7.50%"_s);
        m_view->setChart(chartOf(1));
        QCOMPARE(reading(), QString());
    }

    void theMouseNamesTheBars()
    {
        QTest::mouseMove(m_view.get(), m_view->barRect(2).center());
        QCOMPARE(reading(), u"Item 3: $48,000, 48.00%"_s);
        const QPoint place = m_view->barRect(3).center();
        QHelpEvent help(QEvent::ToolTip, place, m_view->mapToGlobal(place));
        QCoreApplication::sendEvent(m_view.get(), &help);
        QCOMPARE(QToolTip::text(), u"Item 4: $47,000, 47.00%"_s);
    }

    void scrollsWhereItIsLow()
    {
        auto *bar = m_view->findChild<QScrollBar *>();
        QVERIFY(bar->isVisible());
        QVERIFY(m_view->barRect(49).isNull());
        bar->setValue(bar->maximum());
        QVERIFY(m_view->barRect(49).isValid());
        QVERIFY(m_view->barRect(0).isNull());
        m_view->setChart(chartOf(3));
        QVERIFY(!bar->isVisible());
        QVERIFY(m_view->barRect(0).isValid());
    }

    void standsInThePanelsColors()
    {
        m_view->setPalette(Theme::light().panelPalette(QColor(0x0B, 0x30, 0x60), Qt::white));
        m_view->clearFocus();
        m_view->setCurrent(-1);
        QCoreApplication::processEvents();
        const QImage picture = m_view->grab().toImage();
        const QRect first = m_view->barRect(0);
        QVERIFY(count(picture, first, QColor(0x0B, 0x30, 0x60)) > first.width() * first.height() / 4);
        QVERIFY(count(picture, first, Theme::dark().accent) > first.width() * first.height() / 10);
    }

    void fitsItsFrameOnPaper()
    {
        for (const QSizeF frame : {QSizeF(9.9, 4.4), QSizeF(7.3, 4.15)}) {
            const int most = PaperChart::mostBars(frame);
            QVERIFY(most >= 30 && most <= 45); // after the font
            for (const int bars : {1, 3, most}) {
                const QImage picture = PaperChart::draw(chartOf(bars), frame);
                QCOMPARE(picture.size(), (frame * 300).toSize());
                QVERIFY(count(picture, picture.rect(), QColor(0x0B, 0x67, 0x60)) > 20000);
                // Nothing runs into the edges.
                QCOMPARE(count(picture, QRect(picture.width() - 6, 0, 6, picture.height()), Qt::white),
                         6 * picture.height());
            }
        }
    }

private:
    QString reading() const { return m_view->findChild<QLabel *>(u"chartReading"_s)->text(); }

    std::unique_ptr<BarChartView> m_view;
};

QTEST_MAIN(TestBarChart)
#include "tst_barchart.moc"
