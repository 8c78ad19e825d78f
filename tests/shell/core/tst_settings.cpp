// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/settings.h"
#include "shell/core/settingskeys.h"
#include "tests/support/household.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

class TestSettings : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_files = std::make_unique<TestFolder>();
        m_settings = std::make_unique<Settings>(m_files->folder());
    }

    void makesAMissingFileEmpty()
    {
        QCOMPARE(m_settings->text(SettingsKeys::familyName), QString());
        QCOMPARE(m_settings->number(SettingsKeys::windowHeight), 0);
        QCOMPARE(m_settings->tagged(SettingsKeys::background), QString());
        QVERIFY(QFile::exists(m_files->path(u"HINVNAME.FIL"_s)));
        QCOMPARE(m_files->bytes(u"HINVNAME.FIL"_s), QByteArray());
    }

    void writesOneRecordWithinItsLength()
    {
        const QByteArray before(54 * 20, 'a'), after(30, 'c');
        m_files->put(u"GColor1.Fil"_s, before + QByteArray(20, 'b') + after);
        QVERIFY(m_settings->setText(SettingsKeys::topToolbar, u"OFF"_s));
        QVERIFY(!m_settings->setText(SettingsKeys::topToolbar, QString(19, u'2')));
        QCOMPARE(m_files->bytes(u"GColor1.Fil"_s),
                 before + QByteArray("\3\0OFF", 5) + QByteArray(15, 'b') + after);
        QVERIFY(m_settings->setText(SettingsKeys::topToolbar, QString(18, u'1')));
        QCOMPARE(m_settings->text(SettingsKeys::topToolbar), QString(18, u'1'));
    }

    void writesNumbersAndTaggedValues()
    {
        QVERIFY(m_settings->setNumber(SettingsKeys::sideToolbarMarker, 88));
        QVERIFY(m_settings->setTagged(SettingsKeys::background, u"WP16"_s));
        QCOMPARE(m_files->bytes(u"GHINV1.Fil"_s), QByteArray(20, '\0') + QByteArray("\x08\0\x04\0WP16", 8) +
                                                      QByteArray(62, '\0') + QByteArray("\x58\0", 2));
        QCOMPARE(m_settings->tagged(SettingsKeys::background), u"WP16"_s);
        QCOMPARE(m_settings->number(SettingsKeys::sideToolbarMarker), 88);
        QVERIFY(m_settings->setNumber(SettingsKeys::windowWidth, 60000));
        QCOMPARE(m_settings->number(SettingsKeys::windowWidth), 32767);
    }

    void takesBadFiles_data()
    {
        rows<QByteArray, QString, int>({
            {"cut in the count", "\x05", {}, 0},
            {"cut in the text", QByteArray("\x05\0Hol", 5), {}, 5},
            {"a count beyond everything", "\xff\xffHolm", {}, -1},
            {"whole", QByteArray("\x04\0Holm", 6), u"Holm"_s, 4},
        });
    }

    void takesBadFiles()
    {
        const auto [content, text, number] = row<QByteArray, QString, int>();
        m_files->put(u"HINVNAME.FIL"_s, content);
        QCOMPARE(m_settings->text(SettingsKeys::familyName), text);
        QCOMPARE(m_settings->number({SettingsKeys::familyNameFile, 1}), number);
    }

    void readsTheHousehold()
    {
        const DataFolder folder(householdPath());
        Settings settings(folder);
        const QJsonObject expected = expectedOf(u"settings"_s);
        QCOMPARE(settings.text(SettingsKeys::familyName), expected["family_name"_L1].toString());
        QCOMPARE(settings.tagged(SettingsKeys::background), expected["background"_L1].toString());
        QCOMPARE(settings.number(SettingsKeys::modemPort), expected["modem_port"_L1].toInt());
        for (const SettingsFile &file :
             {SettingsKeys::colorFile1, SettingsKeys::colorFile2, SettingsKeys::colorFile3}) {
            const QJsonObject records = expected["colours"_L1][QLatin1StringView(file.name)].toObject();
            QVERIFY(!records.isEmpty());
            for (auto record = records.begin(); record != records.end(); ++record)
                QCOMPARE(settings.text({file, record.key().toInt()}), record->toString());
        }
    }

    void findsFilesUnderAnySpelling()
    {
        m_files->put(u"hinvname.Fil"_s, QByteArray("\x04\0Holm", 6));
        QCOMPARE(m_settings->text(SettingsKeys::familyName), u"Holm"_s);
        QVERIFY(m_settings->setText(SettingsKeys::familyName, u"Lind"_s));
        QCOMPARE(QDir(m_files->path({})).entryList(QDir::Files), QStringList{u"hinvname.Fil"_s});

        // A folder where the file should be: nothing to read, nothing to write, no crash.
        QVERIFY(QDir(m_files->path({})).mkdir(u"GColor3.Fil"_s));
        QCOMPARE(m_settings->text(SettingsKeys::smallerScreen), QString());
        QVERIFY(!m_settings->setText(SettingsKeys::smallerScreen, u"Yes"_s));
    }

private:
    std::unique_ptr<TestFolder> m_files;
    std::unique_ptr<Settings> m_settings;
};

QTEST_GUILESS_MAIN(TestSettings)
#include "tst_settings.moc"
