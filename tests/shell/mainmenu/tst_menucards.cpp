// SPDX-License-Identifier: GPL-3.0-or-later
#include "startwindow.h"

#include "shell/core/settingskeys.h"
#include "shell/frame/panelcolors.h"
#include "shell/mainmenu/carddesk.h"
#include "shell/mainmenu/functioncard.h"
#include "shell/program/functionfaces.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace {

const LiveLine birthday{u"Tuesday: Anne Lind's birthday"_s, LiveLine::Plain,
                        u"Birthday on Tuesday: Anne Lind."_s, 9, 9};

} // namespace

class TestMenuCards : public QObject
{
    Q_OBJECT

private slots:
    void opensByClickAndKey();
    void saysWhyACardIsDisabled();
    void walksByArrowKeys();
    void showsTheNews();
    void keepsAGuardedFunctionsNewsToItself_data();
    void keepsAGuardedFunctionsNewsToItself();
    void readsTheNewsAgainOnlyWhenAFileHasChanged();
    void choosesColumnsByWidth_data();
    void choosesColumnsByWidth();
    void takesTheUsersPanelColor();
};

void TestMenuCards::opensByClickAndKey()
{
    StartWindow start;
    start.addAllFunctions();
    start.protectAll();
    Startfrm &window = start.show();
    auto *first = control<FunctionCard>(window, "card_addressBook");
    QCOMPARE(window.focusWidget(), first);
    QTest::mouseClick(first, Qt::LeftButton);
    QTest::keyClick(control<FunctionCard>(window, "card_planner"), Qt::Key_Return);
    QTest::keyClick(control<FunctionCard>(window, "card_passwordControl"), Qt::Key_Space);
    QTest::mouseClick(control<FunctionCard>(window, "card_backup"), Qt::LeftButton);
    QCOMPARE(start.opened, (QList<int>{int(Function::AddressBook), int(Function::Planner),
                                       int(Function::PasswordControl), int(Function::Backup)}));
    QCOMPARE(start.asked, (QList<int>{0, 2})); // the guards of the menu entries
}

void TestMenuCards::saysWhyACardIsDisabled()
{
    StartWindow start;
    start.addFunction(Function::AddressBook);
    Startfrm &window = start.show();
    auto *card = control<FunctionCard>(window, "card_planner");
    QVERIFY(!card->isEnabled());
    QCOMPARE(card->toolTip(), u"Daily Planner is not part of this program yet."_s);
    QCOMPARE(card->accessibleDescription(), card->toolTip());
    QTest::mouseClick(card, Qt::LeftButton);
    QVERIFY(start.opened.isEmpty());
    QCOMPARE(window.findChildren<FunctionCard *>().size(), 12);
}

void TestMenuCards::walksByArrowKeys()
{
    StartWindow start;
    start.addFunction(Function::AddressBook);     // first row, first place
    start.addFunction(Function::Planner);         // first row, second place
    start.addFunction(Function::PasswordControl); // last row, third place
    QVERIFY(start.test.settings.setText(SettingsKeys::smallerScreen, u"Yes"_s));
    Startfrm &window = start.show();
    window.resize(1280, 800);
    const auto press = [&](Qt::Key key) {
        QTest::keyClick(window.focusWidget(), key);
        return window.focusWidget()->objectName();
    };
    QCOMPARE(press(Qt::Key_Right), u"card_planner"_s);
    QCOMPARE(press(Qt::Key_Down), u"card_passwordControl"_s);
    QCOMPARE(press(Qt::Key_Right), u"card_passwordControl"_s); // nothing further that way
    QCOMPARE(press(Qt::Key_Home), u"card_addressBook"_s);
    QCOMPARE(press(Qt::Key_End), u"card_passwordControl"_s);
    QCOMPARE(press(Qt::Key_Up), u"card_planner"_s);
    QCOMPARE(press(Qt::Key_Left), u"card_addressBook"_s);
}

