// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/thesauruspanel.h"

#include "shell/controls/listrowdelegate.h"
#include "shell/look/theme.h"
#include "shell/writing/writing.h"
#include "shell/writing/writinglines.h"

#include <QHeaderView>
#include <QListWidget>
#include <QTableWidget>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int widest = 760;
constexpr qsizetype wordsOfMeaning = 2; ///< by which one is told from another

QString kindName(const QString &kind)
{
    if (kind == "adj"_L1)
        return u"adjective"_s;
    return kind == "adv"_L1 ? u"adverb"_s : kind;
}

/// "adjective: pleasant, agreeable".
QString titleOf(const Meaning &meaning)
{
    QStringList words;
    for (const OtherWord &word : meaning.words) {
        if (words.size() < wordsOfMeaning)
            words += word.text;
    }
    const QString kind = kindName(meaning.kind);
    return (kind.isEmpty() ? QString() : kind + u": "_s) + words.join(u", "_s);
}

} // namespace

ThesaurusPanel::ThesaurusPanel(Writing &writing, QWidget *parent)
    : TaskPanel(u"thesaurusPanel"_s, u"Thesaurus"_s, parent)
    , m_writing(writing)
    , m_word(named(makeHeading({}, this), u"thesaurusWord"_s))
    , m_words(named(makeQuietLabel({}, this), u"thesaurusWords"_s))
    , m_meanings(named(new QListWidget(this), u"thesaurusMeanings"_s))
    , m_others(named(new QTableWidget(this), u"thesaurusOthers"_s))
    , m_by(named(new QLineEdit(this), u"thesaurusReplacement"_s))
{
    setContent(makeWork());
    makeButtons();
    connect(m_meanings, &QListWidget::currentRowChanged, this, &ThesaurusPanel::showWords);
    connect(m_others, &QTableWidget::currentCellChanged, this, [this](int row) {
        if (const QTableWidgetItem *item = row >= 0 ? m_others->item(row, 0) : nullptr)
            m_by->setText(OtherWords::asIn(m_asked, item->text()));
    });
    connect(m_meanings, &QListWidget::itemActivated, this, [this] { m_others->setFocus(); });
    connect(m_others, &QTableWidget::itemActivated, m_buttons.replace, &QPushButton::click);
    connect(m_by, &QLineEdit::textChanged, this, &ThesaurusPanel::refreshButtons);
    connect(m_by, &QLineEdit::returnPressed, m_buttons.replace, &QPushButton::click);
}

QWidget *ThesaurusPanel::makeWork()
{
    setListRows(m_meanings);
    m_meanings->setAccessibleName(u"Meanings"_s);
    m_others->setColumnCount(2);
    setGridRows(m_others);
    m_others->setAccessibleName(u"Words"_s);
    m_others->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_others->setTabKeyNavigation(false);
    m_others->horizontalHeader()->hide();
    m_others->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_others->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    m_words->setWordWrap(true);
    auto *work = new QWidget(this);
    auto *rows = new QVBoxLayout(work);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(12);
    auto *lists = new QHBoxLayout;
    lists->setSpacing(12);
    for (QAbstractItemView *view :
         {static_cast<QAbstractItemView *>(m_meanings), static_cast<QAbstractItemView *>(m_others)}) {
        auto *list = new WholeRows(view);
        list->setGivesWay(true);
        lists->addLayout(labelled(view->accessibleName(), list), 1);
    }
    for (QWidget *part : {static_cast<QWidget *>(m_word), static_cast<QWidget *>(m_words)})
        part->setMaximumWidth(TypeScale::wide(widest));
    m_by->setMaximumWidth(TypeScale::wide(widest / 2));
    auto *held = new QWidget(work);
    held->setLayout(lists);
    lists->setContentsMargins(0, 0, 0, 0);
    held->setMaximumWidth(TypeScale::wide(widest));
    rows->addWidget(m_word);
    rows->addWidget(m_words);
    rows->addWidget(held, 1);
    rows->addLayout(labelled(u"Replace with"_s, m_by));
    return work;
}

