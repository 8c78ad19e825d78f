// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/activitybar.h"
#include "shell/controls/controls.h"
#include "shell/core/framelines.h"
#include "shell/frame/undostack.h"
#include "tests/support/rows.h"
#include "tests/support/sampletraits.h"
#include "tests/support/testprogram.h"

#include <QListWidget>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A window with two boxes; the text of the first is its data.
class SampleWindow final : public FunctionWindow
{
public:
    explicit SampleWindow(Program &program)
        : FunctionWindow(program, sampleTraits())
        , m_box(named(new QLineEdit, u"box"_s))
    {
        auto *work = new QWidget;
        auto *rows = new QVBoxLayout(work);
        rows->addWidget(m_box);
        rows->addWidget(named(new QListWidget, u"list"_s));
        setWork(work);
        undoStack().addCommands(addMenu(u"mE"_s, u"&Edit"_s));
        finishFrame();
        commands().refresh();
    }

    bool isModified() const override { return !m_box->text().isEmpty(); }
    using FunctionWindow::activity;
    using FunctionWindow::undoStack;

    /// Adds a step whose ways come to `result`.
    void act(const QString &title, ChangeResult result = ChangeResult::Done,
             UndoStep::Kind kind = UndoStep::Written)
    {
        const auto way = [=, this](const QString &verb) {
            return [=, this] {
                done << verb + title;
                return result;
            };
        };
        undoStack().push({title, way(u"undo "_s), way(u"redo "_s), kind});
    }
    QStringList done;

protected:
    bool save() override
    {
        act(u"save"_s);
        m_box->clear();
        return true;
    }
    void drop() override { m_box->clear(); }
    Message leaveQuestion() const override
    {
        return {u"Sample"_s,
                u"Save?"_s,
                Message::Question,
                {Answer::Yes, Answer::No, Answer::Cancel},
                Answer::Yes};
    }

private:
    QLineEdit *m_box;
};

} // namespace

