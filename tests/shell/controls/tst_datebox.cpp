// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/controls/monthview.h"
#include "shell/look/theme.h"
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
    void init();
    void tidiesOnlyWhatWasTyped();
    void tellsAnotherDateOnce();
    void aLockedBoxShowsItsDateForReadingOnly();

private:
    void leave() { m_other->setFocus(Qt::TabFocusReason); }

    FixedClock m_clock;
    DateStyle m_style = DateStyle::Usa;
    std::unique_ptr<QWidget> m_window;
    DateBox *m_box = nullptr;
    QLineEdit *m_other = nullptr;
    MonthView *m_month = nullptr;
};

void TestDateBox::init()
{
    m_window = std::make_unique<QWidget>();
    m_window->resize(800, 600);
    auto *picker = new DatePicker(m_clock, m_window.get());
    m_box = new DateBox({m_style, m_clock}, picker, m_window.get());
    m_other = new QLineEdit(m_window.get());
    m_month = control<MonthView>(*picker, "MonthView1");
    auto *rows = new QVBoxLayout(m_window.get());
    rows->addWidget(m_box);
    rows->addWidget(m_other);
    showActive(*m_window);
    m_other->setFocus();
}

void TestDateBox::tidiesOnlyWhatWasTyped()
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

    m_box->selectAll();
    QTest::keyClicks(m_box, u"soon"_s);
    leave();
    QCOMPARE(m_box->text(), u"soon"_s);
    QVERIFY(!m_box->date());
}

void TestDateBox::tellsAnotherDateOnce()
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

void TestDateBox::aLockedBoxShowsItsDateForReadingOnly()
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

QTEST_MAIN(TestDateBox)
#include "tst_datebox.moc"
