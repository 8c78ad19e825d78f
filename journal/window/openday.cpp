// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/openday.h"

#include "journal/model/journal.h"
#include "journal/model/pictureplaces.h"
#include "journal/window/journaltext.h"
#include "journal/window/pagepictures.h"
#include "journal/window/windowlines.h"
#include "shell/core/lightmarks.h"

#include <QLineEdit>
#include <QScopedValueRollback>
#include <QTextCursor>
#include <QTextDocument>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// In one step, wherever it stands.
void replacePicture(QTextDocument &document, int number, int by)
{
    const QString place = LightMarks::picture(number);
    QTextCursor step(&document);
    step.beginEditBlock();
    constexpr auto exactly = QTextDocument::FindCaseSensitively;
    for (QTextCursor found = document.find(place, 0, exactly); !found.isNull();
         found = document.find(place, found, exactly))
        found.insertText(LightMarks::picture(by));
    step.endEditBlock();
}

} // namespace

OpenDay::OpenDay(Journal &journal, const Page &page, QObject *parent)
    : QObject(parent)
    , m_journal(journal)
    , m_page(page)
{
    m_waiting.setSingleShot(true);
    connect(&m_waiting, &QTimer::timeout, this, &OpenDay::save);
    connect(&page.text, &QPlainTextEdit::textChanged, this, &OpenDay::noteTyping);
    connect(&page.tags, &QLineEdit::textEdited, this, &OpenDay::noteEdit);
    connect(&journal, &Journal::changed, this, &OpenDay::follow);
}

JournalEntry OpenDay::entryOf(QDate date) const
{
    return m_journal.entry(date).value_or(JournalEntry{.date = date});
}

QString OpenDay::whyLocked() const
{
    if (!m_date.isValid() || m_journal.mayBeWritten(m_date))
        return {};
    return m_journal.whyReadOnly(m_date.year());
}

JournalEntry OpenDay::typed() const
{
    JournalEntry entry = m_entry;
    entry.text = m_page.text.text();
    entry.pictures = m_page.pictures.pictures();
    entry.tags.clear();
    for (const QString &tag : m_page.tags.text().split(u',')) {
        if (!tag.trimmed().isEmpty())
            entry.tags.append(tag.trimmed());
    }
    return PicturePlaces::named(entry);
}

void OpenDay::open(QDate date)
{
    if (m_date.isValid())
        leave();
    m_date = date;
    m_entry = entryOf(date);
    load();
    emit opened(date);
}

/// What was typed reaches the disk, and the day stays ready to be undone in.
void OpenDay::leave()
{
    save();
    QTextDocument *document = m_page.text.document();
    const bool isKept = document->isUndoAvailable() || document->isRedoAvailable();
    Sheet &sheet = m_sheets[m_date];
    sheet = {document, m_page.pictures.pictures(), m_entry, m_page.text.textCursor().position()};
    if (!isKept)
        sheet.entry = {};
}

void OpenDay::load()
{
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    const auto sheet = m_sheets.find(m_date);
    if (sheet != m_sheets.end() && sheet->second.entry == m_entry) {
        m_page.pictures.setPictures(sheet->second.pictures);
        m_page.text.showDocument(sheet->second.document);
        QTextCursor cursor = m_page.text.textCursor();
        cursor.setPosition(sheet->second.cursor);
        m_page.text.setTextCursor(cursor);
        m_page.text.ensureCursorVisible();
    } else {
        m_page.pictures.setPictures(m_entry.pictures);
        m_page.text.showDocument(
            m_page.text.makeDocument(PicturePlaces::complete(m_entry.text, m_entry.pictures.size())));
        if (sheet != m_sheets.end())
            std::exchange(sheet->second.document, nullptr)->deleteLater();
    }
    if (sheet != m_sheets.end())
        m_sheets.erase(sheet);
    // One in which nothing can be undone is made anew when it is needed.
    std::erase_if(m_sheets, [&](auto &kept) {
        const bool isGone = kept.second.entry.date.isNull();
        if (isGone)
            kept.second.document->deleteLater();
        return isGone;
    });
    m_page.text.document()->setModified(false);
    m_page.tags.setText(m_entry.tags.join(u", "_s));
    m_isEdited = false;
    showLock();
}

void OpenDay::showLock()
{
    const QString why = whyLocked();
    m_page.text.setReadOnly(!why.isEmpty());
    m_page.tags.setReadOnly(!why.isEmpty());
    if (!why.isEmpty())
        emit said(why);
}

