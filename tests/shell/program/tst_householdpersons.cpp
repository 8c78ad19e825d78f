// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/area.h"
#include "shell/program/householdpersons.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

using namespace Qt::Literals::StringLiterals;

class TestHouseholdPersons : public QObject
{
    Q_OBJECT
private slots:
    void tellsPersonsWhereNoPasswordStandsBefore_data()
    {
        rows<int, int, bool>(
            {{"not guarded", Area::None, Area::None, true},
             {"guarded", Area::AddressBook, Area::None, false},
             {"guarded and passed", Area::AddressBook, Area::AddressBook, true},
             {"passed by its button", Area::AddressBookButton, Area::AddressBookButton, true},
             {"another one passed", Area::AddressBook, Area::Budget, false}});
    }
    void tellsPersonsWhereNoPasswordStandsBefore()
    {
        const auto [guarded, passed, isTold] = row<int, int, bool>();
        TestProgram test;
        const QList<KnownPerson> persons{{u"Anne Lind"_s, 2, QDate(1978, 11, 24)}};
        test.functions.add(Function::AddressBook,
                           {.persons = [persons](const Program &) { return persons; }});
        if (guarded != Area::None)
            test.state.protectedAreas.setFlag(guarded, u"YES"_s);
        const auto isPassed = [passed = passed](int area) { return area == passed; };
        QCOMPARE(HouseholdPersons::of(test.program, isPassed), isTold ? persons : QList<KnownPerson>());
        QCOMPARE(HouseholdPersons::areKeptBack(test.program, isPassed), !isTold);
    }
};

QTEST_GUILESS_MAIN(TestHouseholdPersons)
#include "tst_householdpersons.moc"
