// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/colortext.h"
#include "shell/look/theme.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestColorText : public QObject
{
    Q_OBJECT

private slots:
    void keepsRedInTheLowByte();
    void readsStoredColors_data();
    void readsStoredColors();
    void keepsTheDesignedColorsAsTextColors();
};

void TestColorText::keepsRedInTheLowByte()
{
    QCOMPARE(ColorText::encode(QColor(0x12, 0x34, 0x56)), u"5649426"_s);
    QCOMPARE(ColorText::encode(Qt::red), u"255"_s);
    QCOMPARE(ColorText::encode(Qt::white), u"16777215"_s);
    QCOMPARE(ColorText::encode(Theme::light().panel), u"16383487"_s);
    QCOMPARE(ColorText::encode(Theme::dark().panel), u"2500907"_s);
}

void TestColorText::readsStoredColors_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QColor>("color");
    QTest::newRow("red") << u"255"_s << QColor(255, 0, 0);
    QTest::newRow("mixed") << u"5649426"_s << QColor(0x12, 0x34, 0x56);
    QTest::newRow("black") << u"0"_s << QColor(0, 0, 0);
    QTest::newRow("blanks around it") << u" 255 "_s << QColor(255, 0, 0);
    QTest::newRow("the system's button face") << u"-2147483633"_s << Theme::light().ground;
    QTest::newRow("the system's highlight") << u"-2147483635"_s << Theme::light().accent;
    for (const char *text : {"", "   ", "Default", "default", "16383487", "2500907", "16777216", "-1",
                             "-2147483648000", "-2147483600", "red", "12x", "1e3", "99999999999999999999"})
        QTest::addRow("designed: \"%s\"", text) << QString::fromLatin1(text) << QColor();
}

void TestColorText::readsStoredColors()
{
    QFETCH(QString, text);
    QTEST(ColorText::decode(text, Theme::light().palette()).value_or(QColor()), "color");
}

void TestColorText::keepsTheDesignedColorsAsTextColors()
{
    QCOMPARE(ColorText::decodeInk(u"16383487"_s, Theme::light().palette()), Theme::light().panel);
    QVERIFY(!ColorText::decodeInk(u"Default"_s, Theme::light().palette()));
}

QTEST_GUILESS_MAIN(TestColorText)
#include "tst_colortext.moc"
