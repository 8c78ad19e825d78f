// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/gate.h"
#include "shell/access/passwordcheck.h"
#include "shell/core/area.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

using namespace Qt::Literals::StringLiterals;

class TestGate : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_program = std::make_unique<TestProgram>();
        m_areas.clear();
        m_before.clear();
    }

    void asksInFrontOfGuardedAreas_data()
    {
        using Result = PasswordGateResult;
        const QList<int> budget{Area::Budget};
        rows<QString, int, PasswordGateResult, QList<int>, bool>({
            {"not guarded", u"NO"_s, Area::Budget, Result::Refused, {}, true},
            {"another area", u"YES"_s, Area::Planner, Result::Refused, {}, true},
            {"no area", u"YES"_s, Area::None, Result::Refused, {}, true},
            {"the right password", u"YES"_s, Area::Budget, Result::Open, budget, true},
            {"refused", u"YES"_s, Area::Budget, Result::Refused, budget, false},
            {"blanks behind the flag", u"YES  "_s, Area::Budget, Result::Refused, budget, false},
        });
    }

    void asksInFrontOfGuardedAreas()
    {
        const auto [flag, area, verdict, asked, opens] =
            row<QString, int, PasswordGateResult, QList<int>, bool>();
        m_program->state.protectedAreas.setFlag(Area::Budget, flag);
        QCOMPARE(gate(verdict).mayOpen(m_program->program, area, nullptr), opens);
        QCOMPARE(m_areas, asked);
        QCOMPARE(m_program->state.passwordGateResult, PasswordGateResult::Open);
        QCOMPARE(m_program->state.guardedArea, Area::None);
    }

    void asksForPasswordControlOnlyWithAPassword_data()
    {
        using Result = PasswordGateResult;
        rows<QString, PasswordGateResult, int, bool>({
            {"none set", {}, Result::Refused, 0, true},
            {"passed", u"Sesame"_s, Result::PasswordControl, 1, true},
            {"refused", u"Sesame"_s, Result::Refused, 1, false},
        });
    }

    void asksForPasswordControlOnlyWithAPassword()
    {
        const auto [password, verdict, questions, opens] = row<QString, PasswordGateResult, int, bool>();
        if (!password.isEmpty())
            QVERIFY(PasswordCheck(m_program->folder, PasswordCost::minimum()).setPassword(password));
        QCOMPARE(gate(verdict).mayOpenPasswordControl(m_program->program, nullptr), opens);
        QCOMPARE(int(m_before.size()), questions);
        for (const PasswordGateResult before : m_before)
            QCOMPARE(before, PasswordGateResult::PasswordControl);
        QCOMPARE(m_program->state.passwordGateResult, PasswordGateResult::Open);
    }

    void remembersWhatWasPassedUntilTheDeskIsLocked()
    {
        m_program->state.protectedAreas.setFlag(Area::Budget, u"YES"_s);
        AccessGate refusing = gate(PasswordGateResult::Refused);
        QVERIFY(!refusing.mayOpen(m_program->program, Area::Budget, nullptr));
        QVERIFY(!refusing.wasPassed(Area::Budget));
        AccessGate opening = gate(PasswordGateResult::Open);
        QVERIFY(opening.mayOpen(m_program->program, Area::Planner, nullptr));
        QVERIFY(!opening.wasPassed(Area::Planner)); // nobody was asked
        QVERIFY(opening.mayOpen(m_program->program, Area::Budget, nullptr));
        QVERIFY(opening.wasPassed(Area::Budget));
        opening.forgetPassed();
        QVERIFY(!opening.wasPassed(Area::Budget));
    }

    void aDamagedFileGuardsEverything()
    {
        m_program->setBytes(u"PCtrl1.Fil"_s, "#####");
        AccessGate refusing = gate(PasswordGateResult::Refused);
        QVERIFY(!refusing.mayOpen(m_program->program, Area::AddressBook, nullptr));
        QVERIFY(!refusing.mayOpen(m_program->program, Area::AddressViewerButton, nullptr));
        QVERIFY(!refusing.mayOpenPasswordControl(m_program->program, nullptr));
        QVERIFY(refusing.mayOpen(m_program->program, Area::None, nullptr));
        QCOMPARE(m_areas.size(), 3);
    }

private:
    /// A gate whose prompt gives `verdict` and notes what it was asked for.
    AccessGate gate(PasswordGateResult verdict)
    {
        return AccessGate([this, verdict](Program &program, QWidget *) {
            m_areas << program.state.guardedArea;
            m_before << program.state.passwordGateResult;
            program.state.passwordGateResult = verdict;
        });
    }

    std::unique_ptr<TestProgram> m_program;
    QList<int> m_areas;
    QList<PasswordGateResult> m_before;
};

QTEST_GUILESS_MAIN(TestGate)
#include "tst_gate.moc"
