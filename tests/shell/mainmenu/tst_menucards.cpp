// SPDX-License-Identifier: GPL-3.0-or-later
#include "openmainmenu.h"

#include "shell/core/settingskeys.h"
#include "shell/frame/panelcolors.h"
#include "shell/mainmenu/carddesk.h"
#include "shell/mainmenu/functioncard.h"
#include "shell/mainmenu/menunews.h"
#include "shell/mainmenu/menupicture.h"
#include "shell/program/functionfaces.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

const LiveLine birthday{u"Tuesday: Anne Lind's birthday"_s, LiveLine::Plain,
                        u"Birthday on Tuesday: Anne Lind."_s, 9, 9};

} // namespace

class TestMenuCards : public OpenMainMenu
{
    Q_OBJECT
private slots:
    void init() { make(); }
    void cleanup() { close(); }

    void opensByClickAndKey()
    {
        addAllFunctions();
        protectAll();
        show();
        auto *first = find<FunctionCard>("card_addressBook");
        QCOMPARE(m_window->focusWidget(), first);
        QTest::mouseClick(first, Qt::LeftButton);
        QTest::keyClick(find<FunctionCard>("card_planner"), Qt::Key_Return);
        QTest::keyClick(find<FunctionCard>("card_passwordControl"), Qt::Key_Space);
        QTest::mouseClick(find<FunctionCard>("card_backup"), Qt::LeftButton);
        QCOMPARE(m_done.opened, (QList<int>{int(Function::AddressBook), int(Function::Planner),
                                            int(Function::PasswordControl), int(Function::Backup)}));
        QCOMPARE(m_done.guards, (QList<int>{0, 2})); // the guards of the menu entries
    }

    void saysWhyACardIsDisabled()
    {
        addFunction(Function::AddressBook);
        show();
        auto *card = find<FunctionCard>("card_planner");
        QVERIFY(!card->isEnabled());
        QCOMPARE(card->toolTip(), u"Daily Planner is not part of this program yet."_s);
        QCOMPARE(card->accessibleDescription(), card->toolTip());
        QTest::mouseClick(card, Qt::LeftButton);
        QVERIFY(m_done.opened.isEmpty());
        QCOMPARE(m_window->findChildren<FunctionCard *>().size(), 12);
    }

    void walksByArrowKeys()
    {
        addFunction(Function::AddressBook);     // first row, first place
        addFunction(Function::Planner);         // first row, second place
        addFunction(Function::PasswordControl); // last row, third place
        QVERIFY(m_test->settings.setText(SettingsKeys::smallerScreen, u"Yes"_s));
        show();
        m_window->resize(1280, 800);
        const auto press = [&](Qt::Key key) {
            QTest::keyClick(m_window->focusWidget(), key);
            return m_window->focusWidget()->objectName();
        };
        QCOMPARE(press(Qt::Key_Right), u"card_planner"_s);
        QCOMPARE(press(Qt::Key_Down), u"card_passwordControl"_s);
        QCOMPARE(press(Qt::Key_Right), u"card_passwordControl"_s); // nothing further that way
        QCOMPARE(press(Qt::Key_Home), u"card_addressBook"_s);
        QCOMPARE(press(Qt::Key_End), u"card_passwordControl"_s);
        QCOMPARE(press(Qt::Key_Up), u"card_planner"_s);
        QCOMPARE(press(Qt::Key_Left), u"card_addressBook"_s);
    }

    void showsTheNews()
    {
        addFunction(Function::AddressBook, birthday);
        addFunction(Function::Planner);
        show();
        auto *card = find<FunctionCard>("card_addressBook");
        QTRY_COMPARE(card->accessibleDescription(), birthday.text);
        QCOMPARE(card->accessibleName(), u"Address Book"_s);
        QCOMPARE(find<FunctionCard>("card_planner")->accessibleDescription(), u"Appointments day by day"_s);
        QCOMPARE(labelText("sentenceLabel"), u"Good morning. Birthday on Tuesday: Anne Lind."_s);
    }

