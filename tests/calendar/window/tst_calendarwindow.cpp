// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/model/messages.h"
#include "calendar/window/calendarwindow.h"
#include "calendar/window/celleditor.h"
#include "calendar/window/monthcells.h"
#include "shell/core/area.h"
#include "shell/preview/previewmessages.h"
#include "tests/support/openwindow.h"
#include "tests/support/rows.h"
#include "tests/support/testpictures.h"

#include <QAccessible>
#include <QCheckBox>
#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBlock>

using namespace Qt::Literals::StringLiterals;

namespace {

/// March 2027 alone, upright, with what `lines` add.
QByteArray march(const QByteArray &lines = {})
{
    return "Quillery calendar 1\r\ntitle\tKitchen\r\nfrom\t2027-03\r\nmonths\t1\r\nlayout\tmonth\r\n"
           "style\tclassic\r\npaper\tA4\tlandscape\r\nweek\tmonday\r\n" +
           lines;
}

QByteArray typed(const QByteArray &date, const QByteArray &text)
{
    return "day\t" + date + "\ttyped\t\t\t" + text + "\r\n";
}

const QDate sunday(2027, 3, 14);

} // namespace

/// The calendar maker on 21 November 2026.
class TestCalendarWindow : public OpenWindow<Calendar>
{
    Q_OBJECT
private slots:
    void cleanup() { close(); }

    void aFirstCalendarIsMadeAndWrittenByKeysOnly()
    {
        open({});
        QVERIFY(find<QPushButton>("firstCalendarButton")->hasFocus());
        QVERIFY(!m_test->folder.exists(u"CalMk1.Fil"_s)); // opening alone writes nothing
        key(Qt::Key_N, Qt::ControlModifier);
        auto *title = find<QLineEdit>("calendarTitle");
        QVERIFY(title->hasFocus());
        key(Qt::Key_Return);
        QVERIFY(cells()->hasFocus());
        QCOMPARE(day(), QDate(2027, 1, 1));
        key(Qt::Key_PageDown);
        key(Qt::Key_Down);
        key(Qt::Key_End);
        key(Qt::Key_Left);
        const QDate there = day();
        QCOMPARE(there.month(), 2);
        typeInto(m_window->focusWidget(), u"A"_s); // typing opens the day
        typeInto(m_window->focusWidget(), u"nne's concert"_s);
        key(Qt::Key_Return);
        typeInto(m_window->focusWidget(), u"Bake bread \u2615"_s);
        key(Qt::Key_Up, Qt::AltModifier);
        key(Qt::Key_Escape);
        QVERIFY(cells()->hasFocus());
        m_window->close();
        const QByteArray date = there.toString(Qt::ISODate).toLatin1();
        const QByteArray lines = typed(date, "Bake bread \u2615") + typed(date, "Anne's concert");
        QVERIFY(file().contains(lines));
    }

    void linesAreChosenOrderedRemovedAndBroughtBack()
    {
        open(march(typed("2027-03-14", "One") + typed("2027-03-14", "Two") +
                   "day\t2027-03-14\tplanner\t2027-03-14\t10:00 Church\t10:00 Church\r\n"));
        goTo(sunday);
        QVERIFY(!find<QAction>("mERemove")->isEnabled()); // which one?
        key(Qt::Key_Down, Qt::ControlModifier);
        QCOMPARE(said(), u"line 1 of 3: One, typed here"_s);
        key(Qt::Key_Down, Qt::AltModifier);
        QCOMPARE(shown(), (QStringList{u"Two"_s, u"One"_s, u"10:00 Church"_s}));
        key(Qt::Key_Delete);
        QCOMPARE(shown(), (QStringList{u"Two"_s, u"10:00 Church"_s}));
        key(Qt::Key_Down, Qt::ControlModifier);
        key(Qt::Key_Down, Qt::ControlModifier);
        key(Qt::Key_Delete);
        QCOMPARE(shown(), QStringList{u"Two"_s});
        trigger("mERestore");
        QCOMPARE(shown(), (QStringList{u"Two"_s, u"10:00 Church"_s}));
        for (int i = 0; i < 4; ++i)
            trigger("mEUndo");
        QCOMPARE(shown(), (QStringList{u"One"_s, u"Two"_s, u"10:00 Church"_s}));
        trigger("mOSave");
        QVERIFY(file().contains("10:00 Church\t10:00 Church"));
    }

