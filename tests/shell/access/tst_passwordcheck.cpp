// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/passwordcheck.h"
#include "storage/sealing/recoverycode.h"
#include "tests/support/failingdisk.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int recordLength = 140;
constexpr auto sesameVerifier = "$argon2id$v=19$m=8,t=1,p=1$EA12avHwkxNxcxzw5Ce9ng$"
                                "wYeDBE6Buzprzfvbd9dOePNR1efAdZRop+w/p/D7dM0";

QByteArray counted(const QByteArray &text)
{
    return QByteArray(1, char(text.size())) + '\0' + text;
}

/// Puts `value` at the start of record `number` of `file`; the rest of the record stays.
QByteArray &put(QByteArray &file, int number, const QByteArray &value)
{
    const qsizetype start = qsizetype(number - 1) * recordLength;
    if (file.size() < start + value.size())
        file.resize(start + value.size(), '\0');
    return file.replace(start, value.size(), value);
}

/// A whole file with the password "Sesame" that guards the address book (0) and area 6 of another edition.
QByteArray sesameFile()
{
    QByteArray file;
    put(file, 1, counted(sesameVerifier));
    for (int area = 0; area < ProtectedAreas::count; ++area)
        put(file, area + 2, counted(area == 0 || area == 6 ? "YES" : "NO"));
    return file;
}

} // namespace

class TestPasswordCheck : public QObject
{
    Q_OBJECT
private slots:
    void init() { QFile::remove(m_path); }

    void withoutAPasswordNothingIsGuarded()
    {
        QCOMPARE(file().state(), PasswordCheck::State::NotSet);
        QCOMPARE(file().areas(), ProtectedAreas());
        QVERIFY(!file().matches(QString()));
        QVERIFY(!file().setPassword(QString()));
        ProtectedAreas areas;
        areas.setFlag(9, u"YES"_s);
        QVERIFY(!file().saveAreas(areas));
        QVERIFY(!QFile::exists(m_path));

        setBytes({});
        QCOMPARE(file().state(), PasswordCheck::State::NotSet);
    }

    void readsAFileWrittenByHand()
    {
        setBytes(sesameFile());
        QCOMPARE(file().state(), PasswordCheck::State::Set);
        QVERIFY(file().matches(u"Sesame"_s));
        ProgramState state;
        file().load(state);
        for (int area = 0; area < ProtectedAreas::count; ++area)
            QCOMPARE(state.protectedAreas.isProtected(area), area == 0 || area == 6);
    }

    void writesVerifierAndFlagsAtTheirPlaces()
    {
        QVERIFY(file().setPassword(u"Sesame"_s));
        ProtectedAreas areas = file().areas();
        areas.setFlag(2, u"YES"_s);
        areas.setFlag(20, u"YES"_s);
        QVERIFY(file().saveAreas(areas));

        const QByteArray written = bytes();
        QCOMPARE(written.size(), 21 * recordLength + 5);
        QVERIFY(written.startsWith(QByteArray("\x5D\0$argon2id$v=19$m=8,t=1,p=1$", 29)));
        QCOMPARE(written.mid(95, recordLength - 95), QByteArray(recordLength - 95, '\0'));
        QByteArray flags = written.left(recordLength);
        for (int area = 0; area < ProtectedAreas::count; ++area)
            put(flags, area + 2, counted(area == 2 || area == 20 ? "YES" : "NO"));
        QCOMPARE(written, flags);
    }

    void countsWrongAnswersInTheirRecord()
    {
        setBytes(sesameFile());
        QCOMPARE(file().wrongAnswers(), WrongAnswers());
        file().addWrongAnswer(QDateTime(QDate(2026, 11, 20), QTime(21, 4, 31, 700)));
        QCOMPARE(file().addWrongAnswer(QDateTime(QDate(2026, 11, 21), QTime(8, 0))).count, 2);
        QByteArray counting = sesameFile();
        QCOMPARE(bytes(), put(counting, 23, counted("2;2026-11-20T21:04:31;2026-11-21T08:00:00")));
        QCOMPARE(file().state(), PasswordCheck::State::Set);
        QCOMPARE(file().takeWrongAnswers().count, 2);
        QCOMPARE(bytes(), put(counting, 23, QByteArray(43, '\0')));
        QCOMPARE(file().wrongAnswers(), WrongAnswers());
    }

    void takesNoiseForNoWrongAnswers_data()
    {
        rows<QByteArray>({
            {"cut short", "\x2A"},
            {"a count beyond the record", "\xFF\xFF"},
            {"words", counted("three;today;today")},
            {"no number of answers", counted("0;2026-11-20T21:04:31;2026-11-20T21:04:31")},
            {"a day that is none", counted("2;2026-11-31T21:04:31;2026-11-20T21:04:31")},
            {"one time", counted("2;2026-11-20T21:04:31")},
        });
    }

