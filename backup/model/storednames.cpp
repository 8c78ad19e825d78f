// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/storednames.h"

#include "backup/model/picturepool.h"
#include "backup/model/setfolder.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

/// "a ~2.Fil" for "a.Fil".
QString numbered(const QString &path, int number)
{
    const qsizetype name = path.lastIndexOf(u'/') + 1;
    const qsizetype dot = path.lastIndexOf(u'.');
    const qsizetype at = dot > name ? dot : path.size();
    return QString(path).insert(at, u" ~%1"_s.arg(number));
}

template <typename IsTaken>
QString freeName(const QString &path, IsTaken isTaken)
{
    QString name = path;
    for (int number = 2; isTaken(name.toCaseFolded()); ++number)
        name = numbered(path, number);
    return name;
}

} // namespace

StoredNames::StoredNames()
{
    for (const QLatin1StringView name :
         {SetFolder::sums, SetFolder::sealed, DiskRecord::fileName, SetRecord::fileName})
        m_files.insert(QString(name).toCaseFolded());
}

QString StoredNames::add(const QString &name, int piece)
{
    const QString escaped = SetFolder::escaped(name);
    QString stored;
    for (qsizetype from = 0, to = escaped.indexOf(u'/'); to >= 0; to = escaped.indexOf(u'/', from)) {
        stored += freeName(stored + escaped.sliced(from, to - from), [this](const QString &folder) {
                      return m_files.contains(folder);
                  }).sliced(stored.size());
        m_folders.insert(stored.toCaseFolded());
        stored += u'/';
        from = to + 1;
    }
    stored += escaped.sliced(escaped.lastIndexOf(u'/') + 1);
    if (piece > 0)
        stored += SetFolder::pieceEnding(piece);
    stored = freeName(
        stored, [this](const QString &file) { return m_files.contains(file) || m_folders.contains(file); });
    m_files.insert(stored.toCaseFolded());
    return stored;
}

PartPaths::PartPaths(const QString &folder, const DiskRecord &record)
{
    const PicturePool pool(QFileInfo(folder).path() + u'/' + SetFolder::pictures);
    StoredNames names;
    m_paths.reserve(record.parts.size());
    for (const BackupPart &part : record.parts) {
        if (part.piece > 0 || !SetFolder::isPicture(part.name))
            m_paths.append(folder + u'/' + names.add(part.name, part.piece));
        else if (const QString path = pool.find(part.hash, part.size); !path.isEmpty())
            m_paths.append(path);
        else
            m_paths.append(pool.damaged(part.hash));
    }
}
