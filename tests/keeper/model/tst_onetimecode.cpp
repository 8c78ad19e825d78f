// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/onetimecode.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Hash = QCryptographicHash::Algorithm;

// The keys of RFC 6238, appendix B: "12345678901234567890" and so on, as long as the hash.
const QString shortKey = u"GEZDGNBVGY3TQOJQGEZDGNBVGY3TQOJQ"_s;
const QString middleKey = u"GEZDGNBVGY3TQOJQGEZDGNBVGY3TQOJQGEZDGNBVGY3TQOJQGEZA"_s;
const QString longKey = u"GEZDGNBVGY3TQOJQGEZDGNBVGY3TQOJQGEZDGNBVGY3TQOJQGEZDGNBVGY3TQOJQ"
                        "GEZDGNBVGY3TQOJQGEZDGNBVGY3TQOJQGEZDGNA"_s;

} // namespace

class TestOneTimeCode : public QObject
{
    Q_OBJECT
private slots:
    void givesTheCodesOfTheStandard_data()
    {
        rows<qint64, QString, QString, QString>({
            {"59", 59, u"94287082"_s, u"46119246"_s, u"90693936"_s},
            {"1111111109", 1111111109, u"07081804"_s, u"68084774"_s, u"25091201"_s},
            {"1111111111", 1111111111, u"14050471"_s, u"67062674"_s, u"99943326"_s},
            {"1234567890", 1234567890, u"89005924"_s, u"91819424"_s, u"93441116"_s},
            {"2000000000", 2000000000, u"69279037"_s, u"90698825"_s, u"38618901"_s},
            {"20000000000", 20000000000, u"65353130"_s, u"77737706"_s, u"47863826"_s},
        });
    }

    void givesTheCodesOfTheStandard()
    {
        const auto [time, sha1, sha256, sha512] = row<qint64, QString, QString, QString>();
        const auto code = [time = time](const QString &algorithm, const QString &key) {
            const auto secret = OneTimeSecret::read(
                u"otpauth://totp/x?digits=8&algorithm=%1&secret=%2"_s.arg(algorithm, key));
            return secret ? secret->code(time) : QString();
        };
        QCOMPARE(code(u"SHA1"_s, shortKey), sha1);
        QCOMPARE(code(u"SHA256"_s, middleKey), sha256);
        QCOMPARE(code(u"SHA512"_s, longKey), sha512);
        QCOMPARE(OneTimeSecret::read(shortKey)->code(time), sha1.right(6));
    }

    void reads_data()
    {
        const QByteArray hello("Hello!\xDE\xAD\xBE\xEF");
        rows<QString, OneTimeSecret>({
            {"a bare key", u"JBSWY3DPEHPK3PXP"_s, {hello}},
            {"in groups, small, padded", u" jbsw y3dp-ehpk 3pxp== "_s, {hello}},
            {"an address",
             u"otpauth://totp/Power%20Company:anne%40example.org?secret=JBSWY3DPEHPK3PXP&issuer=Power%20Company"_s,
             {hello, Hash::Sha1, 6, 30, u"Power Company"_s, u"anne@example.org"_s}},
            {"an address with everything",
             u"OTPAUTH://TOTP/anne?secret=jbswy3dpehpk3pxp&algorithm=HMAC-SHA-512&digits=8&period=60"_s,
             {hello, Hash::Sha512, 8, 60, {}, u"anne"_s}},
            {"the issuer in the label alone",
             u"otpauth://totp/Bank: anne?secret=JBSWY3DPEHPK3PXP"_s,
             {hello, Hash::Sha1, 6, 30, u"Bank"_s, u"anne"_s}},
        });
    }

    void reads()
    {
        const auto [text, expected] = row<QString, OneTimeSecret>();
        const auto secret = OneTimeSecret::read(text);
        QVERIFY(secret);
        QCOMPARE(*secret, expected);
        const auto again = OneTimeSecret::read(secret->text());
        QVERIFY(again);
        QCOMPARE(again->code(1'800'000'000), secret->code(1'800'000'000));
        QCOMPARE(again->period, secret->period);
    }

    void refuses_data()
    {
        rows<QString, QString>({
            {"nothing", {}, u"The key is too short"_s},
            {"one letter", u"J"_s, u"The key is too short"_s},
            {"a digit that is none of Base32", u"JBSW1"_s,
             u"A key has letters and the digits 2 to 7 only, not \u201c1\u201d"_s},
            {"counted codes", u"otpauth://hotp/anne?secret=JBSWY3DPEHPK3PXP&counter=1"_s,
             u"Only codes that change with the time are known (otpauth://totp/)"_s},
            {"no key", u"otpauth://totp/anne"_s, u"The key is too short"_s},
            {"seven digits", u"otpauth://totp/anne?secret=JBSWY3DP&digits=7"_s,
             u"A code has 6 or 8 digits"_s},
            {"another hash", u"otpauth://totp/anne?secret=JBSWY3DP&algorithm=MD5"_s,
             u"Only SHA-1, SHA-256 and SHA-512 are known"_s},
            {"no time", u"otpauth://totp/anne?secret=JBSWY3DP&period=0"_s,
             u"A code holds for 1 second to an hour"_s},
            {"a broken address", u"otpauth://to tp:x/%"_s, u"This is no address of a one-time secret"_s},
            {"noise", QString(100000, u'A'), u"This is too long for a key"_s},
        });
    }

    void refuses()
    {
        const auto [text, problem] = row<QString, QString>();
        QString told;
        QVERIFY(!OneTimeSecret::read(text, &told));
        QCOMPARE(told, problem);
    }

    void countsTheSecondsDown()
    {
        const OneTimeSecret secret{"key"};
        QCOMPARE(secret.secondsLeft(60), 30);
        QCOMPARE(secret.secondsLeft(89), 1);
        QCOMPARE(secret.code(60), secret.code(89));
        QVERIFY(secret.code(89) != secret.code(90));
    }
};

QTEST_APPLESS_MAIN(TestOneTimeCode)
#include "tst_onetimecode.moc"
