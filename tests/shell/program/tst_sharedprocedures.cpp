// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/busycursor.h"
#include "shell/core/settingskeys.h"
#include "shell/core/shellmessages.h"
#include "shell/program/sharedprocedures.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

class TestHinfo1 : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_program = std::make_unique<TestProgram>(); }

    void oneHourglassIsEnough()
    {
        HINFO1::hourglassOn();
        HINFO1::hourglassOn();
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
        HINFO1::hourglassOff();
        QVERIFY(!QApplication::overrideCursor());
        {
            const BusyCursor busy;
            QVERIFY(QApplication::overrideCursor());
        }
        QVERIFY(!QApplication::overrideCursor());
    }

    void asksForTheFamilyName_data()
    {
        using Typed = std::optional<QString>; // nothing for Cancel
        const QByteArray holm("\x04\0Holm", 6), lind("\x04\0Lind", 6), none("\0\0", 2),
            deleted("\0\0Holm", 6);
        rows<QByteArray, Typed, QList<Answer>, QByteArray>({
            {"a first name", {}, u"Holm"_s, {}, holm},
            {"another name", holm, u"Lind"_s, {}, lind},
            {"cut to fifteen",
             {},
             u"Jos\u00e9 Ortega M\u00fcller"_s,
             {},
             {"\x0f\0Jos\xe9 Ortega M\xfcl", 17}},
            {"none stored, Cancel", {}, {}, {}, none},
            {"Cancel, then Yes", holm, {}, {Answer::Yes}, deleted},
            {"an empty box, then Yes", holm, u""_s, {Answer::Yes}, deleted},
            {"an empty box, then No", holm, u""_s, {Answer::No}, holm},
        });
    }

    void asksForTheFamilyName()
    {
        const auto [before, typed, answers, after] =
            row<QByteArray, std::optional<QString>, QList<Answer>, QByteArray>();
        if (!before.isEmpty())
            m_program->setBytes(u"HINVNAME.FIL"_s, before);
        m_program->dialogs.willInput(typed);
        for (const Answer answer : answers)
            m_program->dialogs.willAnswer(answer);
        QSignalSpy changed(&m_program->changes, &ProgramSignals::familyNameChanged);

        QVERIFY(HINFO1::askFamilyName(m_program->program, nullptr));

        QCOMPARE(m_program->bytes(u"HINVNAME.FIL"_s), after);
        QCOMPARE(m_program->state.familyName, FamilyName(m_program->settings.text(SettingsKeys::familyName)));
        QCOMPARE(changed.size(), 1);
        const QString stored = before.isEmpty() ? QString() : u"Holm"_s;
        QCOMPARE(m_program->dialogs.takePrompts(),
                 (QStringList{ShellMessages::familyNameTitle(), ShellMessages::familyNamePrompt(), stored}));
        const QList<Message> asked(answers.size(), ShellMessages::deleteFamilyName(u"Holm"_s));
        QCOMPARE(m_program->dialogs.takeShown(), asked);
        QVERIFY(m_program->dialogs.isDone());
    }

    void writesAllProgramColors()
    {
        QSignalSpy changed(&m_program->changes, &ProgramSignals::panelColorsChanged);
        QString pending = u" 255 "_s;
        QVERIFY(
            HINFO1::updateProgramColors(m_program->program, nullptr, pending, HINFO1::updateWithoutAsking));
        QCOMPARE(pending, QString());
        QCOMPARE(changed.size(), 1);
        QVERIFY(m_program->dialogs.takeShown().isEmpty());

        const std::vector<std::pair<QString, QList<int>>> expected{
            {u"GColor1.Fil"_s, {10, 11, 12, 13, 16, 17, 18, 22, 27, 32, 36, 38, 40, 49, 54, 56, 70, 80}},
            {u"GColor2.Fil"_s, {5, 9, 12, 16, 19, 20, 22, 25, 40}},
            {u"GColor3.Fil"_s, {8,   11,  12,  17,  26,  91,  92,  100, 101, 102, 103, 104,
                                105, 202, 203, 204, 205, 206, 207, 208, 212, 214, 216}}};
        for (const auto &[name, records] : expected) {
            QByteArray file((records.last() - 1) * 20 + 5, '\0');
            for (const int record : records)
                file.replace((record - 1) * 20, 5, QByteArray::fromHex("0300323535"));
            QCOMPARE(m_program->bytes(name), file);
        }
    }

    void asksBeforeItWritesAllColors_data()
    {
        rows<Answer, QString, bool>({
            {"Yes", Answer::Yes, u"255"_s, true},
            {"No", Answer::No, u"255"_s, false},
            {"Cancel", Answer::Cancel, u"255"_s, false},
            {"nothing pending", Answer::Yes, u"  "_s, false},
            {"too long for a record", Answer::Yes, u"1234567890123456789"_s, false},
        });
    }

    void asksBeforeItWritesAllColors()
    {
        auto [answer, pending, writes] = row<Answer, QString, bool>();
        m_program->dialogs.willAnswer(answer);
        QVERIFY(HINFO1::updateProgramColors(m_program->program, nullptr, pending, 0));
        QCOMPARE(pending, QString());
        QCOMPARE(!m_program->bytes(u"GColor1.Fil"_s).isEmpty(), writes);
        QCOMPARE(m_program->dialogs.takeShown(), {ShellMessages::updateWholeProgram()});
    }

    void savesTheSizeOfTheMainWindow_data()
    {
        const auto records = [](const QByteArray &height, const QByteArray &width) -> QByteArray { // 35 to 37
            return QByteArray("\3\0Yes", 5).leftJustified(20, '\0') + height.leftJustified(20, '\0') + width;
        };
        rows<bool, QSize, QByteArray>({
            {"full screen", true, {1920, 1080}, {"\2\0No", 4}},
            {"restored", false, {1024, 768}, records({"\x00\x2d", 2}, {"\x00\x3c", 2})},
            {"too small", false, {300, 200}, records("\x28\x23", "\xe0\x2e")},
            {"too large for a number", false, {3840, 2160}, records("\x90\x7e", "\xff\x7f")},
        });
    }

    void savesTheSizeOfTheMainWindow()
    {
        const auto [maximized, size, records] = row<bool, QSize, QByteArray>();
        QVERIFY(HINFO1::saveMainWindowSize(m_program->program, maximized, size));
        QCOMPARE(m_program->bytes(u"GColor3.Fil"_s).mid(34 * 20), records);
        QCOMPARE(m_program->state.screenMode, maximized ? ScreenMode::FullScreen : ScreenMode::Smaller);
    }

    void tellsWhatIsNotWritten()
    {
        for (const QString &name : {u"HINVNAME.FIL"_s, u"GColor3.Fil"_s})
            QVERIFY(QDir().mkdir(m_program->path(name)));
        m_program->dialogs.willInput(u"Holm"_s);
        QVERIFY(!HINFO1::askFamilyName(m_program->program, nullptr));
        QCOMPARE(m_program->state.familyName, FamilyName(u"Holm"_s));
        QString pending = u"255"_s;
        QVERIFY(
            !HINFO1::updateProgramColors(m_program->program, nullptr, pending, HINFO1::updateWithoutAsking));
        QVERIFY(!HINFO1::saveMainWindowSize(m_program->program, true, {}));
        QVERIFY(!HINFO1::saveMainWindowSize(m_program->program, false, {1024, 768}));
    }

    void waitsForTheNextSecond()
    {
        m_program->clock.time = QDateTime(QDate(2026, 11, 21), QTime(10, 24, 59));
        QElapsedTimer waited;
        waited.start();
        // The wrap from 59 to 0 counts; meanwhile messages are processed.
        QTimer::singleShot(100, this, [this] { m_program->clock.time = m_program->clock.time.addSecs(1); });
        HINFO1::pauseOneSecond(m_program->program);
        QVERIFY(waited.elapsed() >= 90 && waited.elapsed() < 1500);
        // A clock that stands still holds nobody up for ever.
        HINFO1::pauseOneSecond(m_program->program);
        QVERIFY(waited.elapsed() < 5000);
    }

private:
    std::unique_ptr<TestProgram> m_program;
};

QTEST_MAIN(TestHinfo1)
#include "tst_sharedprocedures.moc"
