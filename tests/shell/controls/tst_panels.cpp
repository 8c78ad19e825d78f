// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/buttonrow.h"
#include "shell/controls/listpane.h"
#include "shell/controls/searchbox.h"
#include "shell/controls/taskpanel.h"
#include "shell/controls/titleline.h"
#include "shell/look/theme.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QListWidget>
#include <QScrollArea>
#include <QSignalSpy>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A walk that nobody may leave while it is under way.
class WalkPanel final : public TaskPanel
{
public:
    using TaskPanel::TaskPanel;
    bool isRunning = false;
    void leave() override
    {
        if (!isRunning)
            TaskPanel::leave();
    }
};

/// Notes Esc where nobody else used it up.
class Window final : public QWidget
{
public:
    int escapes = 0;

protected:
    void keyPressEvent(QKeyEvent *event) override { escapes += event->key() == Qt::Key_Escape; }
};

} // namespace

class TestPanels : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Theme::apply(*qApp); }

    void escLeavesAPanelUnlessItRefuses()
    {
        Window window;
        WalkPanel panel(u"walkPanel"_s, u"Walk"_s, &window);
        auto *box = new QLineEdit;
        panel.setContent(box);
        QPushButton *close = panel.setLeaveButton(u"walkClose"_s, u"Close"_s);
        showActive(window);
        box->setFocus();
        const QSignalSpy left(&panel, &TaskPanel::left);

        panel.isRunning = true;
        QTest::keyClick(box, Qt::Key_Escape);
        close->click();
        QCOMPARE(left.count(), 0);
        panel.isRunning = false;
        QTest::keyClick(box, Qt::Key_Escape);
        QCOMPARE(left.count(), 1);
        close->click();
        QCOMPARE(left.count(), 2);
        QCOMPARE(window.escapes, 0);
    }

    void aPanelScrollsWhatDoesNotFit()
    {
        TaskPanel panel(u"longPanel"_s, u"A long one"_s);
        auto *content = new QWidget;
        content->setMinimumHeight(900);
        panel.setContent(content);
        QPushButton *ok = panel.addButton(u"longOk"_s, u"OK"_s, ButtonKind::Main);
        ok->setMinimumWidth(88);
        panel.resize(500, 300);
        showActive(panel);
        QCOMPARE(panel.height(), 300);
        QVERIFY(control<QScrollArea>(panel, "longScroll")->height() < 300);
        // Its buttons stay in sight, at the right end, as wide as they were asked to be.
        const QRect place(ok->mapTo(&panel, QPoint()), ok->size());
        QVERIFY(panel.rect().contains(place));
        QCOMPARE(place.right(), panel.width() - 24 - 1);
        QVERIFY(ok->width() >= 88);
    }

    void aFootTakesASecondRow()
    {
        TaskPanel panel(u"widePanel"_s, u"Wide"_s);
        panel.setWork(new QWidget);
        const QPushButton *rare =
            panel.addButton(u"rare"_s, u"Remove This Recurrence"_s, ButtonKind::Plain, TaskPanel::Side::Left);
        const QPushButton *usual = panel.addButton(u"usual"_s, u"Enter Picture Into Program"_s);
        panel.resize(800, 300);
        showActive(panel);
        QCOMPARE(usual->y(), rare->y());
        panel.resize(rare->width() + usual->width() + 48, 300);
        QTRY_VERIFY(usual->y() >= rare->geometry().bottom());
        QVERIFY(panel.buttonRow().rect().contains(usual->geometry()));
    }

    void wordsWithoutRoomBesideTheButtonsStandAboveThem()
    {
        TaskPanel panel(u"longPanel"_s, u"Long"_s);
        panel.setWork(new QWidget);
        panel.addButton(u"keep"_s, u"Keep"_s, ButtonKind::Main);
        panel.resize(300, 300);
        showActive(panel);
        const auto *above = control<QLabel>(panel, "longTold");
        const QString words = u"Another program has changed the holidays. Save again to write over that."_s;
        for (const QString &said : {words, u"Saved"_s, QString()}) {
            panel.setWords(said);
            QCOMPARE(above->isVisible(), said == words);
            QCOMPARE(above->text(), said == words ? words : QString());
        }
    }

    void escClearsAFilledSearchBoxAndIsUsedUp()
    {
        Window window;
        auto *search = new SearchBox(u"find"_s, u"Search names"_s, {}, nullptr);
        auto *list = new QListWidget;
        (new QVBoxLayout(&window))->addWidget(new ListPane(search, list, new QLabel(u"2 names"_s)));
        showActive(window);
        search->setFocus();
        QTest::keyClicks(search, u"an"_s);
        QTest::keyClick(search, Qt::Key_Escape);
        QCOMPARE(search->text(), QString());
        QCOMPARE(window.escapes, 0);
        QTest::keyClick(search, Qt::Key_Escape);
        QCOMPARE(window.escapes, 1);
        QTest::keyClick(search, Qt::Key_Down);
        QVERIFY(list->hasFocus());
    }

    void theChipGivesWayBeforeTheTitleIsCut_data()
    {
        const QString longText = u"A name that fills the whole of a line"_s;
        rows<QString, QString, bool>({
            {"all fit", u"Miller, Anne"_s, u"Unsaved changes"_s, true},
            {"a long title", longText, {}, false},
            {"words that take its room", u"Miller, Anne"_s, longText, false},
        });
    }

    void theChipGivesWayBeforeTheTitleIsCut()
    {
        const auto [title, words, isChipShown] = row<QString, QString, bool>();
        TitleLine line(u"title"_s, u"Short"_s, nullptr);
        const QLabel *chip = line.addChip(u"chip"_s);
        QLabel *atRight = line.addWords(u"words"_s);
        line.resize(420, 40);
        showActive(line);
        QVERIFY(chip->isHidden()); // without words of its own
        line.setChip(u"Modify"_s);
        line.setTitle(title);
        atRight->setText(words);
        QTRY_COMPARE(chip->isVisible(), isChipShown);
        QCOMPARE(line.width(), 420);
        line.setTitle(u"A"_s);
        atRight->clear();
        QTRY_VERIFY(chip->isVisible());
    }

    void aShorterTitleStandsInForOneThatDoesNotFit()
    {
        TitleLine line(u"title"_s, u"Short"_s, nullptr);
        line.resize(900, 40);
        showActive(line);
        const QString whole = u"Three things are due, two of them overdue"_s;
        line.setTitle(whole, u"Three due"_s);
        QCOMPARE(line.label()->text(), whole);
        line.resize(200, 40);
        QTRY_COMPARE(line.label()->text(), u"Three due"_s);
        QCOMPARE(line.title(), whole);
        QCOMPARE(line.label()->accessibleName(), whole);
    }
};

QTEST_MAIN(TestPanels)
#include "tst_panels.moc"