void ThesaurusPanel::makeButtons()
{
    m_buttons.back = addButton(u"thesaurusBack"_s, u"&Back"_s, ButtonKind::Plain, Side::Left);
    m_buttons.lookUp = addButton(u"thesaurusLookUp"_s, u"Loo&k Up"_s, ButtonKind::Plain, Side::Left);
    m_buttons.replace = addButton(u"thesaurusReplace"_s, u"&Replace"_s, ButtonKind::Main);
    m_buttons.close = setLeaveButton(u"thesaurusClose"_s, u"C&lose"_s);
    setTabOrder(m_meanings, m_others);
    setTabOrder(m_others, m_by);
    setTabOrder(m_by, m_buttons.back);
    connect(m_buttons.back, &QPushButton::clicked, this, &ThesaurusPanel::goBack);
    connect(m_buttons.lookUp, &QPushButton::clicked, this, &ThesaurusPanel::lookUp);
    connect(m_buttons.replace, &QPushButton::clicked, this, [this] { emit chosen(m_by->text()); });
}

void ThesaurusPanel::begin(const QString &word)
{
    m_asked = word;
    m_before.clear();
    look(word);
}

void ThesaurusPanel::forget()
{
    m_asked.clear();
    m_before.clear();
    m_now.clear();
    m_found = {};
    show();
}

void ThesaurusPanel::look(const QString &word)
{
    m_now = word;
    m_found = m_writing.otherWords(word);
    show();
    setFocus();
}

void ThesaurusPanel::lookUp()
{
    m_before.append({m_now, m_meanings->currentRow(), m_others->currentRow()});
    look(m_by->text().trimmed());
}

void ThesaurusPanel::goBack()
{
    const Step before = m_before.takeLast();
    look(before.word);
    m_meanings->setCurrentRow(before.meaning);
    m_others->setCurrentCell(before.other, 0);
}

const Meaning *ThesaurusPanel::meaning() const
{
    const int row = m_meanings->currentRow();
    return row >= 0 && std::size_t(row) < m_found.meanings.size() ? &m_found.meanings[std::size_t(row)]
                                                                  : nullptr;
}

/// What was found; the focus comes to where one goes on.
void ThesaurusPanel::show()
{
    const bool isFound = !m_found.meanings.empty();
    const QString why = m_writing.whyNoThesaurus();
    m_word->setText(!why.isEmpty() ? WritingLines::noThesaurus()
                    : isFound      ? u"\u201c%1\u201d"_s.arg(m_found.word)
                                   : WritingLines::noOtherWords(m_now));
    m_words->setText(!why.isEmpty() ? why : m_found.isBaseForm ? WritingLines::baseForm(m_now) : QString());
    m_words->setVisible(!m_words->text().isEmpty());
    showFound();
    refreshButtons();
    QWidget *first = m_meanings->count() > 1 ? static_cast<QWidget *>(m_meanings) : m_others;
    if (!isFound)
        first = why.isEmpty() ? static_cast<QWidget *>(m_by) : m_buttons.close;
    setFocusProxy(first);
}

void ThesaurusPanel::showFound()
{
    m_meanings->clear();
    m_by->setText(m_now);
    for (const Meaning &meaning : m_found.meanings) {
        m_meanings->addItem(titleOf(meaning));
        m_meanings->item(m_meanings->count() - 1)->setToolTip(titleOf(meaning));
    }
    if (m_meanings->count() > 0)
        m_meanings->setCurrentRow(0);
    else
        showWords();
}

void ThesaurusPanel::showWords()
{
    const Meaning *shown = meaning();
    m_others->setRowCount(0);
    m_others->setRowCount(shown ? int(shown->words.size()) : 0);
    for (int row = 0; row < m_others->rowCount(); ++row) {
        const OtherWord &word = shown->words[std::size_t(row)];
        m_others->setItem(row, 0, new QTableWidgetItem(word.text));
        auto *remark = new QTableWidgetItem(word.remark);
        remark->setForeground(Theme::of(this).quiet);
        m_others->setItem(row, 1, remark);
    }
    if (m_others->rowCount() > 0)
        m_others->setCurrentCell(0, 0);
}

void ThesaurusPanel::refreshButtons()
{
    const QString by = m_by->text().trimmed();
    const QString why = m_writing.whyNoThesaurus();
    const QString noWord = by.isEmpty() ? WritingLines::noWordTyped() : QString();
    const QString same = by == m_asked ? WritingLines::sameWord() : noWord;
    setUnavailable(m_buttons.replace, same);
    const QString isShown =
        by.compare(m_found.word, Qt::CaseInsensitive) == 0 ? WritingLines::isLookedUp() : noWord;
    setUnavailable(m_buttons.lookUp, why.isEmpty() ? isShown : why);
    setUnavailable(m_buttons.back, m_before.isEmpty() ? WritingLines::nothingBefore() : QString());
}
