// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/flowtoolbar.h"
#include "shell/frame/toolbarcustomizer.h"
#include "shell/frame/toolbarlayout.h"
#include "shell/look/theme.h"
#include "tests/support/rows.h"
#include "tests/support/testprogram.h"

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

class TestToolbarLayout : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { Theme::apply(*qApp); }

    void init()
    {
        m_bar.reset();
        m_program = std::make_unique<TestProgram>();
        m_bar = std::make_unique<FlowToolBar>(Qt::Horizontal);
        QList<QAction *> actions;
        for (const char *name : {"one", "two", "three", "four", "five"}) {
            auto *action = new QAction(QString::fromLatin1(name), m_bar.get());
            action->setObjectName(QString::fromLatin1(name));
            actions << action;
        }
        m_defaults = {u"one"_s, u"two"_s, u"separator"_s, u"three"_s};
        m_layout = new ToolbarLayout(m_program->program, m_bar.get(), u"Toolbar1"_s, actions, m_defaults);
        m_layout->restore();
    }

    void hidesNothingWhenItIsNarrow()
    {
        m_bar->show();
        QVERIFY(m_layout->setShown({u"one"_s, u"separator"_s, u"two"_s, u"three"_s, u"four"_s, u"five"_s}));
        int rows = 0;
        for (const int width : {600, 230, 130}) {
            m_bar->resize(width, m_bar->heightForWidth(width));
            QSet<int> tops;
            for (const QAction *action : m_layout->actions()) {
                const QToolButton *button = m_bar->button(action);
                QVERIFY(button->isVisible());
                QVERIFY2(m_bar->rect().contains(button->geometry()), qPrintable(button->objectName()));
                tops.insert(button->y());
            }
            QVERIFY(tops.size() > rows);
            rows = int(tops.size());
        }
    }

    void aHiddenActionTakesNoPlace()
    {
        m_bar->show();
        QToolButton *one = m_bar->button(m_layout->action(u"one"_s));
        QCOMPARE(one->objectName(), u"one_button"_s);
        QSignalSpy triggered(one->defaultAction(), &QAction::triggered);
        QTest::mouseClick(one, Qt::LeftButton);
        QCOMPARE(triggered.size(), 1);
        QVERIFY(!one->hasFocus());
        one->defaultAction()->setVisible(false);
        QVERIFY(!one->isVisible());
    }

    void restoresTheStoredLayout_data()
    {
        const QStringList defaults{u"one"_s, u"two"_s, u"separator"_s, u"three"_s};
        const QStringList another{u"five"_s, u"separator"_s, u"one"_s};
        rows<QStringList, QStringList>({
            {"nothing stored", {}, defaults},
            {"an order of the user's", another, another},
            {"names that are gone", {u"gone"_s, u"two"_s}, {u"two"_s}},
            {"only names that are gone", {u"gone"_s, u"separator"_s}, defaults},
            {"a name twice", {u"two"_s, u"two"_s}, {u"two"_s}},
        });
    }

    void restoresTheStoredLayout()
    {
        const auto [stored, shown] = row<QStringList, QStringList>();
        if (!stored.isEmpty())
            m_program->store.setValue(u"User1/Toolbar1"_s, stored);
        m_layout->restore();
        QCOMPARE(m_layout->shown(), shown);
    }

    void everyChangeIsAppliedAndStored()
    {
        ToolbarCustomizer dialog(*m_layout, nullptr);
        showActive(dialog);
        const auto is = [this](const QStringList &names) {
            return m_layout->shown() == names && stored() == names;
        };
        control<QListWidget>(dialog, "availableList")->setCurrentRow(1);
        shownList(dialog).setCurrentRow(0);
        auto *up = control<QPushButton>(dialog, "moveToolUp");
        QVERIFY(!up->isEnabled() && !up->toolTip().isEmpty());
        press(dialog, "addTool");
        QVERIFY(is({u"one"_s, u"five"_s, u"two"_s, u"separator"_s, u"three"_s}));
        press(dialog, "moveToolUp");
        QVERIFY(is({u"five"_s, u"one"_s, u"two"_s, u"separator"_s, u"three"_s}));
        press(dialog, "moveToolDown");
        press(dialog, "moveToolDown");
        QVERIFY(is({u"one"_s, u"two"_s, u"five"_s, u"separator"_s, u"three"_s}));
        shownList(dialog).setFocus();
        QTest::keyClick(&shownList(dialog), Qt::Key_Delete);
        QVERIFY(is({u"one"_s, u"two"_s, u"separator"_s, u"three"_s}));
        auto *available = control<QListWidget>(dialog, "availableList");
        available->setCurrentRow(1);
        available->setFocus();
        QTest::keyClick(available, Qt::Key_Return);
        QVERIFY(is({u"one"_s, u"two"_s, u"separator"_s, u"five"_s, u"three"_s}));
        press(dialog, "removeTool");
        QVERIFY(is({u"one"_s, u"two"_s, u"separator"_s, u"three"_s}));
        shownList(dialog).setCurrentRow(0);
        press(dialog, "addSeparator");
        QVERIFY(is({u"one"_s, u"separator"_s, u"two"_s, u"separator"_s, u"three"_s}));
        // What a drop within the list does to its model.
        QVERIFY(shownList(dialog).model()->moveRow({}, 4, {}, 0));
        QVERIFY(is({u"three"_s, u"one"_s, u"separator"_s, u"two"_s, u"separator"_s}));
        press(dialog, "resetTools");
        QCOMPARE(m_layout->shown(), m_defaults);
        QVERIFY(!m_program->store.contains(u"User1/Toolbar1"_s));
        QTest::keyClick(&shownList(dialog), Qt::Key_Return); // one too many
        QVERIFY(dialog.isVisible());
        press(dialog, "closeCustomizer");
        QVERIFY(!dialog.isVisible());
    }

    void keepsButtonsOfOtherEditionsOutOfSight()
    {
        m_layout->setOfOtherEditions({u"two"_s, u"five"_s});
        ToolbarCustomizer dialog(*m_layout, nullptr);
        showActive(dialog);
        const auto *available = control<QListWidget>(dialog, "availableList");
        QCOMPARE(available->count(), 1); // four
        QVERIFY(shownList(dialog).item(1)->isHidden());
        press(dialog, "moveToolDown");
        QCOMPARE(stored(), (QStringList{u"two"_s, u"separator"_s, u"one"_s, u"three"_s}));
        press(dialog, "moveToolUp");
        QVERIFY(!control<QPushButton>(dialog, "moveToolUp")->isEnabled()); // only "two" stands before it
        QTest::keyClick(control<QCheckBox>(dialog, "showOthers"), Qt::Key_Space);
        QCOMPARE(available->count(), 2);
        QVERIFY(control<QPushButton>(dialog, "moveToolUp")->isEnabled());
    }

    void tellsWhatIsNotStored()
    {
        QVERIFY(QDir().mkdir(m_program->store.fileName())); // a folder in its place
        ToolbarCustomizer dialog(*m_layout, nullptr);
        showActive(dialog);
        press(dialog, "removeTool");
        QVERIFY(!dialog.isSaved());
        QCOMPARE(m_layout->shown().first(), u"two"_s);
        QVERIFY(QDir().rmdir(m_program->store.fileName()));
        press(dialog, "removeTool");
        QVERIFY(dialog.isSaved());
        QCOMPARE(QSettings(m_program->store.fileName(), QSettings::IniFormat).value(u"User1/Toolbar1"_s),
                 m_layout->shown());
    }

private:
    QListWidget &shownList(ToolbarCustomizer &dialog) { return *control<QListWidget>(dialog, "shownList"); }
    void press(ToolbarCustomizer &dialog, const char *name)
    {
        QTest::mouseClick(control<QPushButton>(dialog, name), Qt::LeftButton);
    }
    QStringList stored() const { return m_program->store.value(u"User1/Toolbar1"_s).toStringList(); }

    std::unique_ptr<TestProgram> m_program;
    std::unique_ptr<FlowToolBar> m_bar;
    ToolbarLayout *m_layout = nullptr;
    QStringList m_defaults;
};

QTEST_MAIN(TestToolbarLayout)
#include "tst_toolbarlayout.moc"
