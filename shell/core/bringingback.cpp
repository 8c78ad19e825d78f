// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/bringingback.h"

#include "shell/core/framelines.h"

#include <QHash>
#include <QLocale>

using namespace Qt::Literals::StringLiterals;

QString BringingBack::whyNot(const DataFolder &folder)
{
    if (folder.isReadOnly())
        return folder.whyReadOnly();
    if (ChangeSet::isPending(folder) && !ChangeSet::recover(folder))
        return FrameLines::refused(folder, {});
    return {};
}

RecordsBack BringingBack::done(const std::shared_ptr<FileChange> &change, const DataFolder &folder,
                               const QStringList &keys, const QString &what)
{
    if (!change->commit(folder))
        return refused(FrameLines::refused(folder, u"The disk refused; everything is as it was"_s));
    return {keys,
            {},
            UndoStep{u"Brought back: "_s + what, [change, folder] { return change->undo(folder); },
                     [change, folder] { return change->redo(folder); }}};
}

RecordsBack BringingBack::refused(const QString &why)
{
    return {{}, why, {}};
}

QString BringingBack::unreadable(const QString &name)
{
    return u"The file "_s + name + u" cannot be read; nothing was written"_s;
}

QByteArray BringingBack::markOf(QByteArrayView bytes)
{
    const std::size_t mark = qHashBits(bytes.data(), std::size_t(bytes.size()), 1);
    return {reinterpret_cast<const char *>(&mark), sizeof mark - 1}; // with it an array takes a third less
}

QString BringingBack::counted(int count, const QString &one, const QString &many)
{
    return QLocale(QLocale::English, QLocale::UnitedStates).toString(count) + u' ' +
           (count == 1 ? one : many);
}

void BringingBack::addLine(QStringList &lines, const QString &label, const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return;
    QStringList parts = trimmed.split(u'\n');
    parts.first().prepend(label + u' ');
    for (QString &part : parts)
        lines.append(part.trimmed());
}
