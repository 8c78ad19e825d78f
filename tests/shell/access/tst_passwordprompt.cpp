// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/passwordmessages.h"
#include "shell/access/passwordprompt.h"
#include "shell/access/recoverybox.h"
#include "shell/core/area.h"
#include "storage/sealing/recoverycode.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QCheckBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>

#include <memory>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

void type(const Form32 &prompt, const QString &password)
{
    auto *box = control<QLineEdit>(prompt, "Text1");
    QTest::keyClicks(box, password);
    QTest::keyClick(box, Qt::Key_Return);
}

} // namespace

class TestForm32 : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_program = std::make_unique<TestProgram>();
        m_program->gate = AccessGate(showPasswordPrompt);
        QVERIFY(PasswordCheck(m_program->folder, PasswordCost::minimum()).setPassword(u"Sesame"_s));
    }

    void namesWhatItGuards_data()
    {
        using Result = PasswordGateResult;
        rows<int, PasswordGateResult, QString>({
            {"a function", Area::Planner, Result::Open, u"Personal Planner"_s},
            {"its button", Area::AddressBookButton, Result::Open, u"Family/Friends Data"_s},
            {"another edition's", 8, Result::Open, u"Video Library"_s},
            {"password control", Area::None, Result::PasswordControl, u"Password Control"_s},
        });
    }

    void namesWhatItGuards()
    {
        const auto [area, result, name] = row<int, PasswordGateResult, QString>();
        m_program->state.guardedArea = area;
        m_program->state.passwordGateResult = result;
        const Form32 prompt(m_program->program);
        const QList<QLabel *> labels = prompt.findChildren<QLabel *>();
        QVERIFY(std::any_of(labels.begin(), labels.end(),
                            [&name](const QLabel *label) { return label->text() == name; }));
    }

    void opensWithThePassword()
    {
        Form32 prompt(m_program->program, nullptr, 1ms);
        const QSignalSpy accepted(&prompt, &QDialog::accepted);
        showActive(prompt);
        type(prompt, u"Sesame"_s);
        QCOMPARE(accepted.size(), 1);
        QVERIFY(control<QLineEdit>(prompt, "Text1")->text().isEmpty());
    }

    void eachWrongAnswerWaitsLonger()
    {
        Form32 prompt(m_program->program, nullptr, 100ms);
        showActive(prompt);
        auto *box = control<QLineEdit>(prompt, "Text1");
        auto *line = control<QLabel>(prompt, "refusal");

        QElapsedTimer clock;
        clock.start();
        type(prompt, u"Tulips"_s);
        QVERIFY(!box->isEnabled());
        QCOMPARE(line->text(), u"That is not the password. Try again in 1 second."_s);
        QCOMPARE(box->toolTip(), u"Try again in 1 second."_s);
        QTRY_VERIFY(box->isEnabled());
        QVERIFY(clock.restart() >= 95);
        QVERIFY(box->hasFocus());

        type(prompt, u"Roses"_s);
        QCOMPARE(line->text(), u"That is not the password. Try again in 2 seconds."_s);
        QTRY_COMPARE(line->text(), u"That is not the password. Try again in 1 second."_s);
        QTRY_COMPARE(line->text(), u"That is not the password."_s);
        QVERIFY(clock.elapsed() >= 190);
    }

    void whatIsTypedDuringTheWaitWorksNothing()
    {
        Form32 prompt(m_program->program, nullptr, 100ms);
        const QSignalSpy finished(&prompt, &QDialog::finished);
        showActive(prompt);
        auto *box = control<QLineEdit>(prompt, "Text1");
        auto *shown = control<QCheckBox>(prompt, "showPassword");
        shown->click();
        type(prompt, u"nope"_s);
        QVERIFY(prompt.focusWidget());
        QTest::keyClicks(prompt.focusWidget(), u"ab cd"_s);
        QTest::keyClick(prompt.focusWidget(), Qt::Key_Return);
        QVERIFY(!box->isEnabled() && !shown->isEnabled() && !shown->isChecked() && finished.isEmpty());
        QTRY_VERIFY(box->isEnabled());
        QVERIFY(box->hasFocus() && box->text().isEmpty() && box->echoMode() == QLineEdit::Password);

        RecoveryBox code(m_program->program, 10s, nullptr);
        const QSignalSpy codeFinished(&code, &QDialog::finished);
        showActive(code);
        control<QLineEdit>(code, "recoveryCode")->setText(RecoveryCode::generate());
        QTest::keyClick(control<QLineEdit>(code, "recoveryCode"), Qt::Key_Return);
        QVERIFY(code.focusWidget() && !control<QLineEdit>(code, "recoveryCode")->isEnabled());
        QTest::keyClick(code.focusWidget(), Qt::Key_Space);
        QVERIFY(codeFinished.isEmpty());
    }

    void theThirdWrongAnswerEndsIt()
    {
        Form32 prompt(m_program->program, nullptr, 1ms);
        const QSignalSpy rejected(&prompt, &QDialog::rejected);
        showActive(prompt);
        for (int answer = 1; answer <= 3; ++answer) {
            QTRY_VERIFY(control<QLineEdit>(prompt, "Text1")->isEnabled());
            QVERIFY(rejected.isEmpty());
            // An answer that was not given is not a wrong one.
            type(prompt, QString());
            type(prompt, u"sesame"_s);
            QVERIFY(control<QLineEdit>(prompt, "Text1")->text().isEmpty());
        }
        QCOMPARE(rejected.size(), 1);
    }

    void nothingIsTriedDuringTheWait()
    {
        Form32 prompt(m_program->program, nullptr, 10s);
        const QSignalSpy finished(&prompt, &QDialog::finished);
        showActive(prompt);
        type(prompt, u"Tulips"_s);
        control<QLineEdit>(prompt, "Text1")->setText(u"Sesame"_s);
        prompt.accept();
        QTest::mouseClick(control<QPushButton>(prompt, "Command1"), Qt::LeftButton);
        QVERIFY(finished.isEmpty());
        QTest::mouseClick(control<QPushButton>(prompt, "Command2"), Qt::LeftButton);
        QCOMPARE(prompt.result(), int(QDialog::Rejected));
        QCOMPARE(finished.size(), 1);
        // Nor in the next prompt, which goes on waiting.
        Form32 next(m_program->program, nullptr, 10s);
        QCOMPARE(control<QLabel>(next, "refusal")->text(), u"Try again in 1 second."_s);
        QVERIFY(!control<QLineEdit>(next, "Text1")->isEnabled());
    }

    void wrongAnswersCountAcrossRestarts()
    {
        {
            Form32 prompt(m_program->program, nullptr, 1ms);
            showActive(prompt);
            for (int answer = 1; answer <= 3; ++answer) {
                QTRY_VERIFY(control<QLineEdit>(prompt, "Text1")->isEnabled());
                type(prompt, u"Tulips"_s);
            }
        }
        // The program starts again a second later.
        m_program->clock.time = m_program->clock.time.addSecs(1);
        m_program->state.protectedAreas.setFlag(Area::Planner, u"YES"_s);
        m_program->gate = AccessGate([](Program &program, QWidget *) {
            Form32 prompt(program, nullptr, 100ms);
            showActive(prompt);
            QCOMPARE(control<QLabel>(prompt, "refusal")->text(), u"Try again in 2 seconds."_s);
            QTRY_VERIFY(control<QLineEdit>(prompt, "Text1")->isEnabled());
            type(prompt, u"Sesame"_s);
            QCOMPARE(prompt.result(), int(QDialog::Accepted));
        });
        QVERIFY(m_program->gate.mayOpen(m_program->program, Area::Planner, nullptr));
        QCOMPARE(m_program->gate.takeNotice(m_program->program),
                 u"3 wrong answers since Saturday, November 21, 10:24 AM"_s);
        QVERIFY(m_program->gate.takeNotice(m_program->program).isEmpty());
        const Form32 next(m_program->program);
        QVERIFY(control<QLineEdit>(next, "Text1")->isEnabled());
    }

    void noWaitIsLongerThanHalfAMinute()
    {
        PasswordCheck file(m_program->folder);
        for (int answer = 1; answer <= 40; ++answer)
            file.addWrongAnswer(m_program->clock.now());
        const Form32 prompt(m_program->program);
        QCOMPARE(control<QLabel>(prompt, "refusal")->text(), u"Try again in 30 seconds."_s);
    }

    void tellsSinceWhenAnswersWereWrong_data()
    {
        rows<WrongAnswers, DateStyle, QString>({
            {"several",
             {3, at(2026, 11, 20), at(2026, 11, 21)},
             DateStyle::Other,
             u"3 wrong answers since Friday, 20 November, 21:04"_s},
            {"month first",
             {3, at(2026, 11, 20), at(2026, 11, 21)},
             DateStyle::Usa,
             u"3 wrong answers since Friday, November 20, 9:04 PM"_s},
            {"one",
             {1, at(2026, 11, 20), at(2026, 11, 20)},
             DateStyle::Other,
             u"1 wrong answer since Friday, 20 November, 21:04"_s},
            {"last year",
             {2, at(2025, 12, 31), at(2026, 1, 1)},
             DateStyle::Other,
             u"2 wrong answers since Wednesday, 31 December 2025, 21:04"_s},
            {"none", {}, DateStyle::Other, {}},
        });
    }

    void tellsSinceWhenAnswersWereWrong()
    {
        const auto [wrong, style, words] = row<WrongAnswers, DateStyle, QString>();
        QCOMPARE(wrong.words(style, QDate(2026, 11, 21)), words);
    }

    void offersTheRecoveryCodeAfterAWrongAnswer()
    {
        {
            Form32 prompt(m_program->program, nullptr, 1ms);
            showActive(prompt);
            type(prompt, u"Tulips"_s);
            QVERIFY(!control<QPushButton>(prompt, "Command3")->isVisible()); // there is none
        }
        const QString code = RecoveryCode::generate();
        QVERIFY(PasswordCheck(m_program->folder, PasswordCost::minimum()).setPassword(u"Sesame"_s, code));
        m_program->gate.memory() = {};
        QVERIFY(PasswordCheck(m_program->folder).takeWrongAnswers().count == 1);
        Form32 prompt(m_program->program, nullptr, 50ms);
        const QSignalSpy rejected(&prompt, &QDialog::rejected);
        showActive(prompt);
        auto *offer = control<QPushButton>(prompt, "Command3");
        QVERIFY(!offer->isVisible());
        type(prompt, u"Tulips"_s);
        QVERIFY(offer->isVisible() && !offer->isEnabled());
        QTRY_VERIFY(offer->isEnabled());
        m_program->dialogs.willRun([&](QDialog &box) { return recover(box, code); });
        offer->click();
        QVERIFY(rejected.size() == 1 && m_program->dialogs.isDone());
        QVERIFY(
            m_program->gate.takeNotice(m_program->program).isEmpty()); // in a window that asks for nothing
        Form32 next(m_program->program, nullptr, 1ms);
        showActive(next);
        type(next, u"Roses"_s);
        QCOMPARE(m_program->gate.takeNotice(m_program->program),
                 u"1 wrong answer since Saturday, November 21, 10:24 AM"_s);
    }

    void theRecoveryCodeHasToBeRight()
    {
        const QString code = RecoveryCode::generate();
        QVERIFY(PasswordCheck(m_program->folder, PasswordCost::minimum()).setPassword(u"Sesame"_s, code));
        RecoveryBox box(m_program->program, 50ms, nullptr);
        showActive(box);
        const auto answer = [&box](const QString &text) {
            control<QLineEdit>(box, "recoveryCode")->setText(text);
            QTest::keyClick(control<QLineEdit>(box, "recoveryCode"), Qt::Key_Return);
        };
        const PasswordCheck file(m_program->folder);
        answer(code.chopped(1)); // a slip is no wrong answer
        QCOMPARE(control<QLabel>(box, "refusal")->text(), PasswordMessages::codeMistyped());
        QCOMPARE(file.wrongAnswers().count, 0);
        answer(RecoveryCode::generate());
        QVERIFY(control<QLabel>(box, "refusal")->text().startsWith(PasswordMessages::wrongCode()));
        QCOMPARE(file.wrongAnswers().count, 1);
        QVERIFY(!control<QLineEdit>(box, "recoveryCode")->isEnabled());
        QVERIFY(!control<QLineEdit>(box, "newPassword")->isVisible());
        QTRY_VERIFY(control<QLineEdit>(box, "recoveryCode")->isEnabled());
        answer(u' ' + code.toLower().remove(u'-'));
        QVERIFY(control<QLineEdit>(box, "newPassword")->isVisible());
        box.reject(); // nothing was opened, nothing was set
        QVERIFY(file.matches(u"Sesame"_s));
    }

    void aNewCodeIsShownUntilItIsKept()
    {
        const QString code = RecoveryCode::generate();
        QVERIFY(PasswordCheck(m_program->folder, PasswordCost::minimum()).setPassword(u"Sesame"_s, code));
        QString made;
        {
            RecoveryBox box(m_program->program, 1ms, nullptr);
            showActive(box);
            giveNewPassword(box, code);
            made = control<QLabel>(box, "recoveryCodeShown")->text();
            box.reject(); // locked before anybody could have read it
            QVERIFY(box.result() == QDialog::Accepted && !made.isEmpty());
        }
        const auto answer = [this](const std::function<int(QDialog &)> &drive) {
            Form32 prompt(m_program->program, nullptr, 1ms);
            showActive(prompt);
            m_program->dialogs.willRun([&](QDialog &box) {
                const int result = drive(box);
                if (result == QDialog::Rejected)
                    prompt.reject();
                return result;
            });
            type(prompt, u"Roses"_s);
            return prompt.result();
        };
        const auto isShown = [&made](const QDialog &box) {
            QVERIFY(!control<QPushButton>(box, "recoveryNext")->isVisible());
            QCOMPARE(control<QLabel>(box, "recoveryCodeShown")->text(), made);
        };
        // Locked once more, together with the prompt: nothing opens.
        QCOMPARE(answer([&](QDialog &box) {
                     isShown(box);
                     box.reject();
                     return int(QDialog::Rejected);
                 }),
                 int(QDialog::Rejected));
        QCOMPARE(answer([&](QDialog &box) {
                     isShown(box);
                     control<QPushButton>(box, "codeDone")->click();
                     return box.result();
                 }),
                 int(QDialog::Accepted));
        Form32 next(m_program->program, nullptr, 1ms);
        showActive(next);
        type(next, u"Roses"_s);
        QCOMPARE(next.result(), int(QDialog::Accepted));
        QVERIFY(m_program->dialogs.isDone());
    }

    void aNewerCodeIsTheOneThatCounts()
    {
        PasswordMemory &memory = m_program->gate.memory();
        PasswordCheck file(m_program->folder, PasswordCost::minimum(), &memory);
        memory.newCode = RecoveryCode::generate();
        QVERIFY(file.setPassword(u"Sesame"_s) && !memory.newCode.isEmpty());
        QVERIFY(file.setRecoveryCode(RecoveryCode::generate()) && memory.newCode.isEmpty());
    }

    void guardsOnWhereTheFileVanishes()
    {
        m_program->state.protectedAreas.setFlag(Area::Planner, u"YES"_s);
        const auto cancel = [](QDialog &) { return int(QDialog::Rejected); };
        m_program->dialogs.willRun(cancel);
        QVERIFY(!m_program->gate.mayOpenPasswordControl(m_program->program, nullptr)); // has read the file
        for (const bool isEmptied : {false, true}) {
            QVERIFY(QFile::remove(m_program->path(u"PCtrl1.Fil"_s)));
            if (isEmptied)
                m_program->setBytes(u"PCtrl1.Fil"_s, {});
            m_program->dialogs.willRun(cancel);
            QVERIFY(!m_program->gate.mayOpenPasswordControl(m_program->program, nullptr));
            m_program->dialogs.willRun([](QDialog &dialog) {
                type(*qobject_cast<Form32 *>(&dialog), u"Sesame"_s);
                return dialog.result();
            });
            QVERIFY(m_program->gate.mayOpen(m_program->program, Area::Planner, nullptr));
            // What is saved then brings the whole file back.
            PasswordCheck file(m_program->folder, PasswordCost::minimum(), &m_program->gate.memory());
            ProtectedAreas areas = file.areas();
            areas.setFlag(Area::Planner, u"YES"_s);
            QVERIFY(file.saveAreas(areas));
            const PasswordCheck anew(m_program->folder, PasswordCost::minimum());
            QVERIFY(anew.matches(u"Sesame"_s) && anew.areas().isProtected(Area::Planner));
        }
    }

    void leavesItsVerdictForTheGate()
    {
        m_program->state.protectedAreas.setFlag(Area::Budget, u"YES"_s);
        for (const QDialog::DialogCode code : {QDialog::Accepted, QDialog::Rejected}) {
            const bool opens = code == QDialog::Accepted;
            m_program->dialogs.willRun([code](QDialog &) { return code; });
            QCOMPARE(m_program->gate.mayOpen(m_program->program, Area::Budget, nullptr), opens);
            m_program->dialogs.willRun([code](QDialog &) { return code; });
            QCOMPARE(m_program->gate.mayOpenPasswordControl(m_program->program, nullptr), opens);
            QCOMPARE(m_program->state.passwordGateResult, PasswordGateResult::Open);
        }
        QVERIFY(m_program->dialogs.isDone());
    }

    void tellsThatTheFileIsDamaged()
    {
        m_program->state.protectedAreas.setFlag(Area::AddressBook, u"YES"_s);
        for (const QByteArray &bytes : {"noise"_ba, ""_ba}) { // emptied while the program runs
            m_program->setBytes(u"PCtrl1.Fil"_s, bytes);
            QVERIFY(!m_program->gate.mayOpen(m_program->program, Area::AddressBook, nullptr));
            QCOMPARE(m_program->dialogs.takeShown(),
                     {PasswordMessages::fileDamaged(m_program->folder.path())});
        }
    }

    void showsThePasswordOnlyWhenAsked()
    {
        const Form32 prompt(m_program->program);
        auto *box = control<QLineEdit>(prompt, "Text1");
        QCOMPARE(box->echoMode(), QLineEdit::Password);
        control<QCheckBox>(prompt, "showPassword")->setChecked(true);
        QCOMPARE(box->echoMode(), QLineEdit::Normal);
    }

