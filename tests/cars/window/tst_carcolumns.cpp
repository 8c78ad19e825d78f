// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/carcolumns.h"
#include "cars/window/cargrid.h"
#include "shell/look/theme.h"
#include "tests/support/rows.h"

#include <QStandardItemModel>

#include <numeric>

using namespace Qt::Literals::StringLiterals;

/// An action, a reading under two words, a date and a cost that is wider than usual.
class TestCarColumns : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        Theme::apply(*qApp);
        m_model.setHorizontalHeaderLabels({u"Action"_s, u"Previous Reading"_s, u"Date"_s, u"Cost"_s});
        for (const QString &cost : {u"9.00"_s, u"123456.78"_s, u"10.00"_s}) {
            m_model.appendRow({new QStandardItem(u"Change Oil and Filter"_s), new QStandardItem(u"81210"_s),
                               new QStandardItem(u"12/30/2026"_s), new QStandardItem(cost)});
        }
    }

    void sharesTheRoom_data()
    {
        // Beyond what the columns want, or what they are short of; whether words are whole, and all in sight.
        rows<int, bool, bool>({{"much", 500, true, true},
                               {"just enough", 0, true, true},
                               {"words give way", -10, false, true},
                               {"too little: it is scrolled", -300, true, false}});
    }

    void sharesTheRoom()
    {
        const auto [more, areWordsWhole, isAllInSight] = row<int, bool, bool>();
        const QFontMetrics body(TypeScale::body());
        const QFontMetrics strong(TypeScale::strong());
        const auto needed = [](const QFontMetrics &metrics, const QString &text) {
            return metrics.horizontalAdvance(text) + 2 * CellGrid::inset;
        };
        const std::vector<int> enough = fitting(1);
        const int room = std::accumulate(enough.begin(), enough.end(), more);
        const std::vector<int> widths = fitting(room);
        QCOMPARE(widths[0] >= needed(body, u"Inspect Brake Linings"_s), areWordsWhole);
        QVERIFY(widths[1] >= strong.horizontalAdvance(u"Previous"_s) + CellGrid::inset);
        QVERIFY(widths[2] >= needed(body, u"12/30/2026"_s));
        QVERIFY(widths[3] >= needed(body, u"123456.78"_s));
        QCOMPARE(std::accumulate(widths.begin(), widths.end(), 0) <= room, isAllInSight);
        if (more > 0)
            QCOMPARE(std::accumulate(widths.begin(), widths.end(), 0), room);
    }

private:
    std::vector<int> fitting(int room) const
    {
        using enum CarColumns::Room;
        return CarColumns::fitting(
            m_model, {{u"Inspect Brake Linings"_s, Words}, {u"99999"_s}, {u"12/30/2026"_s}, {u"9.99"_s}},
            room);
    }

    QStandardItemModel m_model;
};

QTEST_MAIN(TestCarColumns)
#include "tst_carcolumns.moc"
