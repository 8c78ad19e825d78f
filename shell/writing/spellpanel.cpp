// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/spellpanel.h"

#include "shell/controls/listrowdelegate.h"
#include "shell/controls/lowwindow.h"
#include "shell/controls/titleline.h"
#include "shell/look/theme.h"
#include "shell/writing/writing.h"
#include "shell/writing/writinglines.h"

#include <QListWidget>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int widest = 640;
constexpr int contextLines = 3;

/// The cursor stands in the middle, whatever height there is.
class Context final : public QPlainTextEdit
{
public:
    using QPlainTextEdit::QPlainTextEdit;

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        QPlainTextEdit::resizeEvent(event);
        centerCursor();
    }
};

} // namespace

SpellPanel::SpellPanel(Writing &writing, QWidget *parent)
    : TaskPanel(u"spellPanel"_s, u"Spelling"_s, parent)
    , m_writing(writing)
    , m_where(titleLine().addWords(u"spellWhere"_s))
    , m_word(named(makeHeading({}, this), u"spellWord"_s))
    , m_context(named(new Context(this), u"spellContext"_s))
    , m_by(named(new FieldBox(this), u"spellReplacement"_s))
    , m_suggestions(named(new QListWidget(this), u"spellSuggestions"_s))
{
    setContent(makeWork());
    makeButtons();
    SpellPanel::setLow(findChild<LowWindow *>()->isLow());
    connect(m_by, &FieldBox::refused, this, &SpellPanel::said);
    connect(m_by, &QLineEdit::textChanged, this, &SpellPanel::refreshButtons);
    connect(m_by, &QLineEdit::returnPressed, m_buttons.change, &QPushButton::click);
    connect(m_suggestions, &QListWidget::itemActivated, m_buttons.change, &QPushButton::click);
    connect(m_suggestions, &QListWidget::currentTextChanged, this, [this](const QString &word) {
        if (!word.isEmpty())
            m_by->setText(word);
    });
}

QWidget *SpellPanel::makeWork()
{
    auto *work = new QWidget(this);
    auto *rows = new QVBoxLayout(work);
    m_parts = rows;
    rows->setContentsMargins(0, 0, 0, 0);
    m_context->setReadOnly(true);
    m_context->setFocusPolicy(Qt::ClickFocus);
    m_context->setAccessibleName(u"The text around the word"_s);
    setListRows(m_suggestions);
    m_suggestions->setAccessibleName(u"Suggestions"_s);
    for (QWidget *part : {static_cast<QWidget *>(m_context), static_cast<QWidget *>(m_by)})
        part->setMaximumWidth(TypeScale::wide(widest));
    auto *list = new WholeRows(m_suggestions);
    list->setGivesWay(true);
    list->setMaximumWidth(TypeScale::wide(widest));
    rows->addWidget(m_word);
    rows->addWidget(m_context);
    rows->addLayout(labelled(u"Change to"_s, m_by));
    rows->addLayout(labelled(u"Suggestions"_s, list), 1);
    return work;
}

void SpellPanel::setLow(bool isLow)
{
    TaskPanel::setLow(isLow);
    const int lines = isLow ? 1 : contextLines;
    m_context->setFixedHeight(lines * QFontMetrics(TypeScale::body()).lineSpacing() + (isLow ? 12 : 24));
    m_parts->setSpacing(isLow ? 6 : 12);
}

void SpellPanel::makeButtons()
{
    m_buttons.ignore = addButton(u"spellIgnore"_s, u"&Ignore"_s, ButtonKind::Plain, Side::Left);
    m_buttons.add = addButton(u"spellAddWord"_s, u"Add &Word"_s, ButtonKind::Plain, Side::Left);
    m_buttons.undo = addButton(u"spellUndo"_s, u"U&ndo"_s, ButtonKind::Plain, Side::Left);
    m_buttons.changeAll = addButton(u"spellChangeAll"_s, u"Change &All"_s);
    m_buttons.change = addButton(u"spellChange"_s, u"&Change"_s, ButtonKind::Main);
    m_buttons.close = setLeaveButton(u"spellClose"_s, u"C&lose"_s);
    connect(m_buttons.undo, &QPushButton::clicked, this, &SpellPanel::undo);
    connect(m_buttons.add, &QPushButton::clicked, this, &SpellPanel::addWord);
    connect(m_buttons.ignore, &QPushButton::clicked, this, &SpellPanel::ignore);
    connect(m_buttons.changeAll, &QPushButton::clicked, this, [this] { change(true); });
    connect(m_buttons.change, &QPushButton::clicked, this, [this] { change(false); });
}

