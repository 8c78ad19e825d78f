// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/theme.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The fill of a card, 96 % opaque, over a picture of one grey.
QColor onPicture(const QColor &fill, int grey)
{
    const auto part = [grey](int color) { return (96 * color + 4 * grey) / 100; };
    return {part(fill.red()), part(fill.green()), part(fill.blue())};
}

} // namespace

class TestTheme : public QObject
{
    Q_OBJECT
private slots:
    void everythingIsSeenOnItsSurfaces_data()
    {
        QTest::addColumn<QColor>("ink");
        QTest::addColumn<QColor>("surface");
        QTest::addColumn<double>("least");
        for (const Theme *theme : {&Theme::light(), &Theme::dark()}) {
            const Theme &t = *theme;
            const char *scheme = theme == &Theme::light() ? "light" : "dark";
            const auto rows = [scheme](const char *name, const QColor &ink, const QList<QColor> &surfaces,
                                       double least = 4.6) {
                for (const QColor &surface : surfaces)
                    QTest::addRow("%s %s on %s", scheme, name, qPrintable(surface.name()))
                        << ink << surface << least;
            };
            const QList<QColor> all{t.ground, t.bar,  t.panel,     t.field, t.locked,
                                    t.soft,   t.mark, t.alternate, t.head};
            rows("text", t.text, all);
            rows("quiet", t.quiet, all);
            rows("accent", t.accent, {t.ground, t.bar, t.panel, t.field, t.soft, t.alternate, t.head});
            rows("on accent", t.onAccent, {t.accent});
            rows("disabled", t.disabledText, {t.locked, t.bar, t.panel});
            rows("line of a disabled card", t.quiet, {onPicture(t.locked, 0), onPicture(t.locked, 255)});
            rows("due", t.due, {t.panel, t.ground, t.field, t.alternate});
            rows("negative", t.negative, {t.panel, t.ground, t.field, t.alternate});
            rows("rim of a control", t.edge, {t.ground, t.panel, t.field, t.bar}, 3);
        }
    }

    void everythingIsSeenOnItsSurfaces()
    {
        QFETCH(QColor, ink);
        QFETCH(QColor, surface);
        QFETCH(double, least);
        QVERIFY2(contrast(ink, surface) >= least, qPrintable(QString::number(contrast(ink, surface))));
    }

    void inkSuitsEveryPanel()
    {
        QCOMPARE(inkOn(QColor(0x30, 0x5a, 0x70)), QColor(Qt::white));
        QCOMPARE(inkOn(QColor(0xf0, 0xe0, 0x70)), QColor(Qt::black));
        for (int red = 0; red < 256; red += 15)
            for (int green = 0; green < 256; green += 5)
                for (int blue = 0; blue < 256; blue += 15) {
                    const QColor panel(red, green, blue);
                    // The worst grey of all leaves black and white at 4.58, which is all that there is.
                    QVERIFY2(contrast(inkOn(panel), panel) >= 4.58, qPrintable(panel.name()));
                    QVERIFY2(contrast(quietOn(panel, inkOn(panel)), panel) >= 4.58, qPrintable(panel.name()));
                }
    }

    void followsThePlatformAndNoPanel()
    {
        QCOMPARE(&Theme::of(QPalette(QColor(0xf0, 0xf0, 0xf0))), &Theme::light());
        QCOMPARE(&Theme::of(QPalette(QColor(0x2a, 0x2a, 0x2e))), &Theme::dark());
        QWidget panel;
        panel.setPalette(Theme::light().panelPalette(QColor(0x10, 0x20, 0x30), Qt::white));
        QCOMPARE(&Theme::of(&panel), &Theme::of(QApplication::palette()));
    }

    void nothingIsSmallerThanNineAndAHalfPoints()
    {
        const QFont before = QApplication::font();
        for (const double points : {6.0, 10.5, 14.0}) {
            QFont base = before;
            base.setPointSizeF(points);
            QApplication::setFont(base);
            QVERIFY(TypeScale::label().pointSizeF() >= 9.5);
            QVERIFY(TypeScale::body().pointSizeF() >= points);
            QVERIFY(TypeScale::date().pointSizeF() > TypeScale::windowTitle().pointSizeF());
        }
        QCOMPARE(TypeScale::group().pointSizeF(), 16.0); // 12 points of 10.5, at 14
        QApplication::setFont(before);
    }

    /// Also where the system has fonts of its own for menus, lists and the like.
    void everyKindOfControlHasTheBaseFont()
    {
        Theme::apply(*qApp);
        const QFont base = QApplication::font();
        QVERIFY(base.pointSizeF() >= 10.5);
        for (const char *kind :
             {"QMenu", "QMenuBar", "QMessageBox", "QLabel", "QTipLabel", "QStatusBar", "QPushButton",
              "QCheckBox", "QRadioButton", "QToolButton", "QAbstractItemView", "QListView", "QHeaderView"})
            QVERIFY2(QApplication::font(kind) == base, kind);
    }

    /// A screen of very light grey is no high contrast where the system can be asked for it.
    void theHouseLookGivesWayToHighContrast()
    {
        const auto isHouseLook = [](const QColor &window) {
            qApp->setStyleSheet({});
            QPalette platform(window);
            platform.setColor(QPalette::WindowText, Qt::black);
            QApplication::setPalette(platform);
            Theme::apply(*qApp);
            return !qApp->styleSheet().isEmpty();
        };
        QVERIFY(isHouseLook(QColor(240, 240, 240)));
        QCOMPARE(isHouseLook(QColor(255, 255, 255)), QSysInfo::kernelType() == "winnt"_L1);
    }

    void theSheetHasNoPlaceholdersLeft()
    {
        QVERIFY(!Theme::light().styleSheet().contains(u'@'));
        QVERIFY(!Theme::dark().styleSheet().contains(u'@'));
    }
};

QTEST_MAIN(TestTheme)
#include "tst_theme.moc"
