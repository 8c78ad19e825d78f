// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/earlierpanel.h"

#include "journal/window/windowlines.h"

#include <QPlainTextEdit>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int widestText = 760;
} // namespace

EarlierPanel::EarlierPanel(QWidget *parent)
    : TaskPanel(u"earlierPanel"_s, u"Earlier Version"_s, parent)
    , m_words(makeQuietLabel({}, this))
    , m_more(named(makeQuietLabel({}, this), u"earlierMore"_s))
    , m_text(named(new QPlainTextEdit(this), u"earlierText"_s))
    , m_delete(addButton(u"deleteForGood"_s, u"Delete for &Good..."_s, ButtonKind::Plain, Side::Left))
    , m_bring(addButton(u"bringBack"_s, u"&Bring It Back"_s, ButtonKind::Main))
{
    auto *content = new QWidget(this);
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins({});
    rows->setSpacing(8);
    for (QLabel *words : {m_words, m_more})
        words->setWordWrap(true);
    m_text->setReadOnly(true);
    m_text->setAccessibleName(u"Earlier version"_s);
    m_text->setTabChangesFocus(true);
    m_text->setMaximumWidth(widestText);
    rows->addWidget(m_words);
    rows->addWidget(m_text, 1);
    rows->addWidget(m_more);
    setWork(content);
    setFocusProxy(m_bring);
    setLeaveButton(u"earlierClose"_s, u"C&lose"_s);
    connect(m_bring, &QPushButton::clicked, this, &EarlierPanel::bringBackWanted);
    connect(m_delete, &QPushButton::clicked, this, &EarlierPanel::deleteWanted);
}

void EarlierPanel::show(const JournalEntry &earlier, const QString &day, const QString &whyLocked)
{
    m_words->setText(JournalWindowLines::earlierWords(day));
    m_text->setPlainText(earlier.text);
    const QString more = JournalWindowLines::tagsAndPictures(earlier.tags, int(earlier.pictures.size()));
    m_more->setText(more);
    m_more->setVisible(!more.isEmpty());
    for (QPushButton *button : {m_delete, m_bring})
        setUnavailable(button, whyLocked);
}

void EarlierPanel::forget()
{
    m_text->clear();
    m_more->clear();
}