    void keepsAGuardedFunctionsNewsToItself_data()
    {
        rows<QList<int>, QString>({
            {"both ways", {Area::AddressBook, Area::AddressBookButton}, u"Protected"_s},
            {"card", {Area::AddressBook}, u"Protected; toolbar opens"_s},
            {"button", {Area::AddressBookButton}, u"Protected; this card opens"_s},
        });
    }

    void keepsAGuardedFunctionsNewsToItself()
    {
        const auto [areas, text] = row<QList<int>, QString>();
        addFunction(Function::AddressBook, birthday);
        for (const int area : areas)
            m_test->state.protectedAreas.setFlag(area, u"YES"_s);
        show();
        QTRY_COMPARE(find<FunctionCard>("card_addressBook")->accessibleDescription(), text);
        QCOMPARE(labelText("sentenceLabel"), u"Good morning. Have a pleasant Saturday."_s);
        QCOMPARE(m_done.newsRead, 0);
    }

    void readsTheNewsAgainOnlyWhenAFileHasChanged()
    {
        m_test->setBytes(u"Addbk2.Fil"_s, "one");
        addFunction(Function::AddressBook, birthday, {u"ADDBK2.FIL"_s});
        MenuNews news(m_test->program);
        news.refresh();
        news.refresh();
        QCOMPARE(m_done.newsRead, 1);
        QCOMPARE(news.line(Function::AddressBook), std::optional(birthday));
        m_test->setBytes(u"Addbk2.Fil"_s, "another");
        news.refresh();
        QCOMPARE(m_done.newsRead, 2);
        m_test->clock.time = m_test->clock.time.addDays(1);
        news.refresh();
        QCOMPARE(m_done.newsRead, 3);
        protectAll();
        news.refresh();
        QCOMPARE(news.line(Function::AddressBook)->text, u"Protected"_s);
        QVERIFY(QFile::remove(m_test->path(u"Addbk2.Fil"_s)));
        news.refresh();
        QCOMPARE(m_done.newsRead, 3);
    }

    void choosesColumnsByWidth_data()
    {
        rows<int, int>({
            {"the last of two columns", 719, 2},
            {"the first of three", 720, 3},
            {"full HD at 200 %", 960, 3},
            {"four", 1024, 4},
            {"never more", 2560, 4},
        });
    }

    void choosesColumnsByWidth()
    {
        const auto [width, columns] = row<int, int>();
        CardDesk desk(nullptr);
        desk.resize(width, desk.heightForWidth(width));
        desk.show();
        QCOMPARE(desk.columns(), columns);
        QRect all;
        for (const FunctionCard *card : desk.findChildren<FunctionCard *>()) {
            const int proper = card->width() - 2 * FunctionCard::margin;
            QVERIFY2(proper >= 216 && proper <= 320, qPrintable(QString::number(proper)));
            all |= card->geometry();
        }
        QVERIFY2(desk.rect().contains(all), "no card is cut");
        QVERIFY(std::abs(all.center().x() - desk.rect().center().x()) <= 1);
    }

    void hasRoomForAWidgetAtTheTop()
    {
        addFunction(Function::AddressBook);
        show();
        auto *box = new QLineEdit;
        m_window->findChild<MenuPicture *>()->setTopWidget(box);
        const auto *date = find<QLabel>("dateLabel");
        const auto *first = find<FunctionCard>("card_addressBook");
        m_window->resize(1280, 800);
        QVERIFY(box->geometry().left() > date->geometry().right());
        QVERIFY(box->geometry().bottom() < first->y());
        m_window->resize(640, 600);
        QTRY_VERIFY(box->y() > find<QLabel>("sentenceLabel")->geometry().bottom());
        QVERIFY(box->geometry().bottom() < first->y());
    }

    void takesTheUsersPanelColor()
    {
        addFunction(Function::AddressBook);
        QVERIFY(m_test->settings.setText(SettingsKeys::mainMenuColor, u"255"_s)); // red
        show();
        const QImage card = find<FunctionCard>("card_addressBook")->grab().toImage();
        const QColor fill = card.pixelColor(card.width() - 30, card.height() / 2);
        QVERIFY2(fill.red() > 240 && fill.green() < 30, qPrintable(fill.name()));
    }
};

QTEST_MAIN(TestMenuCards)
#include "tst_menucards.moc"
