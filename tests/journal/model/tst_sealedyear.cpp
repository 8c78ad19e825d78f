// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/sealedyear.h"
#include "tests/support/rows.h"

#include <QTest>
#include <QtEndian>

#include <sodium.h>

#include <algorithm>
#include <functional>

using namespace Qt::Literals::StringLiterals;
using Kind = SealedDamage::Kind;

namespace {

const QByteArray theKey = QByteArray(31, 'k') + '!';
const QByteArray theHead = "QJOURNL\x01" + QByteArray(504, 'h');
const QByteArray first =
    "=== 2026-03-14\r\nwritten 2026-03-15 08:12\r\ntags garden\r\n\r\nThe ferry to \xc3\x85rhus.\r\n";
const QByteArray firstEarlier = "=== 2026-03-14 earlier\r\nwritten 2026-03-14 21:00\r\n\r\nThe fer\r\n";
const QByteArray second = "=== 2026-03-16\r\n\r\n" + QByteArray(400, 'x') + "\r\n";
const QByteArray third = "=== 2026-12-31\nmood fine\n\n\\=== not a day\n";
const QByteArray plainLine = "Quillery journal 1\r\n";

SecretBytes key()
{
    return SecretBytes::copyOf(theKey);
}

/// What the library itself makes of `plain`: its length, the nonce, the sealed text with its tag.
QByteArray record(QByteArray plain, const QByteArray &nonce,
                  const QByteArray &context = "Quillery journal 1 2026 entry")
{
    plain += '\x80';
    plain += QByteArray((256 - plain.size() % 256) % 256, '\0');
    QByteArray sealed(plain.size() + 16, '\0');
    const auto *added = reinterpret_cast<const unsigned char *>(context.constData());
    crypto_aead_xchacha20poly1305_ietf_encrypt(reinterpret_cast<unsigned char *>(sealed.data()), nullptr,
                                               reinterpret_cast<const unsigned char *>(plain.constData()),
                                               quint64(plain.size()), added, quint64(context.size()), nullptr,
                                               reinterpret_cast<const unsigned char *>(nonce.constData()),
                                               reinterpret_cast<const unsigned char *>(theKey.constData()));
    QByteArray length(4, '\0');
    qToLittleEndian<quint32>(quint32(24 + sealed.size()), length.data());
    return length + nonce + sealed;
}

QByteArray list(const QByteArray &lines)
{
    return record(lines, QByteArray(24, 'L'), "Quillery journal 1 2026 list");
}

const QByteArray line1 = "2026-03-14 entry " + QByteArray("41").repeated(24) + "\r\n";
const QByteArray line1e = "2026-03-14 earlier " + QByteArray("61").repeated(24) + "\r\n";
const QByteArray line2 = "2026-03-16 entry " + QByteArray("42").repeated(24) + "\r\n";
const QByteArray line3 = "2026-12-31 entry " + QByteArray("43").repeated(24) + "\r\n";

QByteArray record1()
{
    return record(first, QByteArray(24, 'A'));
}
QByteArray record1e()
{
    return record(firstEarlier, QByteArray(24, 'a'));
}
QByteArray record2()
{
    return record(second, QByteArray(24, 'B'));
}
QByteArray record3()
{
    return record(third, QByteArray(24, 'C'));
}
QByteArray beginning()
{
    return "Quillery journal sealed 1\r\n" + theHead;
}
QByteArray fullList()
{
    return list(line1 + line1e + line2 + line3);
}
QByteArray whole()
{
    return beginning() + fullList() + record1() + record1e() + record2() + record3();
}
QByteArray wholePlain()
{
    return plainLine + first + firstEarlier + second + third;
}

/// "unreadable 2026-03-14 earlier", "list -" ...
QStringList told(const std::vector<SealedDamage> &damage)
{
    const QStringList kinds{u"unreadable"_s, u"missing"_s, u"unlisted"_s,
                            u"doubled"_s,    u"moved"_s,   u"list"_s};
    QStringList told;
    for (const SealedDamage &each : damage) {
        const QDate date = each.label.date;
        told += kinds[int(each.kind)] + u' ' + (date.isValid() ? date.toString(Qt::ISODate) : u"-"_s) +
                (each.label.kind == SealedLabel::Kind::Earlier ? u" earlier"_s : QString());
    }
    return told;
}

QByteArray changed(QByteArray bytes, qsizetype at, int bit)
{
    bytes[at] = char(bytes[at] ^ (1 << bit));
    return bytes;
}

} // namespace

