// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/recordlayout.h"
#include "storage/recordvalue.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype recordLength = 10;

struct Contact {
    std::array<QString, 2> names;
    QString picture;

    bool operator==(const Contact &) const = default;
};

constexpr auto contactLayout = recordLayout<Contact>(TextArrayField{&Contact::names, 4},
                                                     TextField{&Contact::picture, 3}, BlankField<Contact>{2});
static_assert(contactLayout.size() == 13);

} // namespace

class TestRecordValue : public QObject
{
    Q_OBJECT

private slots:
    void holdsNumbers_data();
    void holdsNumbers();
    void clampsNumbers();
    void writesTexts_data();
    void writesTexts();
    void readsTexts_data();
    void readsTexts();
    void writesTaggedValues();
    void readsTaggedValues_data();
    void readsTaggedValues();
    void laysOutRecords();
    void readsShortRecordsAsEmpty_data();
    void readsShortRecordsAsEmpty();
};

void TestRecordValue::holdsNumbers_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("zero") << 0 << QByteArray("\0\0", 2);
    QTest::newRow("88") << 88 << QByteArray("\x58\0", 2);
    QTest::newRow("12000") << 12000 << "\xE0\x2E"_ba;
    QTest::newRow("minus one") << -1 << "\xFF\xFF"_ba;
    QTest::newRow("smallest") << -32768 << QByteArray("\0\x80", 2);
    QTest::newRow("greatest") << 32767 << "\xFF\x7F"_ba;
}

void TestRecordValue::holdsNumbers()
{
    QFETCH(int, number);
    QFETCH(QByteArray, bytes);
    QCOMPARE(RecordValue::encodeNumber(std::int16_t(number)), bytes);
    QCOMPARE(RecordValue::decodeNumber(QByteArray(bytes + "rest")), number);
    QCOMPARE(RecordValue::decodeNumber(bytes.first(1)), 0);
}

void TestRecordValue::clampsNumbers()
{
    QCOMPARE(RecordValue::clampedNumber(40000), 32767);
    QCOMPARE(RecordValue::clampedNumber(-40000), -32768);
    QCOMPARE(RecordValue::clampedNumber(1LL << 40), 32767);
    QCOMPARE(RecordValue::clampedNumber(9000), 9000);
}

void TestRecordValue::writesTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isWritten");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QString() << true << QByteArray("\0\0", 2);
    QTest::newRow("short") << u"Yes"_s << true << QByteArray("\x03\0Yes", 5);
    QTest::newRow("fills the record") << u"Zoë Mars"_s << true << QByteArray("\x08\0Zo\xEB Mars", 10);
    QTest::newRow("too long by one") << u"Zoë Marsh"_s << false << QByteArray();
    QTest::newRow("measured in bytes after composing")
        << u"Zoe\u0308 Mars"_s << true << QByteArray("\x08\0Zo\xEB Mars", 10);
}

void TestRecordValue::writesTexts()
{
    QFETCH(QString, text);
    QFETCH(bool, isWritten);
    const std::optional<QByteArray> written = RecordValue::encodeText(text, recordLength);
    QCOMPARE(written.has_value(), isWritten);
    QTEST(written.value_or(QByteArray()), "bytes");
}

void TestRecordValue::readsTexts_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("half a count") << "\x03"_ba << QString();
    QTest::newRow("never written") << QByteArray(10, '\0') << QString();
    QTest::newRow("old bytes behind the text") << QByteArray("\x02\0Notes", 7) << u"No"_s;
    QTest::newRow("blanks stay") << QByteArray("\x04\0 ab ", 6) << u" ab "_s;
    QTest::newRow("count beyond the end by one") << QByteArray("\x04\0Yes", 5) << QString();
    QTest::newRow("count is unsigned") << "\xFF\xFFYes"_ba << QString();
    QTest::newRow("a number before zeros") << QByteArray("\x03\0\0\0\0\0\0\0\0\0", 10) << QString();
    QTest::newRow("count above 255") << QByteArray("\x2C\x01", 2) + QByteArray(300, 'x')
                                     << QString(300, u'x');
}

void TestRecordValue::readsTexts()
{
    QFETCH(QByteArray, bytes);
    QTEST(RecordValue::decodeText(bytes), "text");
    QCOMPARE(RecordValue::textBytes(bytes), RecordValue::decodeText(bytes).toLatin1());
}

void TestRecordValue::writesTaggedValues()
{
    QCOMPARE(RecordValue::encodeTaggedText(u"WP2", 10), QByteArray("\x08\0\x03\0WP2", 7));
    QCOMPARE(RecordValue::encodeTaggedText(u"", 10), QByteArray("\0\0", 2));
    QCOMPARE(RecordValue::encodeTaggedText(u"sixsix", 10), QByteArray("\x08\0\x06\0sixsix", 10));
    QCOMPARE(RecordValue::encodeTaggedText(u"seven77", 10), std::nullopt);
}

void TestRecordValue::readsTaggedValues_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("text") << QByteArray("\x08\0\x03\0WP2\0\0\0", 10) << u"WP2"_s;
    QTest::newRow("number") << QByteArray("\x02\0\xFE\xFF", 4) << u"-2"_s;
    QTest::newRow("empty, old bytes behind it") << QByteArray("\0\0\x03\0WP2", 7) << QString();
    QTest::newRow("unknown type") << QByteArray("\x05\0\x03\0WP2", 7) << QString();
    QTest::newRow("text cut short") << QByteArray("\x08\0\x03\0WP", 6) << QString();
    QTest::newRow("number cut short") << QByteArray("\x02\0\x07", 3) << QString();
    QTest::newRow("type alone") << QByteArray("\x08\0", 2) << QString();
}

void TestRecordValue::readsTaggedValues()
{
    QFETCH(QByteArray, bytes);
    QTEST(RecordValue::decodeTagged(bytes), "text");
}

void TestRecordValue::laysOutRecords()
{
    const Contact contact{{u"Zoë"_s, u"Marsh"_s}, u"**"_s};
    QCOMPARE(contactLayout.encode(contact), "Zo\xEB Mars**   "_ba);
    QCOMPARE(contactLayout.decode("Zo\xEB Mars** old text"_ba), (Contact{{u"Zoë"_s, u"Mars"_s}, u"**"_s}));
}

void TestRecordValue::readsShortRecordsAsEmpty_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<Contact>("contact");
    QTest::newRow("missing") << QByteArray() << Contact{};
    QTest::newRow("cut in the second field") << "Anne Mi"_ba << Contact{{u"Anne"_s, u" Mi"_s}, {}};
    QTest::newRow("never written") << QByteArray(13, '\0') << Contact{};
}

void TestRecordValue::readsShortRecordsAsEmpty()
{
    QFETCH(QByteArray, bytes);
    QTEST(contactLayout.decode(bytes), "contact");
}

QTEST_APPLESS_MAIN(TestRecordValue)
#include "tst_recordvalue.moc"
