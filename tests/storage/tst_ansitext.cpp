// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/ansitext.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestAnsiText : public QObject
{
    Q_OBJECT

private slots:
    void holdsText_data();
    void holdsText();
    void everyByteSurvives();
    void decodesTheBytesThatLatin1Lacks();
    void namesForeignCharacters_data();
    void namesForeignCharacters();
    void cutsAndPadsFields_data();
    void cutsAndPadsFields();
    void readsFields_data();
    void readsFields();
    void trimsBlanksOnly();
};

void TestAnsiText::holdsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QString() << QByteArray();
    QTest::newRow("ascii") << u"Miller, Anne"_s << "Miller, Anne"_ba;
    QTest::newRow("Latin-1 letters") << u"José Zoë ÿ"_s << "Jos\xE9 Zo\xEB \xFF"_ba;
    QTest::newRow("euro, quotes, dash") << u"€ “a” – ž Ÿ"_s
                                        << "\x80 \x93"
                                           "a\x94 \x96 \x9E \x9F"_ba;
    QTest::newRow("combining accent is composed") << u"Jose\u0301"_s << "Jos\xE9"_ba;
    QTest::newRow("Angstrom sign is composed") << u"\u212B"_s << "\xC5"_ba;
    QTest::newRow("accent without a composed letter") << u"x\u0301"_s << "x?"_ba;
    QTest::newRow("foreign letters") << u"aΩb中"_s << "a?b?"_ba;
    QTest::newRow("a surrogate pair is one character") << u"😀!"_s << "?!"_ba;
    QTest::newRow("half a surrogate pair") << QString(QChar(0xD83D)) + u'a' << "?a"_ba;
    QTest::newRow("undefined bytes as C1 controls") << u"\u0081\u009D"_s << "\x81\x9D"_ba;
    QTest::newRow("other C1 controls") << u"\u0080\u0082"_s << "??"_ba;
    QTest::newRow("past eight characters") << u"twelve bytesé"_s << "twelve bytes\xE9"_ba;
}

void TestAnsiText::holdsText()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);
    QCOMPARE(AnsiText::encode(text), bytes);
    if (AnsiText::isHoldable(text))
        QCOMPARE(AnsiText::decode(bytes), text.normalized(QString::NormalizationForm_C));
}

void TestAnsiText::everyByteSurvives()
{
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const char pair[] = {char(first), char(second)};
            const QByteArray bytes(pair, 2);
            QCOMPARE(AnsiText::encode(AnsiText::decode(bytes)), bytes);
        }
    }
}

void TestAnsiText::decodesTheBytesThatLatin1Lacks()
{
    QByteArray bytes;
    for (int byte = 0x80; byte < 0xA0; ++byte)
        bytes += char(byte);
    QCOMPARE(AnsiText::decode(bytes), u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ"_s);
}

void TestAnsiText::namesForeignCharacters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("foreign");
    QTest::newRow("ascii") << u"plain"_s << QString();
    QTest::newRow("code page") << u"€ é š"_s << QString();
    QTest::newRow("decomposed but holdable") << u"e\u0301"_s << QString();
    QTest::newRow("each once, in order") << u"Ω中Ω x中"_s << u"Ω中"_s;
    QTest::newRow("surrogate pairs whole") << u"a😀b😀"_s << u"😀"_s;
    QTest::newRow("a zero would read as never written") << QString(QChar(u'\0')) << QString(QChar(u'\0'));
}

void TestAnsiText::namesForeignCharacters()
{
    QFETCH(QString, text);
    QFETCH(QString, foreign);
    QCOMPARE(AnsiText::foreignCharacters(text), foreign);
    QCOMPARE(AnsiText::isHoldable(text), foreign.isEmpty());
}

void TestAnsiText::cutsAndPadsFields_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QString() << "     "_ba;
    QTest::newRow("short") << u"Zoë"_s << "Zo\xEB  "_ba;
    QTest::newRow("as wide") << u"Kés12"_s << "K\xE9s12"_ba;
    QTest::newRow("longer is cut") << u"Kessler"_s << "Kessl"_ba;
    QTest::newRow("width is in bytes, after composing")
        << u"e\u0301e\u0301e\u0301e\u0301e\u0301e\u0301"_s << "\xE9\xE9\xE9\xE9\xE9"_ba;
}

void TestAnsiText::cutsAndPadsFields()
{
    QFETCH(QString, text);
    QTEST(AnsiText::field(text, 5), "bytes");
}

void TestAnsiText::readsFields_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("blanks on the right go") << "Zo\xEB   "_ba << u"Zoë"_s;
    QTest::newRow("blanks on the left stay") << "  a "_ba << u"  a"_s;
    QTest::newRow("only blanks") << "    "_ba << QString();
    QTest::newRow("a tab is no blank") << "a\t "_ba << u"a\t"_s;
    QTest::newRow("a no-break space is no blank") << "a\xA0"_ba << u"a\u00A0"_s;
    QTest::newRow("never written") << QByteArray(40, '\0') << QString();
    QTest::newRow("ends at the first zero") << QByteArray("a \0b", 4) << u"a"_s;
}

void TestAnsiText::readsFields()
{
    QFETCH(QByteArray, bytes);
    QTEST(AnsiText::fieldText(bytes), "text");
}

void TestAnsiText::trimsBlanksOnly()
{
    QCOMPARE(AnsiText::trimmedBlanks(u"  \ta\n  "), u"\ta\n");
    QCOMPARE(AnsiText::trimmedBlanksRight(u"  a  "), u"  a");
    QCOMPARE(AnsiText::trimmedBlanks(u"   "), u"");
}

QTEST_APPLESS_MAIN(TestAnsiText)
#include "tst_ansitext.moc"
