// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journalspelling.h"

#include "journal/window/daypage.h"
#include "journal/window/journaltext.h"
#include "shell/controls/taskpanel.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/householdnames.h"
#include "shell/program/program.h"
#include "shell/writing/checkedtext.h"
#include "shell/writing/spellingtools.h"
#include "shell/writing/writing.h"

#include <utility>

Writing *JournalSpelling::makeWriting(Program &program, QObject *parent)
{
    return new Writing(
        {.folder = program.folder,
         .dictionaryFolders = Dictionaries::folders(program.programFolder.path(), program.folder.path()),
         .store = program.store,
         .knownNames = [&program] { return HouseholdNames::of(program); }},
        parent);
}

JournalSpelling::JournalSpelling(const JournalDesk &desk, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_tools(nullptr)
{
    JournalText &text = m_desk.page.text();
    CheckedText *marks = m_desk.writing.check(&text, text.styles());
    connect(&text, &JournalText::documentShown, marks, &CheckedText::followDocument);
    const auto texts = [&text] { return std::vector<WalkedText>{{0, {}, text.text()}}; };
    const auto change = [&text](const WalkedText &changed) { text.replaceText(changed.text); };
    m_tools = new SpellingTools(m_desk.writing, {texts, change}, &m_desk.window);
    for (TaskPanel *panel : m_tools->panels())
        m_desk.views.addPanel(panel);
    connect(m_tools, &SpellingTools::opened, this, [this](QWidget *panel) {
        m_desk.window.closePreview();
        m_desk.views.open(panel);
        panel->setFocus();
    });
    connect(m_tools, &SpellingTools::said, this, &JournalSpelling::said);
}

void JournalSpelling::addCommands(QMenu *menu)
{
    m_tools->addTo(menu, [this](QMenu *into, const QString &name, const QString &caption,
                                std::function<void()> does, const std::function<QString()> &why,
                                const QKeySequence &key) {
        const auto unless = [this, why] {
            const QString none = m_desk.whyNone();
            return none.isEmpty() && why ? why() : none;
        };
        return m_desk.commands.add(into, name, caption, std::move(does), unless, key);
    });
}

void JournalSpelling::forget()
{
    m_tools->forget();
}
