// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/daypage.h"

#include "journal/model/journalwords.h"
#include "journal/window/dayfacts.h"
#include "journal/window/journaltext.h"
#include "journal/window/openday.h"
#include "journal/window/pagepictures.h"
#include "journal/window/windowlines.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/controls/steptitle.h"
#include "shell/controls/tagbox.h"
#include "shell/core/dates.h"
#include "shell/core/framelines.h"
#include "shell/program/program.h"

#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int mostTagsWidth = 560;
constexpr int captionRoom = 4; ///< more than the label asks for, which cuts its last letter
} // namespace

DayPage::DayPage(const Program &program, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_pictures(new PagePictures(program.folder, this))
    , m_title(new StepTitle({u"journalDate"_s, u"day"_s, u"Today"_s}, this))
    , m_written(named(makeQuietLabel({}, this), u"writtenOn"_s))
    , m_damage(named(makeQuietLabel({}, this), u"dayDamage"_s))
    , m_facts(new DayFacts(program, this))
    , m_text(new JournalText(*m_pictures, this))
    , m_tags(new TagBox(u"entryTags"_s, this))
    , m_words(named(makeQuietLabel({}, this), u"wordCount"_s))
    , m_foot(named(new ButtonRow(this), u"journalFoot"_s))
{
    setObjectName(u"dayPage"_s);
    setFocusProxy(m_text);
    m_tags->setPlaceholderText(JournalWindowLines::tagsHint());
    m_written->hide();
    m_damage->setWordWrap(true);
    m_damage->hide();
    m_pictures->setParent(m_text); // whose documents ask it until they go
    layOut();
    setTabOrder(m_text, m_tags);
    m_facts->setBefore(m_title->findChildren<QPushButton *>().constLast());
    connect(m_title, &StepTitle::stepped, this, &DayPage::stepped);
    connect(m_title, &StepTitle::todayRequested, this, &DayPage::todayRequested);
}

void DayPage::layOut()
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(20, 14, 20, 14);
    rows->setSpacing(8);
    rows->addWidget(m_title);
    rows->addWidget(m_written);
    rows->addWidget(m_damage);
    rows->addWidget(m_facts);
    rows->addWidget(m_text, 1);
    auto *below = new QHBoxLayout;
    below->setSpacing(8);
    QLabel *caption = makeFieldLabel(u"&Tags"_s, m_tags, this);
    caption->setMinimumWidth(caption->sizeHint().width() + captionRoom);
    m_tags->setMaximumWidth(mostTagsWidth);
    below->addWidget(caption);
    below->addWidget(m_tags, 1);
    below->addStretch(0);
    below->addWidget(m_words);
    rows->addLayout(below);
    rows->addWidget(makeLine(this));
    rows->addWidget(m_foot);
}

void DayPage::follow(const OpenDay &day)
{
    const DateStyle style = m_program.state.dateStyle;
    const QDate date = day.date();
    if (!date.isValid())
        return;
    m_title->setTitle(Dates::longText(date, style), Dates::statusText(date, style));
    const JournalEntry entry = day.typed();
    const QDate written = entry.written.date();
    const bool isOther = written.isValid() && written != date && !entry.isEmpty();
    m_written->setText(isOther ? JournalWindowLines::writtenOn(written, date, style) : QString());
    m_written->setVisible(isOther);
    m_words->setText(JournalWindowLines::words(JournalWords::count(entry.text)));
    m_foot->setWords(day.isSaved() ? QString() : FrameLines::unsavedChanges());
}

void DayPage::setDamage(const QString &words)
{
    m_damage->setText(words);
    m_damage->setVisible(!words.isEmpty());
}

void DayPage::setKnownTags(const QStringList &tags)
{
    m_tags->setOffered(tags);
}

void DayPage::forget()
{
    m_title->setTitle({});
    m_written->hide();
    m_written->clear();
    m_words->clear();
    m_facts->setDate({});
    m_foot->setWords({});
    setDamage({});
    setKnownTags({});
}
