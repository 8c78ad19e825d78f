// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/openlists.h"

#include "shell/core/framelines.h"
#include "shell/program/program.h"
#include "todo/model/tododifference.h"
#include "todo/window/windowlines.h"

#include <memory>

namespace {
constexpr int saveAfter = 1000;
} // namespace

OpenLists::OpenLists(const Program &program, QObject *parent)
    : QObject(parent)
    , m_program(program)
    , m_files(program.folder)
{
    m_soon.setSingleShot(true);
    m_soon.setInterval(saveAfter);
    connect(&m_soon, &QTimer::timeout, this, [this] { static_cast<void>(save()); });
}

QString OpenLists::whyLocked() const
{
    const QString reason = m_program.folder.whyReadOnly();
    return reason.isEmpty() ? m_whyLocked : reason;
}

int OpenLists::load()
{
    const ToDoFiles::Opened opened = m_files.open(m_program.state.dateStyle, m_program.clock.today());
    m_soon.stop();
    m_sheet = opened.former;
    m_whyLocked = opened.whyLocked;
    m_isSaved = true;
    emit fileTouched();
    emit changed();
    if (opened.takenIn > 0) {
        change(ToDoWindowLines::takenIn(opened.takenIn), opened.sheet);
        m_soon.stop(); // opening alone writes nothing: it would be taken in again
        m_isSaved = true;
    }
    return opened.takenIn;
}

bool OpenLists::change(const QString &title, const ToDoSheet &wanted)
{
    if (const QString why = whyLocked(); !why.isEmpty()) {
        emit said(why);
        return false;
    }
    const auto difference = std::make_shared<const ToDoDifference>(ToDoDifference::between(m_sheet, wanted));
    if (difference->isEmpty())
        return true;
    hold(wanted);
    emit edited({title, [=, this] { return exchange(*difference, false); },
                 [=, this] { return exchange(*difference, true); }, UndoStep::Typed});
    return true;
}

void OpenLists::hold(const ToDoSheet &sheet)
{
    m_sheet = sheet;
    m_isSaved = false;
    m_soon.start();
    emit changed();
}

ChangeResult OpenLists::exchange(const ToDoDifference &difference, bool isForth)
{
    ToDoSheet wanted = m_sheet;
    if (!(isForth ? difference.apply(wanted) : difference.revert(wanted)))
        return ChangeResult::Outdated;
    hold(wanted);
    return ChangeResult::Done;
}

bool OpenLists::save()
{
    m_soon.stop();
    if (m_isSaved)
        return true;
    if (!m_files.save(m_sheet)) {
        emit said(FrameLines::refused(m_program.folder, ToDoWindowLines::notSaved()));
        return false;
    }
    m_isSaved = true;
    emit fileTouched();
    return true;
}
