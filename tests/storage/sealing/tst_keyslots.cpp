// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/sealing/keyslots.h"
#include "tests/support/failingdisk.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"

#include <functional>

using namespace Qt::Literals::StringLiterals;
using State = KeySlots::State;

namespace {

const QString name = u"Secfile2.fil"_s;
const QString recoveryKey = u"7HJ4KM9QRST2VWXYZ01ABC3DEF"_s;

QByteArray upFrom(int first, int count)
{
    QByteArray bytes;
    for (int i = 0; i < count; ++i)
        bytes += char(first + i);
    return bytes;
}

const QByteArray theKey = upFrom(32, 32);

/// What both copies hold before and behind their number: the keeper's id is 0 to 15, the cost one pass and
/// 8 KiB, the password "S\u00e9same", the code `recoveryKey`.
QByteArray copyOf(const QByteArray &number, const QByteArray &wrongAnswers, const QByteArray &checksum)
{
    const QByteArray password = upFrom(100, 16) + upFrom(120, 24) +
                                QByteArray::fromHex("79386206de4882e4ccb76f5eba6f2b68762f54e4842ed897"
                                                    "5cf4b241cf3eea5183d31a16f041e7ae1d50cf57c2567bb9");
    const QByteArray code = upFrom(150, 16) + upFrom(170, 24) +
                            QByteArray::fromHex("5c3520d979588ac73a135133a8dd0d4ba414f72707b726fb"
                                                "e26b20845a374a3f35df798708a1a8343bd91ab10c264613");
    const QByteArray record = "QKEEPER\x01" + number + upFrom(0, 16) + QByteArray::fromHex("01000000") +
                              QByteArray::fromHex("0020000000000000") + password + code +
                              QByteArray(88, '\0') + wrongAnswers;
    return record + QByteArray(480 - record.size(), '\0') + QByteArray::fromHex(checksum);
}

/// Number 5, without wrong answers; number 6 after three, the first on 20 November 2025 at 21:04 UTC and the
/// last a minute later.
QByteArray elder()
{
    return copyOf(QByteArray("\x05\0\0\0", 4), QByteArray(20, '\0'),
                  "457affa5c4c1f738cc11575658a68c3c1c9ea002d884dc065fd2529e05f9c9f3");
}
QByteArray younger()
{
    return copyOf(QByteArray("\x06\0\0\0", 4),
                  QByteArray::fromHex("03000000"
                                      "40821f6900000000"
                                      "7c821f6900000000"),
                  "da725181d0e0fe2feeec638cfbfef90b37181a452fa0fe0d3498019b8523e3e1");
}

const QDateTime firstWrong = QDateTime::fromString(u"2025-11-20T21:04:00Z"_s, Qt::ISODate);

/// `record` with other bytes at `at`, and what its last 32 bytes must then be.
QByteArray with(QByteArray record, qsizetype at, const char *bytes, const char *checksum)
{
    const QByteArray put = QByteArray::fromHex(bytes);
    return record.replace(at, put.size(), put).replace(480, 32, QByteArray::fromHex(checksum));
}

KeyDerivation run(KeyDerivation derivation)
{
    derivation.run();
    return derivation;
}

} // namespace