    void takesNoiseForNoWrongAnswers()
    {
        QByteArray content = sesameFile();
        const auto [noise] = row<QByteArray>();
        setBytes(put(content, 23, noise));
        QCOMPARE(file().state(), PasswordCheck::State::Set);
        QCOMPARE(file().wrongAnswers(), WrongAnswers());
    }

    void keepsTheRecoveryCodeAsThePassword()
    {
        setBytes(sesameFile());
        QVERIFY(!file().hasRecoveryCode());
        QVERIFY(!file().setRecoveryCode(u"no code"_s));
        const QString code = RecoveryCode::generate();
        const QString key = *RecoveryCode::read(code);
        QVERIFY(file().setRecoveryCode(code));
        const QByteArray withCode = bytes();
        QByteArray expected = sesameFile();
        put(expected, 24, withCode.mid(23 * recordLength));
        QCOMPARE(withCode, expected);
        QVERIFY(
            withCode.mid(23 * recordLength).startsWith(QByteArray("\x5D\0$argon2id$v=19$m=8,t=1,p=1$", 29)));
        QVERIFY(!withCode.contains(key.toLatin1()) && !withCode.contains(code.toLatin1()));
        QVERIFY(file().matchesRecoveryCode(key) && !file().matches(key));
        QVERIFY(!file().matchesRecoveryCode(u"Sesame"_s) && !file().matchesRecoveryCode({}));

        QVERIFY(file().setPassword(u"Tulips"_s)); // the code goes on
        QVERIFY(file().matchesRecoveryCode(key));
        QVERIFY(file().setPassword(u"Roses"_s, RecoveryCode::generate()));
        QVERIFY(!file().matchesRecoveryCode(key) && file().hasRecoveryCode());
        QVERIFY(file().removePassword());
        QVERIFY(!file().hasRecoveryCode());
        QCOMPARE(bytes().mid(23 * recordLength), QByteArray(95, '\0'));
    }

    void noiseInTheLastRecordIsNoCode_data()
    {
        rows<QByteArray>({
            {"cut short", QByteArray("\x5D\0$argon2id$v=19$m=8", 21)},
            {"a plain word", counted("Sesame")},
            {"one that asks for hours", counted(QByteArray(sesameVerifier).replace("t=1", "t=9999999"))},
        });
    }

    void noiseInTheLastRecordIsNoCode()
    {
        const auto [noise] = row<QByteArray>();
        QByteArray content = sesameFile();
        setBytes(put(content, 24, noise));
        QVERIFY(file().state() == PasswordCheck::State::Set && file().matches(u"Sesame"_s));
        QVERIFY(!file().hasRecoveryCode() && !file().matchesRecoveryCode(u"Sesame"_s));
    }

    void neverStoresThePassword()
    {
        QVERIFY(file().setPassword(u"Open sesame"_s));
        QVERIFY(file().setPassword(u"Tulips"_s));
        for (const char *part : {"sesame", "tulips"})
            QVERIFY2(!bytes().toLower().contains(part), part);
        // The same password gives another verifier each time, so that two households cannot be compared.
        const QByteArray before = bytes();
        QVERIFY(file().setPassword(u"Tulips"_s));
        QVERIFY(bytes() != before);
    }

    void comparesPasswords_data()
    {
        rows<QString, QString, bool>({
            {"the same", u"Sesame"_s, u"Sesame"_s, true},
            {"case counts", u"Sesame"_s, u"sesame"_s, false},
            {"blanks count", u"Sesame"_s, u"Sesame "_s, false},
            {"only a part", u"Sesame"_s, u"Sesam"_s, false},
            {"nothing typed", u"Sesame"_s, {}, false},
            {"beyond the code page", u"Ωμέγα 中文"_s, u"Ωμέγα 中文"_s, true},
            {"not the question marks of it", u"Ωμέγα"_s, u"?????"_s, false},
            {"an accent typed in two", u"José"_s, u"Jose\u0301"_s, true},
            {"longer than a record", QString(300, u'x'), QString(300, u'x'), true},
        });
    }

    void comparesPasswords()
    {
        const auto [password, typed, matches] = row<QString, QString, bool>();
        QVERIFY(file().setPassword(password));
        QCOMPARE(file().matches(typed), matches);
    }

    void savingTouchesOnlyTheFlagsThatChanged()
    {
        QByteArray before = sesameFile();
        put(before, 6 + 2, counted("YES ") + "kept");
        put(before, 7 + 2, counted({}) + "kept");
        put(before, 2 + 2, counted("NO") + "kept");
        setBytes(before);

        ProtectedAreas areas = file().areas();
        areas.setFlag(2, u"YES"_s);
        QVERIFY(file().saveAreas(areas));
        QCOMPARE(bytes(), put(before, 2 + 2, counted("YES") + "ept"));
    }

    void removalLeavesNothingToGuessFrom()
    {
        setBytes(sesameFile());
        QVERIFY(file().removePassword());
        QCOMPARE(file().state(), PasswordCheck::State::NotSet);
        QByteArray after(qsizetype(2) + qsizetype(qstrlen(sesameVerifier)), '\0');
        for (int area = 0; area < ProtectedAreas::count; ++area)
            put(after, area + 2, counted("NO") + (area == 0 || area == 6 ? "S" : ""));
        QCOMPARE(bytes(), after);
    }

