// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/datafolder.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QHash>
#include <QTemporaryFile>

#include <algorithm>
#include <cerrno>
#include <utility>

namespace {

QString joined(const QString &folder, const QString &name)
{
    return folder + u'/' + name;
}

/// A character at a time, as names are compared: "ß" is not "ss".
QString folded(QString name)
{
    std::ranges::transform(name, name.begin(), [](QChar character) { return character.toCaseFolded(); });
    return name;
}

template <typename Visit>
void forEachEntry(const QString &folder, Visit visit)
{
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        visit(entries.fileName());
    }
}

/// The path of the entry `name` of `folder` under whatever spelling; empty when there is none.
QString entryPath(const QString &folder, const QString &name)
{
    if (name.isEmpty())
        return {};
    if (QString exact = joined(folder, name); QFileInfo::exists(exact))
        return exact;

    QString match;
    forEachEntry(folder, [&](const QString &entry) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0 && (match.isEmpty() || entry < match))
            match = entry;
    });
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

QStringList DataFolder::filePaths(const QStringList &names) const
{
    QStringList paths;
    QList<qsizetype> missing;        // in the exact spelling
    QHash<QString, QString> matches; // by what all spellings of a name have in common
    for (const QString &name : names) {
        paths.append(joined(m_path, name));
        if (name.isEmpty() || QFileInfo::exists(paths.last()))
            continue;
        missing.append(paths.size() - 1);
        matches.insert(folded(name), {});
    }
    if (missing.isEmpty())
        return paths;
    forEachEntry(m_path, [&matches](const QString &entry) {
        const auto match = matches.find(folded(entry));
        if (match != matches.end() && (match->isEmpty() || entry < *match))
            *match = entry;
    });
    for (const qsizetype at : missing) {
        if (const QString match = matches.value(folded(names[at])); !match.isEmpty())
            paths[at] = joined(m_path, match);
    }
    return paths;
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
