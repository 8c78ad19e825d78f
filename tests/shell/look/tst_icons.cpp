// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/icons.h"
#include "shell/look/theme.h"

#include <QDir>
#include <QImage>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class TestIcons final : public QObject
{
    Q_OBJECT

private slots:
    void everyDrawingIsInBothSchemes();
    void findsThePictureOfASize_data();
    void findsThePictureOfASize();
    void disabledAndSelectedIconsAreInOneColour_data();
    void disabledAndSelectedIconsAreInOneColour();
    void anUnknownNameIsANullIcon();
};

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

void TestIcons::everyDrawingIsInBothSchemes()
{
    QVERIFY(!Icons::icon("save"_L1, Icons::Scheme::Light).isNull());
    const QStringList light = QDir(u":/icons/light"_s).entryList();
    QVERIFY(light.contains(u"address-book-24.png"_s));
    QVERIFY(light.contains(u"question-44.png"_s));
    QCOMPARE(QDir(u":/icons/dark"_s).entryList(), light);
    for (const QString &file : light)
        QVERIFY2(!QImage(u":/icons/dark/"_s + file).isNull(), qPrintable(file));
}

void TestIcons::findsThePictureOfASize_data()
{
    QTest::addColumn<QLatin1StringView>("name");
    QTest::addColumn<int>("size");
    QTest::addColumn<qreal>("ratio");
    QTest::addColumn<int>("pixels");
    QTest::newRow("toolbar") << "print"_L1 << 20 << 1.0 << 20;
    QTest::newRow("toolbar at 200 %") << "print"_L1 << 20 << 2.0 << 40;
    QTest::newRow("made smaller from the next larger one") << "print"_L1 << 20 << 1.5 << 30;
    QTest::newRow("empty panel at 200 %") << "todo"_L1 << 72 << 2.0 << 144;
    QTest::newRow("never made larger") << "print"_L1 << 100 << 1.0 << 64;
    QTest::newRow("second name of a drawing") << "customize"_L1 << 16 << 1.0 << 16;
}

void TestIcons::findsThePictureOfASize()
{
    QFETCH(QLatin1StringView, name);
    QFETCH(int, size);
    QFETCH(qreal, ratio);
    QFETCH(int, pixels);
    const QPixmap picture = Icons::pixmap(name, Icons::Scheme::Light, size, ratio);
    QCOMPARE(picture.size(), QSize(pixels, pixels));
}

void TestIcons::disabledAndSelectedIconsAreInOneColour_data()
{
    QTest::addColumn<Icons::Scheme>("scheme");
    QTest::addColumn<QIcon::Mode>("mode");
    QTest::addColumn<QColor>("ink");
    QTest::newRow("disabled") << Icons::Scheme::Light << QIcon::Disabled << Theme::light().disabledText;
    QTest::newRow("disabled, dark") << Icons::Scheme::Dark << QIcon::Disabled << Theme::dark().disabledText;
    QTest::newRow("selected") << Icons::Scheme::Light << QIcon::Selected << Theme::light().onAccent;
    QTest::newRow("tinted") << Icons::Scheme::Dark << QIcon::Normal << QColor(Qt::red);
}

void TestIcons::disabledAndSelectedIconsAreInOneColour()
{
    QFETCH(Icons::Scheme, scheme);
    QFETCH(QIcon::Mode, mode);
    QFETCH(QColor, ink);
    for (const auto name : {"calendar"_L1, "overdue"_L1, "question"_L1, "edit"_L1}) {
        const QIcon icon = Icons::tinted(name, scheme, Qt::red);
        QVERIFY(isWhollyIn(ink, icon.pixmap(QSize(44, 44), mode).toImage()));
    }
}

void TestIcons::anUnknownNameIsANullIcon()
{
    QVERIFY(Icons::icon("no-such-drawing"_L1, Icons::Scheme::Light).isNull());
    QVERIFY(Icons::pixmap("no-such-drawing"_L1, Icons::Scheme::Dark, 24, 1).isNull());
}

QTEST_MAIN(TestIcons)
#include "tst_icons.moc"
