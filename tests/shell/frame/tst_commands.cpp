// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/controls.h"
#include "shell/frame/commands.h"

#include <QMenu>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// One command with an entry in each of two menus, a tool and a button.
class TestCommands : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_commands = new Commands(m_window.get());
        m_menu = new QMenu(m_window.get());
        m_reason.clear();
        m_runs = 0;
        m_command = m_commands->add(
            m_menu, u"mOMod"_s, u"&Make Modifications"_s, [this] { ++m_runs; }, [this] { return m_reason; });
        m_again = m_commands->repeat(m_command, m_menu, u"mEMod1"_s);
        m_other = m_commands->repeat(m_command, m_menu, u"mEMod2"_s, u"M&odify"_s);
        m_tool = m_commands->tool(m_command, "edit"_L1, u"Modify"_s, u"toolModify"_s);
        m_button = m_commands->button(m_command, u"Command4"_s, u"&Make Modifications"_s, m_window.get());
    }

    void runsOnceWhereverItIsChosen()
    {
        m_command->trigger();
        m_again->trigger();
        m_tool->trigger();
        m_button->click();
        QCOMPARE(m_runs, 4);
    }

    void saysWhyItCannotBeUsedWhereverItIsShown()
    {
        m_reason = u"The book is empty"_s;
        m_commands->refresh();
        for (const QAction *entry : {m_command, m_again, m_other, m_tool}) {
            QVERIFY(!entry->isEnabled());
            QCOMPARE(entry->statusTip(), m_reason);
        }
        QVERIFY(!m_button->isEnabled());
        QCOMPARE(m_button->toolTip(), m_reason);
        m_reason.clear();
        m_commands->refresh();
        QVERIFY(m_other->isEnabled() && m_button->isEnabled() && m_button->toolTip().isEmpty());
    }

    void isRenamedWhereverItBearsItsOwnCaption()
    {
        m_commands->setCaption(m_command, u"&Save Modifications"_s);
        QCOMPARE(m_command->text(), u"&Save Modifications"_s);
        QCOMPARE(m_again->text(), u"&Save Modifications"_s);
        QCOMPARE(m_button->text(), u"&Save Modifications"_s);
        QCOMPARE(m_other->text(), u"M&odify"_s);
        QCOMPARE(m_tool->iconText(), u"Modify"_s);
    }

    void standsOnTheToolbarByItsName()
    {
        m_commands->separateTools();
        m_commands->tool(m_command, "edit"_L1, u"Modify"_s);
        QCOMPARE(m_commands->toolNames(), (QStringList{u"toolModify"_s, u"separator"_s, u"mOMod"_s}));
        QVERIFY(!m_command->isIconVisibleInMenu());
    }

private:
    std::unique_ptr<QWidget> m_window;
    Commands *m_commands = nullptr;
    QMenu *m_menu = nullptr;
    QAction *m_command = nullptr;
    QAction *m_again = nullptr; ///< with the same caption
    QAction *m_other = nullptr; ///< with another
    QAction *m_tool = nullptr;
    QPushButton *m_button = nullptr;
    QString m_reason;
    int m_runs = 0;
};

QTEST_MAIN(TestCommands)
#include "tst_commands.moc"
