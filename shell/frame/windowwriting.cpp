// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/windowwriting.h"

#include "shell/controls/taskpanel.h"
#include "shell/frame/commands.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/workviews.h"
#include "shell/program/householdnames.h"
#include "shell/program/program.h"
#include "shell/writing/thesaurustools.h"
#include "shell/writing/writing.h"

#include <QMenu>

#include <utility>

Writing *WindowWriting::make(Program &program, QObject *parent)
{
    const QString beside = program.programFolder.path();
    const QString data = program.folder.path();
    return new Writing({.folder = program.folder,
                        .dictionaryFolders = Dictionaries::folders(beside, data),
                        .store = program.store,
                        .knownNames = [&program] { return HouseholdNames::of(program); },
                        .thesaurusFolders = Thesauri::folders(beside, data)},
                       parent);
}

WindowWriting::WindowWriting(const Parts &parts, SpellingTools::Texts texts, QObject *parent)
    : QObject(parent)
    , m_parts(parts)
    , m_spelling(new SpellingTools(parts.writing, std::move(texts), &parts.window))
{
    for (TaskPanel *panel : m_spelling->panels())
        m_parts.views.addPanel(panel);
    connect(m_spelling, &SpellingTools::opened, this, &WindowWriting::open);
    connect(m_spelling, &SpellingTools::said, this, &WindowWriting::said);
}

void WindowWriting::offerThesaurus()
{
    m_thesaurus = new ThesaurusTools(m_parts.writing, &m_parts.window);
    m_parts.views.addPanel(m_thesaurus->panel());
    connect(m_thesaurus, &ThesaurusTools::opened, this, &WindowWriting::open);
    connect(m_thesaurus, &ThesaurusTools::said, this, &WindowWriting::said);
}

void WindowWriting::addCommands(QMenu *menu, const std::function<QString()> &unless)
{
    const auto add = [this, unless](QMenu *into, const QString &name, const QString &caption,
                                    std::function<void()> run, const std::function<QString()> &why,
                                    const QKeySequence &key) {
        const auto either = [unless, why] {
            const QString none = unless ? unless() : QString();
            return none.isEmpty() && why ? why() : none;
        };
        return m_parts.commands.add(into, name, caption, std::move(run), either, key);
    };
    m_spelling->addTo(menu, add);
    if (m_thesaurus) // beside the check
        menu->insertAction(menu->actions().value(1), m_thesaurus->addTo(menu, add));
}

void WindowWriting::open(QWidget *panel)
{
    m_parts.window.closePreview();
    m_parts.views.open(panel);
    panel->setFocus();
}

void WindowWriting::forget()
{
    m_spelling->forget();
    if (m_thesaurus)
        m_thesaurus->forget();
}
