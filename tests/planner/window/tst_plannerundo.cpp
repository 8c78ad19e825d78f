// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/framelines.h"
#include "tests/planner/window/openplanner.h"

#include <QDir>
#include <QMenuBar>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

/// What was done to days is taken back and done again.
class TestPlannerUndo : public OpenPlanner
{
    Q_OBJECT
private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void takesBackASave()
    {
        type(0, u"9:30"_s, u"Piano"_s);
        click("saveDay");
        QCOMPARE(said(), u"Saved: Sat, Nov 21, 2026"_s);
        set("Text2_0", u"Yoga"_s);
        click("saveDay");
        asked();
        choose(QDate(2026, 12, 24));
        undo();
        QCOMPARE(date(), QDate(2026, 11, 21));
        QCOMPARE(shownRows(), {u"9:30|Piano"_s});
        undo();
        QCOMPARE(shownRows(), {});
        redo();
        redo();
        QCOMPARE(shownRows(), {u"9:30|Yoga"_s});
        QVERIFY(!m_window->isModified());
    }

    void takesBackRowsThatAreNotSaved()
    {
        type(1, {}, u"Piano"_s);
        m_test->dialogs.willAnswer(Answer::Yes);
        click("clearDay");
        asked();
        QCOMPARE(shownRows(), {});
        text(3)->setFocus();
        typeInto(text(3), u"x"_s);
        trigger("mEUndo"); // which would take what was typed
        QVERIFY(said().startsWith(FrameLines::typedSince({})));
        QCOMPARE(shownRows().size(), 4);
        QTest::keyClick(text(3), Qt::Key_Z, Qt::ControlModifier); // the box goes first
        QCOMPARE(shownRows(), {});
        QTest::keyClick(text(3), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(shownRows(), (QStringList{u"|"_s, u"|Piano"_s}));
        trigger("mECopy");
        redo();
        trigger("mEPaste");
        QCOMPARE(shownRows(), (QStringList{u"|"_s, u"|Piano"_s}));
        undo();
        QCOMPARE(shownRows(), {});
        choose(QDate(2026, 12, 24)); // the rows are as the file has them
        QVERIFY(!find<QAction>("mEUndo")->isEnabled());
    }

    /// Over the end of the year, one day a step of the walk and all of them a step to undo.
    void takesBackAWalkOverManyDays()
    {
        writeDay(QDate(2026, 12, 30), dayOf({{u"8:00 AM"_s, u"Bank"_s}}));
        type(0, {}, u"Yoga"_s);
        click("saveDay");
        const auto before = files();
        repeat(u"recurrenceOk"_s);
        const auto inserted = files();
        QVERIFY(inserted.contains(u" 2027.Cal"_s) && inserted != before);
        repeat(u"recurrenceRemove"_s);
        const auto removed = files();
        QVERIFY(removed != inserted);
        undo();
        QCOMPARE(files(), inserted);
        QCOMPARE(shownRows(), {u"|Yoga"_s});
        undo();
        QCOMPARE(PlannerFiles(m_test->folder).peek(QDate(2026, 12, 30)).texts[0], u"Bank"_s);
        QVERIFY(PlannerFiles(m_test->folder).peek(QDate(2027, 1, 2)).isEmpty());
        QCOMPARE(files().value(u" 2026.Cal"_s).left(before.value(u" 2026.Cal"_s).size()),
                 before.value(u" 2026.Cal"_s));
        redo();
        redo();
        QCOMPARE(files(), removed);
        // One day that was written elsewhere keeps all of them.
        writeDay(QDate(2027, 1, 2), dayOf({{{}, u"Elsewhere"_s}}));
        const auto now = files();
        undo();
        QCOMPARE(files(), now);
    }

    void showsWhatWasWrittenSince()
    {
        type(0, u"9:30"_s, u"Piano"_s);
        click("saveDay");
        writeDay(QDate(2026, 11, 21), dayOf({{{}, u"Elsewhere"_s}}));
        undo();
        QVERIFY(said().startsWith(u"Changed elsewhere since"_s));
        QCOMPARE(shownRows(), {u"|Elsewhere"_s});
        QVERIFY(!m_window->isModified());
    }

    void takesBackAnImport()
    {
        m_test->setBytes(u"TODOActv.FIL"_s,
                         "\"Paint\",\"12/01/2026\",\"\"\r\n\"Call\",\"12/01/2026\",\"\"\r\n");
        m_test->dialogs.willAnswer(Answer::Yes);
        trigger("mUImport");
        finish();
        QCOMPARE(PlannerFiles(m_test->folder).peek(QDate(2026, 12, 1)).entryCount(), 2);
        undo();
        QVERIFY(PlannerFiles(m_test->folder).peek(QDate(2026, 12, 1)).isEmpty());
        QCOMPARE(said(), u"Undone: To Do items imported"_s);
    }

    void bringsBackADayThatWasEmptied()
    {
        type(0, u"9:30"_s, u"Piano"_s);
        type(1, {}, u"Bank"_s);
        click("saveDay");
        m_test->dialogs.willAnswer(Answer::Yes);
        click("clearDay");
        m_test->dialogs.willAnswer(Answer::Yes);
        click("saveDay");
        asked();
        type(0, {}, u"Yoga"_s);
        click("saveDay");
        asked();
        m_test->clock.time = m_test->clock.time.addDays(3);
        show();
        bringBack(u"Sat, Nov 21, 2026: 9:30 Piano, Bank"_s);
        QCOMPARE(date(), QDate(2026, 11, 21));
        QCOMPARE(shownRows().size(), 3);
        QVERIFY(shownRows().contains(u"9:30|Piano"_s) && shownRows().contains(u"|Yoga"_s));
        undo();
        QCOMPARE(shownRows(), {u"|Yoga"_s});
        bringBack(u"Sat, Nov 21, 2026: 9:30 Piano, Bank"_s);
        trigger("mEBack");
        QVERIFY(!isOffered("bringBack"));
    }

    void bringsBackARemovedAppointment()
    {
        type(0, {}, u"Yoga"_s);
        click("saveDay");
        repeat(u"recurrenceOk"_s);
        repeat(u"recurrenceRemove"_s);
        PlannerDay full;
        for (std::size_t row = 0; row < PlannerDay::rowCount; ++row)
            full.texts[row] = QString(QChar(u'a' + ushort(row)));
        writeDay(QDate(2027, 1, 2), full);
        bringBack(u"Yoga, on 46 days"_s);
        QCOMPARE(said(), u"Brought back: Yoga, on 46 days. One day has no room for it"_s);
        QCOMPARE(PlannerFiles(m_test->folder).peek(QDate(2027, 1, 1)).texts[0], u"Yoga"_s);
        writeDay(QDate(2027, 1, 2), {});
        bringBack(u"Yoga, on 46 days"_s); // the one that was left
        QCOMPARE(PlannerFiles(m_test->folder).peek(QDate(2027, 1, 2)).texts[0], u"Yoga"_s);
    }

private:
    /// The newest that was deleted.
    void bringBack(const QString &title)
    {
        trigger("mEBack");
        auto *deleted = find<QTableView>("trashList");
        QCOMPARE(deleted->model()->index(0, 1).data().toString(), title);
        QTest::keyClick(deleted, Qt::Key_Return);
    }
    void undo() { trigger("mEUndo"); }
    void redo() { trigger("mERedo"); }
    void finish()
    {
        QTRY_VERIFY(m_window->menuBar()->isEnabled());
        asked();
    }
    /// Each day to 5 January.
    void repeat(const QString &button)
    {
        asked();
        text(0)->setFocus();
        trigger("mERec");
        tick("kind_0");
        set("endDate", u"01/05/2027"_s);
        if (button == "recurrenceRemove"_L1)
            m_test->dialogs.willAnswer(Answer::Yes);
        click(button.toLatin1());
        finish();
    }
    QMap<QString, QByteArray> files() const
    {
        QMap<QString, QByteArray> files;
        for (const QString &name : QDir(m_test->folder.path()).entryList({u"*.Cal"_s}, QDir::Files))
            files.insert(name, m_test->bytes(name));
        return files;
    }
};

QTEST_MAIN(TestPlannerUndo)
#include "tst_plannerundo.moc"
