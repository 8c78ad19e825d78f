// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/sealing/sealedrecords.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray upFrom(int first, int count)
{
    QByteArray bytes;
    for (int i = 0; i < count; ++i)
        bytes += char(first + i);
    return bytes;
}

const QByteArray text = "twenty bytes of text";
constexpr qsizetype recordLength = 60;

/// The text in record 3.
QByteArray textRecord()
{
    return upFrom(0, 24) + QByteArray::fromHex("c37ee19f4141273b6e9a2e4e733c5dde6c7a651f"
                                               "550f68ef4f5b6b059eb9bd96b6d055e7");
}

SealedRecords records()
{
    return {SecretBytes::copyOf(upFrom(32, 32)), QByteArray("QENTRY\0\1", 8) + upFrom(0, 16), recordLength};
}

} // namespace

class TestSealedRecords : public QObject
{
    Q_OBJECT
private slots:
    void opensARecordAtItsPlaceOnly()
    {
        SecretBytes plain(20);
        QVERIFY(records().open(3, textRecord(), plain));
        QCOMPARE(plain.view(), QByteArrayView(text));
        QVERIFY(!records().open(4, textRecord(), plain));
        QCOMPARE(plain.view(), QByteArrayView(QByteArray(20, '\0')));
    }

    void opensNothingOfAChangedRecord()
    {
        SecretBytes plain(20);
        for (qsizetype at = 0; at < recordLength; ++at) {
            for (int bit = 0; bit < 8; ++bit) {
                QByteArray changed = textRecord();
                changed[at] = char(changed[at] ^ (1 << bit));
                QVERIFY(!records().open(3, changed, plain));
            }
            QVERIFY(!records().open(3, textRecord().first(at), plain));
        }
        QVERIFY(!records().open(3, textRecord().append('\0'), plain));
        SecretBytes tooShort(19);
        QVERIFY(!records().open(3, textRecord(), tooShort));
    }

    void sealsEachTimeAnew()
    {
        const QByteArray first = records().sealed(7, text);
        const QByteArray second = records().sealed(7, text);
        QCOMPARE(first.size(), recordLength);
        QVERIFY(first.first(24) != second.first(24) && first.last(36) != second.last(36));
        SecretBytes plain(20);
        QVERIFY(records().open(7, second, plain));
        QCOMPARE(plain.view(), QByteArrayView(text));
    }

    void composesAndMovesSecrets()
    {
        SecretBytes typed = SecretBytes::ofText(u"Se\u0301same"_s);
        QCOMPARE(typed.view(), QByteArrayView("S\xc3\xa9same"));
        const SecretBytes moved = std::move(typed);
        QCOMPARE(moved.view(), QByteArrayView("S\xc3\xa9same"));
        QVERIFY(SecretBytes::ofText({}).isEmpty() && SecretBytes(0).isEmpty());
    }

    void wipesTextsThatNobodyShares()
    {
        QString text = u"Sesame"_s.repeated(2);
        const QString shared = text;
        SecretBytes::wipe(text);
        QCOMPARE(text, QString());
        QCOMPARE(shared, u"SesameSesame"_s);
    }
};

QTEST_GUILESS_MAIN(TestSealedRecords)
#include "tst_sealedrecords.moc"
