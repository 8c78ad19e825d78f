#include "shell/core/settings.h"
#include "shell/core/settingskeys.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void readsEmptyValuesWithoutFiles();
    void makesAMissingFileEmpty();
    void writesTheFamilyNameByteForByte();
    void leavesOtherRecordsAlone();
    void writesNumbersAndTaggedValues();
    void clampsNumbers_data();
    void clampsNumbers();
    void refusesATextThatDoesNotFit();
    void takesBadFiles_data();
    void takesBadFiles();
    void findsFilesUnderAnySpelling();

private:
    QByteArray bytes(const QString &name) const;
    void setBytes(const QString &name, const QByteArray &bytes) const;

    std::unique_ptr<QTemporaryDir> m_temporary;
    std::unique_ptr<DataFolder> m_folder;
};

void TestSettings::init()
{
    m_temporary = std::make_unique<QTemporaryDir>();
    m_folder = std::make_unique<DataFolder>(m_temporary->path());
}

QByteArray TestSettings::bytes(const QString &name) const
{
    QFile file(m_temporary->filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
}

void TestSettings::setBytes(const QString &name, const QByteArray &bytes) const
{
    QFile file(m_temporary->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

void TestSettings::readsEmptyValuesWithoutFiles()
{
    Settings settings(*m_folder);
    QCOMPARE(settings.text(SettingsKeys::familyName), QString());
    QCOMPARE(settings.number(SettingsKeys::windowHeight), 0);
    QCOMPARE(settings.tagged(SettingsKeys::background), QString());
}

void TestSettings::makesAMissingFileEmpty()
{
    Settings settings(*m_folder);
    settings.text(SettingsKeys::familyName);
    QCOMPARE(bytes(u"HINVNAME.FIL"_s), QByteArray());
}

void TestSettings::writesTheFamilyNameByteForByte()
{
    Settings settings(*m_folder);
    QVERIFY(settings.setText(SettingsKeys::familyName, u"Jos\u00e9 Ortega M\u00fcl"_s));
    QCOMPARE(bytes(u"HINVNAME.FIL"_s), QByteArray("\x0f\0Jos\xe9 Ortega M\xfcl", 17));
    QVERIFY(settings.setText(SettingsKeys::familyName, QString()));
    QCOMPARE(bytes(u"HINVNAME.FIL"_s), QByteArray("\0\0Jos\xe9 Ortega M\xfcl", 17));
    QCOMPARE(settings.text(SettingsKeys::familyName), QString());
}

void TestSettings::leavesOtherRecordsAlone()
{
    Settings settings(*m_folder);
    const QByteArray before = QByteArray(54 * 20, 'a') + QByteArray(20, 'b') + QByteArray(30, 'c');
    setBytes(u"GColor1.Fil"_s, before);
    QVERIFY(settings.setText(SettingsKeys::topToolbar, u"OFF"_s));
    QCOMPARE(bytes(u"GColor1.Fil"_s),
             QByteArray(54 * 20, 'a') + QByteArray("\3\0OFF", 5) + QByteArray(15, 'b') + QByteArray(30, 'c'));
}

void TestSettings::writesNumbersAndTaggedValues()
{
    Settings settings(*m_folder);
    QVERIFY(settings.setNumber(SettingsKeys::sideToolbarMarker, 88));
    QVERIFY(settings.setTagged(SettingsKeys::background, u"WP16"_s));
    QCOMPARE(bytes(u"GHINV1.Fil"_s), QByteArray(20, '\0') + QByteArray("\x08\0\x04\0WP16", 8) +
                                         QByteArray(62, '\0') + QByteArray("\x58\0", 2));
    QCOMPARE(settings.tagged(SettingsKeys::background), u"WP16"_s);
    QCOMPARE(settings.number(SettingsKeys::sideToolbarMarker), 88);
}

void TestSettings::clampsNumbers_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("stored");
    QTest::newRow("fits") << -1 << -1;
    QTest::newRow("too large") << 60000 << 32767;
    QTest::newRow("too small") << -60000 << -32768;
}

void TestSettings::clampsNumbers()
{
    QFETCH(int, number);
    Settings settings(*m_folder);
    QVERIFY(settings.setNumber(SettingsKeys::windowWidth, number));
    QTEST(settings.number(SettingsKeys::windowWidth), "stored");
}

void TestSettings::refusesATextThatDoesNotFit()
{
    Settings settings(*m_folder);
    QVERIFY(settings.setText(SettingsKeys::mainMenuColor, QString(18, u'1')));
    const QByteArray before = bytes(u"GColor1.Fil"_s);
    QVERIFY(!settings.setText(SettingsKeys::mainMenuColor, QString(19, u'2')));
    QCOMPARE(bytes(u"GColor1.Fil"_s), before);
}

void TestSettings::takesBadFiles_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("number");
    QTest::newRow("cut in the count") << QByteArray("\x05") << QString() << 0;
    QTest::newRow("cut in the text") << QByteArray("\x05\0Hol", 5) << QString() << 5;
    QTest::newRow("a count beyond everything") << QByteArray("\xff\xffHolm", 6) << QString() << -1;
    QTest::newRow("whole") << QByteArray("\x04\0Holm", 6) << u"Holm"_s << 4;
}

void TestSettings::takesBadFiles()
{
    QFETCH(QByteArray, content);
    setBytes(u"HINVNAME.FIL"_s, content);
    Settings settings(*m_folder);
    QTEST(settings.text(SettingsKeys::familyName), "text");
    QTEST(settings.number({SettingsKeys::familyNameFile, 1}), "number");
}

void TestSettings::findsFilesUnderAnySpelling()
{
    setBytes(u"hinvname.Fil"_s, QByteArray("\x04\0Holm", 6));
    Settings settings(*m_folder);
    QCOMPARE(settings.text(SettingsKeys::familyName), u"Holm"_s);
    QVERIFY(settings.setText(SettingsKeys::familyName, u"Lind"_s));
    QCOMPARE(QDir(m_temporary->path()).entryList(QDir::Files), QStringList{u"hinvname.Fil"_s});

    // A folder where the file should be: nothing to read, nothing to write, no crash.
    QVERIFY(QDir(m_temporary->path()).mkdir(u"GColor3.Fil"_s));
    QCOMPARE(settings.text(SettingsKeys::smallerScreen), QString());
    QVERIFY(!settings.setText(SettingsKeys::smallerScreen, u"Yes"_s));
}

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