    void whatIsTypedIsSavedWhileTheDayIsOpenAndIsOneStep()
    {
        open(march(typed("2027-03-14", "One")));
        goTo(sunday);
        key(Qt::Key_Return);
        QVERIFY(editor()->hasFocus());
        typeInto(editor(), u"Two\tthree"_s);
        QTRY_VERIFY(file().contains("Two three"));
        key(Qt::Key_Escape);
        trigger("mEUndo");
        QCOMPARE(shown(), QStringList{u"One"_s});
        key(Qt::Key_Return);
        QGuiApplication::clipboard()->setText(QString(300, u'x') + u"\nshort\n"_s);
        editor()->paste();
        QCOMPARE(said(), u"A line has room for 200 characters"_s);
        key(Qt::Key_Escape);
        QCOMPARE(shown(), (QStringList{u"One"_s, QString(200, u'x'), u"short"_s}));
    }

    /// What was typed in between is never lost to a step that is taken back while the day is open.
    void aDayThatIsOpenGivesWayToUndo()
    {
        open(march());
        goTo(sunday);
        typeInto(cells(), u"O"_s);
        typeInto(editor(), u"ne"_s);
        key(Qt::Key_Escape);
        QCOMPARE(said(), u"Written on Sunday 14 March"_s);
        key(Qt::Key_Return);
        QCOMPARE(said(), QString());
        trigger("mEUndo");
        QVERIFY(!editor()->isVisible());
        QCOMPARE(shown(), QStringList());
        trigger("mERedo");
        QCOMPARE(shown(), QStringList{u"One"_s});
    }

    void aLineGoesToAnotherDate()
    {
        open(march(typed("2027-03-14", "One")));
        goTo(sunday);
        drop(QDate(2027, 3, 16), Qt::CopyAction);
        QCOMPARE(shown(QDate(2027, 3, 16)), QStringList{u"One"_s});
        key(Qt::Key_Down, Qt::ControlModifier);
        drop(QDate(2027, 3, 17), Qt::MoveAction);
        QCOMPARE(shown(), QStringList());
        QCOMPARE(cells()->line(), -1);
        goTo(QDate(2027, 3, 17));
        key(Qt::Key_D, Qt::ControlModifier);
        auto *date = find<QLineEdit>("lineDate");
        date->setText(u"Apr-01-2027"_s);
        key(Qt::Key_Return);
        QVERIFY(date->isVisible()); // the calendar ends with March
        date->setText(u"Mar-31-2027"_s);
        key(Qt::Key_Return);
        QCOMPARE(day(), QDate(2027, 3, 31));
        QCOMPARE(shown(), QStringList{u"One"_s});
    }