private:
    /// Types the code and "Roses" as the new password.
    static void giveNewPassword(const QDialog &box, const QString &code)
    {
        const auto fill = [&box](const char *name, const QString &text) {
            control<QLineEdit>(box, name)->setText(text);
        };
        auto *next = control<QPushButton>(box, "recoveryNext");
        fill("recoveryCode", code);
        next->click();
        fill("newPassword", u"Roses"_s);
        next->click();
        QCOMPARE(control<QLabel>(box, "refusal")->text(), PasswordMessages::passwordsDiffer());
        fill("newPasswordAgain", u"Roses"_s);
        next->click();
    }

    /// The same, and prints the new code into a PDF.
    int recover(QDialog &box, const QString &code)
    {
        giveNewPassword(box, code);
        const QString shown = control<QLabel>(box, "recoveryCodeShown")->text().remove(u'\n');
        const QString pdf = m_program->temporary.filePath(u"code.pdf"_s);
        m_program->dialogs.willChooseFile(pdf);
        control<QPushButton>(box, "printCode")->click();
        control<QPushButton>(box, "codeDone")->click();
        [&] {
            QVERIFY(QFile::exists(pdf));
            const PasswordCheck file(m_program->folder);
            QVERIFY(file.matches(u"Roses"_s) && !file.matchesRecoveryCode(*RecoveryCode::read(code)));
            QVERIFY(file.matchesRecoveryCode(*RecoveryCode::read(shown)));
            QCOMPARE(file.wrongAnswers().count, 0);
        }();
        return box.result();
    }
    static QDateTime at(int year, int month, int day) { return {QDate(year, month, day), QTime(21, 4)}; }

    std::unique_ptr<TestProgram> m_program;
};

QTEST_MAIN(TestForm32)
#include "tst_passwordprompt.moc"
