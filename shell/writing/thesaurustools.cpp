// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/thesaurustools.h"

#include "shell/writing/thesauruspanel.h"
#include "shell/writing/writing.h"
#include "shell/writing/writinglines.h"

#include <QApplication>
#include <QWidget>

#include <utility>

using namespace Qt::Literals::StringLiterals;

ThesaurusTools::ThesaurusTools(Writing &writing, QWidget *window)
    : QObject(window)
    , m_writing(writing)
    , m_panel(new ThesaurusPanel(writing, window))
{
    writing.offerThesaurus([this](CheckedBox *box, const AskedWord &asked) { open(box, asked); });
    connect(m_panel, &ThesaurusPanel::chosen, this, &ThesaurusTools::replace);
    // Once the window has the work in front again.
    connect(m_panel, &TaskPanel::left, this, &ThesaurusTools::goOnWriting, Qt::QueuedConnection);
}

TaskPanel *ThesaurusTools::panel() const
{
    return m_panel;
}

QAction *ThesaurusTools::addTo(QMenu *menu, const SpellingTools::AddCommand &add)
{
    return add(
        menu, u"mSpThesaurus"_s, WritingLines::thesaurusCommand(), [this] { askAtCursor(); }, {},
        QKeySequence(Qt::SHIFT | Qt::Key_F7));
}

void ThesaurusTools::askAtCursor()
{
    const QWidget *focus = QApplication::focusWidget();
    auto *box = focus ? focus->findChild<CheckedBox *>(u"spellMarks"_s, Qt::FindDirectChildrenOnly) : nullptr;
    if (const auto asked = box ? box->wordAtCursor() : std::nullopt)
        open(box, *asked);
    else
        emit said(WritingLines::noWordAtCursor());
}

void ThesaurusTools::open(CheckedBox *box, const AskedWord &asked)
{
    m_box = box;
    m_asked = asked;
    m_writing.load();
    emit opened(m_panel);
    m_panel->begin(asked.word);
}

void ThesaurusTools::replace(const QString &by)
{
    if (m_box && m_box->replaceWord(m_asked, by))
        m_panel->leave();
    else
        emit said(WritingLines::wordHasChanged());
}

void ThesaurusTools::goOnWriting()
{
    if (m_box)
        m_box->takeFocus();
    forget();
}

void ThesaurusTools::forget()
{
    m_box.clear();
    m_asked = {};
    m_panel->forget();
}
