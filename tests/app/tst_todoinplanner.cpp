// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/todoimport.h"
#include "tests/support/household.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"
#include "todo/model/todofiles.h"

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
    }
};

QTEST_GUILESS_MAIN(TestToDoInPlanner)
#include "tst_todoinplanner.moc"
