// SPDX-License-Identifier: GPL-3.0-or-later
#include "openmainmenu.h"
#include "tests/support/testpictures.h"

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

bool isLike(const QColor &one, const QColor &other)
{
    return std::abs(one.red() - other.red()) < 6 && std::abs(one.green() - other.green()) < 6 &&
           std::abs(one.blue() - other.blue()) < 6;
}

} // namespace

class TestBackgroundSelector : public OpenMainMenu
{
    Q_OBJECT
private slots:
    void init() { make(); }
    void cleanup() { close(); }

    void showsAChoiceAtOnceAndWritesIt()
    {
        make(TestProgram::Household);
        makePicture(m_test->path(u"WP7.jpg"_s), QSize(64, 40), Qt::red);
        show();
        trigger("mOBC");
        QCOMPARE(activity(), u"Background Selector"_s);
        QVERIFY(!find<FlowToolBar>("Toolbar1")->isVisible());
        QVERIFY(isInUse("backgroundSlot_1"));

        QTest::mouseClick(find<BackgroundSlot>("backgroundSlot_6"), Qt::LeftButton);
        QVERIFY(isLike(corner(), Qt::red));
        QVERIFY(isInUse("backgroundSlot_6"));
        QVERIFY(!isInUse("backgroundSlot_1"));
        QCOMPARE(chosen(), "\x08\0\x03\0WP2"_ba);

        click("Command1");
        QCOMPARE(chosen(), "\x08\0\x03\0WP7"_ba);
        QCOMPARE(activity(), u"Main Menu"_s);
        QVERIFY(find<FlowToolBar>("Toolbar1")->isVisible());
        QVERIFY(isLike(corner(), Qt::red));
        QVERIFY(!QGuiApplication::overrideCursor());
    }

    void goesBackToTheDefault()
    {
        make(TestProgram::Household);
        show();
        trigger("Toolbar2_0");
        auto *plain = find<QRadioButton>("Option1");
        QVERIFY(!plain->isChecked());
        plain->click();
        QVERIFY(isLike(corner(), Theme::of(m_window).ground));
        plain->click(); // a second click leaves it set
        QVERIFY(plain->isChecked());
        click("Command1");
        QCOMPARE(chosen(), "\x08\0\x03\0\x44\x65\x66"_ba); // Def
        trigger("mOBC");
        QVERIFY(plain->isChecked());
        QVERIFY(!isInUse("backgroundSlot_1"));
    }

    void leavesEverythingOnEscape()
    {
        make(TestProgram::Household);
        show();
        const QColor before = corner();
        const QByteArray settings = m_test->bytes(u"GHINV1.Fil"_s);
        trigger("mOBC");
        find<QRadioButton>("Option1")->click();
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Escape);
        QCOMPARE(activity(), u"Main Menu"_s);
        QCOMPARE(m_test->bytes(u"GHINV1.Fil"_s), settings);
        QVERIFY(isLike(corner(), before));
    }

    void walksAndChoosesByKeys()
    {
        make(TestProgram::Household);
        show();
        trigger("mOBC");
        QCOMPARE(m_window->focusWidget()->objectName(), u"backgroundSlot_1"_s);
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Down);
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Right);
        QCOMPARE(m_window->focusWidget()->objectName(), u"backgroundSlot_6"_s);
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Return);
        QVERIFY(isInUse("backgroundSlot_6"));
        QTest::keyClick(m_window->focusWidget(), Qt::Key_Return); // chosen already
        QCOMPARE(chosen(), "\x08\0\x03\0WP7"_ba);
        QCOMPARE(activity(), u"Main Menu"_s);
    }

    void choosesTheDefaultByEnter()
    {
        make(TestProgram::Household);
        show();
        QWidget *before = m_window->focusWidget()->nextInFocusChain();
        before->setFocus();
        trigger("mOBC");
        auto *plain = find<QRadioButton>("Option1");
        plain->setFocus();
        QTest::keyClick(plain, Qt::Key_Return);
        QVERIFY(plain->isChecked());
        QVERIFY(!isInUse("backgroundSlot_1"));
        QTest::keyClick(plain, Qt::Key_Return);
        QCOMPARE(chosen(), "\x08\0\x03\0\x44\x65\x66"_ba); // Def
        QVERIFY(before->hasFocus());
    }

    void looksForPicturesInTheProgramsFolder()
    {
        QVERIFY(m_test->settings.setTagged(SettingsKeys::background, u"WP3"_s));
        makePicture(m_test->programFolder.filePath(u"wp3.JPG"_s), QSize(64, 40), Qt::blue);
        show();
        QVERIFY(isLike(corner(), Qt::blue));
    }

    void takesAnyPicture_data()
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

    void takesAnyPicture()
    {
        const auto [size] = row<QSize>();
        QVERIFY(m_test->settings.setTagged(SettingsKeys::background, u"WP3"_s));
        if (size.isEmpty())
            m_test->setBytes(u"WP3.jpg"_s, "\xff\xd8\xff\xe0 no picture");
        else
            makePicture(m_test->path(u"WP3.jpg"_s), size, QColor(60, 120, 60));
        show();
        const QColor expected = size.isEmpty() ? Theme::of(m_window).ground : QColor(60, 120, 60);
        QVERIFY(isLike(corner(), expected));
        trigger("mOBC");
        QCOMPARE(find<BackgroundSlot>("backgroundSlot_2")->accessibleDescription().isEmpty(),
                 !size.isEmpty());
    }

private:
    /// The record of the chosen background.
    QByteArray chosen() const { return record(u"GHINV1.Fil"_s, 10, 3).left(7); }
    /// The colour in the lowest corner of the main menu's picture.
    QColor corner() const
    {
        auto *picture = m_window->findChild<MenuPicture *>();
        return picture->grab().toImage().pixelColor(2, picture->height() - 3);
    }
    bool isInUse(const char *slot) const
    {
        return find<BackgroundSlot>(slot)->accessibleName().endsWith(", in use"_L1);
    }
};

QTEST_MAIN(TestBackgroundSelector)
#include "tst_backgroundselector.moc"
