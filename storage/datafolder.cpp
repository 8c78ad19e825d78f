// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/datafolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QTemporaryFile>

#include <cerrno>
#include <utility>

namespace {

QString joined(const QString &folder, const QString &name)
{
    return folder + u'/' + name;
}

/// The path of the entry `name` of `folder` under whatever spelling; empty when there is none.
QString entryPath(const QString &folder, const QString &name)
{
    if (name.isEmpty())
        return {};
    if (QString exact = joined(folder, name); QFileInfo::exists(exact))
        return exact;

    QString match;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        const QString entry = entries.fileName();
        if (entry.compare(name, Qt::CaseInsensitive) == 0 && (match.isEmpty() || entry < match))
            match = entry;
    }
    return match.isEmpty() ? QString() : joined(folder, match);
}

} // namespace

DataFolder::DataFolder(const QString &path, QString whyReadOnly)
    : m_path(path.isEmpty() ? QStringLiteral(".") : QDir::cleanPath(path))
    , m_whyReadOnly(std::move(whyReadOnly))
{}

QString DataFolder::filePath(const QString &name) const
{
    const QString found = entryPath(m_path, name);
    return found.isEmpty() ? joined(m_path, name) : found;
}

QString DataFolder::existingFile(const QString &folder, const QString &name) const
{
    const QString subfolder = folder.isEmpty() ? m_path : entryPath(m_path, folder);
    const QString file = subfolder.isEmpty() ? QString() : entryPath(subfolder, name);
    return QFileInfo(file).isFile() ? file : QString();
}

bool DataFolder::exists(const QString &name) const
{
    return !entryPath(m_path, name).isEmpty();
}

bool DataFolder::isWritable() const
{
    QTemporaryFile probe(joined(m_path, QStringLiteral("Quillery.XXXXXX")));
    return probe.open() || probe.errorString() == qt_error_string(ENOSPC);
}
