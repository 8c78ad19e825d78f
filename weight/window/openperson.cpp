// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/openperson.h"

#include "shell/core/framelines.h"
#include "shell/program/program.h"
#include "weight/model/messages.h"
#include "weight/model/personlist.h"
#include "weight/window/windowlines.h"

#include <algorithm>
#include <utility>

OpenPerson::OpenPerson(const Program &program, std::function<Answer(const Message &)> ask, QObject *parent)
    : QObject(parent)
    , m_program(program)
    , m_ask(std::move(ask))
    , m_files(program.folder)
    , m_held(std::make_shared<Held>())
    , m_saved(m_held)
{}

bool OpenPerson::isModified() const
{
    return m_held != m_saved && m_held->sheet != m_saved->sheet;
}

QString OpenPerson::fileTrouble() const
{
    return m_name.isEmpty() ? QString() : TrackerLines::stateOf(PersonFiles::fileName(m_name), m_fileState);
}

QString OpenPerson::whyLocked() const
{
    if (!isOpen())
        return TrackerLines::noPersonYet();
    if (QString reason = m_program.folder.whyReadOnly(); !reason.isEmpty())
        return reason;
    const bool isLocked =
        m_fileState == PersonFiles::State::Foreign || m_fileState == PersonFiles::State::OutOfReach;
    return isLocked ? fileTrouble() : QString();
}

void OpenPerson::load(const QString &name)
{
    if (name.isEmpty()) {
        open(name, {}, false);
        return;
    }
    open(name, m_files.read(name), false);
    if (const QString trouble = fileTrouble(); !trouble.isEmpty())
        emit said(trouble);
}

void OpenPerson::startNew()
{
    open({}, {}, true);
}

void OpenPerson::open(const QString &name, const PersonFiles::Found &found, bool isNew)
{
    m_name = name;
    m_held = std::make_shared<Held>(Held{found.sheet, found.uncounted});
    m_saved = m_held;
    m_counted = found.sheet.weighIns.rowCount();
    m_fileState = found.state;
    m_isNew = isNew;
    emit fileTouched();
    emit loaded();
    emit changed();
}

bool OpenPerson::change(const QString &title, const WeightSheet &wanted)
{
    hold(title, {wanted, m_held->uncounted});
    return true;
}

void OpenPerson::takeUncounted()
{
    Held wanted{m_held->sheet, {}};
    WeightTable &weighIns = wanted.sheet.weighIns;
    weighIns.insert(std::min(m_counted, weighIns.rowCount()), m_held->uncounted);
    hold(TrackerLines::uncountedTaken(), wanted);
}

bool OpenPerson::changeAndSave(const QString &title, const WeightSheet &wanted)
{
    hold(title, {wanted, m_held->uncounted}, Disk::AtOnce);
    return save();
}

void OpenPerson::hold(const QString &title, Held wanted, Disk disk)
{
    if (wanted == *m_held)
        return;
    const State before = m_held;
    const State after = std::make_shared<Held>(std::move(wanted));
    m_held = after;
    emit edited({title, [=, this] { return exchange(after, before, disk); },
                 [=, this] { return exchange(before, after, disk); }, UndoStep::Typed});
    emit changed();
}

ChangeResult OpenPerson::exchange(const State &shown, const State &wanted, Disk disk)
{
    if (m_held != shown && m_held->sheet != shown->sheet)
        return ChangeResult::Outdated;
    // Where the screen showed what the file has, it does so afterwards too.
    const bool isWrittenToo = disk == Disk::AtOnce && !isModified();
    const State before = std::exchange(m_held, wanted);
    if (isWrittenToo && !write()) {
        m_held = before;
        return ChangeResult::Refused;
    }
    emit changed();
    return ChangeResult::Done;
}

bool OpenPerson::settleUncounted()
{
    if (m_held->uncounted.isEmpty())
        return true;
    switch (m_ask(WeightMessages::takeUncounted(m_held->uncounted.rowCount()))) {
    case Answer::Yes:
        takeUncounted();
        return true;
    case Answer::No:
        hold(TrackerLines::uncountedLeftOut(), {m_held->sheet, {}});
        return true;
    default:
        emit said(TrackerLines::notSavedYet());
        return false;
    }
}

bool OpenPerson::save()
{
    const QString name = m_held->sheet.field(WeightSheet::Name);
    const auto refusal = name == m_name ? std::nullopt : m_files.whyNotNew(name, m_name);
    if (refusal)
        m_ask(*refusal);
    return !refusal && settleUncounted() && write();
}

bool OpenPerson::write()
{
    if (!m_files.save(m_name, m_held->sheet)) {
        emit said(FrameLines::refused(m_program.folder, TrackerLines::notSaved()));
        return false;
    }
    written(m_held->sheet.field(WeightSheet::Name));
    return true;
}

std::optional<WholeFilesChange> OpenPerson::saveNew()
{
    if (!settleUncounted())
        return {};
    auto change = m_files.create(m_held->sheet);
    if (!change) {
        emit said(FrameLines::refused(m_program.folder, TrackerLines::notSaved()));
        return {};
    }
    m_isNew = false;
    written(m_held->sheet.field(WeightSheet::Name));
    return change;
}

void OpenPerson::written(const QString &name)
{
    const QString before = std::exchange(m_name, name.trimmed());
    m_held = std::make_shared<Held>(Held{m_held->sheet, {}}); // the file counts all that it has now
    m_saved = m_held;
    m_fileState = PersonFiles::State::Whole;
    emit fileTouched();
    if (m_name != before)
        emit renamed();
    emit said(TrackerLines::saved(m_name));
    emit changed();
}

QStringList OpenPerson::fileNames() const
{
    QStringList names{PersonList::fileName()};
    if (!m_name.isEmpty())
        names.append(PersonFiles::fileName(m_name));
    return names;
}