    void tellsDamagedFiles_data()
    {
        using State = PasswordCheck::State;
        const QByteArray verifier(sesameVerifier);
        const auto changed = [&verifier](const char *from, const char *to) {
            return counted(QByteArray(verifier).replace(from, to));
        };
        rows<int, QByteArray, PasswordCheck::State>({
            {"untouched", 1, counted(verifier), State::Set},
            {"verifier of another kind", 1, changed("argon2id", "argon2i"), State::Damaged},
            {"verifier that asks for hours", 1, changed("t=1", "t=4000000"), State::Damaged},
            {"verifier that asks for all memory", 1, changed("m=8", "m=4194304"), State::Damaged},
            {"verifier without its end", 1, counted(verifier.left(60)), State::Damaged},
            {"verifier with a foreign letter", 1, changed("EA12", "E~12"), State::Damaged},
            {"zero byte in the verifier", 1,
             counted(QByteArray(verifier).replace(40, 1, QByteArray(1, '\0'))), State::Damaged},
            {"count beyond the record", 1, "\xFF\xFF", State::Damaged},
            {"count that fills the record too far", 1, "\x8B\0"_ba, State::Damaged},
            {"flags without a verifier", 1, QByteArray(2, '\0'), State::Damaged},
            {"a plain word", 1, counted("Sesame"), State::Damaged},
            {"flag in small letters", 2, counted("yes"), State::Damaged},
            {"flag behind a blank", 2, counted(" YES"), State::Damaged},
            {"flag with a blank behind it", 2, counted("YES "), State::Set},
            {"empty flag", 3, counted({}), State::Set},
            {"blank flag", 3, counted("  "), State::Set},
            {"flag of zero bytes", 3, counted(QByteArray(2, '\0')), State::Damaged},
            {"noise in the last flag", 22, counted("\xC3\x28"), State::Damaged},
            {"bytes behind the last record", 23, "\xFF\xFF", State::Set},
        });
    }

    void tellsDamagedFiles()
    {
        const auto [record, value, state] = row<int, QByteArray, PasswordCheck::State>();
        QByteArray content = sesameFile();
        setBytes(put(content, record, value));
        QCOMPARE(file().state(), state);
        if (file().state() != PasswordCheck::State::Damaged)
            return;
        QVERIFY(!file().matches(u"Sesame"_s));
        for (int area = 0; area < ProtectedAreas::count; ++area)
            QVERIFY(file().areas().isProtected(area));
    }

    void everyCutIsDamage()
    {
        const QByteArray whole = sesameFile();
        for (qsizetype length = 1; length < whole.size(); ++length) {
            setBytes(whole.left(length));
            QVERIFY2(file().state() == PasswordCheck::State::Damaged, qPrintable(QString::number(length)));
        }
    }

    void aFolderInItsPlaceIsDamage()
    {
        QVERIFY(QDir(m_files.path({})).mkdir(u"pctrl1.fil"_s));
        expectWarning("(?i)^Cannot read .*pctrl1.fil$");
        QCOMPARE(file().state(), PasswordCheck::State::Damaged);
        expectWarning("(?i)^Cannot read .*pctrl1.fil$");
        QVERIFY(!file().setPassword(u"Sesame"_s));
        QVERIFY(QDir(m_files.path({})).rmdir(u"pctrl1.fil"_s));
    }

    void aDamagedFileIsNotTouched()
    {
        const QByteArray cut = sesameFile().left(1000);
        setBytes(cut);
        QVERIFY(!file().setPassword(u"Tulips"_s));
        QVERIFY(!file().removePassword());
        QVERIFY(!file().saveAreas({}));
        QCOMPARE(bytes(), cut);
    }

    /// The old password with its marks or the new one: nothing between them ever opens an area.
    void isOldOrNewAfterEveryFailure()
    {
        failAtEachStep(
            m_files.folder(), [this] { setBytes(sesameFile()); },
            [this] { return file().setPassword(u"Tulips"_s); },
            [this] { // but for the verifier, which salt makes another each time
                return std::tuple(bytes() == sesameFile(), bytes().mid(recordLength),
                                  file().matches(u"Sesame"_s), file().matches(u"Tulips"_s));
            });
    }

private:
    QByteArray bytes() const { return m_files.bytes(u"PCtrl1.Fil"_s); }
    void setBytes(const QByteArray &bytes) const { m_files.put(u"PCtrl1.Fil"_s, bytes); }
    PasswordCheck file() const { return PasswordCheck(m_files.folder(), PasswordCost::minimum()); }

    TestFolder m_files;
    QString m_path = m_files.path(u"PCtrl1.Fil"_s);
};

QTEST_APPLESS_MAIN(TestPasswordCheck)
#include "tst_passwordcheck.moc"
