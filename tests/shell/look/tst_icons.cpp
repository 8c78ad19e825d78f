// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/icons.h"
#include "shell/look/theme.h"
#include "tests/support/rows.h"

#include <QDir>
#include <QImage>

using namespace Qt::Literals::StringLiterals;

static bool isWhollyIn(const QColor &ink, const QImage &picture)
{
    int painted = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const QColor colour = picture.pixelColor(x, y);
            if (colour.alpha() < 200)
                continue; // soft rims lose exactness when they are multiplied by their opacity
            ++painted;
            if (qAbs(colour.red() - ink.red()) + qAbs(colour.green() - ink.green()) > 4)
                return false;
        }
    return painted > 0;
}

class TestIcons final : public QObject
{
    Q_OBJECT
private slots:
    void everyDrawingIsInBothSchemes()
    {
        const QStringList light = QDir(u":/icons/light"_s).entryList();
        QVERIFY(light.contains(u"address-book-24.png"_s));
        QVERIFY(light.contains(u"question-44.png"_s));
        QCOMPARE(QDir(u":/icons/dark"_s).entryList(), light);
        for (const QString &file : light)
            QVERIFY2(!QImage(u":/icons/dark/"_s + file).isNull(), qPrintable(file));
    }

    void findsThePictureOfASize_data()
    {
        rows<QLatin1StringView, int, qreal, int>({
            {"toolbar", "print"_L1, 20, 1.0, 20},
            {"toolbar at 200 %", "print"_L1, 20, 2.0, 40},
            {"made smaller from the next larger one", "print"_L1, 20, 1.5, 30},
            {"empty panel at 200 %", "todo"_L1, 72, 2.0, 144},
            {"never made larger", "print"_L1, 100, 1.0, 64},
            {"second name of a drawing", "customize"_L1, 16, 1.0, 16},
            {"no drawing of that name", "no-such-drawing"_L1, 24, 1.0, 0},
        });
    }

    void findsThePictureOfASize()
    {
        const auto [name, size, ratio, pixels] = row<QLatin1StringView, int, qreal, int>();
        const QPixmap picture = Icons::pixmap(name, Icons::Scheme::Light, size, ratio);
        QCOMPARE(picture.size(), QSize(pixels, pixels));
        QCOMPARE(Icons::icon(name, Icons::Scheme::Light).isNull(), pixels == 0);
    }

    void disabledAndSelectedIconsAreInOneColour_data()
    {
        rows<Icons::Scheme, QIcon::Mode, QColor>({
            {"disabled", Icons::Scheme::Light, QIcon::Disabled, Theme::light().disabledText},
            {"disabled, dark", Icons::Scheme::Dark, QIcon::Disabled, Theme::dark().disabledText},
            {"selected", Icons::Scheme::Light, QIcon::Selected, Theme::light().onAccent},
            {"tinted", Icons::Scheme::Dark, QIcon::Normal, Qt::red},
        });
    }

    void disabledAndSelectedIconsAreInOneColour()
    {
        const auto [scheme, mode, ink] = row<Icons::Scheme, QIcon::Mode, QColor>();
        for (const auto name : {"calendar"_L1, "overdue"_L1, "question"_L1, "edit"_L1}) {
            const QIcon icon = Icons::tinted(name, scheme, Qt::red);
            QVERIFY(isWhollyIn(ink, icon.pixmap(QSize(44, 44), mode).toImage()));
        }
    }
};

QTEST_MAIN(TestIcons)
#include "tst_icons.moc"