void TestMenuCards::showsTheNews()
{
    StartWindow start;
    start.addFunction(Function::AddressBook, birthday);
    start.addFunction(Function::Planner);
    Startfrm &window = start.show();
    auto *card = control<FunctionCard>(window, "card_addressBook");
    QTRY_COMPARE(card->accessibleDescription(), birthday.text);
    QCOMPARE(card->accessibleName(), u"Address Book"_s);
    QCOMPARE(control<FunctionCard>(window, "card_planner")->accessibleDescription(),
             u"Appointments day by day"_s);
    QCOMPARE(control<QLabel>(window, "sentenceLabel")->text(),
             u"Good morning. Birthday on Tuesday: Anne Lind."_s);
}

void TestMenuCards::keepsAGuardedFunctionsNewsToItself_data()
{
    rows<QList<int>, QString>({
        {"both ways", {Area::AddressBook, Area::AddressBookButton}, u"Protected"_s},
        {"card", {Area::AddressBook}, u"Protected; open from the toolbar"_s},
        {"button", {Area::AddressBookButton}, u"Protected; open from this card"_s},
    });
}

void TestMenuCards::keepsAGuardedFunctionsNewsToItself()
{
    const auto [areas, text] = row<QList<int>, QString>();
    StartWindow start;
    start.addFunction(Function::AddressBook, birthday);
    for (const int area : areas)
        start.test.state.protectedAreas.setFlag(area, u"YES"_s);
    Startfrm &window = start.show();
    QTRY_COMPARE(control<FunctionCard>(window, "card_addressBook")->accessibleDescription(), text);
    QCOMPARE(control<QLabel>(window, "sentenceLabel")->text(), u"Good morning. Have a pleasant Saturday."_s);
    QCOMPARE(start.newsRead, 0);
}

void TestMenuCards::readsTheNewsAgainOnlyWhenAFileHasChanged()
{
    StartWindow start;
    start.test.setBytes(u"Addbk2.Fil"_s, "one");
    start.addFunction(Function::AddressBook, birthday, {u"ADDBK2.FIL"_s});
    MenuNews news(start.test.program);
    news.refresh();
    news.refresh();
    QCOMPARE(start.newsRead, 1);
    QCOMPARE(news.line(Function::AddressBook), std::optional(birthday));
    start.test.setBytes(u"Addbk2.Fil"_s, "another");
    news.refresh();
    QCOMPARE(start.newsRead, 2);
    start.test.clock.time = start.test.clock.time.addDays(1);
    news.refresh();
    QCOMPARE(start.newsRead, 3);
    start.protectAll();
    news.refresh();
    QCOMPARE(news.line(Function::AddressBook)->text, u"Protected"_s);
    QVERIFY(QFile::remove(start.test.path(u"Addbk2.Fil"_s)));
    news.refresh();
    QCOMPARE(start.newsRead, 3);
}

void TestMenuCards::choosesColumnsByWidth_data()
{
    rows<int, int>({
        {"the last of two columns", 719, 2},
        {"the first of three", 720, 3},
        {"full HD at 200 %", 960, 3},
        {"four", 1024, 4},
        {"never more", 2560, 4},
    });
}

void TestMenuCards::choosesColumnsByWidth()
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

void TestMenuCards::takesTheUsersPanelColor()
{
    StartWindow start;
    start.addFunction(Function::AddressBook);
    QVERIFY(start.test.settings.setText(SettingsKeys::mainMenuColor, u"255"_s)); // red
    Startfrm &window = start.show();
    const QImage card = control<FunctionCard>(window, "card_addressBook")->grab().toImage();
    const QColor fill = card.pixelColor(card.width() - 30, card.height() / 2);
    QVERIFY2(fill.red() > 240 && fill.green() < 30, qPrintable(fill.name()));
}

QTEST_MAIN(TestMenuCards)
#include "tst_menucards.moc"
