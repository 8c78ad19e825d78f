// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/ansitext.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

class TestAnsiText : public QObject
{
    Q_OBJECT
private slots:
    void holdsText_data()
    {
        const QString zero(QChar(u'\0'));
        const QString half(QChar(0xD83D));
        rows<QString, QByteArray, QString>({
            {"ascii", u"Miller, Anne"_s, "Miller, Anne", {}},
            {"Latin-1 letters", u"José Zoë ÿ"_s, "Jos\xE9 Zo\xEB \xFF", {}},
            {"combining accent is composed", u"Jose\u0301"_s, "Jos\xE9", {}},
            {"Angstrom sign is composed", u"\u212B"_s, "\xC5", {}},
            {"accent without a composed letter", u"x\u0301"_s, "x?", u"\u0301"_s},
            {"foreign letters, each named once", u"aΩb中Ω"_s, "a?b??", u"Ω中"_s},
            {"a surrogate pair is one character", u"😀!😀"_s, "?!?", u"😀"_s},
            {"half a surrogate pair", half + u'a', "?a", half},
            {"other C1 controls", u"\u0080\u0082"_s, "??", u"\u0080\u0082"_s},
            {"a zero would read as never written", zero, "\0"_ba, zero},
            {"past eight characters", u"twelve bytesé"_s, "twelve bytes\xE9", {}},
        });
    }

    void holdsText()
    {
        const auto [text, bytes, foreign] = row<QString, QByteArray, QString>();
        QCOMPARE(AnsiText::encode(text), bytes);
        QCOMPARE(AnsiText::foreignCharacters(text), foreign);
        QCOMPARE(AnsiText::isHoldable(text), foreign.isEmpty());
        if (foreign.isEmpty())
            QCOMPARE(AnsiText::decode(bytes), text.normalized(QString::NormalizationForm_C));
    }

    void everyByteSurvives()
    {
        QByteArray bytes;
        for (int byte = 0; byte < 256; ++byte)
            bytes += char(byte);
        const QString text = AnsiText::decode(bytes);
        QCOMPARE(text.mid(0x80, 0x20), u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ"_s);
        QCOMPARE(AnsiText::encode(text), bytes);
        for (int byte = 0; byte < 256; ++byte) {
            const QByteArray alone(1, char(byte));
            QCOMPARE(AnsiText::encode(AnsiText::decode(alone)), alone);
        }
    }

    void cutsAndPadsFields_data()
    {
        rows<QString, QByteArray>({
            {"empty", {}, "     "},
            {"short", u"Zoë"_s, "Zo\xEB  "},
            {"as wide", u"Kés12"_s, "K\xE9s12"},
            {"longer is cut", u"Kessler"_s, "Kessl"},
            {"width is in bytes, after composing", u"e\u0301"_s.repeated(6), "\xE9\xE9\xE9\xE9\xE9"},
        });
    }

    void cutsAndPadsFields()
    {
        const auto [text, bytes] = row<QString, QByteArray>();
        QCOMPARE(AnsiText::field(text, 5), bytes);
    }

    void readsFields_data()
    {
        rows<QByteArray, QString>({
            {"blanks on the right go", "Zo\xEB   ", u"Zoë"_s},
            {"blanks on the left stay", "  a ", u"  a"_s},
            {"only blanks", "    ", {}},
            {"a tab is no blank", "a\t ", u"a\t"_s},
            {"a no-break space is no blank", "a\xA0", u"a\u00A0"_s},
            {"never written", QByteArray(40, '\0'), {}},
            {"ends at the first zero", "a \0b"_ba, u"a"_s},
        });
    }

    void readsFields()
    {
        const auto [bytes, text] = row<QByteArray, QString>();
        QCOMPARE(AnsiText::fieldText(bytes), text);
        QCOMPARE(AnsiText::trimmedBlanks(u"  \ta\n  "), u"\ta\n");
    }
};

QTEST_APPLESS_MAIN(TestAnsiText)
#include "tst_ansitext.moc"
