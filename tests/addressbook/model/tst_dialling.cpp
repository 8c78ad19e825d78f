#include "addressbook/model/dialling.h"
#include "addressbook/model/messages.h"
#include "addressfiles.h"
#include "shell/core/settings.h"

#include <QTest>

#include <deque>

using namespace Qt::Literals::StringLiterals;

class TestDialling : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void dialsAndHangsUp_data();
    void dialsAndHangsUp();
    void neverOpensThePortWithoutANumber_data();
    void neverOpensThePortWithoutANumber();
    void takesThePortFromTheSettings_data();
    void takesThePortFromTheSettings();
    void asksForAnotherPort();
    void asksAgainForWhatIsNoPort();
    void givesUpWhenThePersonDoes();
    void aLineThatTakesNothingIsNoPort();
    void sendsNoCommandOfItsOwn();

private:
    std::unique_ptr<AddressFiles> m_files;
    std::unique_ptr<Settings> m_settings;
};

namespace {

/// Modem and desk in one, so that their turns stand in one record.
class Telephone final : public Modem, public CallDesk
{
public:
    QStringList record;
    QList<int> workingPorts{1};
    std::deque<std::optional<QString>> answers;
    QStringList offered;
    bool takesText = true;
    Answer closesWith = Answer::Ok;

    bool open(int port) override
    {
        record << u"open %1"_s.arg(port);
        return workingPorts.contains(port);
    }
    bool write(QByteArrayView text) override
    {
        record << u"send "_s + QString::fromLatin1(text).replace(u'\r', u"<CR>"_s);
        return takesText;
    }
    void close() override { record << u"close"_s; }
    QStringList ports() const override { return offered; }

    void setDialing(bool isDialing) override { record << (isDialing ? u"show"_s : u"hide"_s); }
    Answer ask(const Message &message) override
    {
        record << message.text.section(u'\n', 0, 0);
        return closesWith;
    }
    std::optional<QString> askPort(const QString &prompt, int current) override
    {
        record << prompt + u" [%1]"_s.arg(current);
        const auto answer = answers.empty() ? std::nullopt : answers.front();
        if (!answers.empty())
            answers.pop_front();
        return answer;
    }
};

} // namespace

void TestDialling::init()
{
    m_files = std::make_unique<AddressFiles>();
    m_settings = std::make_unique<Settings>(m_files->folder());
}

void TestDialling::dialsAndHangsUp_data()
{
    QTest::addColumn<Answer>("answer");
    QTest::newRow("OK") << Answer::Ok;
    QTest::newRow("Cancel") << Answer::Cancel;
}

void TestDialling::dialsAndHangsUp()
{
    QFETCH(Answer, answer);
    Telephone telephone;
    telephone.closesWith = answer;
    QCOMPARE(Dialling::call(u"(440) 555-0100"_s, telephone, *m_settings, telephone),
             Dialling::Outcome::Called);
    QCOMPARE(telephone.record,
             (QStringList{u"show"_s, u"open 1"_s, u"send ATDT (440) 555-0100;<CR>"_s,
                          u"Number Dialed: (440) 555-0100"_s, u"send ATH<CR>"_s, u"close"_s, u"hide"_s}));
}

void TestDialling::neverOpensThePortWithoutANumber_data()
{
    QTest::addColumn<QString>("number");
    QTest::newRow("empty") << QString();
    QTest::newRow("blanks") << u"   "_s;
    QTest::newRow("a line end") << u"\r\n"_s;
}

void TestDialling::neverOpensThePortWithoutANumber()
{
    QFETCH(QString, number);
    Telephone telephone;
    QCOMPARE(Dialling::call(number, telephone, *m_settings, telephone), Dialling::Outcome::NoNumber);
    QCOMPARE(telephone.record, QStringList{u"Please Enter a Valid Telephone Number!"_s});
}

