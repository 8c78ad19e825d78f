// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/settings.h"
#include "shell/core/settingskeys.h"
#include "tests/support/testfiles.h"

#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_files = std::make_unique<TestFolder>(); }
    void readsEmptyValuesWithoutFiles();
    void makesAMissingFileEmpty();
    void writesTheFamilyNameByteForByte();
    void leavesOtherRecordsAlone();
    void writesNumbersAndTaggedValues();
    void refusesATextThatDoesNotFit();
    void takesBadFiles_data();
    void takesBadFiles();
    void findsFilesUnderAnySpelling();

private:
    QByteArray bytes(const QString &name) const { return m_files->bytes(name); }

    std::unique_ptr<TestFolder> m_files;
};

void TestSettings::readsEmptyValuesWithoutFiles()
{
    Settings settings(m_files->folder());
    QCOMPARE(settings.text(SettingsKeys::familyName), QString());
    QCOMPARE(settings.number(SettingsKeys::windowHeight), 0);
    QCOMPARE(settings.tagged(SettingsKeys::background), QString());
}

void TestSettings::makesAMissingFileEmpty()
{
    Settings settings(m_files->folder());
    settings.text(SettingsKeys::familyName);
    QVERIFY(QFile::exists(m_files->path(u"HINVNAME.FIL"_s)));
    QCOMPARE(bytes(u"HINVNAME.FIL"_s), QByteArray());
}

void TestSettings::writesTheFamilyNameByteForByte()
{
    Settings settings(m_files->folder());
    QVERIFY(settings.setText(SettingsKeys::familyName, u"Jos\u00e9 Ortega M\u00fcl"_s));
    QCOMPARE(bytes(u"HINVNAME.FIL"_s), QByteArray("\x0f\0Jos\xe9 Ortega M\xfcl", 17));
    QVERIFY(settings.setText(SettingsKeys::familyName, QString()));
    QCOMPARE(bytes(u"HINVNAME.FIL"_s), QByteArray("\0\0Jos\xe9 Ortega M\xfcl", 17));
    QCOMPARE(settings.text(SettingsKeys::familyName), QString());
}

void TestSettings::leavesOtherRecordsAlone()
{
    Settings settings(m_files->folder());
    const QByteArray before = QByteArray(54 * 20, 'a') + QByteArray(20, 'b') + QByteArray(30, 'c');
    m_files->put(u"GColor1.Fil"_s, before);
    QVERIFY(settings.setText(SettingsKeys::topToolbar, u"OFF"_s));
    QCOMPARE(bytes(u"GColor1.Fil"_s),
             QByteArray(54 * 20, 'a') + QByteArray("\3\0OFF", 5) + QByteArray(15, 'b') + QByteArray(30, 'c'));
}

void TestSettings::writesNumbersAndTaggedValues()
{
    Settings settings(m_files->folder());
    QVERIFY(settings.setNumber(SettingsKeys::sideToolbarMarker, 88));
    QVERIFY(settings.setTagged(SettingsKeys::background, u"WP16"_s));
    QCOMPARE(bytes(u"GHINV1.Fil"_s), QByteArray(20, '\0') + QByteArray("\x08\0\x04\0WP16", 8) +
                                         QByteArray(62, '\0') + QByteArray("\x58\0", 2));
    QCOMPARE(settings.tagged(SettingsKeys::background), u"WP16"_s);
    QCOMPARE(settings.number(SettingsKeys::sideToolbarMarker), 88);
    QVERIFY(settings.setNumber(SettingsKeys::windowWidth, 60000));
    QCOMPARE(settings.number(SettingsKeys::windowWidth), 32767);
}

void TestSettings::refusesATextThatDoesNotFit()
{
    Settings settings(m_files->folder());
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
    m_files->put(u"HINVNAME.FIL"_s, content);
    Settings settings(m_files->folder());
    QTEST(settings.text(SettingsKeys::familyName), "text");
    QTEST(settings.number({SettingsKeys::familyNameFile, 1}), "number");
}

void TestSettings::findsFilesUnderAnySpelling()
{
    m_files->put(u"hinvname.Fil"_s, QByteArray("\x04\0Holm", 6));
    Settings settings(m_files->folder());
    QCOMPARE(settings.text(SettingsKeys::familyName), u"Holm"_s);
    QVERIFY(settings.setText(SettingsKeys::familyName, u"Lind"_s));
    QCOMPARE(QDir(m_files->path({})).entryList(QDir::Files), QStringList{u"hinvname.Fil"_s});

    // A folder where the file should be: nothing to read, nothing to write, no crash.
    QVERIFY(QDir(m_files->path({})).mkdir(u"GColor3.Fil"_s));
    QCOMPARE(settings.text(SettingsKeys::smallerScreen), QString());
    QVERIFY(!settings.setText(SettingsKeys::smallerScreen, u"Yes"_s));
}

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