bool SpellPanel::begin(std::vector<WalkedText> texts)
{
    m_walk.emplace(m_writing.spelling(), std::move(texts));
    if (m_walk->isAtEnd())
        return false;
    show();
    return true;
}

void SpellPanel::forget()
{
    m_walk.reset();
    for (QLabel *words : {m_where, m_word})
        words->clear();
    m_context->clear();
    m_suggestions->clear();
    m_by->setText({});
    refreshButtons();
}

/// The word at which the walk stands now, with the focus where one goes on.
void SpellPanel::show()
{
    const bool isAtEnd = m_walk->isAtEnd();
    m_where->setText(isAtEnd ? QString() : m_walk->text().where);
    m_word->setText(isAtEnd ? WritingLines::walkIsOver() : WritingLines::notKnown(m_walk->word()));
    showContext();
    offerSuggestions();
    refreshButtons();
    setFocusProxy(isAtEnd                            ? static_cast<QWidget *>(m_buttons.close)
                  : m_suggestions->currentRow() >= 0 ? static_cast<QWidget *>(m_suggestions)
                                                     : m_by);
    setFocus();
}

void SpellPanel::showContext()
{
    if (m_walk->isAtEnd()) {
        m_context->clear();
        return;
    }
    m_context->setPlainText(m_walk->text().text);
    const WordPlace place = m_walk->place();
    QTextEdit::ExtraSelection mark;
    mark.cursor = m_context->textCursor();
    mark.cursor.setPosition(int(place.at));
    mark.cursor.setPosition(int(place.end()), QTextCursor::KeepAnchor);
    const Theme &theme = Theme::of(this);
    mark.format.setBackground(theme.mark);
    mark.format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    mark.format.setUnderlineColor(theme.negative);
    m_context->setExtraSelections({mark});
    QTextCursor cursor = m_context->textCursor();
    cursor.setPosition(int(place.at));
    m_context->setTextCursor(cursor);
    m_context->centerCursor();
}

void SpellPanel::offerSuggestions()
{
    m_suggestions->clear();
    m_by->clear();
    if (m_walk->isAtEnd())
        return;
    m_suggestions->addItems(m_writing.spelling().suggestions(m_walk->word()));
    if (m_suggestions->count() > 0)
        m_suggestions->setCurrentRow(0);
    else
        m_by->setText(m_walk->word());
}

void SpellPanel::refreshButtons()
{
    const bool isAtEnd = !m_walk || m_walk->isAtEnd();
    const QString over = isAtEnd ? WritingLines::walkIsOver() : QString();
    const QString same = isAtEnd || m_by->text().trimmed().isEmpty() || m_by->text() == m_walk->word()
                             ? WritingLines::sameWord()
                             : QString();
    for (QPushButton *button : {m_buttons.change, m_buttons.changeAll})
        setUnavailable(button, isAtEnd ? over : same);
    for (QPushButton *button : {m_buttons.ignore, m_buttons.add})
        setUnavailable(button, over);
    setUnavailable(m_buttons.undo, m_walk && m_walk->mayUndo() ? QString() : WritingLines::nothingToUndo());
    m_by->setLocked(isAtEnd);
}

void SpellPanel::change(bool everywhere)
{
    const QString by = m_by->text();
    tell(everywhere ? m_walk->changeAll(by) : m_walk->change(by));
    show();
}

void SpellPanel::ignore()
{
    m_walk->ignore();
    emit m_writing.changed();
    show();
}

void SpellPanel::addWord()
{
    const QString word = m_walk->word();
    emit said(m_walk->addWord() ? WritingLines::added(word) : WritingLines::notAdded(word));
    emit m_writing.changed();
    show();
}

void SpellPanel::undo()
{
    tell(m_walk->undo());
    emit m_writing.changed();
    show();
}

void SpellPanel::tell(const std::vector<WalkedText> &texts)
{
    for (const WalkedText &text : texts)
        emit changed(text);
}
