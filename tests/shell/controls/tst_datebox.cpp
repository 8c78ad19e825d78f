// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/controls/dayspan.h"
#include "shell/controls/monthview.h"
#include "shell/core/settingskeys.h"
#include "shell/look/theme.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QSignalSpy>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

/// A window with a date box, its calendar, and another box to go to.
class TestDateBox : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Theme::apply(*qApp); }

    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_window->resize(800, 600);
        m_picker = new DatePicker(m_test.clock, m_test.settings, m_window.get());
        m_box = new DateBox({m_style, m_test.clock}, m_picker, m_window.get());
        m_next = new DateBox({m_style, m_test.clock}, m_picker, m_window.get());
        m_other = new QLineEdit(m_window.get());
        m_month = control<MonthView>(*m_picker, "MonthView1");
        auto *rows = new QVBoxLayout(m_window.get());
        rows->addWidget(m_box);
        rows->addWidget(m_next);
        rows->addWidget(m_other);
        showActive(*m_window);
        m_other->setFocus();
    }

    void tidiesOnlyWhatWasTyped()
    {
        // A record keeps its own spelling until somebody types.
        m_box->setText(u"11/24/1978"_s);
        m_box->setFocus(Qt::TabFocusReason);
        leave();
        QCOMPARE(m_box->text(), u"11/24/1978"_s);
        m_box->setFocus(Qt::TabFocusReason);
        QTest::keyClick(m_box, Qt::Key_End);
        QTest::keyClick(m_box, Qt::Key_Backspace);
        QTest::keyClicks(m_box, u"9"_s);
        leave();
        QCOMPARE(m_box->text(), u"Nov-24-1979"_s);

        QSignalSpy refused(m_box, &FieldBox::refused);
        const auto type = [this](const QString &text) {
            m_box->setFocus(Qt::TabFocusReason);
            m_box->selectAll();
            QTest::keyClicks(m_box, text);
            leave();
            return m_box->text();
        };
        QCOMPARE(type(u"1/2/29"_s), u"Jan-02-2029"_s);
        QCOMPARE(refused.count(), 0);
        QCOMPARE(type(u"soon"_s), u"soon"_s);
        QVERIFY(!m_box->date());
        QCOMPARE(refused.takeFirst().at(0).toString(), u"Not a date that can be counted with"_s);

        for (const QString &month : {u"12/2026"_s, u" 12-26 "_s}) {
            m_box->takeMonths(DateBox::MonthAlone::Refused);
            QCOMPARE(type(month).trimmed(), month.trimmed());
            m_box->takeMonths(DateBox::MonthAlone::FirstDay);
            QCOMPARE(type(month), u"Dec-01-2026"_s);
            m_box->takeMonths(DateBox::MonthAlone::LastDay);
            QCOMPARE(type(month), u"Dec-31-2026"_s);
        }
        m_box->takeMonths(DateBox::MonthAlone::Refused);
        QCOMPARE(type(u"soon"_s), u"soon"_s);
        refused.clear();

        m_box->takeNoFuture();
        QCOMPARE(type(u"1/2/29"_s), u"Jan-02-1929"_s);
        QCOMPARE(refused.takeFirst().at(0).toString(), QString()); // what was said of it is taken back
        QCOMPARE(type(u"1/2/2029"_s), u"1/2/2029"_s);
        QVERIFY(!m_box->date());
        QCOMPARE(refused.count(), 1);
    }

    void takesTheRefusalBackOnceEveryDateIsOne()
    {
        QStringList said;
        const auto type = [this](DateBox *box, const QString &text) {
            box->setFocus(Qt::TabFocusReason);
            box->selectAll();
            QTest::keyClicks(box, text);
            leave();
        };
        for (DateBox *box : {m_box, m_next})
            connect(box, &FieldBox::refused, this, [&said](const QString &reason) { said << reason; });
        type(m_box, u"soon"_s);
        type(m_next, u"later"_s);
        QCOMPARE(std::exchange(said, {}).size(), 2);
        type(m_box, u"3/5/1990"_s);
        QVERIFY(said.isEmpty());
        type(m_next, u"3/6/1990"_s);
        QCOMPARE(said, QStringList{QString()});
    }

    void tellsAnotherDateOnce()
    {
        const QSignalSpy changed(m_box, &DateBox::dateChanged);
        m_box->setDate(QDate(2026, 11, 24));
        QCOMPARE(m_box->text(), u"Nov-24-2026"_s);
        m_box->setText(u"2026-11-24"_s); // the same day in other words
        QCOMPARE(changed.count(), 1);
        m_box->setDate({});
        QCOMPARE(changed.count(), 2);
        QVERIFY(m_box->text().isEmpty());
    }

    void aLockedBoxShowsItsDateForReadingOnly()
    {
        m_box->setDate(QDate(1978, 11, 24));
        m_box->setLocked(true);
        const QSignalSpy shown(m_box, &DateBox::lockedDateShown);
        QTest::mouseClick(m_box, Qt::LeftButton);
        QVERIFY(m_month->isVisible());
        QCOMPARE(m_month->selectedDate(), QDate(1978, 11, 24));
        QCOMPARE(shown.count(), 1);
        emit m_month->clicked(QDate(1978, 11, 30));
        QCOMPARE(m_box->text(), u"Nov-24-1978"_s);
    }

    void followsTheTyping()
    {
        m_box->setDate(QDate(1978, 11, 24));
        m_box->setFocus(Qt::TabFocusReason);
        m_month->showNextYear();
        m_picker->dismiss();
        QTest::keyClick(m_box, Qt::Key_Down);
        QCOMPARE(m_month->yearShown(), 1978);
        m_box->setFocus(Qt::TabFocusReason);
        m_box->selectAll();
        QTest::keyClicks(m_box, u"3/5/1990"_s);
        QCOMPARE(m_month->selectedDate(), QDate(1990, 3, 5));
        QTest::keyClicks(m_box, u"x"_s);
        QCOMPARE(m_month->monthShown(), 3);
        m_box->clear();
        QCOMPARE(m_month->selectedDate(), m_test.clock.today());
    }

    void goesFromBoxToBox()
    {
        for (DateBox *box : {m_box, m_next, m_box}) {
            QTest::mouseClick(box, Qt::LeftButton);
            QCoreApplication::processEvents();
            QCOMPARE(m_picker->box(), box);
        }
        leave();
        QTRY_VERIFY(!m_picker->isVisible());
    }

    void neverCoversItsBox_data()
    {
        rows<QSize, QRect>({
            {"room at its right", {900, 600}, {20, 280, 300, 34}},
            {"at its left", {900, 600}, {560, 280, 300, 34}},
            {"above", {700, 420}, {200, 360, 300, 34}},
            {"low and narrow", {520, 420}, {100, 300, 300, 34}},
            {"a narrow place at its right", {540, 330}, {20, 150, 280, 34}},
            {"no room at all", {500, 300}, {100, 120, 300, 34}},
        });
    }

    void neverCoversItsBox()
    {
        const auto [window, place] = row<QSize, QRect>();
        m_window->layout()->removeWidget(m_box);
        m_window->resize(window);
        m_box->setGeometry(place);
        m_box->setFocus(Qt::TabFocusReason);
        QVERIFY(m_month->isVisible());
        QVERIFY(!m_picker->geometry().intersects(m_box->geometry()));
        QVERIFY(m_window->rect().contains(m_picker->geometry()));
        QCOMPARE(m_month->horizontalHeaderFormat(), m_picker->width() < 250
                                                        ? QCalendarWidget::SingleLetterDayNames
                                                        : QCalendarWidget::ShortDayNames);
    }

    void followsABoxThatScrolls()
    {
        QWidget form(m_window.get());
        form.resize(800, 1200);
        m_box->setParent(&form);
        m_box->setGeometry(400, 500, 390, 34);
        form.show();
        m_box->show();
        m_box->setFocus(Qt::TabFocusReason);
        const QRect before = m_picker->geometry();
        form.move(-390, -300);
        QVERIFY(m_picker->isVisible());
        QVERIFY(m_picker->geometry() != before);
        QVERIFY(!m_picker->geometry().intersects(m_box->geometry().translated(form.pos())));
    }

    void showsWeeksAsTheHouseholdChose()
    {
        m_box->setFocus(Qt::TabFocusReason);
        QCOMPARE(m_month->firstDayOfWeek(), Qt::Sunday);
        QCOMPARE(m_month->verticalHeaderFormat(), QCalendarWidget::ISOWeekNumbers);
        leave();
        QVERIFY(m_test.settings.setNumber(SettingsKeys::calendarWeekNumbers, 1));
        QVERIFY(m_test.settings.setNumber(SettingsKeys::calendarWeekStart, 2));
        m_box->setFocus(Qt::TabFocusReason);
        QCOMPARE(m_month->firstDayOfWeek(), Qt::Monday);
        QCOMPARE(m_month->verticalHeaderFormat(), QCalendarWidget::NoVerticalHeader);
        QVERIFY(m_test.settings.setNumber(SettingsKeys::calendarWeekNumbers, 0));
        QVERIFY(m_test.settings.setNumber(SettingsKeys::calendarWeekStart, 1));
    }

    void aSpanOfDaysIsOneOnlyWithTwoDates_data()
    {
        rows<QString, QString, QString, QString>({
            {"in order", u"Nov-05-2026"_s, u"Nov-09-2026"_s, u"05 to 09"_s, QString()},
            {"the wrong way round", u"Nov-09-2026"_s, u"Nov-05-2026"_s, u"05 to 09"_s, QString()},
            {"no date", u"Nov-31-2026"_s, u"Nov-05-2026"_s, u"01 to 05"_s, u"Nov-31-2026 is no date"_s},
            {"nothing", u"Nov-05-2026"_s, QString(), u"05 to 21"_s, u"Both days are needed"_s},
        });
    }

    void aSpanOfDaysIsOneOnlyWithTwoDates()
    {
        const auto [from, to, days, why] = row<QString, QString, QString, QString>();
        DaySpan span(u"some"_s, {m_style, m_test.clock}, m_test.settings, m_window.get(), m_window.get());
        span.setDays(QDate(2026, 11, 1), QDate(2026, 11, 21));
        control<DateBox>(span, "someFrom")->setText(from);
        control<DateBox>(span, "someTo")->setText(to);
        QCOMPARE(span.from().toString(u"dd"_s) + u" to "_s + span.to().toString(u"dd"_s), days);
        QCOMPARE(span.refuse(), why);
    }

private:
    void leave() { m_other->setFocus(Qt::TabFocusReason); }

    TestProgram m_test;
    DateStyle m_style = DateStyle::Usa;
    std::unique_ptr<QWidget> m_window;
    DatePicker *m_picker = nullptr;
    DateBox *m_box = nullptr;
    DateBox *m_next = nullptr;
    QLineEdit *m_other = nullptr;
    MonthView *m_month = nullptr;
};

QTEST_MAIN(TestDateBox)
#include "tst_datebox.moc"
