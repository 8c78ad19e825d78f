// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/recordlayout.h"
#include "storage/recordvalue.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using Encoder = std::optional<QByteArray> (*)(QStringView, qsizetype);
using Decoder = QString (*)(QByteArrayView);

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
    void holdsNumbers_data()
    {
        rows<qint64, int, QByteArray>({
            {"88", 88, 88, "\x58\0"_ba},
            {"12000", 12000, 12000, "\xE0\x2E"},
            {"minus one", -1, -1, "\xFF\xFF"},
            {"below the smallest", -40000, -32768, "\0\x80"_ba},
            {"above the greatest", 40000, 32767, "\xFF\x7F"},
            {"far above", 1LL << 40, 32767, "\xFF\x7F"},
        });
    }

    void holdsNumbers()
    {
        const auto [wanted, number, bytes] = row<qint64, int, QByteArray>();
        QCOMPARE(RecordValue::encodeNumber(RecordValue::clampedNumber(wanted)), bytes);
        QCOMPARE(RecordValue::decodeNumber(QByteArray(bytes + "rest")), number);
        QCOMPARE(RecordValue::decodeNumber(bytes.first(1)), 0);
    }

    void writesTexts_data()
    {
        const auto counted = RecordValue::encodeText;
        const auto tagged = RecordValue::encodeTaggedText;
        rows<Encoder, QString, std::optional<QByteArray>>({
            {"empty", counted, {}, "\0\0"_ba},
            {"short", counted, u"Yes"_s, "\x03\0Yes"_ba},
            {"too long by one", counted, u"Zoë Marsh"_s, std::nullopt},
            {"measured in bytes after composing", counted, u"Zoe\u0308 Mars"_s, "\x08\0Zo\xEB Mars"_ba},
            {"tagged", tagged, u"WP2"_s, "\x08\0\x03\0WP2"_ba},
            {"tagged, empty", tagged, {}, "\0\0"_ba},
            {"tagged, fills the record", tagged, u"sixsix"_s, "\x08\0\x06\0sixsix"_ba},
            {"tagged, too long by one", tagged, u"seven77"_s, std::nullopt},
        });
    }

    void writesTexts()
    {
        const auto [encode, text, bytes] = row<Encoder, QString, std::optional<QByteArray>>();
        QCOMPARE(encode(text, 10), bytes);
    }

    void readsTexts_data()
    {
        const auto counted = RecordValue::decodeText;
        const auto tagged = RecordValue::decodeTagged;
        rows<Decoder, QByteArray, QString>({
            {"nothing", counted, {}, {}},
            {"half a count", counted, "\x03", {}},
            {"never written", counted, QByteArray(10, '\0'), {}},
            {"old bytes behind the text", counted, "\x02\0Notes"_ba, u"No"_s},
            {"blanks stay", counted, "\x04\0 ab "_ba, u" ab "_s},
            {"count beyond the end by one", counted, "\x04\0Yes"_ba, {}},
            {"count is unsigned", counted, "\xFF\xFFYes", {}},
            {"a number before zeros", counted, "\x03\0\0\0\0\0\0\0\0\0"_ba, {}},
            {"count above 255", counted, "\x2C\x01" + QByteArray(300, 'x'), QString(300, u'x')},
            {"tagged nothing", tagged, {}, {}},
            {"tagged text", tagged, "\x08\0\x03\0WP2\0\0\0"_ba, u"WP2"_s},
            {"tagged number", tagged, "\x02\0\xFE\xFF"_ba, u"-2"_s},
            {"tagged as empty, old bytes behind it", tagged, "\0\0\x03\0WP2"_ba, {}},
            {"unknown tag", tagged, "\x05\0\x03\0WP2"_ba, {}},
            {"tagged text cut short", tagged, "\x08\0\x03\0WP"_ba, {}},
            {"tagged number cut short", tagged, "\x02\0\x07"_ba, {}},
            {"tag alone", tagged, "\x08\0"_ba, {}},
        });
    }

    void readsTexts()
    {
        const auto [decode, bytes, text] = row<Decoder, QByteArray, QString>();
        QCOMPARE(decode(bytes), text);
        QCOMPARE(RecordValue::textBytes(bytes), RecordValue::decodeText(bytes).toLatin1());
    }

    void laysOutRecords_data()
    {
        rows<QByteArray, Contact>({
            {"whole, old text behind it", "Zo\xEB Mars** old text", {{u"Zoë"_s, u"Mars"_s}, u"**"_s}},
            {"missing", {}, {}},
            {"cut in the second field", "Anne Mi", {{u"Anne"_s, u" Mi"_s}, {}}},
            {"never written", QByteArray(13, '\0'), {}},
        });
    }

    void laysOutRecords()
    {
        const auto [bytes, contact] = row<QByteArray, Contact>();
        QCOMPARE(contactLayout.decode(bytes), contact);
        QCOMPARE(contactLayout.encode({{u"Zoë"_s, u"Marsh"_s}, u"**"_s}), "Zo\xEB Mars**   "_ba);
    }
};

QTEST_APPLESS_MAIN(TestRecordValue)
#include "tst_recordvalue.moc"