class TestSealedYear : public QObject
{
    Q_OBJECT
private slots:
    void opensWhatTheLibrarySealed()
    {
        const SecretBytes theKey = key();
        const SealedYear year(2026, whole(), theKey);
        QCOMPARE(year.plain(), wholePlain());
        QCOMPARE(told(year.damage()), QStringList());
        QVERIFY(SealedYear::isSealed(whole()) && !SealedYear::isLater(whole()));
        QCOMPARE(SealedYear::head(whole()).toByteArray(), theHead);
        // In another year, under another key or with another purpose nothing opens.
        QVERIFY(SealedYear(2025, whole(), theKey).isShut());
        QVERIFY(SealedYear(2026, whole(), SecretBytes::copyOf(QByteArray(32, 'k'))).isShut());
    }

    void keepsAnyPlainFileAsItIs_data()
    {
        rows<QByteArray>({
            {"no entry", plainLine},
            {"line feeds", "Quillery journal 1\n=== 2026-01-02\n\nText\n"},
            {"lines before the first entry", plainLine + "a note\r\n\r\n=== 2026-01-02\r\n\r\nText"},
            {"double dates, a date that is none",
             plainLine + first + first + "=== 2026-99-99\r\n=== x\r\n" + third},
            {"another year's date", plainLine + "=== 1999-01-01\r\n\r\nText\r\n"},
            {"Windows-1252", plainLine + "=== 2026-01-02\r\n\r\nCaf\xe9\r\n"},
            {"256 bytes and one less",
             plainLine + first + QByteArray(256, 'y') + second + QByteArray(255, 'z')},
            {"no line end", plainLine + "=== 2026-01-02"},
        });
    }

    void keepsAnyPlainFileAsItIs()
    {
        const auto [plain] = row<QByteArray>();
        const SecretBytes theKey = key();
        const QByteArray sealed = SealedYear::sealed(2026, plain, theHead, theKey);
        const SealedYear year(2026, sealed, theKey);
        QCOMPARE(year.plain(), plain);
        QCOMPARE(told(year.damage()), QStringList());
        QVERIFY(sealed.startsWith(beginning()));
    }

    void sealsEachTextAnewOnce()
    {
        const SecretBytes theKey = key();
        const QByteArray text = "Another text\r\n";
        const QByteArray plain = plainLine + first + firstEarlier + "=== 2026-03-16\r\n\r\n" + text + third;
        const QByteArray sealed = SealedYear(2026, whole(), theKey).changedTo(plain, theHead);
        QVERIFY(sealed.contains(QByteArray(record1() + record1e())) && sealed.endsWith(record3()));
        QVERIFY(!sealed.contains(QByteArray(24, 'B')) && !sealed.contains(QByteArray(24, 'L')));
        const SealedYear year(2026, sealed, theKey);
        QCOMPARE(year.plain(), plain);
        QCOMPARE(told(year.damage()), QStringList());
        QVERIFY(SealedYear::sealed(2026, plain, theHead, theKey) !=
                SealedYear::sealed(2026, plain, theHead, theKey));
    }

