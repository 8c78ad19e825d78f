// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/entryeditor.h"

#include "addressbook/entry/addressform.h"
#include "addressbook/model/entrylines.h"
#include "addressbook/model/indexline.h"
#include "addressbook/model/messages.h"
#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/controls/datepicker.h"
#include "shell/controls/titleline.h"
#include "shell/core/framelines.h"
#include "shell/pictures/pictureframe.h"
#include "shell/program/program.h"

#include <QScrollArea>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

/// An entry that nobody has typed into.
AddressEntry blankEntry()
{
    AddressEntry entry;
    entry.picture = noPicture;
    return entry;
}

/// "Miller, Anne", as the name list writes it.
QString listName(const AddressEntry &entry)
{
    const QString last = entry[LastName].trimmed();
    const QString first = entry[FirstName].trimmed();
    return first.isEmpty() ? last : QString(last + u", "_s + first);
}

QString modeName(EntryEditor::Mode mode)
{
    switch (mode) {
    case EntryEditor::Mode::View:
        return u"View"_s;
    case EntryEditor::Mode::Modify:
        return u"Modify"_s;
    case EntryEditor::Mode::Entry:
        return u"Entry"_s;
    }
    Q_UNREACHABLE();
}

} // namespace

EntryEditor::EntryEditor(Program &program, QWidget *window)
    : QWidget(window)
    , m_pictures(program.folder)
    , m_title(new TitleLine(u"entryTitle"_s, {}, this))
    , m_form(new AddressForm(program, window, this))
    , m_buttons(named(new ButtonRow(this), u"buttonRow"_s))
{
    m_title->addChip(u"modeChip"_s);
    QLabel *words = m_title->addWords(u"titleWords"_s);
    QScrollArea *scroll = makeScrolling(m_form, u"formScroll"_s, this);
    connect(m_form, &AddressForm::boxFocused, scroll,
            [scroll](QWidget *box) { scroll->ensureWidgetVisible(box, 8, 32); });
    connect(m_form, &AddressForm::edited, this, &EntryEditor::refreshModified);
    connect(m_form, &AddressForm::said, this, &EntryEditor::said);
    connect(m_buttons, &ButtonRow::wordsLeftOut, words, &QLabel::setText);

    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins(24, 16, 24, 18);
    rows->setSpacing(12);
    rows->addWidget(m_title);
    rows->addWidget(scroll, 1);
    rows->addWidget(makeLine(this));
    rows->addWidget(m_buttons);
}

void EntryEditor::addButton(QPushButton *button, TaskPanel::Side side, On screen)
{
    button->setParent(m_buttons);
    side == TaskPanel::Side::Left ? m_buttons->addLeft(button) : m_buttons->addRight(button);
    if (screen != On::BothScreens)
        (screen == On::ViewScreen ? m_viewButtons : m_entryButtons).append(button);
}

void EntryEditor::rearrangeButtons()
{
    m_buttons->rearrange();
}

AddressEntry EntryEditor::typed() const
{
    return {m_texts.typed(m_form->texts()), m_picture};
}

bool EntryEditor::isModified() const
{
    return m_mode != Mode::View && typed() != m_loaded;
}

void EntryEditor::show(const AddressBook::Found &found, const QString &line)
{
    m_record = found.record;
    m_mayChange = found.mayChange;
    m_isStray = found.isStray;
    m_line = line;
    load(found.entry);
    const QString name = listName(found.entry);
    m_title->setTitle(name.isEmpty() ? IndexLine::name(line).toString() : name);
    setMode(Mode::View);
    if (m_isStray)
        emit said(AddressMessages::strayLine());
    else if (!found.mayChange)
        emit said(whyUnchangeable());
}

void EntryEditor::startNew()
{
    m_record = 0;
    m_mayChange = false;
    m_isStray = false;
    load(blankEntry());
    m_title->setTitle(u"New entry"_s);
    setMode(Mode::Entry);
}

void EntryEditor::load(const AddressEntry &entry)
{
    m_begunRecord = 0;
    m_mode = Mode::View; // until all boxes are filled, which nobody types
    m_loaded = entry;
    m_picture = entry.picture;
    m_form->setTexts(entry.texts);
    m_texts.load(entry.texts, m_form->texts());
    showPicture();
}

AddressBook::SaveResult EntryEditor::save(AddressBook &book)
{
    m_form->tidyDates();
    const AddressEntry entry = typed();
    AddressBook::SaveResult result =
        isNew() ? book.saveNew(entry, m_begunRecord) : book.saveChanged(m_record, entry);
    m_begunRecord = isNew() && !result.isSaved ? result.record : 0;
    if (!result.isSaved) {
        emit said(FrameLines::refused(book.folder(), AddressMessages::saveFailed()));
        return result;
    }
    m_record = result.record;
    m_mayChange = true;
    m_loaded = entry;
    m_texts.load(entry.texts, m_form->texts());
    m_title->setTitle(listName(entry));
    emit said(result.isLineTooLong ? AddressMessages::lineTooLong() : AddressLines::saved(entry.fullName()));
    return result;
}

QString EntryEditor::names() const
{
    return m_isStray ? IndexLine::name(m_line).toString() : m_loaded.fullName();
}

std::optional<RecordChange> EntryEditor::remove(AddressBook &book, const QDateTime &now)
{
    return m_isStray ? book.removeStray(m_line) : book.remove(m_record, now);
}

QString EntryEditor::whyUnchangeable() const
{
    if (isNew())
        return AddressLines::onViewScreenOnly();
    if (m_mayChange)
        return {};
    if (m_isStray)
        return AddressMessages::entryNotFound();
    if (m_record == 0 && !m_line.isEmpty())
        return AddressMessages::lineWithoutNumber();
    return m_loaded.isEmpty() ? AddressMessages::lineBeforeEntry() : AddressMessages::lineOfAnotherEntry();
}

void EntryEditor::setMode(Mode mode)
{
    m_mode = mode;
    m_form->setLocked(mode == Mode::View);
    m_form->setRequiredShown(mode != Mode::View);
    m_title->setChip(modeName(mode));
    for (QPushButton *button : std::as_const(m_viewButtons))
        button->setVisible(!isNew());
    for (QPushButton *button : std::as_const(m_entryButtons))
        button->setVisible(isNew());
    refreshModified();
    emit changed();
}

void EntryEditor::setPicture(const QString &stored)
{
    const QString before = std::exchange(m_picture, stored);
    if (m_mode == Mode::View)
        setMode(Mode::Modify);
    showPicture();
    refreshModified();
    if (before != m_picture)
        emit pictureExchanged(before, m_picture);
}

bool EntryEditor::hasPicture() const
{
    return AddressEntry{{}, m_picture}.hasPicture();
}

QString EntryEditor::picturePath() const
{
    return hasPicture() ? m_pictures.locate(m_picture) : QString();
}

void EntryEditor::showPicture()
{
    m_form->picture()->clear();
    if (hasPicture() && !m_form->picture()->setPicture(picturePath()))
        emit said(AddressLines::pictureNotFound(m_picture));
}

void EntryEditor::refreshModified()
{
    m_buttons->setWords(isModified() ? FrameLines::unsavedChanges() : QString());
    const bool fits = IndexLine::fits(m_form->box(LastName)->text(), m_form->box(FirstName)->text());
    m_form->setNameHint(m_mode == Mode::View || fits ? QString() : AddressMessages::nameTooLong());
}
