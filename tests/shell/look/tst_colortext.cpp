// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/colortext.h"
#include "shell/look/theme.h"
#include "tests/support/rows.h"

using namespace Qt::Literals::StringLiterals;

class TestColorText : public QObject
{
    Q_OBJECT
private slots:
    void keepsRedInTheLowByte()
    {
        QCOMPARE(ColorText::encode(QColor(0x12, 0x34, 0x56)), u"5649426"_s);
        QCOMPARE(ColorText::encode(Qt::red), u"255"_s);
        QCOMPARE(ColorText::encode(Qt::white), u"16777215"_s);
    }

    void readsStoredColors_data()
    {
        using Color = std::optional<QColor>;
        const Theme &light = Theme::light();
        const QColor red(255, 0, 0), mixed(0x12, 0x34, 0x56), black(0, 0, 0);
        rows<QString, Color, Color>({
            {"red", u"255"_s, red, red},
            {"mixed", u"5649426"_s, mixed, mixed},
            {"black", u"0"_s, black, black},
            {"blanks around it", u" 255 "_s, red, red},
            {"the system's button face", u"-2147483633"_s, light.ground, light.ground},
            {"the system's highlight", u"-2147483635"_s, light.accent, light.accent},
            {"a panel as designed", u"16383487"_s, {}, light.panel},
            {"a panel as designed for the dark", u"2500907"_s, {}, Theme::dark().panel},
        });
        for (const char *text : {"", "   ", "Default", "default", "16777216", "-1", "-2147483648000",
                                 "-2147483600", "red", "12x", "1e3", "99999999999999999999"})
            QTest::addRow("designed: \"%s\"", text)
                << std::tuple(QString::fromLatin1(text), Color(), Color());
    }

    void readsStoredColors()
    {
        const auto [text, panel, ink] = row<QString, std::optional<QColor>, std::optional<QColor>>();
        QCOMPARE(ColorText::decode(text, Theme::light().palette()), panel);
        QCOMPARE(ColorText::decodeInk(text, Theme::light().palette()), ink);
    }
};

QTEST_GUILESS_MAIN(TestColorText)
#include "tst_colortext.moc"
