// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/addressbook/entry/openaddressbook.h"

#include "shell/controls/monthview.h"
#include "shell/core/framelines.h"
#include "shell/core/settingskeys.h"
#include "shell/pictures/pictureframe.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QListWidget>
#include <QSpinBox>

using namespace Qt::Literals::StringLiterals;

/// Dates, pictures, calls, copying and printing.
class TestAddbkcommands : public OpenAddressBook
{
    Q_OBJECT
private slots:
    void init() { open(TestProgram::Household); }
    void cleanup() { close(); }

    void picksDates()
    {
        auto *calendar = find<MonthView>("MonthView1");
        QVERIFY(!calendar->isVisible());
        click("Command6");
        for (const int field : {2, 12}) {
            box(field)->setFocus(Qt::TabFocusReason);
            QVERIFY(calendar->isVisible());
            QCOMPARE(calendar->selectedDate(), QDate(2026, 11, 21));
            emit calendar->clicked(QDate(2026, 11, 17));
            QCOMPARE(box(field)->text(), u"Nov-17-2026"_s);
            QVERIFY(!calendar->isVisible());
            QVERIFY(box(field)->hasFocus());
            QTest::mouseClick(box(field), Qt::LeftButton);
            QCOMPARE(calendar->selectedDate(), QDate(2026, 11, 17));
            QTest::keyClick(box(field), Qt::Key_Escape); // leaves the calendar only
            QVERIFY(!calendar->isVisible() && m_window->isVisible());
        }
        m_test->state.dateStyle = DateStyle::Other;
        QTest::mouseClick(box(2), Qt::LeftButton);
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Right, Qt::Key_Return})
            QTest::keyClick(QApplication::focusWidget(), key);
        QCOMPARE(box(2)->text(), u"18-Nov-2026"_s);
        QVERIFY(!calendar->isVisible());
        QTest::mouseClick(box(2), Qt::LeftButton);
        QVERIFY(calendar->isVisible());
        QTest::mouseClick(find<QWidget>("Panel3D1"), Qt::LeftButton, {}, QPoint(12, 12));
        QVERIFY(!calendar->isVisible());
    }

    /// An access key saves without leaving the box.
    void tidiesDatesBeforeTheyAreSaved()
    {
        select(0);
        click("Command4");
        type(2, u"11/24/1978"_s);
        trigger("mOMod");
        QCOMPARE(box(2)->text(), u"Nov-24-1978"_s);
        QVERIFY(record(2).contains("Nov-24-1978"));
    }

    void helpsWhileSomethingIsTyped()
    {
        click("Command6");
        type(2, u"Nov-24-1978"_s);
        type(12, u"Jun-12-2004"_s);
        QCOMPARE(labelText("birthFact"), u"47, turns 48 on Tuesday"_s);
        QCOMPARE(labelText("anniversaryFact"), u"23 years in June"_s);
        type(0, u"Featherstone-Brookfield"_s);
        type(1, u"Frank David Marta"_s);
        QVERIFY(!find<QLabel>("nameHint")->isVisible());
        type(1, u"Frank David Martas"_s);
        QVERIFY(find<QLabel>("nameHint")->isVisible());
        QCOMPARE(labelText("nameHint"), AddressMessages::nameTooLong());
        // Nothing that the files cannot hold.
        type(0, QString(50, u'x'));
        QCOMPARE(box(0)->text().size(), 39);
        type(1, QString(50, u'x'));
        QCOMPARE(box(1)->text().size(), 40);
        type(5, u"Ωmega €"_s);
        QCOMPARE(box(5)->text(), u"mega €"_s);
        QVERIFY(!said().isEmpty());
    }

    void showsPicturesWhereverTheyAre()
    {
        auto *frame = find<PictureFrame>("Image1");
        QVERIFY(frame->hasPicture()); // stored under C:\QUILLERY, found in the Pictures folder
        select(1);
        QVERIFY(!frame->hasPicture());
        QCOMPARE(frame->words(), u"No Picture Currently Loaded"_s);
        QVERIFY(said().isEmpty());
        select(7);
        QVERIFY(!frame->hasPicture());
        QVERIFY(said().contains(u"moved away.jpg"_s));
        select(0);
        click("pictureEnlarge");
        QVERIFY(find<PictureFrame>("enlargedPicture")->isVisible());
        click("pictureNormal");
        QVERIFY(frame->isVisible());
    }

    void takesAPictureFromThePanel()
    {
        select(2);
        click("Command7");
        auto *files = find<QListWidget>("File1");
        QVERIFY(files->isVisible());
        files->setCurrentItem(files->findItems(u"photo03.jpg"_s, Qt::MatchExactly).value(0));
        click("pictureEnter");
        QVERIFY(find<PictureFrame>("Image1")->hasPicture());
        QVERIFY(m_window->isModified());
        click("Command4");
        QCOMPARE(record(4).mid(520, 200),
                 padded(QDir::toNativeSeparators(m_test->path(u"Pictures/photo03.jpg"_s)).toLatin1(), 200));
        click("Command7");
        click("pictureDelete");
        click("Command4");
        QCOMPARE(record(4).mid(520, 200), padded("**", 200));
    }

    void dials()
    {
        m_test->dialogs.willAnswer(Answer::Cancel);
        click("Image2_0");
        QCOMPARE(asked(), {AddressMessages::numberDialed(u"(440) 555-0100"_s)});
        QVERIFY(m_line.log.contains(u"ATDT (440) 555-0100;\r"_s));
        QVERIFY(!find<QLabel>("Label3")->isVisible());

        m_line.workingPorts = {101};
        m_test->dialogs.willInput(u"101"_s);
        m_test->dialogs.willAnswer(Answer::Ok);
        m_test->dialogs.willAnswer(Answer::Ok);
        click("Image2_1");
        QCOMPARE(asked(), QList<Message>({AddressMessages::portNotAvailable(3),
                                          AddressMessages::numberDialed(u"440 555 0100"_s)}));
        QVERIFY(m_test->dialogs.takePrompts().contains(AddressMessages::newPortPrompt()));
        QCOMPARE(m_test->settings.number(SettingsKeys::modemPort), 101);
        QVERIFY(m_line.log.contains(u"ATDT 440 555 0100;\r"_s));
    }

    void copiesTheEntry()
    {
        for (const char *command : {"mOCopy", "mECopy"}) {
            QApplication::clipboard()->clear();
            trigger(command);
            QCOMPARE(asked(), {AddressMessages::dataCopied()});
            QVERIFY(QApplication::clipboard()->text().contains(u"160 High Street"_s));
        }
    }

    void showsWhatItPrints()
    {
        for (const char *command : {"mOPrt", "mOW"}) {
            trigger(command);
            QVERIFY(m_window->isPreviewShown());
            QTest::keyClick(m_window, Qt::Key_Escape);
            QVERIFY(!m_window->isPreviewShown());
            QVERIFY(m_window->isVisible());
        }
        trigger("mOPrt");
        trigger("mOMod"); // what is typed into stands in front
        QVERIFY(box(0)->isVisible());
        QVERIFY(box(0)->hasFocus());
    }

    void printsLabelsOfTickedNames()
    {
        for (const bool isAgain : {false, true}) {
            select(2);
            trigger("mOLab");
            QVERIFY(labelText("tickedCount").startsWith(u"Names: 1 of "_s));
            QTRY_COMPARE(labelText("labelCount"), u"1 label on 1 sheet"_s);
            for (const auto &[name, offset] : {std::pair{"labelRight", 3}, {"labelDown", -20}}) {
                QCOMPARE(find<QSpinBox>(name)->value(), isAgain ? offset : 0);
                find<QSpinBox>(name)->setValue(offset);
            }
            click("leaveLabels");
            QVERIFY(box(0)->isVisible());
            show();
        }
        // Where the store cannot be written, somebody says so.
        const QString store = m_test->program.store.fileName();
        m_test->program.store.sync();
        QVERIFY(QFile::remove(store) && QDir().mkpath(store));
        trigger("mOLab");
        click("leaveLabels");
        QCOMPARE(said(), FrameLines::settingNotSaved());
    }

    void leavesPanelsWhereTheUserIs()
    {
        click("Command5");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(find<QWidget>("Command5")->hasFocus());
        click("Command5");
        clickRow(3); // another entry takes the panel's place
        QVERIFY(box(0)->isVisible());
        QVERIFY(list()->hasFocus());
    }

    void warnsBeforePrintingManyPictures()
    {
        click("Command5");
        find<QAbstractButton>("printAll")->setChecked(true);
        m_test->dialogs.willAnswer(Answer::Cancel);
        click("print2");
        QCOMPARE(asked(), {AddressMessages::manyPictures()});
        QVERIFY(!m_window->isPreviewShown());
        find<QAbstractButton>("printSome")->setChecked(true);
        click("print2");
        QVERIFY(asked().isEmpty());
        QVERIFY(m_window->isPreviewShown());
    }
};

QTEST_MAIN(TestAddbkcommands)
#include "tst_entrycommands.moc"
