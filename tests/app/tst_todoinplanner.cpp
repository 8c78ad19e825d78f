// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/todoimport.h"
#include "tests/support/household.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"
#include "todo/model/todofiles.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

/// The planner takes in the same things before and after the To Do list has saved them.
class TestToDoInPlanner : public QObject
{
    Q_OBJECT
private slots:
    void isTheSameAfterASave_data()
    {
        rows<DateStyle>({{"USA", DateStyle::Usa}, {"other", DateStyle::Other}});
    }
    void isTheSameAfterASave()
    {
        const auto [style] = row<DateStyle>();
        const TestFolder test;
        QVERIFY(QFile::copy(householdPath(u"TODOActv.FIL"_s), test.path(u"TODOActv.FIL"_s)));
        QVERIFY(QFile::setPermissions(test.path(u"TODOActv.FIL"_s), QFile::ReadOwner | QFile::WriteOwner));
        const auto before = ToDoImport::items(test.folder(), style);
        QCOMPARE(before.size(), std::size_t(8));
        const ToDoFiles files(test.folder());
        QVERIFY(files.save(files.open(style, QDate(2026, 11, 22)).sheet));
        // In both styles: what we write can be read in one way only.
        QVERIFY(ToDoImport::items(test.folder(), DateStyle::Usa) == before);
        QVERIFY(ToDoImport::items(test.folder(), DateStyle::Other) == before);
        QVERIFY(
            test.bytes(u"TODOActv.FIL"_s).contains("\"Call Jos\xe9 about the boat\"\r\n\"2027-08-31\"\r\n"));
        if (style == DateStyle::Usa)
            QCOMPARE(insertionsOf(test), expectedInsertions());
    }

private:
    /// What the planner would put into its rows, of 50 characters, from the day that is selected on.
    static QStringList insertionsOf(const TestFolder &test)
    {
        QStringList lines;
        for (const auto &item : ToDoImport::items(test.folder(), DateStyle::Usa)) {
            if (item.date >= QDate(2027, 6, 1))
                lines << item.date.toString(Qt::ISODate) + u' ' + item.text.left(50).trimmed();
        }
        return lines;
    }
    static QStringList expectedInsertions()
    {
        QStringList lines;
        for (const auto &row : expectedOf(u"planner"_s)["todo_import"_L1]["insertions"_L1].toArray())
            lines << row[0].toString() + u' ' + row[1].toString().trimmed();
        return lines;
    }
};

QTEST_GUILESS_MAIN(TestToDoInPlanner)
#include "tst_todoinplanner.moc"
