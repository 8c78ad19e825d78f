// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/personchanges.h"

#include "shell/core/framelines.h"
#include "shell/frame/commands.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/trashpanel.h"
#include "shell/frame/undostack.h"
#include "shell/frame/workviews.h"
#include "weight/model/messages.h"
#include "weight/window/openperson.h"
#include "weight/window/personviews.h"
#include "weight/window/planview.h"
#include "weight/window/windowlines.h"

#include <QMenu>

#include <utility>

using namespace Qt::Literals::StringLiterals;

PersonChanges::PersonChanges(const WeightDesk &desk, Hands hands, QObject *parent)
    : QObject(parent)
    , m_desk(desk)
    , m_hands(std::move(hands))
{}

Answer PersonChanges::ask(const Message &message) const
{
    return m_desk.program.dialogs.ask(&m_desk.window, message);
}

void PersonChanges::addEditCommands(QMenu *edit)
{
    m_trash = new TrashPanel(m_desk.program.state.dateStyle, &m_desk.views);
    m_desk.views.addPanel(m_trash);
    connect(m_trash, &TrashPanel::chosen, this, &PersonChanges::bringBack);
    m_desk.commands.writing(
        m_desk.commands.add(edit, u"mEBack"_s, u"Bring &Back Deleted..."_s, [this] { openTrash(); }));
}

QAction *PersonChanges::addCreate(QMenu *options)
{
    return m_desk.commands.writing(m_desk.commands.add(
        options, u"mONew"_s, u"&Create New File"_s, [this] { start(); }, {}, CommonKeys::newEntry));
}

QAction *PersonChanges::addSave(QMenu *options)
{
    return m_desk.commands.writing(m_desk.commands.add(
        options, u"mOSave"_s, u"&Save"_s, [this] { saveByCommand(); },
        [this] { return m_desk.window.isPreviewShown() ? TrackerLines::inViewsOnly() : QString(); },
        CommonKeys::save));
}

QAction *PersonChanges::addSaveNew(QMenu *options)
{
    return m_desk.commands.writing(
        m_desk.commands.add(options, u"mOSaveNew"_s, u"Save &New File"_s, [this] { saveNewByCommand(); }));
}

QAction *PersonChanges::addDelete(QMenu *options)
{
    return m_desk.commands.writing(m_desk.commands.add(
        options, u"mODel"_s, u"&Delete Displayed File"_s, [this] { remove(); },
        [this] { return m_desk.person.isNew() ? TrackerLines::notWhileCreating() : QString(); }));
}

void PersonChanges::start()
{
    if (!m_hands.mayReplace())
        return;
    m_desk.person.startNew();
    m_hands.views.open(PersonViews::Plan);
    m_hands.views.plan().typeName();
    emit said(TrackerLines::whatIsRequired());
}

/// The name is to be typed anew.
void PersonChanges::refuseName(const Message &refusal)
{
    ask(refusal);
    m_hands.views.open(PersonViews::Plan);
    m_hands.views.plan().typeName();
}

bool PersonChanges::saveNew()
{
    m_hands.views.finishEdit();
    OpenPerson &person = m_desk.person;
    if (const auto refusal = person.files().whyNotNew(person.sheet().field(WeightSheet::Name))) {
        refuseName(*refusal);
        return false;
    }
    const auto change = person.saveNew();
    if (!change)
        return false;
    const QString name = person.name();
    m_hands.openList(name);
    add(TrackerLines::created(name), *change, name);
    return true;
}

bool PersonChanges::saveShown()
{
    OpenPerson &person = m_desk.person;
    const QString before = person.name();
    const QString name = person.sheet().field(WeightSheet::Name);
    if (name != before) {
        if (const auto refusal = person.files().whyNotNew(name, before)) {
            refuseName(*refusal);
            return false;
        }
    }
    if (!person.save())
        return false;
    if (person.name() != before)
        m_hands.openList(person.name());
    return true;
}

bool PersonChanges::save()
{
    m_hands.views.finishEdit();
    return m_desk.person.isNew() ? saveNew() : saveShown();
}

void PersonChanges::saveByCommand()
{
    m_hands.views.finishEdit();
    OpenPerson &person = m_desk.person;
    if (!person.isOpen())
        ask(WeightMessages::noneSelected());
    else if (person.isNew())
        saveNewByCommand();
    else if (const QString why = person.whyLocked(); !why.isEmpty())
        emit said(why);
    else if (!person.isModified())
        ask(WeightMessages::nothingToSave());
    else if (saveShown())
        ask(WeightMessages::saved());
}

void PersonChanges::saveNewByCommand()
{
    if (!m_desk.person.isOpen())
        ask(WeightMessages::nameMissing());
    else if (saveNew())
        ask(WeightMessages::newSaved());
}

/// Says what was done, and offers to take it back.
void PersonChanges::add(const QString &title, const WholeFilesChange &change, const QString &name)
{
    m_hands.undo.push(title, std::make_shared<WholeFilesChange>(change),
                      [this, name] { m_hands.openList(name); });
    emit said(FrameLines::withTrash(title, change.trashState()));
    m_hands.undo.offer();
}

void PersonChanges::remove()
{
    OpenPerson &person = m_desk.person;
    if (!person.isOpen()) {
        ask(WeightMessages::noneSelected());
        return;
    }
    const QString name = person.name();
    if (ask(WeightMessages::deleteFile(name)) != Answer::Yes)
        return;
    const auto change = person.files().remove(name, m_desk.program.clock.now());
    if (!change) {
        emit said(FrameLines::refused(m_desk.program.folder, TrackerLines::notDeleted()));
        return;
    }
    m_hands.openList({});
    add(TrackerLines::deleted(name), *change, name);
}

void PersonChanges::openTrash()
{
    m_desk.window.closePreview();
    m_trash->setItems(m_desk.person.files().deletedPersons(m_desk.program.clock.now()));
    m_desk.views.open(m_trash);
    m_trash->setFocus();
}

void PersonChanges::bringBack(const Trash::Item &item)
{
    if (!m_hands.mayReplace())
        return;
    const PersonFiles::BroughtBack back = m_desk.person.files().bringBack(item);
    if (!back.isDone) {
        emit said(FrameLines::refused(m_desk.program.folder, TrackerLines::notSaved()));
        return;
    }
    m_desk.views.goHome();
    m_hands.openList(back.name);
    add(TrackerLines::broughtBack(back.name), back.change, back.name);
}

void PersonChanges::addToList(const QStringList &names)
{
    if (names.isEmpty() || !m_hands.mayReplace())
        return;
    const auto change = m_desk.person.files().addToList(names);
    if (!change) {
        emit said(FrameLines::refused(m_desk.program.folder, TrackerLines::notSaved()));
        return;
    }
    m_hands.openList(names.first());
    add(TrackerLines::addedToList(names), *change, names.first());
}
