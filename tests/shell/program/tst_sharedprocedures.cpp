// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/busycursor.h"
#include "shell/core/settingskeys.h"
#include "shell/core/shellmessages.h"
#include "shell/program/sharedprocedures.h"
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
    void init();
    void oneHourglassIsEnough();
    void asksForTheFamilyName_data();
    void asksForTheFamilyName();
    void cutsTheFamilyNameToFifteen();
    void writesAllProgramColors();
    void asksBeforeItWritesAllColors_data();
    void asksBeforeItWritesAllColors();
    void savesTheSizeOfTheMainWindow_data();
    void savesTheSizeOfTheMainWindow();
    void tellsWhatIsNotWritten();
    void waitsForTheNextSecond();

private:
    std::unique_ptr<TestProgram> m_program;
};

void TestHinfo1::init()
{
    m_program = std::make_unique<TestProgram>();
}

void TestHinfo1::oneHourglassIsEnough()
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

void TestHinfo1::asksForTheFamilyName_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QString>("typed"); ///< "<cancel>" for Cancel
    QTest::addColumn<QVector<Answer>>("answer");
    QTest::addColumn<QByteArray>("after");
    const QByteArray holm("\x04\0Holm", 6), lind("\x04\0Lind", 6), none("\0\0", 2), deleted("\0\0Holm", 6);
    const QVector<Answer> notAsked;
    QTest::newRow("a first name") << QByteArray() << u"Holm"_s << notAsked << holm;
    QTest::newRow("another name") << holm << u"Lind"_s << notAsked << lind;
    QTest::newRow("none stored, Cancel") << QByteArray() << u"<cancel>"_s << notAsked << none;
    QTest::newRow("Cancel, then Yes") << holm << u"<cancel>"_s << QVector<Answer>{Answer::Yes} << deleted;
    QTest::newRow("an empty box, then Yes") << holm << u""_s << QVector<Answer>{Answer::Yes} << deleted;
    QTest::newRow("an empty box, then No") << holm << u""_s << QVector<Answer>{Answer::No} << holm;
}

void TestHinfo1::asksForTheFamilyName()
{
    QFETCH(QByteArray, before);
    QFETCH(QString, typed);
    QFETCH(QVector<Answer>, answer);
    QFETCH(QByteArray, after);
    if (!before.isEmpty())
        m_program->setBytes(u"HINVNAME.FIL"_s, before);
    if (typed == "<cancel>"_L1)
        m_program->dialogs.willInput(std::nullopt);
    else
        m_program->dialogs.willInput(typed);
    if (!answer.isEmpty())
        m_program->dialogs.willAnswer(answer.first());
    QSignalSpy changed(&m_program->changes, &ProgramSignals::familyNameChanged);

    QVERIFY(HINFO1::askFamilyName(m_program->program, nullptr));

    QCOMPARE(m_program->bytes(u"HINVNAME.FIL"_s), after);
    QCOMPARE(m_program->state.familyName, FamilyName(m_program->settings.text(SettingsKeys::familyName)));
    QCOMPARE(changed.size(), 1);
    const QString stored = before.isEmpty() ? QString() : u"Holm"_s;
    QCOMPARE(
        m_program->dialogs.takePrompts(),
        (QStringList{u"Family Name"_s,
                     u"Please Enter Family Name for use in the Various Program areas.\n\nTo Accept name,\n"
                     "click OK.\n\nTo Delete name,\nclick Cancel or press <Esc> key."_s,
                     stored}));
    const QList<Message> shown = m_program->dialogs.takeShown();
    QCOMPARE(shown.size(), answer.size());
    if (!shown.isEmpty())
        QCOMPARE(shown.first(), (Message{u"Family Name"_s,
                                         u"Delete Family Name - Holm?"_s,
                                         Message::Question,
                                         {Answer::Yes, Answer::No},
                                         Answer::No}));
    QVERIFY(m_program->dialogs.isDone());
}

void TestHinfo1::cutsTheFamilyNameToFifteen()
{
    m_program->dialogs.willInput(u"ABCDEFGHIJKLMNOP"_s);
    QVERIFY(HINFO1::askFamilyName(m_program->program, nullptr));
    QCOMPARE(m_program->bytes(u"HINVNAME.FIL"_s), QByteArray("\x0f\0ABCDEFGHIJKLMNO", 17));
    QCOMPARE(m_program->state.familyName.caption(), u"ABCDEFGHIJKLMNO Quillery"_s);
    QCOMPARE(FamilyName().caption(), u"Quillery"_s);
}