    /// One save after the other, of which only the first opens what is there.
    void goesOnFromWhatItWrote()
    {
        const SecretBytes theKey = key();
        SealedYear year(2026, whole(), theKey);
        const QByteArray other = "=== 2026-03-16\r\n\r\nAnother text\r\n";
        const QByteArrayList texts{first + firstEarlier + other + third,
                                   third,
                                   {},
                                   first + firstEarlier + second + third,
                                   "a note\r\n" + first + first + third};
        for (const QByteArray &text : texts) {
            const QByteArray plain = plainLine + text;
            year.change(plain, theHead);
            const SealedYear opened(2026, year.bytes(), theKey);
            QCOMPARE(opened.plain(), plain);
            QCOMPARE(told(opened.damage()), QStringList());
            QCOMPARE(year.plain(), plain);
        }
        const QByteArray before = year.bytes();
        year.change(year.plain() + second, theHead);
        const qsizetype records = SealedYear::recordsAt + fullList().size(); // five lines fit its padding
        QCOMPARE(year.bytes().sliced(records).first(before.size() - records), before.sliced(records));
    }

    void tellsByDateWhatIsAmiss_data()
    {
        const QByteArray torn = changed(record2(), 100, 3);
        const QByteArray other = record("=== 2026-03-16\r\n\r\nAs it was\r\n", QByteArray(24, 'b'));
        const QByteArray lost = record("=== 2026-07-01\r\n\r\nOf an older copy\r\n", QByteArray(24, 'o'));
        rows<QByteArray, QByteArray, QStringList>({
            {"a text",
             fullList() + record1() + record1e() + torn + record3(),
             first + firstEarlier + third,
             {u"unreadable 2026-03-16"_s}},
            {"a nonce",
             fullList() + record1() + changed(record1e(), 4, 0) + record2() + record3(),
             first + second + third,
             {u"unreadable 2026-03-14 earlier"_s}},
            {"a length",
             fullList() + record1() + record1e() + changed(record2(), 1, 0) + record3(),
             first + firstEarlier + second + third,
             {}},
            {"the list",
             changed(fullList(), 60, 5) + record1() + record1e() + record2() + record3(),
             first + firstEarlier + second + third,
             {u"list -"_s}},
            {"the length of the list",
             changed(fullList(), 1, 1) + record1() + record1e() + record2() + record3(),
             first + firstEarlier + second + third,
             {}},
            {"no list",
             record1() + record1e() + record2() + record3(),
             first + firstEarlier + second + third,
             {u"list -"_s}},
            {"list and text",
             changed(fullList(), 60, 5) + record1() + record1e() + torn + record3(),
             first + firstEarlier + third,
             {u"list -"_s, u"unreadable -"_s}},
            {"missing",
             fullList() + record1() + record2() + record3(),
             first + second + third,
             {u"missing 2026-03-14 earlier"_s}},
            {"doubled",
             fullList() + record1() + record1e() + record2() + record2() + record3(),
             first + firstEarlier + second + third,
             {u"doubled 2026-03-16"_s}},
            {"swapped",
             fullList() + record2() + record1e() + record1() + record3(),
             first + firstEarlier + second + third,
             {u"moved 2026-03-16"_s, u"moved 2026-03-14"_s}},
            {"an older one beside it",
             fullList() + record1() + record1e() + record2() + other + record3(),
             first + firstEarlier + second + third,
             {u"unlisted 2026-03-16"_s}},
            {"an older one in its place",
             fullList() + record1() + record1e() + other + record3(),
             first + firstEarlier + "=== 2026-03-16\r\n\r\nAs it was\r\n" + third,
             {u"missing 2026-03-16"_s, u"unlisted 2026-03-16"_s}},
            {"an older one of another day",
             fullList() + lost + record1() + record1e() + record2() + record3(),
             first + firstEarlier + second + "=== 2026-07-01\r\n\r\nOf an older copy\r\n" + third,
             {u"unlisted 2026-07-01"_s}},
            {"the end",
             fullList() + record1() + record1e() + record2().first(500),
             first + firstEarlier,
             {u"missing 2026-12-31"_s, u"unreadable 2026-03-16"_s}},
            {"two in a row",
             fullList() + changed(record1(), 200, 0) + changed(record1e(), 2, 7) + record2() + record3(),
             firstEarlier + second + third,
             {u"unreadable 2026-03-14"_s}},
        });
    }

