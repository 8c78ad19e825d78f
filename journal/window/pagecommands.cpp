// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/pagecommands.h"

#include "journal/model/journal.h"
#include "journal/model/journalfiles.h"
#include "journal/model/messages.h"
#include "journal/window/daypage.h"
#include "journal/window/earlierpanel.h"
#include "journal/window/journaltext.h"
#include "journal/window/openday.h"
#include "journal/window/windowlines.h"
#include "shell/controls/buttonrow.h"
#include "shell/core/dates.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QLocale>
#include <QMenu>
#include <QTextDocument>

using namespace Qt::Literals::StringLiterals;

PageCommands::PageCommands(const JournalDesk &desk, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
{}

QString PageCommands::whyLocked() const
{
    const QString none = m_desk.whyNone();
    return none.isEmpty() ? m_desk.day.whyLocked() : none;
}

QString PageCommands::shownDay() const
{
    return Dates::monthDayYear(m_desk.day.date(), m_desk.program.state.dateStyle);
}

void PageCommands::addUndo(QMenu *edit)
{
    JournalText &text = m_desk.page.text();
    QAction *undo = m_desk.commands.add(
        edit, u"mEUndo"_s, u"&Undo"_s, [&text] { text.undo(); },
        [&text] {
            return text.document()->isUndoAvailable() ? QString() : JournalWindowLines::nothingToUndo();
        });
    QAction *redo = m_desk.commands.add(
        edit, u"mERedo"_s, u"&Redo"_s, [&text] { text.redo(); },
        [&text] {
            return text.document()->isRedoAvailable() ? QString() : JournalWindowLines::nothingToRedo();
        });
    // In the text alone: the box of the tags has its own.
    m_desk.commands.setKeyIn(&text, undo, CommonKeys::undo);
    m_desk.commands.setKeyIn(&text, redo, CommonKeys::redo);
    edit->addSeparator();
}

void PageCommands::addCommands(QMenu *edit)
{
    Commands &commands = m_desk.commands;
    commands.writing(commands.add(
        edit, u"mETime"_s, u"Insert the &Time"_s, [this] { insertTime(); }, [this] { return whyLocked(); },
        Qt::Key_F5));
    edit->addSeparator();
    m_earlier = commands.add(
        edit, u"mEEarlier"_s, u"Ea&rlier Version..."_s, [this] { openEarlier(); },
        [this] {
            QString none = m_desk.whyNone();
            if (!none.isEmpty())
                return none;
            return m_desk.journal.earlier(m_desk.day.date()) ? QString()
                                                             : JournalWindowLines::noEarlierVersion();
        });
    m_remove = commands.writing(commands.add(
        edit, u"mEDel"_s, u"&Delete Entry"_s, [this] { remove(); },
        [this] {
            QString why = whyLocked();
            if (!why.isEmpty())
                return why;
            return m_desk.day.typed().isEmpty() ? JournalWindowLines::nothingWritten() : QString();
        }));
}

void PageCommands::addFormat(QMenu *format)
{
    Commands &commands = m_desk.commands;
    JournalText &text = m_desk.page.text();
    const auto unless = [this] { return whyLocked(); };
    const auto add = [&](const QString &name, const QString &caption, void (JournalText::*change)()) {
        return commands.writing(commands.add(
            format, name, caption, [&text, change] { (text.*change)(); }, unless));
    };
    commands.setKeyIn(&text, add(u"mFBold"_s, u"&Bold"_s, &JournalText::toggleBold), Qt::CTRL | Qt::Key_B);
    commands.setKeyIn(&text, add(u"mFItalic"_s, u"&Italic"_s, &JournalText::toggleItalic),
                      Qt::CTRL | Qt::Key_I);
    add(u"mFHeading"_s, u"&Heading"_s, &JournalText::toggleHeading);
    add(u"mFList"_s, u"&List"_s, &JournalText::toggleList);
}

void PageCommands::addAside(QMenu *utilities)
{
    m_aside = m_desk.commands.writing(m_desk.commands.add(
        utilities, u"mUAside"_s, u"Set the &Year Aside..."_s, [this] { setAside(); },
        [this] {
            QString none = m_desk.whyNone();
            if (!none.isEmpty())
                return none;
            const int year = m_desk.day.date().year();
            return m_desk.journal.state(year) == JournalYear::State::ForReading ||
                           !m_desk.journal.whyNotSaved(year).isEmpty()
                       ? QString()
                       : JournalWindowLines::mayBeWritten(year);
        }));
}

/// What one wants of a year that cannot be written to stands where one sees that.
void PageCommands::follow()
{
    const bool isWanted = m_asideButton->isEnabled();
    if (m_asideButton->isVisibleTo(&m_desk.page.foot()) == isWanted)
        return;
    m_asideButton->setVisible(isWanted);
    m_desk.page.foot().rearrange();
}

void PageCommands::makeButtons()
{
    ButtonRow &foot = m_desk.page.foot();
    m_asideButton = m_desk.commands.button(m_aside, u"setYearAside"_s, u"Set &Aside..."_s, &foot);
    foot.addLeft(m_asideButton);
    foot.addLeft(m_desk.commands.button(m_remove, u"deleteEntry"_s, m_remove->text(), &foot));
    foot.addLeft(m_desk.commands.button(m_earlier, u"earlierVersion"_s, m_earlier->text(), &foot));
}

void PageCommands::insert(const QString &words)
{
    JournalText &text = m_desk.page.text();
    if (text.isReadOnly())
        return;
    QTextCursor cursor = text.textCursor();
    const int at = cursor.positionInBlock();
    const bool isApart = at == 0 || cursor.hasSelection() || cursor.block().text()[at - 1].isSpace();
    cursor.insertText(isApart ? words : QString(u' ' + words));
    text.setTextCursor(cursor);
    text.setFocus();
}

/// As the clock of the window has it.
void PageCommands::insertTime()
{
    insert(QLocale::c().toString(m_desk.program.clock.now().time(), u"h:mm AP"_s) + u' ');
}

/// The page can be filled again by undo, and the day as it was is its earlier version.
void PageCommands::remove()
{
    m_desk.day.take(); // what was typed last comes back as well
    m_desk.day.clear();
    if (m_desk.day.save())
        emit said(JournalWindowLines::deleted(shownDay()));
    m_desk.commands.refresh();
    m_desk.page.text().setFocus();
}

void PageCommands::openEarlier()
{
    m_desk.day.take();
    const auto earlier = m_desk.journal.earlier(m_desk.day.date());
    if (!earlier)
        return;
    if (!m_panel) {
        m_panel = new EarlierPanel;
        m_desk.views.addPanel(m_panel);
        connect(m_panel, &EarlierPanel::bringBackWanted, this, &PageCommands::bringBack);
        connect(m_panel, &EarlierPanel::deleteWanted, this, &PageCommands::deleteForGood);
    }
    m_desk.window.closePreview();
    m_panel->show(*earlier, shownDay(), whyLocked());
    m_desk.views.open(m_panel);
    m_panel->setFocus();
}

void PageCommands::bringBack()
{
    const auto earlier = m_desk.journal.earlier(m_desk.day.date());
    m_panel->leave();
    if (!earlier)
        return;
    m_desk.day.bringBack(*earlier);
    m_desk.page.text().setFocus();
    emit said(JournalWindowLines::cameBack(shownDay()));
    m_desk.commands.refresh();
}

/// What stands on the page goes as well.
void PageCommands::deleteForGood()
{
    if (m_desk.program.dialogs.ask(&m_desk.window, JournalMessages::deleteForGood(shownDay())) !=
            Answer::Yes ||
        !m_desk.whyNone().isEmpty())
        return;
    m_panel->leave();
    const bool isDone = m_desk.day.deleteForGood();
    emit said(isDone ? JournalWindowLines::deletedForGood(shownDay()) : JournalWindowLines::notDeleted());
    m_desk.commands.refresh();
}

/// What is in the file stays there, under another name, and the year begins anew.
void PageCommands::setAside()
{
    const int year = m_desk.day.date().year();
    const Message question = JournalMessages::setAside(year, JournalFiles::name(year));
    if (m_desk.program.dialogs.ask(&m_desk.window, question) != Answer::Yes)
        return;
    const QString name = m_desk.journal.setAside(year);
    m_desk.goTo(m_desk.day.date());
    (void)m_desk.day.save(); // what waited for this
    emit said(name.isEmpty() ? JournalWindowLines::notSetAside() : JournalWindowLines::setAsideAs(name));
    m_desk.commands.refresh();
    follow();
    m_desk.page.text().setFocus();
}

void PageCommands::forget()
{
    if (m_panel)
        m_panel->forget();
}
