// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/checkedbox.h"

#include "shell/writing/writing.h"
#include "shell/writing/writinglines.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

CheckedBox::CheckedBox(Writing &writing, QWidget *box)
    : QObject(box)
    , m_writing(writing)
    , m_box(box)
{
    setObjectName(u"spellMarks"_s);
    box->installEventFilter(this);
    connect(&writing, &Writing::changed, this, [this] { mark(); });
    // As a window goes, the box may outlive its spelling.
    connect(&writing, &QObject::destroyed, this, [this] { delete this; });
}

bool CheckedBox::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
        m_isWaiting = true;
        markAtCursor();
        return false;
    case QEvent::FocusOut:
        markAtCursor();
        return false;
    case QEvent::Paint:
        // Loading takes a tenth of a second: the box is seen first.
        if (std::exchange(m_isWaiting, false))
            QTimer::singleShot(0, &m_writing, &Writing::load);
        return false;
    case QEvent::KeyPress:
        return takeBackCorrection(*static_cast<QKeyEvent *>(event));
    case QEvent::ContextMenu:
        return showMenu(*static_cast<QContextMenuEvent *>(event));
    default:
        return false;
    }
}

void CheckedBox::beginText()
{
    m_correction.reset();
    m_leftAlone.clear();
}

bool CheckedBox::isBeingTyped(const WordPlace &word) const
{
    return m_box->hasFocus() && cursor() == word.end();
}

void CheckedBox::typed()
{
    m_correction.reset();
    const qsizetype end = cursor() - 1;
    if (end < 1)
        return;
    const Line line = lineAt(end);
    // A line end has ended the word.
    const QChar ending = end - line.begin < line.text.size() ? line.text[end - line.begin] : QChar(u'\n');
    if (WordBreaks::endsWord(ending))
        correctWordBefore(end);
}

void CheckedBox::taken()
{
    const Line line = lineAt(cursor());
    const qsizetype place = cursor() - line.begin;
    if (!isLocked() && (place == line.text.size() || WordBreaks::endsWord(line.text[place])))
        correctWordBefore(cursor());
}

void CheckedBox::correctWordBefore(qsizetype end)
{
    Line line = lineAt(end);
    line.text.truncate(end - line.begin);
    const std::vector<WordPlace> words = WordBreaks::checkedWords(line.text);
    if (words.empty() || words.back().end() != line.text.size())
        return;
    const QString wrong = line.text.sliced(words.back().at);
    const QString right = m_writing.corrections().rightFor(wrong);
    if (right.isEmpty() || m_leftAlone.contains(wrong))
        return;
    if (replace({line.begin + words.back().at, wrong.size()}, right))
        m_correction = Done{wrong, cursor(), right.size() - wrong.size()};
}

/// Ctrl+Z right behind a correction.
bool CheckedBox::takeBackCorrection(const QKeyEvent &key)
{
    if (!m_correction || !key.matches(QKeySequence::Undo) || cursor() != m_correction->cursor || isLocked())
        return false;
    const Done done = *m_correction;
    m_leftAlone.insert(done.wrong);
    takeBack(done.cursor - done.shorter);
    m_correction.reset();
    return true;
}

std::optional<AskedWord> CheckedBox::wordAtCursor() const
{
    const Line line = lineAt(cursor());
    const WordPlace found = WordBreaks::wordAt(line.text, cursor() - line.begin);
    if (found.length == 0 || isLocked())
        return std::nullopt;
    return AskedWord{{line.begin + found.at, found.length}, line.text.mid(found.at, found.length)};
}

bool CheckedBox::replaceWord(const AskedWord &asked, const QString &by)
{
    const Line line = lineAt(asked.place.at);
    const bool isThere = line.text.mid(asked.place.at - line.begin, asked.place.length) == asked.word;
    return isThere && !isLocked() && replace(asked.place, by);
}

void CheckedBox::takeFocus()
{
    m_box->setFocus();
}

bool CheckedBox::showMenu(const QContextMenuEvent &event)
{
    const bool isByKey = event.reason() == QContextMenuEvent::Keyboard;
    const qsizetype place = isByKey ? cursor() : placeUnder(event.globalPos());
    const Line line = lineAt(place);
    const WordPlace found = WordBreaks::wordAt(line.text, place - line.begin);
    const QString word = line.text.mid(found.at, found.length);
    const std::vector<WordPlace> wrong = m_writing.spelling().wrongWords(line.text);
    const bool isWrong = std::ranges::find(wrong, found) != wrong.end();
    const bool mayLookUp = m_writing.offersThesaurus() && found.length > 0;
    if (isLocked() || (!isWrong && !mayLookUp))
        return false;
    const WordPlace inText{line.begin + found.at, found.length};
    QMenu *menu = usualMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (isWrong)
        addSuggestions(*menu, inText, word);
    if (mayLookUp)
        addThesaurus(*menu, {inText, word});
    menu->popup(event.globalPos());
    return true;
}

/// Before what every box has in its menu, behind what mends the word.
void CheckedBox::addThesaurus(QMenu &menu, const AskedWord &asked)
{
    QAction *behind = menu.actions().value(0);
    for (QAction *action : menu.actions()) {
        if (action->objectName() == "spellEnd"_L1)
            behind = menu.actions().value(menu.actions().indexOf(action) + 1);
    }
    auto *action = new QAction(WritingLines::thesaurusCommand(), &menu);
    action->setObjectName(u"spellThesaurus"_s);
    connect(action, &QAction::triggered, this, [this, asked] { m_writing.askThesaurus(this, asked); });
    menu.insertAction(behind, action);
    menu.insertSeparator(behind);
}

void CheckedBox::addSuggestions(QMenu &menu, const WordPlace &place, const QString &word)
{
    QAction *first = menu.actions().value(0);
    const auto add = [&](const QString &caption, auto run) {
        auto *action = new QAction(QString(caption).replace(u'&', u"&&"_s), &menu);
        connect(action, &QAction::triggered, this, run);
        menu.insertAction(first, action);
        return action;
    };
    const QStringList suggestions = m_writing.spelling().suggestions(word);
    for (const QString &suggestion : suggestions) {
        QAction *action = add(suggestion, [this, place, suggestion] { replace(place, suggestion); });
        QFont font = menu.font();
        font.setWeight(QFont::DemiBold);
        action->setFont(font);
    }
    if (suggestions.isEmpty())
        add(WritingLines::noSuggestion(), [] {})->setEnabled(false);
    menu.insertSeparator(first);
    add(u"Add Word"_s, [this, word] { m_writing.addWord(word); })->setObjectName(u"spellAddWord"_s);
    add(u"Ignore"_s, [this, word] { m_writing.ignore(word); })->setObjectName(u"spellIgnore"_s);
    menu.insertSeparator(first)->setObjectName(u"spellEnd"_s);
}
