// SPDX-License-Identifier: GPL-3.0-or-later
#include "startwindow.h"

#include "shell/controls/flowtoolbar.h"
#include "shell/core/settingskeys.h"
#include "shell/look/theme.h"
#include "shell/mainmenu/backdrop.h"
#include "shell/mainmenu/backgroundselector.h"
#include "shell/mainmenu/backgroundslot.h"
#include "shell/mainmenu/menupicture.h"

#include <QPainter>
#include <QPushButton>
#include <QRadioButton>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The record of the chosen background.
QByteArray chosen(const StartWindow &start)
{
    return start.record(u"GHINV1.Fil"_s, 10, 3).left(7);
}

void savePicture(const QString &path, QSize size, const QColor &color)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(color);
    QVERIFY(picture.save(path, "jpg", 100));
}

/// The colour in the lowest corner of the main menu's picture.
QColor cornerOf(const Startfrm &window)
{
    auto *picture = window.findChild<MenuPicture *>();
    return picture->grab().toImage().pixelColor(2, picture->height() - 3);
}

bool isLike(const QColor &one, const QColor &other)
{
    return std::abs(one.red() - other.red()) < 6 && std::abs(one.green() - other.green()) < 6 &&
           std::abs(one.blue() - other.blue()) < 6;
}

bool isInUse(const Startfrm &window, const char *slot)
{
    return control<BackgroundSlot>(window, slot)->accessibleName().endsWith(", in use"_L1);
}

} // namespace

class TestBackgroundSelector : public QObject
{
    Q_OBJECT

private slots:
    void showsAChoiceAtOnceAndWritesIt();
    void goesBackToTheDefault();
    void leavesEverythingOnEscape();
    void walksAndChoosesByKeys();
    void looksForPicturesInTheProgramsFolder();
    void takesAnyPicture_data();
    void takesAnyPicture();
};

void TestBackgroundSelector::showsAChoiceAtOnceAndWritesIt()
{
    StartWindow start(TestProgram::Household);
    savePicture(start.test.path(u"WP7.jpg"_s), QSize(64, 40), Qt::red);
    Startfrm &window = start.show();
    start.trigger("mOBC");
    QCOMPARE(start.activity(), u"Background Selector"_s);
    QVERIFY(!control<FlowToolBar>(window, "Toolbar1")->isVisible());
    QVERIFY(isInUse(window, "backgroundSlot_1"));

    QTest::mouseClick(control<BackgroundSlot>(window, "backgroundSlot_6"), Qt::LeftButton);
    QVERIFY(isLike(cornerOf(window), Qt::red));
    QVERIFY(isInUse(window, "backgroundSlot_6"));
    QVERIFY(!isInUse(window, "backgroundSlot_1"));
    QCOMPARE(chosen(start), "\x08\0\x03\0WP2"_ba);

    QTest::mouseClick(control<QPushButton>(window, "Command1"), Qt::LeftButton);
    QCOMPARE(chosen(start), "\x08\0\x03\0WP7"_ba);
    QCOMPARE(start.activity(), u"Main Menu"_s);
    QVERIFY(control<FlowToolBar>(window, "Toolbar1")->isVisible());
    QVERIFY(isLike(cornerOf(window), Qt::red));
    QVERIFY(!QGuiApplication::overrideCursor());
}

void TestBackgroundSelector::goesBackToTheDefault()
{
    StartWindow start(TestProgram::Household);
    Startfrm &window = start.show();
    start.trigger("Toolbar2_0");
    auto *plain = control<QRadioButton>(window, "Option1");
    QVERIFY(!plain->isChecked());
    plain->click();
    QVERIFY(isLike(cornerOf(window), Theme::of(&window).ground));
    plain->click(); // a second click leaves it set
    QVERIFY(plain->isChecked());
    QTest::mouseClick(control<QPushButton>(window, "Command1"), Qt::LeftButton);
    QCOMPARE(chosen(start), "\x08\0\x03\0\x44\x65\x66"_ba); // Def
    start.trigger("mOBC");
    QVERIFY(plain->isChecked());
    QVERIFY(!isInUse(window, "backgroundSlot_1"));
}

void TestBackgroundSelector::leavesEverythingOnEscape()
{
    StartWindow start(TestProgram::Household);
    Startfrm &window = start.show();
    const QColor before = cornerOf(window);
    const QByteArray settings = start.test.bytes(u"GHINV1.Fil"_s);
    start.trigger("mOBC");
    control<QRadioButton>(window, "Option1")->click();
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
    QCOMPARE(start.activity(), u"Main Menu"_s);
    QCOMPARE(start.test.bytes(u"GHINV1.Fil"_s), settings);
    QVERIFY(isLike(cornerOf(window), before));
}

void TestBackgroundSelector::walksAndChoosesByKeys()
{
    StartWindow start(TestProgram::Household);
    Startfrm &window = start.show();
    start.trigger("mOBC");
    QCOMPARE(window.focusWidget()->objectName(), u"backgroundSlot_1"_s);
    QTest::keyClick(window.focusWidget(), Qt::Key_Down);
    QTest::keyClick(window.focusWidget(), Qt::Key_Right);
    QCOMPARE(window.focusWidget()->objectName(), u"backgroundSlot_6"_s);
    QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    QVERIFY(isInUse(window, "backgroundSlot_6"));
}

void TestBackgroundSelector::looksForPicturesInTheProgramsFolder()
{
    StartWindow start;
    QVERIFY(start.test.settings.setTagged(SettingsKeys::background, u"WP3"_s));
    savePicture(start.test.programFolder.filePath(u"wp3.JPG"_s), QSize(64, 40), Qt::blue);
    QVERIFY(isLike(cornerOf(start.show()), Qt::blue));
}

void TestBackgroundSelector::takesAnyPicture_data()
{
    rows<QSize>({
        {"tiny", {1, 1}},
        {"tall", {40, 900}},
        {"wide", {3000, 20}},
        {"its own size", Backdrop::largest},
        {"very large", {4000, 3000}},
        {"damaged", {}},
    });
}

void TestBackgroundSelector::takesAnyPicture()
{
    const auto [size] = row<QSize>();
    StartWindow start;
    QVERIFY(start.test.settings.setTagged(SettingsKeys::background, u"WP3"_s));
    if (size.isEmpty())
        start.test.setBytes(u"WP3.jpg"_s, "\xff\xd8\xff\xe0 no picture");
    else
        savePicture(start.test.path(u"WP3.jpg"_s), size, QColor(60, 120, 60));
    Startfrm &window = start.show();
    const QColor expected = size.isEmpty() ? Theme::of(&window).ground : QColor(60, 120, 60);
    QVERIFY(isLike(cornerOf(window), expected));
    start.trigger("mOBC");
    QCOMPARE(control<BackgroundSlot>(window, "backgroundSlot_2")->accessibleDescription().isEmpty(),
             !size.isEmpty());
}

QTEST_MAIN(TestBackgroundSelector)
#include "tst_backgroundselector.moc"
