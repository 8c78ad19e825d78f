// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/openperson.h"

#include "shell/core/framelines.h"
#include "shell/program/program.h"
#include "weight/model/personlist.h"
#include "weight/window/windowlines.h"

#include <utility>

OpenPerson::OpenPerson(const Program &program, QObject *parent)
    : QObject(parent)
    , m_program(program)
    , m_files(program.folder)
    , m_held(std::make_shared<Held>())
    , m_saved(m_held)
{}

bool OpenPerson::isModified() const
{
    return m_held != m_saved && m_held->sheet != m_saved->sheet;
}

QString OpenPerson::whyLocked() const
{
    if (!isOpen())
        return TrackerLines::noPersonYet();
    if (QString reason = m_program.folder.whyReadOnly(); !reason.isEmpty())
        return reason;
    const bool isLocked =
        m_fileState == PersonFiles::State::Foreign || m_fileState == PersonFiles::State::OutOfReach;
    return isLocked ? TrackerLines::stateOf(PersonFiles::fileName(m_name), m_fileState) : QString();
}

void OpenPerson::load(const QString &name)
{
    if (name.isEmpty()) {
        open(name, {}, false);
        return;
    }
    open(name, m_files.read(name), false);
    const QString state = TrackerLines::stateOf(PersonFiles::fileName(name), m_fileState);
    if (!state.isEmpty())
        emit said(state);
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
    m_fileState = found.state;
    m_isNew = isNew;
    emit fileTouched();
    emit loaded();
    emit changed();
}

void OpenPerson::change(const QString &title, const WeightSheet &wanted)
{
    hold(title, {wanted, m_held->uncounted});
}

void OpenPerson::takeUncounted(const QString &title)
{
    Held wanted{m_held->sheet, {}};
    for (qsizetype row = 0; row < m_held->uncounted.rowCount(); ++row)
        wanted.sheet.weighIns.append(m_held->uncounted.at(row));
    hold(title, wanted);
}

void OpenPerson::hold(const QString &title, Held wanted)
{
    if (wanted == *m_held)
        return;
    const State before = m_held;
    const State after = std::make_shared<Held>(std::move(wanted));
    m_held = after;
    emit edited({title, [=, this] { return exchange(after, before); },
                 [=, this] { return exchange(before, after); }, UndoStep::Typed});
    emit changed();
}

ChangeResult OpenPerson::exchange(const State &shown, const State &wanted)
{
    if (m_held != shown && m_held->sheet != shown->sheet)
        return ChangeResult::Outdated;
    m_held = wanted;
    emit changed();
    return ChangeResult::Done;
}

bool OpenPerson::save()
{
    if (!m_files.save(m_name, m_held->sheet)) {
        emit said(FrameLines::refused(m_program.folder, TrackerLines::notSaved()));
        return false;
    }
    written(m_held->sheet.field(WeightSheet::Name));
    return true;
}

std::optional<WeightChange> OpenPerson::saveNew()
{
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
    m_name = name.trimmed();
    m_held = std::make_shared<Held>(Held{m_held->sheet, {}}); // the file counts all that it has now
    m_saved = m_held;
    m_fileState = PersonFiles::State::Whole;
    emit fileTouched();
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
