// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/budgetrecords.h"
#include "tests/support/recordsback.h"
#include "tests/support/rows.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString year = u"2026.Fil"_s;
const QString spent = u"Quillery.spent-2026"_s;

/// A sheet of one item, and the incomes of all months.
QByteArray sheetOf(const QByteArray &item, const QByteArray &january, const QByteArray &others,
                   const QByteArray &income)
{
    const auto value = [](const QByteArray &text) { return QByteArray('"' + text + "\"\r\n"); };
    return value(item) + value(january) + value(others).repeated(11) + value({}).repeated(49 * 13) +
           value(income).repeated(12);
}

const QByteArray rent = sheetOf("Rent", "100.00", "100.00", "900.00");
const QByteArray cinema = sheetOf("Cinema", "20.00", "", "");
const QByteArray spentOnRent = "Quillery spent amounts 1\ndue\t5\tRent\npaid\t1\t100.00\tRent\n"
                               "spent\t2026-01-05\t100.00\tRent\tat the bank\n";

} // namespace

class TestBudgetRecords : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_here = std::make_unique<TestFolder>();
        m_there = std::make_unique<TestFolder>();
    }

    void tellsOfYears_data()
    {
        const QStringList rentLines{u"Budget 2026"_s, u"Rent: 100.00 each month"_s,
                                    u"Income: 900.00 each month"_s};
        rows<FolderFiles, QStringList>({
            {"a year without what was spent", {{year, rent}}, rentLines},
            {"with it",
             {{year, rent}, {spent, spentOnRent}},
             rentLines + QStringList{u"Rent: due on day 5"_s, u"Rent: paid in January"_s,
                                     u"5 Jan: 100.00, Rent, at the bank"_s}},
            {"two years",
             {{year, cinema}, {u"2025.Fil"_s, rent}},
             QStringList{u"Budget 2025"_s} + rentLines.sliced(1) +
                 QStringList{u"Budget 2026"_s, u"Cinema: Jan 20.00"_s}},
            {"a year cut short",
             {{year, rent.left(26)}},
             {u"Budget 2026"_s, u"Rent: Jan 100.00, Feb 100.00"_s}},
            {"an empty one", {{year, {}}}, {}},
            {"noise", {{year, QByteArray("\0\0\0\0", 4)}, {spent, "\xff\xfe"}}, {u"Budget 2026"_s}},
        });
    }
    void tellsOfYears()
    {
        const auto [files, texts] = row<FolderFiles, QStringList>();
        putAll(*m_there, files);
        const BudgetRecords there(m_there->folder(), DateStyle::Other);
        QCOMPARE(told(there), texts);
        QCOMPARE(filesOf(*m_there), files);
        QCOMPARE(there.lines(u"1999"_s), QStringList());
    }

    void bringsBack_data()
    {
        rows<FolderFiles, FolderFiles, FolderFiles>({
            {"a year that is gone",
             {},
             {{year, rent}, {spent, spentOnRent}},
             {{year, rent}, {spent, spentOnRent}}},
            {"in place of another",
             {{year, cinema}, {u"2025.Fil"_s, cinema}},
             {{year, rent}, {u"2025.Fil"_s, rent}},
             {{year, rent}, {u"2025.Fil"_s, cinema}}},
            {"and what was spent since stays",
             {{year, cinema}, {spent, spentOnRent}},
             {{year, rent}},
             {{year, rent}, {spent, spentOnRent}}},
            {"whatever its bytes are",
             {{year, rent}},
             {{year, rent + "\"more\"\r\n"}},
             {{year, rent + "\"more\"\r\n"}}},
        });
    }
    void bringsBack()
    {
        const auto [here, there, expected] = row<FolderFiles, FolderFiles, FolderFiles>();
        putAll(*m_here, here);
        putAll(*m_there, there);
        BudgetRecords records(m_here->folder(), DateStyle::Other);
        bringBackAndForth(records, BudgetRecords(m_there->folder(), DateStyle::Other), {u"2026"_s}, *m_here,
                          expected);
    }

    /// What a later version wrote is not written over.
    void leavesLaterVersionsAlone()
    {
        m_here->put(spent, "Quillery spent amounts 2\n");
        m_there->put(spent, spentOnRent);
        BudgetRecords records(m_here->folder(), DateStyle::Other);
        const RecordsBack back =
            records.bringBack(BudgetRecords(m_there->folder(), DateStyle::Other), {u"2026"_s});
        QVERIFY(!back.refusal.isEmpty() && back.keys.isEmpty() && !back.step);
        QCOMPARE(m_here->bytes(spent), "Quillery spent amounts 2\n");
    }

private:
    std::unique_ptr<TestFolder> m_here;
    std::unique_ptr<TestFolder> m_there;
};

QTEST_GUILESS_MAIN(TestBudgetRecords)
#include "tst_budgetrecords.moc"
