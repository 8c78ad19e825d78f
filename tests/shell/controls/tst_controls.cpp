// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/controls/figurestrip.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/monthview.h"
#include "shell/controls/rowsmodel.h"
#include "shell/look/theme.h"
#include "shell/program/messagebox.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QClipboard>
#include <QDropEvent>
#include <QHeaderView>
#include <QListView>
#include <QMainWindow>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QSpinBox>
#include <QStatusTipEvent>
#include <QTableView>
#include <QToolButton>

#include <set>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Lets `text` fall behind the last character of `box`.
void drop(QLineEdit &box, const QString &text)
{
    QMimeData mime;
    mime.setText(text);
    QDragEnterEvent enter(QPoint(box.width() - 2, box.height() / 2), Qt::CopyAction, &mime, Qt::LeftButton,
                          {});
    QApplication::sendEvent(&box, &enter);
    QDropEvent event(QPointF(box.width() - 2, box.height() / 2.0), Qt::CopyAction, &mime, Qt::LeftButton, {});
    QApplication::sendEvent(&box, &event);
}

} // namespace

class TestControls : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Theme::apply(*qApp); }

    /// Side by side as long as nothing is cut.
    void figuresStandInOneRowOrTwo()
    {
        QMainWindow window;
        auto *strip = new FigureStrip(u"strip"_s);
        window.setCentralWidget(strip);
        strip->setFigures({{u"Current Weight"_s, u"192.2"_s},
                           {u"Beginning Weight  Trend"_s, u"-22.3"_s},
                           {u"Last  Entry Trend"_s, u"-1.1"_s},
                           {u"To the Goal Weight"_s, u"12.2 to lose"_s}});
        const int whole = strip->sizeHint().width();
        showActive(window);
        for (const auto &[width, rowCount] : {std::pair(whole, 1), {whole - 60, 2}}) {
            window.resize(width, 400);
            QCoreApplication::processEvents();
            std::set<int> tops;
            for (const QLabel *label : strip->findChildren<QLabel *>()) {
                const bool isValue = !label->accessibleName().isEmpty();
                if (isValue)
                    tops.insert(label->mapTo(strip, QPoint()).y());
                if (!label->isHidden())
                    QVERIFY(label->width() >= label->fontMetrics().horizontalAdvance(label->text()));
            }
            QCOMPARE(int(tops.size()), rowCount);
        }
    }

    void aBoxTakesWhatItsFileHolds_data()
    {
        const QString foreign = u"The files cannot hold the character "_s;
        const QString full = u"This box takes 10 characters at most"_s;
        rows<QString, QString, QString, QString>({
            {"plain", u"Lin"_s, u"d"_s, u"Lind"_s, {}},
            {"accents and a long dash", {}, u"Jos\u00e9 \u2013"_s, u"Jos\u00e9 \u2013"_s, {}},
            {"accent as a character of its own", {}, u"Jose\u0301"_s, u"Jos\u00e9"_s, {}},
            {"only a letter that the files lack", u"Anna"_s, u"\u0141"_s, u"Anna"_s, foreign + u"\u0141"_s},
            {"such letters among others", u"A "_s, u"\u0141uk\U0001f600\u0141a"_s, u"A uka"_s,
             foreign + u"\u0141\U0001f600"_s},
            {"beyond the limit", u"12345678"_s, u"9012"_s, u"1234567890"_s,
             full + u". Cut off: \u201c12\u201d"_s},
            {"both", u"12345678"_s, u"\u0141901"_s, u"1234567890"_s,
             foreign + u"\u0141. "_s + full + u". Cut off: \u201c1\u201d"_s},
            {"line ends", {}, u"\ta\tb\r\nc\n"_s, u"a b c"_s, {}},
        });
    }

    void aBoxTakesWhatItsFileHolds()
    {
        const auto [before, offered, text, reason] = row<QString, QString, QString, QString>();
        FieldBox box;
        box.setByteLimit(10);
        QSignalSpy refused(&box, &FieldBox::refused);
        for (const bool isDropped : {false, true}) {
            box.clear();
            QTest::keyClicks(&box, before);
            if (isDropped) {
                drop(box, offered);
            } else {
                QApplication::clipboard()->setText(offered);
                QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
            }
            QCOMPARE(box.text(), text);
            QCOMPARE(refused.isEmpty() ? QString() : refused.takeFirst().first().toString(), reason);
            if (text == before)
                continue;
            QTest::keyClick(&box, Qt::Key_Backspace); // a step of its own
            box.undo();
            QCOMPARE(box.text(), text);
            box.undo();
            QCOMPARE(box.text(), before);
        }
    }

    void aLongTextShowsItsBeginningOnceItIsLeft()
    {
        QWidget window;
        FieldBox box(&window), other(&window);
        showActive(window);
        box.setFocus();
        QTest::keyClicks(&box, u"A text that is typed to its end"_s);
        QMenu().popup({});
        QCOMPARE(box.cursorPosition(), box.text().size());
        other.setFocus();
        QCOMPARE(box.cursorPosition(), 0);
    }

    void aLockedBoxIsSkipped()
    {
        QWidget window;
        FieldBox first(&window), second(&window), third(&window);
        second.setLocked(true);
        showActive(window);
        first.setFocus();
        QTest::keyClick(&first, Qt::Key_Tab);
        QVERIFY(third.hasFocus());
        second.setLocked(false);
        first.setFocus();
        QTest::keyClick(&first, Qt::Key_Tab);
        QVERIFY(second.hasFocus());
    }

    void aDisabledControlSaysWhy()
    {
        QPushButton button;
        button.setToolTip(u"Dial"_s);
        setUnavailable(&button, u"No modem"_s);
        setUnavailable(&button, u"No number"_s);
        QVERIFY(!button.isEnabled());
        QCOMPARE(button.toolTip(), u"No number"_s);
        setUnavailable(&button, QString());
        QVERIFY(button.isEnabled());
        QCOMPARE(button.toolTip(), u"Dial"_s);
        QCOMPARE(button.statusTip(), QString());
    }

    void requiredFollowsTheInkOfItsPanel()
    {
        PanelFrame panel;
        FieldBox box(&panel);
        const QLabel *label = makeFieldLabel(u"Last Name"_s, &box, &panel, {}, true);
        QCOMPARE(box.accessibleName(), u"Last Name"_s);
        panel.show();
        QVERIFY(label->text().contains(Theme::light().accent.name()));
        panel.setPalette(Theme::light().panelPalette(Qt::darkBlue, Qt::white));
        QVERIFY(label->text().contains("#ffffff"_L1));
        QCOMPARE(label->palette().color(label->foregroundRole()), QColor(Qt::white));
        QCOMPARE(box.palette().color(QPalette::PlaceholderText), Theme::light().quiet);
    }

    void aListShowsWholeRows()
    {
        auto *list = new QListView;
        setListRows(list);
        showsWholeRows(list);
    }

    void aTableShowsWholeRows()
    {
        auto *table = new QTableView;
        setGridRows(table);
        showsWholeRows(table);
    }

    void theBarKeepsActivityAndMessageApart()
    {
        TestProgram program;
        QMainWindow window;
        auto *bar = new ActivityBar(program.clock, program.state.dateStyle, &window);
        window.setStatusBar(bar);
        window.show();
        bar->setActivity(u"Main Menu"_s);
        bar->say(u"Saved"_s);
        QStatusTipEvent tip(u"No modem"_s);
        QApplication::sendEvent(&window, &tip);
        QCOMPARE(control<QLabel>(*bar, "statusMessage")->text(), u"No modem"_s);
        QVERIFY(control<QLabel>(*bar, "StatusBar1_Panel1")->isVisible());
        QStatusTipEvent noTip{QString()};
        QApplication::sendEvent(&window, &noTip);
        QCOMPARE(control<QLabel>(*bar, "statusMessage")->text(), u"Saved"_s);
        QCOMPARE(bar->activity(), u"Main Menu"_s);
    }

    void theClockShowsTheProgramsTime()
    {
        TestProgram program;
        QWidget window;
        ActivityBar bar(program.clock, program.state.dateStyle, &window);
        QCOMPARE(control<QLabel>(bar, "Label4")->text(), u"10:24 AM"_s);
        QCOMPARE(control<QLabel>(bar, "statusDate")->text(), u"Sat, Nov 21, 2026"_s);
        program.clock.time = QDateTime(QDate(2026, 11, 22), QTime(23, 59, 59, 950));
        bar.startClock();
        window.show();
        program.clock.time = QDateTime(QDate(2026, 11, 23), QTime(0, 0));
        QTRY_COMPARE(control<QLabel>(bar, "Label4")->text(), u"12:00 AM"_s);
        const auto *date = control<QLabel>(bar, "statusDate");
        const auto *time = control<QLabel>(bar, "Label4");
        for (const int width : {900, 260, 900}) {
            bar.resize(width, bar.height());
            QTRY_COMPARE(date->isVisible(), width == 900);
            QTRY_VERIFY(bar.rect().contains(QRect(time->mapTo(&bar, QPoint()), time->size())));
        }
    }

    void escAnswersOnlyWhereNothingIsLost_data()
    {
        rows<QVector<Answer>, bool, Answer>({
            {"a notice", {Answer::Ok}, true, Answer::Ok},
            {"with Cancel", {Answer::Yes, Answer::No, Answer::Cancel}, true, Answer::Cancel},
            {"Yes or No", {Answer::Yes, Answer::No}, false, Answer::Cancel},
        });
    }

    void escAnswersOnlyWhereNothingIsLost()
    {
        const auto [answers, closes, answer] = row<QVector<Answer>, bool, Answer>();
        for (const bool byKey : {true, false}) {
            MessageBox box({u"Title"_s, u"Text"_s, Message::Question, answers, answers.first()});
            showActive(box);
            if (byKey)
                QTest::keyClick(&box, Qt::Key_Escape);
            else
                box.close();
            QCOMPARE(box.isVisible(), !closes);
            if (closes)
                QCOMPARE(box.answer(), answer);
        }
    }

    void aMessageBoxHasItsButtonsInOrder()
    {
        MessageBox box({u"Exit"_s,
                        u"First\nSecond\nThird"_s,
                        Message::Question,
                        {Answer::Yes, Answer::No, Answer::Cancel},
                        Answer::No});
        showActive(box);
        QCOMPARE(box.windowTitle(), u"Exit"_s);
        QCOMPARE(control<QLabel>(box, "messageHeading")->text(), u"First"_s);
        QCOMPARE(control<QLabel>(box, "messageText")->text(), u"Second\nThird"_s);
        auto *yes = control<QPushButton>(box, "answerYes");
        auto *no = control<QPushButton>(box, "answerNo");
        auto *cancel = control<QPushButton>(box, "answerCancel");
        QVERIFY(no->hasFocus());
        QVERIFY(yes->x() < no->x() && no->x() < cancel->x());
        QVERIFY(yes->width() >= 104 && box.width() >= 420 && box.width() <= 560);
        QTest::keyClick(no, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), u"Exit\n\nFirst\nSecond\nThird"_s);
        QTest::mouseClick(yes, Qt::LeftButton);
        QCOMPARE(box.answer(), Answer::Yes);
        QVERIFY(!box.isVisible());
    }

    void anInputBoxRefusesWhatTheFilesCannotHold()
    {
        InputBox box(u"Family Name"_s, u"Prompt"_s, u"Holm"_s);
        showActive(box);
        auto *edit = control<FieldBox>(box, "inputEdit");
        QVERIFY(edit->hasFocus());
        QTest::keyClick(edit, Qt::Key_End);
        QApplication::clipboard()->setText(u"\u0141"_s);
        edit->paste();
        QVERIFY(control<QLabel>(box, "inputRefusal")->text().contains(u'\u0141'));
        QTest::keyClicks(edit, u"s"_s);
        QCOMPARE(control<QLabel>(box, "inputRefusal")->text(), QString());
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(box.result(), int(QDialog::Accepted));
        QCOMPARE(box.text(), u"Holms"_s);
    }

    /// Fonts have letters that are much wider than the number of a day.
    void theMonthShowsAllDaysOfAWeek()
    {
        MonthView month;
        QFont font = QApplication::font();
        font.setPointSize(40);
        month.findChild<QTableView *>()->setFont(font);
        showActive(month);
        month.resize(266, 260);
        const auto *days = month.findChild<QTableView *>();
        QTRY_VERIFY(days->horizontalHeader()->length() <= days->viewport()->width());
    }

    void theMonthIsAlwaysInEnglish()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(u"de_DE"_s));
        MonthView month;
        month.setSelectedDate(QDate(2026, 3, 7));
        showActive(month);
        QCOMPARE(control<QToolButton>(month, "monthName")->text(), u"March"_s);
        QTest::mouseClick(control<QToolButton>(month, "monthNext"), Qt::LeftButton);
        QCOMPARE(month.monthShown(), 4);
        control<QToolButton>(month, "monthName")->menu()->actions()[8]->trigger();
        QCOMPARE(month.monthShown(), 9);
        QCOMPARE(control<QToolButton>(month, "monthName")->text(), u"September"_s);
        QTest::mouseClick(control<QToolButton>(month, "monthYear"), Qt::LeftButton);
        auto *year = control<QSpinBox>(month, "monthYearBox");
        QTest::keyClicks(year, u"2031"_s);
        QTest::keyClick(year, Qt::Key_Return);
        QCOMPARE(month.yearShown(), 2031);
        QVERIFY(year->isHidden() && control<QToolButton>(month, "monthYear")->isVisible());
        QLocale::setDefault(before);
    }

private:
    void showsWholeRows(QAbstractItemView *view)
    {
        RowsModel<int> numbers(
            {{u"Number"_s, Qt::AlignRight, [](int number) { return QString::number(number); }}});
        numbers.setRows(std::vector<int>(50, 7));
        view->setModel(&numbers);
        auto *count = new QLabel(u"50 numbers"_s);
        WholeRows rows(view, count);
        rows.show();
        for (const int height : {200, 333, 480}) {
            rows.resize(200, height);
            QCOMPARE(view->viewport()->height() % ListRowDelegate::rowHeight(), 0);
            const int bottom = count->geometry().bottom();
            QVERIFY(bottom < height && bottom >= height - ListRowDelegate::rowHeight());
        }
    }
};

QTEST_MAIN(TestControls)
#include "tst_controls.moc"