/// The marks of wrong words change the text as well, in its own eyes.
void OpenDay::noteTyping()
{
    if (m_page.text.document()->isModified())
        noteEdit();
}

void OpenDay::noteEdit()
{
    if (m_isShowing)
        return;
    m_isEdited = true;
    m_waiting.start(savesAfter);
    emit edited();
}

void OpenDay::take()
{
    if (!std::exchange(m_isEdited, false))
        return;
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    const JournalEntry entry = typed();
    if (!m_journal.put(entry)) {
        emit said(whyLocked());
        return;
    }
    m_page.text.document()->setModified(false);
    m_entry = entryOf(m_date);
}

bool OpenDay::isSaved() const
{
    return !m_isEdited && !m_journal.isModified();
}

bool OpenDay::save()
{
    take();
    m_waiting.stop();
    const bool isSaved = !m_journal.isModified() || m_journal.save();
    if (!isSaved && m_date.isValid()) {
        emit said(JournalWindowLines::notSaved(m_journal.whyNotSaved(m_date.year())));
        m_waiting.start(triesAgainAfter);
    } else if (isSaved && m_hasFailed) {
        emit said(JournalWindowLines::saved());
    }
    m_hasFailed = !isSaved;
    emit savedChanged();
    return isSaved;
}

/// Something else than the keys has changed the day: an import, another program.
void OpenDay::follow(QDate date)
{
    if (m_isShowing || !m_date.isValid() || (date.isValid() && date != m_date))
        return;
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    const JournalEntry now = entryOf(m_date);
    if (now != m_entry && !m_isEdited)
        show(now);
    showLock();
}

/// In the document that is there, so that it can be undone.
void OpenDay::show(const JournalEntry &entry)
{
    QList<JournalPicture> pictures = m_page.pictures.pictures();
    const QString text =
        PicturePlaces::behind(PicturePlaces::complete(entry.text, entry.pictures.size()), pictures.size());
    pictures += entry.pictures;
    m_page.pictures.setPictures(pictures);
    if (m_page.text.text() != text)
        m_page.text.replaceText(text);
    m_page.text.document()->setModified(false);
    m_page.tags.setText(entry.tags.join(u", "_s));
    m_page.text.document()->setModified(false);
    m_entry = entry;
}

void OpenDay::bringBack(const JournalEntry &entry)
{
    show(entry);
    m_isEdited = true;
    save();
    emit edited();
}

void OpenDay::clear()
{
    m_page.tags.clear();
    m_page.text.replaceText({});
    noteEdit();
}

bool OpenDay::deleteForGood()
{
    m_isEdited = false;
    {
        const QScopedValueRollback<bool> showing(m_isShowing, true);
        if (!m_journal.deleteForGood(m_date))
            return false;
        m_entry = entryOf(m_date);
        QTextDocument *last = m_page.text.document();
        load();
        last->deleteLater();
    }
    return save();
}

void OpenDay::addPicture(const JournalPicture &picture)
{
    QList<JournalPicture> pictures = m_page.pictures.pictures();
    pictures.append(picture);
    m_page.pictures.setPictures(pictures);
    m_page.text.insertLine(LightMarks::picture(int(pictures.size())));
}

/// The picture with its new caption is another one, so that undo brings the old one back into the text.
void OpenDay::setCaption(int number, const QString &caption)
{
    if (!m_page.pictures.has(number) || m_page.pictures.caption(number) == caption)
        return;
    QList<JournalPicture> pictures = m_page.pictures.pictures();
    JournalPicture picture = pictures[number - 1];
    picture.caption = caption;
    pictures.append(picture);
    m_page.pictures.setPictures(pictures);
    replacePicture(*m_page.text.document(), number, int(pictures.size()));
}

void OpenDay::forget()
{
    const QScopedValueRollback<bool> showing(m_isShowing, true);
    m_waiting.stop();
    m_page.pictures.forget();
    m_page.tags.setText({}); // with what could be undone in it
    QTextDocument *last = m_page.text.document();
    m_page.text.showDocument(m_page.text.makeDocument({}));
    delete last;
    for (const auto &[date, sheet] : m_sheets)
        delete sheet.document;
    m_sheets.clear();
    m_date = {};
    m_entry = {};
    m_isEdited = false;
}
