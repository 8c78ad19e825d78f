// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/model/dialling.h"
#include "addressbook/model/messages.h"
#include "shell/core/settings.h"
#include "tests/support/rows.h"
#include "tests/support/scriptedmodem.h"
#include "tests/support/testfiles.h"

#include <QDir>

#include <deque>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The desk of a call: its turns stand in the log of the line, among those of the modem.
class ScriptedDesk final : public CallDesk
{
public:
    explicit ScriptedDesk(TelephoneLine &line)
        : m_log(line.log)
    {}
    std::deque<std::optional<QString>> answers;
    Answer closesWith = Answer::Ok;

    void setDialing(bool isDialing) override { m_log << (isDialing ? u"show"_s : u"hide"_s); }
    Answer ask(const Message &message) override
    {
        m_log << message.text.section(u'\n', 0, 0);
        return closesWith;
    }
    std::optional<QString> askPort(const QString &prompt, int current) override
    {
        m_log << prompt + u" [%1]"_s.arg(current);
        const auto answer = answers.empty() ? std::nullopt : answers.front();
        if (!answers.empty())
            answers.pop_front();
        return answer;
    }
    void portNotSaved() override { m_log << u"not saved"_s; }

private:
    QStringList &m_log;
};

} // namespace

class TestDialling : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_files = std::make_unique<TestFolder>();
        m_settings = std::make_unique<Settings>(m_files->folder());
        m_line = {{1}, {}, true, {}};
    }

    void dialsAndHangsUp()
    {
        for (const Answer answer : {Answer::Ok, Answer::Cancel}) {
            ScriptedDesk desk(m_line);
            desk.closesWith = answer;
            m_line.log.clear();
            QCOMPARE(call(desk, u"(440) 555-0100"_s), Dialling::Outcome::Called);
            QCOMPARE(m_line.log,
                     (QStringList{u"show"_s, u"open 1"_s, u"ATDT (440) 555-0100;\r"_s,
                                  u"Number Dialed: (440) 555-0100"_s, u"ATH\r"_s, u"close"_s, u"hide"_s}));
        }
    }

    void neverOpensThePortWithoutANumber()
    {
        for (const QString &number : {QString(), u"   "_s, u"\r\n"_s}) {
            ScriptedDesk desk(m_line);
            m_line.log.clear();
            QCOMPARE(call(desk, number), Dialling::Outcome::NoNumber);
            QCOMPARE(m_line.log, QStringList{u"Please Enter a Valid Telephone Number!"_s});
        }
    }

    void takesThePortFromTheSettings_data()
    {
        const QByteArray before(24 * 20, '\0');
        rows<QByteArray, int>({
            {"no file", {}, 1},
            {"never written", before + QByteArray(20, '\0'), 1},
            {"above a byte", before + QByteArray("\1\1", 2), 257},
            {"negative", before + QByteArray("\xFF\xFF", 2), 1},
            {"cut short", before + QByteArray("\3", 1), 1},
        });
    }

    void takesThePortFromTheSettings()
    {
        const auto [content, port] = row<QByteArray, int>();
        m_files->put(u"GColor1.Fil"_s, content);
        QCOMPARE(Dialling::port(*m_settings), port);
    }

    void asksForAnotherPort()
    {
        m_files->put(u"GColor1.Fil"_s, QByteArray(24 * 20, 'x') + QByteArray("\3\0tail", 6));
        ScriptedDesk desk(m_line);
        m_line.workingPorts = {258};
        desk.answers = {u"4"_s, u" 258 "_s};
        m_line.offeredPorts = {u"258: ttyUSB0"_s};
        QCOMPARE(call(desk), Dialling::Outcome::Called);
        const QString prompt = u"ENTER NEW PORT NUMBER BELOW:\n258: ttyUSB0"_s;
        QCOMPARE(m_line.log, (QStringList{u"show"_s, u"open 3"_s, u"CommPort is currently set at: 3"_s,
                                          prompt + u" [3]", u"open 4"_s, u"CommPort is currently set at: 4"_s,
                                          prompt + u" [4]", u"open 258"_s, u"ATDT 555;\r"_s,
                                          u"Number Dialed: 555"_s, u"ATH\r"_s, u"close"_s, u"hide"_s}));
        QCOMPARE(m_files->bytes(u"GColor1.Fil"_s), QByteArray(24 * 20, 'x') + QByteArray("\2\1tail", 6));
    }

    void tellsThatAPortIsNotKept()
    {
        QVERIFY(QDir().mkdir(m_files->path(u"GColor1.Fil"_s)));
        ScriptedDesk desk(m_line);
        m_line.workingPorts = {2};
        desk.answers = {u"2"_s};
        QCOMPARE(call(desk), Dialling::Outcome::Called);
        QCOMPARE(m_line.log.mid(4, 2), (QStringList{u"not saved"_s, u"open 2"_s}));
    }

    void asksAgainForWhatIsNoPort()
    {
        ScriptedDesk desk(m_line);
        m_line.workingPorts = {2};
        desk.answers = {QString(), u"COM2"_s, u"0"_s, u"-2"_s, u"32768"_s, u"99999999999"_s, u"2"_s};
        QCOMPARE(call(desk), Dialling::Outcome::Called);
        QCOMPARE(m_line.log.filter(u"open"_s), (QStringList{u"open 1"_s, u"open 2"_s}));
        QCOMPARE(Dialling::port(*m_settings), 2);
    }

    void givesUpWhenThePersonDoes()
    {
        const QString prompt = u"ENTER NEW PORT NUMBER BELOW: [1]"_s;
        ScriptedDesk desk(m_line);
        m_line.workingPorts.clear();
        QCOMPARE(call(desk), Dialling::Outcome::NoPort);
        QCOMPARE(m_line.log, (QStringList{u"show"_s, u"open 1"_s, u"CommPort is currently set at: 1"_s,
                                          prompt, u"hide"_s}));
        QCOMPARE(m_files->bytes(u"GColor1.Fil"_s), QByteArray());
        // A line that takes nothing is no port.
        m_line = {{1}, {}, false, {}};
        QCOMPARE(call(desk), Dialling::Outcome::NoPort);
        QCOMPARE(m_line.log.mid(1, 3), (QStringList{u"open 1"_s, u"ATDT 555;\r"_s, u"close"_s}));
    }

    void sendsNoCommandOfItsOwn()
    {
        QCOMPARE(Dialling::dialCommand(u"555\r\nATZ\x7F\0"_s), "ATDT 555ATZ;\r"_ba);
        QCOMPARE(Dialling::dialCommand(u"*70,W 555-0100 #9"_s), "ATDT *70,W 555-0100 #9;\r"_ba);
    }

private:
    Dialling::Outcome call(ScriptedDesk &desk, const QString &number = u"555"_s)
    {
        ScriptedModem modem(m_line);
        return Dialling::call(number, modem, *m_settings, desk);
    }

    std::unique_ptr<TestFolder> m_files;
    std::unique_ptr<Settings> m_settings;
    TelephoneLine m_line;
};

QTEST_GUILESS_MAIN(TestDialling)
#include "tst_dialling.moc"