class TestUndoStack : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_test = std::make_unique<TestProgram>();
        m_window = std::make_unique<SampleWindow>(m_test->program);
        showActive(*m_window);
        find<QListWidget>("list")->setFocus();
    }
    void cleanup()
    {
        QVERIFY(m_test->dialogs.isDone());
        m_window.reset();
    }

    void goesBackAndForth()
    {
        QCOMPARE(find<QAction>("mEUndo")->toolTip(), FrameLines::nothingToUndo());
        m_window->act(u"one"_s);
        m_window->act(u"t&o"_s);
        QCOMPARE(find<QAction>("mEUndo")->text(), u"&Undo \u201ct&&o\u201d"_s);
        for (int i = 0; i < 3; ++i)
            undo();
        redo();
        QCOMPARE(m_window->done, (QStringList{u"undo t&o"_s, u"undo one"_s, u"redo one"_s}));
        QCOMPARE(find<QAction>("mERedo")->text(), u"Re&do \u201ct&&o\u201d"_s);
        QCOMPARE(said(), u"Done again: one"_s);
        m_window->act(u"three"_s); // what was taken back is gone
        QVERIFY(!find<QAction>("mERedo")->isEnabled());
    }

    void saysThatThereIsNothing_data()
    {
        rows<QByteArray, int, QString>({{"in a list", "list", Qt::Key_Z, FrameLines::nothingToUndo()},
                                        {"in a box", "box", Qt::Key_Z, FrameLines::nothingToUndo()},
                                        {"to do again", "box", Qt::Key_Y, FrameLines::nothingToRedo()}});
    }

    void saysThatThereIsNothing()
    {
        const auto [name, letter, line] = row<QByteArray, int, QString>();
        auto *place = find<QWidget>(name.constData());
        place->setFocus();
        QTest::keyClick(place, Qt::Key(letter), Qt::ControlModifier);
        QCOMPARE(said(), line);
        m_window->activity().say({});
        find<QLineEdit>("box")->setFocus();
        QTest::keyClick(find<QLineEdit>("box"), Qt::Key_A);
        QTest::keyClick(find<QLineEdit>("box"), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(find<QLineEdit>("box")->text() + said(), QString());
        QTest::keyClick(find<QLineEdit>("box"), Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(find<QLineEdit>("box")->text() + said(), u"a"_s);
        find<QLineEdit>("box")->clear();
    }

    void saysSoOfAnEntryUnderTheMouse_data()
    {
        rows<bool>({{"of a menu of the bar", false}, {"of one that is made for a click", true}});
    }

    void saysSoOfAnEntryUnderTheMouse()
    {
        const auto [isNew] = row<bool>();
        QMenu *menu = isNew ? new QMenu(m_window.get()) : find<QMenu>("mE");
        menu->addAction(find<QAction>("mEUndo"));
        menu->popup({});
        QTest::mouseMove(menu, menu->actionGeometry(find<QAction>("mEUndo")).center());
        QTRY_COMPARE(find<QLabel>("statusMessage")->text(), FrameLines::nothingToUndo());
        menu->close();
        QTRY_COMPARE(find<QLabel>("statusMessage")->text(), QString());
    }

    void offersUndoInTheStatusBar()
    {
        auto *link = find<QToolButton>("statusUndo");
        m_window->act(u"one"_s);
        m_window->activity().say(u"one"_s);
        QVERIFY(!link->isVisible());
        m_window->undoStack().offer();
        QVERIFY(link->isVisible());
        const auto *message = find<QLabel>("statusMessage");
        QTRY_VERIFY(message->width() >= message->sizeHint().width());
        QTest::mouseClick(link, Qt::LeftButton);
        QCOMPARE(m_window->done, {u"undo one"_s});
        QVERIFY(!link->isVisible() && said() == u"Undone: one"_s);
    }

    void keepsWhatIsRefusedAndDropsWhatIsOutdated_data()
    {
        rows<ChangeResult, QStringList, QString>({
            {"refused",
             ChangeResult::Refused,
             {u"undo two"_s, u"undo two"_s},
             FrameLines::undoRefused(u"two"_s)},
            {"outdated", ChangeResult::Outdated, {u"undo two"_s, u"undo one"_s}, u"Undone: one"_s},
        });
    }

    void keepsWhatIsRefusedAndDropsWhatIsOutdated()
    {
        const auto [result, done, line] = row<ChangeResult, QStringList, QString>();
        m_window->act(u"one"_s);
        m_window->act(u"two"_s, result);
        undo();
        QVERIFY(said() != u"Undone: two"_s && !said().isEmpty());
        undo();
        QCOMPARE(m_window->done, done);
        QCOMPARE(said(), line);
    }

    void asksBeforeTypedTextGivesWay_data()
    {
        rows<Answer, QStringList>({{"saved first", Answer::Yes, {u"undo one"_s, u"undo save"_s}},
                                   {"dropped", Answer::No, {u"undo one"_s}},
                                   {"kept", Answer::Cancel, {}}});
    }

    void asksBeforeTypedTextGivesWay()
    {
        const auto [answer, done] = row<Answer, QStringList>();
        m_window->act(u"one"_s);
        QTest::keyClicks(find<QLineEdit>("box"), u"text"_s);
        find<QListWidget>("list")->setFocus();
        m_test->dialogs.willAnswer(answer);
        undo();
        QCOMPARE(m_test->dialogs.takeShown().size(), 1);
        QCOMPARE(find<QLineEdit>("box")->text().isEmpty(), answer != Answer::Cancel);
        if (answer != Answer::Cancel)
            undo();
        QCOMPARE(m_window->done, done);
        find<QLineEdit>("box")->clear();
    }

    void leavesTheKeysToABoxThatHasSomethingTyped()
    {
        auto *box = find<QLineEdit>("box");
        m_window->act(u"one"_s, ChangeResult::Done, UndoStep::Typed);
        box->setFocus();
        QTest::keyClicks(box, u"text"_s);
        QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(box->text().isEmpty() && m_window->done.isEmpty());
        QTest::keyClick(box, Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(box->text(), u"text"_s);
        QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(box, Qt::Key_Z, Qt::ControlModifier); // nothing of its own is left
        QCOMPARE(m_window->done, {u"undo one"_s});
        box->clear();
    }

    void forgetsWhatWasOnlyTyped()
    {
        m_window->act(u"one"_s);
        m_window->act(u"two"_s, ChangeResult::Done, UndoStep::Typed);
        m_window->undoStack().forgetTyped();
        undo();
        QCOMPARE(m_window->done, {u"undo one"_s});
    }

private:
    template <typename T>
    T *find(const char *name) const
    {
        return control<T>(*m_window, name);
    }
    QString said() const { return m_window->activity().message(); }
    void undo() const { QTest::keyClick(find<QListWidget>("list"), Qt::Key_Z, Qt::ControlModifier); }
    void redo() const { QTest::keyClick(find<QListWidget>("list"), Qt::Key_Y, Qt::ControlModifier); }

    std::unique_ptr<TestProgram> m_test;
    std::unique_ptr<SampleWindow> m_window;
};

QTEST_MAIN(TestUndoStack)
#include "tst_undostack.moc"