void TestHinfo1::writesAllProgramColors()
{
    QSignalSpy changed(&m_program->changes, &ProgramSignals::panelColorsChanged);
    QString pending = u" 255 "_s;
    QVERIFY(HINFO1::updateProgramColors(m_program->program, nullptr, pending, HINFO1::updateWithoutAsking));
    QCOMPARE(pending, QString());
    QCOMPARE(changed.size(), 1);
    QVERIFY(m_program->dialogs.takeShown().isEmpty());

    const std::vector<std::pair<QString, QList<int>>> expected{
        {u"GColor1.Fil"_s, {10, 11, 12, 13, 16, 17, 18, 22, 27, 32, 36, 38, 40, 49, 54, 56, 70, 80}},
        {u"GColor2.Fil"_s, {5, 9, 12, 16, 19, 20, 22, 25, 40}},
        {u"GColor3.Fil"_s, {8, 17, 91, 92, 100, 101, 102, 103, 104, 105}}};
    for (const auto &[name, records] : expected) {
        QByteArray file((records.last() - 1) * 20 + 5, '\0');
        for (const int record : records)
            file.replace((record - 1) * 20, 5,
                         QByteArray("\x03\0"
                                    "255",
                                    5));
        QCOMPARE(m_program->bytes(name), file);
    }
}

void TestHinfo1::asksBeforeItWritesAllColors_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::addColumn<QString>("pending");
    QTest::addColumn<bool>("writes");
    QTest::newRow("Yes") << Answer::Yes << u"255"_s << true;
    QTest::newRow("No") << Answer::No << u"255"_s << false;
    QTest::newRow("Cancel") << Answer::Cancel << u"255"_s << false;
    QTest::newRow("nothing pending") << Answer::Yes << u"  "_s << false;
    QTest::newRow("too long for a record") << Answer::Yes << u"1234567890123456789"_s << false;
}

void TestHinfo1::asksBeforeItWritesAllColors()
{
    QFETCH(Answer, answer);
    QFETCH(QString, pending);
    m_program->dialogs.willAnswer(answer);
    QVERIFY(HINFO1::updateProgramColors(m_program->program, nullptr, pending, 0));
    QCOMPARE(pending, QString());
    QTEST(!m_program->bytes(u"GColor1.Fil"_s).isEmpty(), "writes");
    QCOMPARE(m_program->dialogs.takeShown(),
             QList<Message>{(Message{u"Complete Program Panel Color Update Option"_s,
                                     u"Save Panel Color Changes for ALL of the Program Functions?"_s,
                                     Message::Question,
                                     {Answer::Yes, Answer::No, Answer::Cancel},
                                     Answer::No})});
}

void TestHinfo1::savesTheSizeOfTheMainWindow_data()
{
    QTest::addColumn<bool>("maximized");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QByteArray>("records"); ///< 35 to 37
    const auto records = [](const char *mode, const QByteArray &height, const QByteArray &width) {
        const QByteArray first = QByteArray(1, char(qstrlen(mode))) + '\0' + mode;
        return height.isEmpty() ? first
                                : first.leftJustified(20, '\0') + height.leftJustified(20, '\0') + width;
    };
    QTest::newRow("full screen") << true << QSize(1920, 1080) << records("No", {}, {});
    QTest::newRow("restored") << false << QSize(1024, 768)
                              << records("Yes", QByteArray("\x00\x2d", 2), QByteArray("\x00\x3c", 2));
    QTest::newRow("too small") << false << QSize(300, 200)
                               << records("Yes", QByteArray("\x28\x23", 2), QByteArray("\xe0\x2e", 2));
    QTest::newRow("too large for a number")
        << false << QSize(3840, 2160) << records("Yes", QByteArray("\x90\x7e", 2), QByteArray("\xff\x7f", 2));
}

void TestHinfo1::savesTheSizeOfTheMainWindow()
{
    QFETCH(bool, maximized);
    QFETCH(QSize, size);
    QVERIFY(HINFO1::saveMainWindowSize(m_program->program, maximized, size));
    QTEST(m_program->bytes(u"GColor3.Fil"_s).mid(34 * 20), "records");
    QCOMPARE(m_program->state.screenMode, maximized ? ScreenMode::FullScreen : ScreenMode::Smaller);
}

void TestHinfo1::tellsWhatIsNotWritten()
{
    for (const QString &name : {u"HINVNAME.FIL"_s, u"GColor3.Fil"_s})
        QVERIFY(QDir().mkdir(m_program->path(name)));
    m_program->dialogs.willInput(u"Holm"_s);
    QVERIFY(!HINFO1::askFamilyName(m_program->program, nullptr));
    QCOMPARE(m_program->state.familyName, FamilyName(u"Holm"_s));
    QString pending = u"255"_s;
    QVERIFY(!HINFO1::updateProgramColors(m_program->program, nullptr, pending, HINFO1::updateWithoutAsking));
    QVERIFY(!HINFO1::saveMainWindowSize(m_program->program, true, {}));
    QVERIFY(!HINFO1::saveMainWindowSize(m_program->program, false, {1024, 768}));
}

void TestHinfo1::waitsForTheNextSecond()
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

QTEST_MAIN(TestHinfo1)
#include "tst_sharedprocedures.moc"
