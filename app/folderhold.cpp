// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/folderhold.h"

#include "shell/mainmenu/mainmenumessages.h"
#include "shell/program/dialogs.h"

using Reply = InstanceLink::Reply;

FolderHold::FolderHold(const DataFolder &folder)
    : m_path(folder.path())
    , m_isReadOnly(folder.isReadOnly())
    , m_lock(folder)
    , m_line(folder)
{}

FolderHold::Result FolderHold::take()
{
    if (!m_isReadOnly && !m_lock.take())
        return m_line.callOther() == Reply::Answer ? Result::Answered : Result::Locked;
    // A program that found no room for its lock has the line alone, and may be starting this moment.
    const Reply reply = m_line.callOther(m_isReadOnly || m_lock.isHeld() ? 1 : 2);
    if (reply == Reply::Nobody)
        return listen();
    m_lock.release();
    if (reply == Reply::Answer)
        return Result::Answered;
    return m_isReadOnly ? Result::Ours : Result::Unknown;
}

FolderHold::Result FolderHold::takeOver(Dialogs &dialogs)
{
    Message question = StartMessages::folderHeld(m_path, m_lock.holder());
    while (dialogs.ask(nullptr, question) == Answer::Yes) {
        if (m_lock.takeOver())
            return listen();
        question = StartMessages::folderStillHeld(m_path, m_lock.holder());
    }
    return Result::Locked;
}

FolderHold::Result FolderHold::listen()
{
    const bool isListening = m_line.listen();
    return isListening || m_isReadOnly || m_lock.isHeld() ? Result::Ours : Result::Unknown;
}
