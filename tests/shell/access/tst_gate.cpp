// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/gate.h"
#include "shell/access/passwordfile.h"
#include "shell/core/area.h"
#include "tests/support/testprogram.h"

using namespace Qt::Literals::StringLiterals;

class TestGate : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void asksInFrontOfGuardedAreas_data();
    void asksInFrontOfGuardedAreas();
    void asksForPasswordControlOnlyWithAPassword_data();
    void asksForPasswordControlOnlyWithAPassword();
    void aDamagedFileGuardsEverything();

private:
    /// A gate whose prompt gives `verdict` and notes what it was asked for.
    AccessGate gate(PasswordGateResult verdict);

    std::unique_ptr<TestProgram> m_program;
    QList<int> m_areas;
    QList<PasswordGateResult> m_before;
};

void TestGate::init()
{
    m_program = std::make_unique<TestProgram>();
    m_areas.clear();
    m_before.clear();
}

AccessGate TestGate::gate(PasswordGateResult verdict)
{
    return AccessGate([this, verdict](Program &program, QWidget *) {
        m_areas << program.state.guardedArea;
        m_before << program.state.passwordGateResult;
        program.state.passwordGateResult = verdict;
    });
}

void TestGate::asksInFrontOfGuardedAreas_data()
{
    QTest::addColumn<QString>("flag");
    QTest::addColumn<int>("area");
    QTest::addColumn<PasswordGateResult>("verdict");
    QTest::addColumn<QList<int>>("asked");
    QTest::addColumn<bool>("opens");
    using Result = PasswordGateResult;
    const QList<int> budget{Area::Budget};
    QTest::newRow("not guarded") << u"NO"_s << Area::Budget << Result::Refused << QList<int>() << true;
    QTest::newRow("another area") << u"YES"_s << Area::Planner << Result::Refused << QList<int>() << true;
    QTest::newRow("no area") << u"YES"_s << Area::None << Result::Refused << QList<int>() << true;
    QTest::newRow("the right password") << u"YES"_s << Area::Budget << Result::Open << budget << true;
    QTest::newRow("refused") << u"YES"_s << Area::Budget << Result::Refused << budget << false;
    QTest::newRow("blanks behind the flag")
        << u"YES  "_s << Area::Budget << Result::Refused << budget << false;
}

void TestGate::asksInFrontOfGuardedAreas()
{
    QFETCH(QString, flag);
    QFETCH(int, area);
    QFETCH(PasswordGateResult, verdict);
    m_program->state.protectedAreas.setFlag(Area::Budget, flag);
    QTEST(gate(verdict).mayOpen(m_program->program, area, nullptr), "opens");
    QTEST(m_areas, "asked");
    QCOMPARE(m_program->state.passwordGateResult, PasswordGateResult::Open);
    QCOMPARE(m_program->state.guardedArea, Area::None);
}

void TestGate::asksForPasswordControlOnlyWithAPassword_data()
{
    QTest::addColumn<QString>("password");
    QTest::addColumn<PasswordGateResult>("verdict");
    QTest::addColumn<int>("questions");
    QTest::addColumn<bool>("opens");
    using Result = PasswordGateResult;
    QTest::newRow("none set") << QString() << Result::Refused << 0 << true;
    QTest::newRow("passed") << u"Sesame"_s << Result::PasswordControl << 1 << true;
    QTest::newRow("refused") << u"Sesame"_s << Result::Refused << 1 << false;
}

void TestGate::asksForPasswordControlOnlyWithAPassword()
{
    QFETCH(QString, password);
    QFETCH(PasswordGateResult, verdict);
    if (!password.isEmpty())
        QVERIFY(PasswordFile(m_program->folder, PasswordCost::minimum()).setPassword(password));
    QTEST(gate(verdict).mayOpenPasswordControl(m_program->program, nullptr), "opens");
    QTEST(int(m_before.size()), "questions");
    for (const PasswordGateResult before : m_before)
        QCOMPARE(before, PasswordGateResult::PasswordControl);
    QCOMPARE(m_program->state.passwordGateResult, PasswordGateResult::Open);
}

void TestGate::aDamagedFileGuardsEverything()
{
    m_program->setBytes(u"PCtrl1.Fil"_s, "#####");
    const AccessGate refusing = gate(PasswordGateResult::Refused);
    QVERIFY(!refusing.mayOpen(m_program->program, Area::AddressBook, nullptr));
    QVERIFY(!refusing.mayOpen(m_program->program, Area::AddressViewerButton, nullptr));
    QVERIFY(!refusing.mayOpenPasswordControl(m_program->program, nullptr));
    QVERIFY(refusing.mayOpen(m_program->program, Area::None, nullptr));
    QCOMPARE(m_areas.size(), 3);
}

QTEST_GUILESS_MAIN(TestGate)
#include "tst_gate.moc"