class TestKeySlots : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_files = std::make_unique<TestFolder>(); }

    void opensWithPasswordAndCode()
    {
        m_files->put(name, elder() + younger());
        QCOMPARE(keySlots().state(), State::Whole);
        QCOMPARE(opened(KeySlots::Password, u"Se\u0301same"_s), theKey);
        QCOMPARE(opened(KeySlots::Recovery, recoveryKey), theKey);
        QCOMPARE(opened(KeySlots::Password, u"Sesame"_s), QByteArray());
        QCOMPARE(opened(KeySlots::Recovery, u"S\u00e9same"_s), QByteArray());
        QCOMPARE(opened(KeySlots::Password, {}), QByteArray());
        const KeySlots::WrongAnswers wrong = keySlots().content()->wrongAnswers;
        QCOMPARE(wrong, (KeySlots::WrongAnswers{3, firstWrong, firstWrong.addSecs(60)}));
        QCOMPARE(m_files->bytes(name), elder() + younger());
    }

    void tellsWhatTheFileIs_data()
    {
        QByteArray torn = younger();
        torn[470] = 1;
        QByteArray later = younger();
        later[7] = 2;
        const QByteArray wholeLater =
            with(younger(), 7, "02", "6efa888c04edefd0dd9091826b384ffb66b4957d0e09f4e9f530c2585cfbf3bb");
        const QByteArray tooMuchMemory =
            with(younger(), 32, "0100004000000000",
                 "46e54eced79736b7fb5228ac796fa5831b5a8958df9db8ec23b7e5d9fc3fc34d");
        const QByteArray tooManyPasses = with(
            younger(), 28, "11000000", "144ea54364a2bf0edcc1840779a7676e2b1c9de14119cce4575aef4e8977e33b");
        rows<QByteArray, State, int>({
            {"no file", {}, State::Missing, 0},
            {"both copies", elder() + younger(), State::Whole, 6},
            {"the younger first", younger() + elder(), State::Whole, 6},
            {"with a third record", elder() + younger() + QByteArray(512, '\x7f'), State::Whole, 6},
            {"second torn", elder() + torn, State::OneCopyDamaged, 5},
            {"first torn", torn + elder(), State::OneCopyDamaged, 5},
            {"first wiped", QByteArray(512, '\0') + younger(), State::OneCopyDamaged, 6},
            {"second missing", elder(), State::OneCopyDamaged, 5},
            {"second cut short", elder() + younger().first(511), State::OneCopyDamaged, 5},
            {"both torn", torn + torn, State::Damaged, 0},
            {"a few bytes", elder().first(100), State::Damaged, 0},
            {"more than 1 GiB", tooMuchMemory + tooMuchMemory, State::Damaged, 0},
            {"more than 16 passes", tooManyPasses + elder(), State::OneCopyDamaged, 5},
            {"a later version", later + later, State::Newer, 0},
            {"a later version half-way", elder() + wholeLater, State::Newer, 0},
            {"a letter", "Dear Anne,\r\n", State::Foreign, 0},
            {"zeros", QByteArray(1024, '\0'), State::Foreign, 0},
            {"another key file", QByteArray(elder()).replace(0, 7, "QJOURNL"), State::Foreign, 0},
        });
    }

    void tellsWhatTheFileIs()
    {
        const auto [bytes, state, number] = row<QByteArray, State, int>();
        m_files->put(name, bytes);
        QCOMPARE(keySlots().state(), state);
        const std::optional<KeySlots::Content> content = keySlots().content();
        QCOMPARE(content ? int(content->number) : 0, number);
        if (content)
            return;
        QVERIFY(!keySlots().opening(KeySlots::Password, SecretBytes::ofText(u"S\u00e9same"_s)));
        QVERIFY(!keySlots().countWrongAnswer(firstWrong));
        QVERIFY(!keySlots().forgetWrongAnswers());
        QVERIFY(!keySlots().setOpenRecord("12"));
        QVERIFY(!keySlots().setSlot(KeySlots::Password, fresh(u"New"_s), SecretBytes::copyOf(theKey)));
        QCOMPARE(m_files->bytes(name), bytes);
    }

    void opensNothingWrongWhateverByteChanges()
    {
        // Each byte of the copy that counts, and of one that stands alone.
        for (const bool isAlone : {false, true}) {
            for (qsizetype at = 0; at < 512; ++at) {
                QByteArray changed = younger();
                changed[at] = char(changed[at] ^ (1 << (at % 8)));
                const QByteArray other = isAlone ? QByteArray(512, '\0') : elder();
                std::optional<KeySlots::Content> content;
                const QByteArray bytes = other + changed;
                keySlots().parse(bytes, content);
                QCOMPARE(content ? int(content->number) : 0, isAlone ? 0 : 5);
            }
        }
    }

    void countsWrongAnswersInTheOtherCopy()
    {
        m_files->put(name, elder() + younger());
        QVERIFY(keySlots().countWrongAnswer(firstWrong.addSecs(120)));
        QCOMPARE(m_files->bytes(name).last(512), younger());
        QCOMPARE(m_files->bytes(name).mid(8, 4), QByteArray("\x07\0\0\0", 4));
        QCOMPARE(m_files->bytes(name).mid(304, 20),
                 QByteArray::fromHex("0400000040821f6900000000b8821f6900000000"));
        QVERIFY(keySlots().forgetWrongAnswers());
        QCOMPARE(keySlots().content()->number, 8U);
        QCOMPARE(keySlots().content()->wrongAnswers, KeySlots::WrongAnswers());
        const QByteArray before = m_files->bytes(name);
        QVERIFY(keySlots().forgetWrongAnswers());
        QCOMPARE(m_files->bytes(name), before);
        QCOMPARE(opened(KeySlots::Password, u"S\u00e9same"_s), theKey);
    }

    void mendsTheDamagedCopyWithTheNextWriting()
    {
        m_files->put(name, QByteArray(512, 'x') + younger());
        QVERIFY(keySlots().countWrongAnswer(firstWrong));
        QCOMPARE(keySlots().state(), State::Whole);
        QCOMPARE(opened(KeySlots::Recovery, recoveryKey), theKey);
    }

    void putsANewPasswordIntoBothCopies()
    {
        m_files->put(name, elder() + younger());
        QVERIFY(keySlots().setSlot(KeySlots::Password, fresh(u"New"_s), SecretBytes::copyOf(theKey)));
        for (const qsizetype damaged : {0, 512}) {
            QByteArray bytes = m_files->bytes(name);
            m_files->put(name, bytes.replace(damaged, 512, QByteArray(512, '\0')));
            QCOMPARE(opened(KeySlots::Password, u"S\u00e9same"_s), QByteArray());
            QCOMPARE(opened(KeySlots::Password, u"New"_s), theKey);
            QCOMPARE(opened(KeySlots::Recovery, recoveryKey), theKey);
            QVERIFY(keySlots().countWrongAnswer(firstWrong));
        }
    }

    void keepsOneOfTwoPasswordsWhereTheDiskFails_data()
    {
        rows<QByteArray>({
            {"both copies", elder() + younger()},
            {"a damaged one", elder() + QByteArray(512, 'x')},
            {"one alone", elder()},
        });
    }

    void keepsOneOfTwoPasswordsWhereTheDiskFails()
    {
        const QByteArray before = std::get<0>(row<QByteArray>());
        const KeyDerivation derived = fresh(u"New"_s);
        failAtEachStep(
            m_files->folder(), [&] { m_files->put(name, before); },
            [&] {
                KeySlots keys = keySlots();
                return keys.setSlot(KeySlots::Password, derived, SecretBytes::copyOf(theKey));
            },
            [this] {
                const bool isOld = opened(KeySlots::Password, u"S\u00e9same"_s) == theKey;
                const bool isNew = opened(KeySlots::Password, u"New"_s) == theKey;
                return std::pair(isOld, isNew);
            });
    }

    /// The program ended between the copies: the elder one must not stay open to the old password.
    void finishesAChangeThatWasInterrupted()
    {
        m_files->put(name, elder() + younger());
        {
            const FailingDisk disk(DiskFailure::TheEnd, 3);
            std::ignore =
                keySlots().setSlot(KeySlots::Password, fresh(u"New"_s), SecretBytes::copyOf(theKey));
        }
        QVERIFY(keySlots().forgetWrongAnswers());
        QVERIFY(keySlots().forgetWrongAnswers());
        m_files->put(name, QByteArray(512, '\0') + m_files->bytes(name).last(512));
        QCOMPARE(opened(KeySlots::Password, u"S\u00e9same"_s), QByteArray());
        QCOMPARE(opened(KeySlots::Password, u"New"_s), theKey);
    }

    void makesANewFile()
    {
        SecretBytes key;
        QByteArray id;
        const KeyDerivation password = fresh(u"Sesame"_s);
        const QByteArray bytes = keySlots().made(password, fresh(recoveryKey), key, id);
        QCOMPARE(bytes.size(), 1024);
        m_files->put(name, bytes);
        QCOMPARE(keySlots().state(), State::Whole);
        QCOMPARE(keySlots().content()->id, id);
        QCOMPARE(opened(KeySlots::Password, u"Sesame"_s), key.view().toByteArray());
        QCOMPARE(opened(KeySlots::Recovery, recoveryKey), key.view().toByteArray());
    }

    void tellsInTheOpenOnlyWhatItIsGiven()
    {
        m_files->put(name, elder() + younger());
        QVERIFY(keySlots().setOpenRecord({}));
        QCOMPARE(m_files->bytes(name).size(), 1024);
        QVERIFY(keySlots().setOpenRecord("dates"));
        QCOMPARE(keySlots().openRecord(), "dates" + QByteArray(507, '\0'));
        QVERIFY(keySlots().setOpenRecord({}));
        QCOMPARE(keySlots().openRecord(), QByteArray(512, '\0'));
        QCOMPARE(m_files->bytes(name).first(1024), elder() + younger());
    }

private:
    KeySlots keySlots() const { return {m_files->folder(), name, "QKEEPER"}; }
    static KeyDerivation fresh(const QString &text)
    {
        return run(KeyDerivation::fresh(SecretBytes::ofText(text), PasswordCost::minimum()));
    }
    /// The key, or nothing for a wrong password.
    QByteArray opened(KeySlots::Slot slot, const QString &text) const
    {
        std::optional<KeyDerivation> opening = keySlots().opening(slot, SecretBytes::ofText(text));
        if (!opening || !opening->run())
            return {};
        const std::optional<SecretBytes> key = keySlots().open(slot, *opening);
        return key ? key->view().toByteArray() : QByteArray();
    }

    std::unique_ptr<TestFolder> m_files;
};

QTEST_GUILESS_MAIN(TestKeySlots)
#include "tst_keyslots.moc"
