// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/window/entryview.h"

#include "keeper/model/keeperkinds.h"
#include "keeper/window/entryform.h"
#include "keeper/window/windowlines.h"
#include "shell/controls/titleline.h"

#include <QLabel>

using namespace Qt::Literals::StringLiterals;

EntryView::EntryView(const Program &program, QWidget *window, QWidget *parent)
    : TitledView(u"entry"_s, parent)
    , m_form(new EntryForm(program, window))
    , m_words(nullptr)
{
    titleLine().addChip(u"entryChip"_s);
    m_words = titleLine().addWords(u"entryWords"_s);
    addContent(m_form, 1);
    connect(m_form, &EntryForm::edited, this, &EntryView::follow);
}

void EntryView::show(const KeeperEntry &entry, const QString &chip, const QString &words,
                     const KeeperEntry *typed)
{
    m_form->load(entry);
    if (typed)
        m_form->showTyped(*typed);
    titleLine().setTitle(entry.text(KeeperField::Title).isEmpty() ? KeeperWindowLines::newEntry()
                                                                  : entry.text(KeeperField::Title));
    titleLine().setChip(chip);
    m_words->setText(words);
    TitledView::follow(m_form->isModified());
}

void EntryView::setLocked(bool isLocked)
{
    m_form->setLocked(isLocked);
}

void EntryView::setSaved(const KeeperEntry &entry, const QString &words)
{
    m_form->setSaved(entry);
    titleLine().setTitle(entry.text(KeeperField::Title));
    m_words->setText(words);
    TitledView::follow(false);
}

void EntryView::follow()
{
    TitledView::follow(m_form->isModified());
    if (const KeeperEntry typed = m_form->entry(); typed.id.isEmpty())
        titleLine().setChip(KeeperKinds::name(typed.kind())); // only that of a new one can still change
    emit edited();
}