void TestDialling::takesThePortFromTheSettings_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("port");
    const QByteArray before(24 * 20, '\0');
    QTest::newRow("no file") << QByteArray() << 1;
    QTest::newRow("never written") << before + QByteArray(20, '\0') << 1;
    QTest::newRow("three") << before + QByteArray("\3\0", 2) << 3;
    QTest::newRow("above a byte") << before + QByteArray("\1\1", 2) << 257;
    QTest::newRow("negative") << before + QByteArray("\xFF\xFF", 2) << 1;
    QTest::newRow("cut short") << before + QByteArray("\3", 1) << 1;
}

void TestDialling::takesThePortFromTheSettings()
{
    QFETCH(QByteArray, content);
    m_files->put(u"GColor1.Fil"_s, content);
    QTEST(Dialling::port(*m_settings), "port");
}

void TestDialling::asksForAnotherPort()
{
    m_files->put(u"GColor1.Fil"_s, QByteArray(24 * 20, 'x') + QByteArray("\3\0tail", 6));
    Telephone telephone;
    telephone.workingPorts = {258};
    telephone.answers = {u"4"_s, u" 258 "_s};
    telephone.offered = {u"258: ttyUSB0"_s};
    QCOMPARE(Dialling::call(u"555"_s, telephone, *m_settings, telephone), Dialling::Outcome::Called);
    const QString prompt = u"ENTER NEW PORT NUMBER BELOW:\n258: ttyUSB0"_s;
    QCOMPARE(telephone.record,
             (QStringList{u"show"_s, u"open 3"_s, u"CommPort is currently set at: 3"_s, prompt + u" [3]",
                          u"open 4"_s, u"CommPort is currently set at: 4"_s, prompt + u" [4]", u"open 258"_s,
                          u"send ATDT 555;<CR>"_s, u"Number Dialed: 555"_s, u"send ATH<CR>"_s, u"close"_s,
                          u"hide"_s}));
    QCOMPARE(m_files->bytes(u"GColor1.Fil"_s), QByteArray(24 * 20, 'x') + QByteArray("\2\1tail", 6));
}

void TestDialling::asksAgainForWhatIsNoPort()
{
    Telephone telephone;
    telephone.workingPorts = {2};
    telephone.answers = {QString(), u"COM2"_s, u"0"_s, u"-2"_s, u"32768"_s, u"99999999999"_s, u"2"_s};
    QCOMPARE(Dialling::call(u"555"_s, telephone, *m_settings, telephone), Dialling::Outcome::Called);
    QCOMPARE(telephone.record.filter(u"open"_s), (QStringList{u"open 1"_s, u"open 2"_s}));
    QCOMPARE(Dialling::port(*m_settings), 2);
}

void TestDialling::givesUpWhenThePersonDoes()
{
    Telephone telephone;
    telephone.workingPorts.clear();
    QCOMPARE(Dialling::call(u"555"_s, telephone, *m_settings, telephone), Dialling::Outcome::NoPort);
    QCOMPARE(telephone.record, (QStringList{u"show"_s, u"open 1"_s, u"CommPort is currently set at: 1"_s,
                                            u"ENTER NEW PORT NUMBER BELOW: [1]"_s, u"hide"_s}));
    QCOMPARE(m_files->bytes(u"GColor1.Fil"_s), QByteArray());
}

void TestDialling::aLineThatTakesNothingIsNoPort()
{
    Telephone telephone;
    telephone.takesText = false;
    QCOMPARE(Dialling::call(u"555"_s, telephone, *m_settings, telephone), Dialling::Outcome::NoPort);
    QCOMPARE(telephone.record.mid(1, 3), (QStringList{u"open 1"_s, u"send ATDT 555;<CR>"_s, u"close"_s}));
}

void TestDialling::sendsNoCommandOfItsOwn()
{
    QCOMPARE(Dialling::dialCommand(u"555\r\nATZ\x7F\0"_s), "ATDT 555ATZ;\r"_ba);
    QCOMPARE(Dialling::dialCommand(u"*70,W 555-0100 #9"_s), "ATDT *70,W 555-0100 #9;\r"_ba);
}

QTEST_GUILESS_MAIN(TestDialling)
#include "tst_dialling.moc"
