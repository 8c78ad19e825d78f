// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/spellingtools.h"

#include "shell/controls/controls.h"
#include "shell/writing/correctionpanel.h"
#include "shell/writing/spellpanel.h"
#include "shell/writing/writing.h"
#include "shell/writing/writinglines.h"

#include <QMenu>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

SpellingTools::SpellingTools(Writing &writing, Texts texts, QWidget *window)
    : QObject(window)
    , m_writing(writing)
    , m_texts(std::move(texts))
    , m_walk(new SpellPanel(writing, window))
    , m_table(new CorrectionPanel(writing, window))
{
    connect(m_walk, &SpellPanel::changed, this, [this](const WalkedText &text) { m_texts.change(text); });
    connect(m_walk, &SpellPanel::said, this, &SpellingTools::said);
    connect(m_table, &CorrectionPanel::said, this, &SpellingTools::said);
    connect(&writing, &Writing::said, this, &SpellingTools::said);
}

QList<TaskPanel *> SpellingTools::panels() const
{
    return {m_walk, m_table};
}

void SpellingTools::addTo(QMenu *menu, const AddCommand &add)
{
    add(
        menu, u"mSpCheck"_s, u"&Check Spelling"_s, [this] { walk(); },
        [this] { return m_writing.whyNoSpelling(); }, Qt::Key_F7);
    add(menu, u"mSpTable"_s, u"Correction &Table"_s, [this] { openTable(); }, {}, {});
    menu->addSeparator();
    connect(menu, &QMenu::aboutToShow, this, [this, menu] { listLanguages(menu); });
}

void SpellingTools::walk()
{
    m_writing.load();
    if (const QString why = m_writing.whyNoSpelling(); !why.isEmpty()) {
        emit said(why);
        return;
    }
    if (m_walk->begin(m_texts.all()))
        emit opened(m_walk);
    else
        emit said(WritingLines::everythingIsRight());
}

void SpellingTools::forget()
{
    m_walk->forget();
}

void SpellingTools::openTable()
{
    m_writing.load();
    m_table->open();
    emit opened(m_table);
}

/// What is installed may have changed since the menu was last open.
void SpellingTools::listLanguages(QMenu *menu)
{
    qDeleteAll(std::exchange(m_languages, {}));
    m_writing.lookAgain();
    const QStringList chosen = m_writing.languages();
    for (const DictionaryFiles &files : m_writing.dictionaries()) {
        QAction *action = makeAction(u"mSpLanguage_"_s + files.name, files.title(), menu);
        action->setCheckable(true);
        action->setChecked(chosen.contains(files.name));
        setUnavailable(action, files.whyNot);
        connect(action, &QAction::toggled, this,
                [this, name = files.name](bool isChosen) { m_writing.choose(name, isChosen); });
        menu->addAction(action);
        m_languages += action;
    }
    if (!m_languages.isEmpty())
        return;
    QAction *none = makeAction(u"mSpNone"_s, WritingLines::noDictionary(), menu);
    setUnavailable(none, m_writing.howToGetOne());
    menu->addAction(none);
    m_languages += none;
}