    void daysChosenTogetherBecomeABar()
    {
        open(march());
        goTo(QDate(2027, 3, 22));
        key(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
        key(Qt::Key_Return);
        typeInto(find<QLineEdit>("barText"), u"Spring holidays"_s);
        click("barKeep");
        trigger("mOSave");
        QVERIFY(file().contains("span\t2027-03-22\t2027-03-29\t1\tSpring holidays\r\n"));
        QCOMPARE(spoken(), u"Monday 29 March, empty, bar Spring holidays"_s);
        trigger("mEBarEdit");
        click("barRemove");
        trigger("mOSave");
        QVERIFY(!file().contains("span"));
    }

    /// "1" to "40" on a day, more than any sheet has room for there.
    void aCrowdedDayOpensWithAllItsLines()
    {
        QByteArray lines;
        for (int i = 1; i <= 40; ++i)
            lines += typed("2027-03-14", QByteArray::number(i));
        open(march(lines));
        QVERIFY(said().endsWith(u"lines stand at the foot, their days are full"_s));
        goTo(sunday);
        key(Qt::Key_Return);
        QCOMPARE(editor()->lines().size(), 41); // and a new one
        key(Qt::Key_Escape);
        key(Qt::Key_Up, Qt::ControlModifier);
        QCOMPARE(said(), u"line 40 of 40: 40, typed here"_s);
        key(Qt::Key_Escape);
        QCOMPARE(said(), QString());
        // A line in the list at the foot is chosen by a click.
        const QRect sheet = cells()->viewport()->rect();
        QPoint place(sheet.width() / 8, sheet.bottom());
        for (; cells()->line() < 0 && place.y() > sheet.center().y(); place.ry() -= 2)
            QTest::mouseClick(cells()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        QVERIFY(!editor()->isVisible());
        QVERIFY(said().endsWith(u"of 40: %1, typed here"_s.arg(cells()->line() + 1)));
        key(Qt::Key_Delete);
        QCOMPARE(shown().size(), 39);
    }

    void daysAreChosenWithTheMouse()
    {
        open(march());
        const auto send = [this](QEvent::Type type, QDate on) {
            const QPoint place = placeOf(on).center();
            const auto buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
            QMouseEvent event(type, place, cells()->viewport()->mapToGlobal(place),
                              type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, buttons,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(cells()->viewport(), &event);
        };
        send(QEvent::MouseButtonPress, QDate(2027, 3, 9));
        send(QEvent::MouseMove, QDate(2027, 3, 11));
        send(QEvent::MouseButtonRelease, QDate(2027, 3, 11));
        QVERIFY(!editor()->isVisible());
        QCOMPARE(cells()->firstChosen(), QDate(2027, 3, 9));
        QCOMPARE(cells()->lastChosen(), QDate(2027, 3, 11));
        send(QEvent::MouseButtonPress, QDate(2027, 3, 3));
        send(QEvent::MouseButtonRelease, QDate(2027, 3, 3));
        QVERIFY(editor()->isVisible());
        QCOMPARE(cells()->firstChosen(), QDate(2027, 3, 3));
    }

    void aDayOfASmallMonthLeadsToIt()
    {
        open("Quillery calendar 1\r\ntitle\tKitchen\r\nfrom\t2027-01\r\nmonths\t12\r\nlayout\tmonth\r\n"
             "paper\tA4\tlandscape\r\nshows\tsmall months\r\n");
        goTo(QDate(2027, 1, 14));
        const QRect sunday = placeOf(QDate(2027, 1, 3)); // below February
        for (QPoint place = sunday.center(); day().month() == 1 && place.y() > 0; place.ry() -= 4) {
            if (!sunday.contains(place))
                QTest::mouseClick(cells()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
        }
        QCOMPARE(day().month(), 2);
    }

    void theWholeSheetIsShownWhereItIsTicked()
    {
        open(march());
        m_window->resize(1200, 480);
        auto *whole = find<QAction>("mVWhole");
        emit find<QMenu>("mV")->aboutToShow();
        QVERIFY(!whole->isChecked()); // it could hardly be read
        QVERIFY(cells()->verticalScrollBar()->maximum() > 0);
        whole->trigger();
        QVERIFY(whole->isChecked());
        QCOMPARE(cells()->verticalScrollBar()->maximum(), 0);
    }

    void aLongLineHangsWhereItIsTyped()
    {
        open(march(typed("2027-03-14", "Anne's concert in the town hall with the whole choir and the band")));
        goTo(sunday);
        key(Qt::Key_Return);
        const QTextLayout &line = *editor()->document()->firstBlock().layout();
        QVERIFY(line.lineCount() > 1);
        QVERIFY(line.lineAt(1).x() > line.lineAt(0).x());
    }

    void readsADayAloud()
    {
        open(march(typed("2027-03-14", "Anne's concert") +
                   "day\t2027-03-14\tbirthday\t2027-03-14\tNils turns 8\tNils turns 8\r\n"
                   "day\t2027-03-14\tplanner\t2027-03-14\t10:00 Church\t11:00 Church\r\n"));
        goTo(sunday);
        QCOMPARE(spoken(), u"Sunday 14 March, 3 lines, Anne's concert, Nils turns 8, a birthday, "
                           "11:00 Church, from the planner, changed by hand"_s);
        QCOMPARE(cells()->accessibleDescription(), u"March 2027 of Kitchen"_s);
    }

    void fillsAndFillsAgain()
    {
        open(march(typed("2027-03-14", "Mine")));
        key(Qt::Key_I, Qt::ControlModifier);
        QCOMPARE(labelText("fillSummary"), u"2 new; your 1 line stays"_s);
        click("fillNow");
        QCOMPARE(said(), u"Filled: 2 new; your 1 line stays"_s);
        QVERIFY(find<QWidget>("statusUndo")->isVisible());
        trigger("mCFill");
        click("fillNow"); // which changes nothing: the step before is not this one's
        QVERIFY(said().startsWith(u"Filled: Nothing has changed"_s));
        QVERIFY(!find<QWidget>("statusUndo")->isVisible());
        goTo(sunday);
        QCOMPARE(shown(), (QStringList{u"10:00 AM Church"_s, u"Mine"_s}));
        m_notes = {note(14, u"Church"_s, 11)};
        m_window->close();
        openAgain();
        QTRY_COMPARE(said(), u"What it was filled from has changed since: 1 changed, 1 gone. Ctrl+I fills it "
                             "again."_s);
        goTo(sunday);
        QCOMPARE(shown(), (QStringList{u"10:00 AM Church"_s, u"Mine"_s})); // nothing fills by itself
        trigger("mCFill");
        key(Qt::Key_Return); // on a row
        goTo(sunday);
        QCOMPARE(shown(), (QStringList{u"11:00 AM Church"_s, u"Mine"_s}));
        trigger("mEUndo");
        QCOMPARE(shown(), (QStringList{u"10:00 AM Church"_s, u"Mine"_s}));
    }

    void aGuardedFunctionGivesNothingUnasked_data()
    {
        rows<bool, QString>({{"refused", false, u"Nothing is ticked"_s}, {"given", true, u"2 new"_s}});
    }
    void aGuardedFunctionGivesNothingUnasked()
    {
        const auto [isGiven, summary] = row<bool, QString>();
        m_isGuarded = true;
        m_isGiven = isGiven;
        open(march());
        m_window->close();
        QVERIFY(m_test->settings.setText(SettingsKeys::calendarColor, u"12632256"_s));
        openAgain();
        trigger("mCFill");
        QVERIFY(!find<QCheckBox>("fillRow_0")->isChecked());
        QCOMPARE(m_asked, 0);
        const auto ink = [this] {
            return find<QWidget>("fillRows")->findChild<QLabel *>()->palette().color(QPalette::LinkVisited);
        };
        const QColor before = ink();
        find<QCheckBox>("fillRow_0")->click();
        QTRY_COMPARE(m_asked, 1);
        QVERIFY(find<QCheckBox>("fillRow_0")->hasFocus());
        QCOMPARE(ink(), before);
        QCOMPARE(find<QCheckBox>("fillRow_0")->isChecked(), isGiven);
        QCOMPARE(labelText("fillSummary"), summary);
        QCOMPARE(find<QLabel>("fillGuarded")->isVisible(), isGiven);
        QCOMPARE(isOffered("fillNow"), isGiven);
        key(Qt::Key_Escape);
        trigger("mCFill");
        QCOMPARE(ink(), before);
    }

    void aDeletedCalendarGoesWithTheWindow()
    {
        open(march());
        m_test->dialogs.willAnswer(Answer::No);
        trigger("mCDel");
        QCOMPARE(asked(), {CalendarMessages::deleteCalendar(u"Kitchen"_s)});
        m_test->dialogs.willAnswer(Answer::Yes);
        trigger("mCDel");
        QVERIFY(asked().size() == 1 && !cells()->isVisible());
        trigger("mEUndo");
        QVERIFY(cells()->isVisible());
        trigger("mERedo");
        QVERIFY(m_test->folder.exists(u"CalMk1.Fil"_s));
        m_window->close();
        QVERIFY(!m_test->folder.exists(u"CalMk1.Fil"_s));
        openAgain();
        trigger("mCBack");
        key(Qt::Key_Return);
        QCOMPARE(file(), march());
    }

    void aPanelWithChangesIsNotLeftUnasked()
    {
        open(march());
        m_test->setBytes(u"CalMk2.Fil"_s, march());
        m_window->close();
        openAgain();
        trigger("mCRules");
        click("rulesNew");
        typeInto(find<QLineEdit>("rulesWords"), u"Bin"_s);
        for (const char *command : {"mCNew", "mCFill", "mCHol", "mOPrt", "mEBar"})
            QVERIFY2(!find<QAction>(command)->isEnabled(), command);
        m_test->dialogs.willAnswer(Answer::No);
        auto *list = find<QListView>("calendars");
        list->setCurrentIndex(list->model()->index(1, 0));
        QCOMPARE(asked().size(), 1);
        QVERIFY(find<QLineEdit>("rulesWords")->isVisible());
        QCOMPARE(list->currentIndex().row(), 0);
        m_test->dialogs.willAnswer(Answer::Yes);
        list->setCurrentIndex(list->model()->index(1, 0));
        QVERIFY(cells()->isVisible() && find<QAction>("mCNew")->isEnabled());
        asked();
    }

    void tabLeadsThroughAllOfAPanel_data()
    {
        rows<QByteArray, QStringList>({
            {"the sheet", {}, {u"calendarSearch"_s, u"calendars"_s, u"fillButton"_s, u"exitButton"_s}},
            {"a new calendar", "mCNew", {u"calendarTitle"_s, u"newCalendarMake"_s, u"newCalendarCancel"_s}},
            {"a fill", "mCFill", {u"fillRow_0"_s, u"fillNow"_s, u"fillClose"_s}},
            {"what is printed", "mOPrt", {u"printWhat_1"_s, u"calendarPrintShow"_s, u"calendarPrintClose"_s}},
        });
    }

    void tabLeadsThroughAllOfAPanel()
    {
        const auto [command, names] = row<QByteArray, QStringList>();
        open(march());
        if (!command.isEmpty())
            trigger(command.constData());
        QStringList reached;
        for (int i = 0; i < 60; ++i) {
            reached.append(m_window->focusWidget()->objectName());
            key(Qt::Key_Tab);
        }
        qsizetype before = reached.indexOf(names.first());
        for (const QString &name : names) {
            const qsizetype at = reached.indexOf(name, before);
            QVERIFY2(at >= before && before >= 0, qPrintable(name + u" of "_s + reached.join(u' ')));
            before = at;
        }
    }

    void aCalendarThatComesIntoTheFolderIsListed()
    {
        open(march());
        changeElsewhere(u"CalMk2.Fil"_s, march().replace("Kitchen", "School"));
        auto *list = find<QListView>("calendars");
        QTRY_COMPARE(list->model()->rowCount(), 2);
    }

    void searchesTheCalendar()
    {
        open(march(typed("2027-03-14", "Anne's concert") + typed("2027-03-20", "Concert of the choir")));
        key(Qt::Key_F, Qt::ControlModifier);
        typeInto(m_window->focusWidget(), u"CHOIR con"_s);
        QCOMPARE(labelText("calendarHitCount"), u"1 line found"_s);
        key(Qt::Key_Return);
        QCOMPARE(day(), QDate(2027, 3, 20));
        QCOMPARE(cells()->line(), 0);
    }

    void pagesLieAsTheCalendarDoesAndHaveItsFont()
    {
        open(march(typed("2027-03-14", "Anne's concert")));
        key(Qt::Key_P, Qt::ControlModifier);
        key(Qt::Key_Return);
        QCOMPARE(labelText("Panel3D80"), u" Landscape"_s);
        click("SSCommand80_1");
        QCOMPARE(labelText("Panel3D80"), u" Portrait"_s);
        m_test->dialogs.willChooseFont(PageFont{QFont(u"DejaVu Serif"_s, 9)});
        click("SSCommand80_0");
        key(Qt::Key_Escape);
        trigger("mOSave");
        QVERIFY(!file().contains("landscape"));
        QVERIFY(file().contains("font\tDejaVu Serif"));
        trigger("mOCopy");
        QCOMPARE(asked(), {PreviewMessages::pageCopied()});
        QVERIFY(QGuiApplication::clipboard()->text().contains(u"Anne's concert"_s));
        QVERIFY(QGuiApplication::clipboard()->mimeData()->hasImage());
        m_test->dialogs.willChooseFile(m_test->path(u"year.pdf"_s));
        trigger("mOPdf");
        click("calendarPrintPdf");
        const QByteArray pdf = m_test->bytes(u"year.pdf"_s);
        QVERIFY(pdf.startsWith("%PDF"));
        QVERIFY(pdf.contains("/MediaBox [0 0 595.275591 841.889764]"));
    }

    void takesThePhotoOfAMonthFromAnAlbum()
    {
        open(march());
        QVERIFY(QDir().mkpath(m_test->path(u"Pictures"_s)));
        const QString picture = makePicture(m_test->path(u"Pictures/lake.png"_s), {16, 12});
        m_test->functions.add(Function::PhotoAlbum, {.pictureAlbums = [&picture](const Program &) {
                                  return QList<PictureAlbum>{{u"Grandmother"_s, {picture}}};
                              }});
        m_window->close();
        openAgain();
        trigger("mCPhotoAlbum");
        auto *albums = find<QListWidget>("albums1");
        emit albums->itemActivated(albums->item(0));
        find<QListWidget>("File1")->setCurrentRow(0);
        click("pictureEnter");
        click("insertPicture");
        trigger("mOSave");
        QVERIFY(file().contains("photo\t2027-03\tPictures/lake.png\t"));
    }

    void takesAPhotoThatIsDroppedOrPasted()
    {
        open(march());
        QVERIFY(QDir().mkpath(m_test->path(u"Pictures"_s)));
        QMimeData dragged;
        dragged.setUrls({QUrl::fromLocalFile(makePicture(m_test->path(u"Pictures/lake.png"_s), {16, 12}))});
        drop(dragged, {2, 2}, Qt::CopyAction);
        click("insertPicture");
        trigger("mOSave");
        QVERIFY(file().contains("photo\t2027-03\tPictures/lake.png\t"));

        QImage image(16, 12, QImage::Format_RGB32);
        image.fill(Qt::red);
        QGuiApplication::clipboard()->setImage(image);
        key(Qt::Key_V, Qt::ControlModifier);
        click("insertPicture");
        trigger("mOSave");
        QVERIFY(file().contains("photo\t2027-03\tPictures/Calendar"));
    }

    void whatCannotBeChangedSaysWhy()
    {
        open("Quillery calendar 2\r\ntitle\tKitchen\r\nfrom\t2027-03\r\nmonths\t1\r\n");
        QCOMPARE(said(), u"Written by a later version of Quillery: it can be read, but not "
                         "changed."_s);
        key(Qt::Key_Return);
        QVERIFY(!editor()->isVisible());
        QVERIFY(!find<QAction>("mCFill")->isEnabled());
        QVERIFY(find<QAction>("mCDel")->isEnabled());
        // It is one's own all the same; what is none of ours is not.
        m_test->setBytes(u"CalMk1.Fil"_s, "Quillery list 1\r\n");
        close();
        openAgain();
        QCOMPARE(said(), u"CalMk1.Fil is not a file of this calendar maker: it is left as it is."_s);
        for (const char *command : {"mCFill", "mCDel", "mCNext"})
            QVERIFY(!find<QAction>(command)->isEnabled());
        m_test->setBytes(u"CalMk1.Fil"_s, {});
        close();
        openAgain();
        QCOMPARE(said(), u"This file is empty: it becomes a calendar with the first line in it"_s);
        QVERIFY(find<QAction>("mCFill")->isEnabled());
    }

    void asksOnlyWhenASaveFailed()
    {
        open(march());
        QVERIFY(QFile::remove(m_test->path(u"CalMk1.Fil"_s)));
        QVERIFY(QDir(m_test->folder.path()).mkpath(u"CalMk1.Fil"_s));
        goTo(sunday);
        typeInto(cells(), u"x"_s);
        m_test->dialogs.willAnswer(Answer::No);
        QVERIFY(!m_window->close());
        QCOMPARE(asked(), {CalendarMessages::leaveUnsaved()});
        m_test->dialogs.willAnswer(Answer::Yes);
        QVERIFY(m_window->close());
        asked();
    }

private:
    void open(const QByteArray &calendar)
    {
        m_test = std::make_unique<TestProgram>(TestProgram::Empty);
        m_notes = {note(14, u"Church"_s, 10), note(20, u"Dentist"_s, 9)};
        m_asked = 0;
        if (!calendar.isEmpty())
            m_test->setBytes(u"CalMk1.Fil"_s, calendar);
        m_test->functions.add(Function::Planner,
                              {.dayNotes = [this](const Program &, QDate, QDate) { return m_notes; }});
        m_test->state.protectedAreas.setFlag(Area::Planner, m_isGuarded ? u"YES"_s : u"NO"_s);
        m_test->gate = AccessGate([this](Program &program, QWidget *) {
            ++m_asked;
            program.state.passwordGateResult =
                m_isGiven ? PasswordGateResult::Open : PasswordGateResult::Refused;
        });
        m_isGuarded = false;
        openAgain();
    }
    void openAgain()
    {
        m_window = new Calendar(m_test->program);
        showActive(*m_window);
    }

    static DayNote note(int day, const QString &text, int hour)
    {
        return {.date = QDate(2027, 3, day),
                .text = text,
                .source = u"Daily Planner"_s,
                .kind = NoteKind::Appointment,
                .time = QTime(hour, 0)};
    }

    void key(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) const
    {
        QTest::keyClick(m_window->focusWidget(), key, with);
    }
    MonthCells *cells() const { return find<MonthCells>("monthCells"); }
    CellEditor *editor() const { return find<CellEditor>("cellEditor"); }
    QDate day() const { return cells()->day(); }
    void goTo(QDate date) const
    {
        cells()->setFocus();
        cells()->setDay(date);
        emit cells()->moved();
    }
    QByteArray file() const { return m_test->bytes(u"CalMk1.Fil"_s); }
    /// The lines of a day as the file has them.
    QStringList shown(QDate date = {}) const
    {
        trigger("mOSave");
        QStringList lines;
        for (const QString &line : QString::fromUtf8(file()).split(u"\r\n"_s)) {
            const QStringList columns = line.split(u'\t');
            if (columns.value(0) == u"day" && !columns.value(5).isEmpty() &&
                columns.value(1) == (date.isValid() ? date : day()).toString(Qt::ISODate))
                lines.append(columns.value(5));
        }
        return lines;
    }
    QString spoken() const { return cells()->currentIndex().data(Qt::AccessibleTextRole).toString(); }
    /// Drops the first line of the day on another one.
    void drop(QDate on, Qt::DropAction action) const
    {
        QMimeData data;
        data.setData(u"application/x-quillery-calendar-line"_s,
                     day().toString(Qt::ISODate).toLatin1() + " 0");
        drop(data, placeOf(on).center(), action);
    }
    void drop(const QMimeData &data, QPoint place, Qt::DropAction action) const
    {
        QDragEnterEvent enter(place, action, &data, Qt::LeftButton, Qt::NoModifier);
        QDropEvent drop(place, action, &data, Qt::LeftButton, Qt::NoModifier);
        for (QDropEvent *event : {static_cast<QDropEvent *>(&enter), &drop})
            QCoreApplication::sendEvent(cells()->viewport(), event);
    }
    /// Of a day of the month that is shown, in the view.
    QRect placeOf(QDate date) const
    {
        const QAbstractItemModel &model = *cells()->model();
        for (int row = 0; row < model.rowCount(); ++row) {
            for (int column = 0; column < model.columnCount(); ++column) {
                const QModelIndex index = model.index(row, column);
                const QString words = index.data(Qt::AccessibleTextRole).toString();
                if (index.data().toInt() == date.day() &&
                    words.contains(QLocale::c().monthName(date.month())))
                    return cells()->visualRect(index);
            }
        }
        return {};
    }

    QList<DayNote> m_notes;
    bool m_isGuarded = false;
    bool m_isGiven = true;
    int m_asked = 0;
};

QTEST_MAIN(TestCalendarWindow)
#include "tst_calendarwindow.moc"