    void tellsByDateWhatIsAmiss()
    {
        const auto [records, plain, damage] = row<QByteArray, QByteArray, QStringList>();
        const SecretBytes theKey = key();
        const SealedYear year(2026, beginning() + records, theKey);
        QCOMPARE(year.plain(), plainLine + plain);
        QCOMPARE(told(year.damage()), damage);

        // A save of what shows, with a new day, loses nothing of the rest.
        const QByteArray day = "=== 2026-12-31\r\n\r\nLate\r\n";
        const QByteArray saved = year.changedTo(plainLine + plain + day, theHead);
        const SealedYear again(2026, saved, theKey);
        QCOMPARE(again.plain(), plainLine + plain + day);
        for (const SealedDamage &each : year.damage()) {
            if (each.kind == Kind::Unreadable)
                QVERIFY(std::ranges::count(again.damage(), each) == 1);
        }
        SealedYear kept = again;
        for (int i = 0; i < 2; ++i)
            kept.change(again.plain(), theHead);
        QCOMPARE(kept.bytes().last(300), saved.last(300));
        QCOMPARE(told(SealedYear(2026, kept.bytes(), theKey).damage()), told(again.damage()));
    }

    void namesWhatIsMissingUntilItsDayIsWrittenAgain()
    {
        const SecretBytes theKey = key();
        const SealedYear year(2026, beginning() + fullList() + record1() + record1e() + record3(), theKey);
        const QByteArray saved = year.changedTo(year.plain() + "=== 2026-12-31\r\n\r\nLate\r\n", theHead);
        const SealedYear again(2026, saved, theKey);
        QCOMPARE(told(again.damage()), QStringList{u"missing 2026-03-16"_s});
        const QByteArray mended = again.changedTo(wholePlain(), theHead);
        QCOMPARE(told(SealedYear(2026, mended, theKey).damage()), QStringList());
    }

    /// Each day is as it was, or is told as damaged; and a save afterwards keeps the damaged bytes.
    void losesOneDayAtMostToABit()
    {
        const SecretBytes theKey = key();
        const QByteArray bytes = whole();
        const std::array<QByteArray, 4> texts{first, firstEarlier, second, third};
        for (qsizetype at = 0; at < bytes.size(); ++at) {
            const QByteArray torn = changed(bytes, at, int(at % 8));
            if (!SealedYear::isSealed(torn) || SealedYear::isLater(torn))
                QFAIL("not told as a sealed year");
            const SealedYear year(2026, torn, theKey);
            const auto there = std::ranges::count_if(
                texts, [&year](const QByteArray &text) { return year.plain().contains(text); });
            const auto damaged = std::ranges::count(year.damage(), Kind::Unreadable, &SealedDamage::kind);
            QVERIFY2(there + damaged == 4 && damaged <= 1, QByteArray::number(at));
            QVERIFY2(year.plain().size() <= wholePlain().size(), QByteArray::number(at));
            if (damaged == 1) {
                const QByteArray saved = year.changedTo(year.plain() + "=== 2026-12-31\r\n\r\n", theHead);
                QVERIFY2(told(SealedYear(2026, saved, theKey).damage()) == told(year.damage()),
                         QByteArray::number(at));
                // Behind the list, which is of new random bytes.
                const qsizetype list = SealedYear::recordsAt;
                const qsizetype records = list + 4 + qFromLittleEndian<quint32>(saved.constData() + list);
                const QByteArray back =
                    changed(saved, saved.indexOf(torn.sliced(at - 4, 5), records - 4) + 4, int(at % 8));
                QCOMPARE(SealedYear(2026, back, theKey).damage().size(), std::size_t(0));
            }
        }
    }

    void opensWhatIsLeftOfAYearCutShort()
    {
        const SecretBytes theKey = key();
        for (qsizetype length = 0; length < whole().size(); ++length) {
            const SealedYear year(2026, whole().first(length), theKey);
            QVERIFY(wholePlain().startsWith(year.plain()));
            const QByteArray saved = year.changedTo(year.plain(), theHead);
            QCOMPARE(SealedYear(2026, saved, theKey).plain(), year.plain());
        }
    }
};

QTEST_GUILESS_MAIN(TestSealedYear)
#include "tst_sealedyear.moc"
