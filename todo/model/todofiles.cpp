// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/todofiles.h"

#include "storage/changeset.h"
#include "storage/log.h"
#include "todo/model/activefile.h"
#include "todo/model/lines.h"
#include "todo/model/todohead.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString ownName = u"ToDo1.Fil"_s;
const QString namesName = u"TODONAME.FIL"_s;
const QString activeName = u"TODOActv.FIL"_s;

/// What the file `name` holds, nothing where it is missing; no value, and a line in the log, where it cannot
/// be read.
std::optional<QByteArray> contentOf(const DataFolder &folder, const QString &name)
{
    const QString path = folder.filePath(name);
    if (!QFileInfo::exists(path))
        return QByteArray();
    QFile file(path);
    if (QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        const QByteArray bytes = file.readAll();
        if (file.error() == QFile::NoError)
            return bytes;
    }
    qCWarning(storageLog).noquote() << "Cannot read" << path << '-' << file.errorString();
    return {};
}

/// Adds the file `name` to `change` unless it holds `content` already.
void replaceChanged(ChangeSet &change, const DataFolder &folder, const QString &name,
                    const QByteArray &content)
{
    const QFileInfo file(folder.filePath(name));
    if (!file.isFile() || file.size() != content.size() || contentOf(folder, name) != content)
        change.replace(name, content);
}

} // namespace

QStringList ToDoFiles::names()
{
    return {ownName, namesName, activeName};
}

ToDoFiles::Opened ToDoFiles::open(DateStyle style, QDate today) const
{
    Opened opened;
    opened.whyLocked = m_folder.whyReadOnly();
    const std::optional<QByteArray> own = contentOf(m_folder, ownName);
    const QByteArray active = contentOf(m_folder, activeName).value_or(QByteArray());
    const auto form = own ? ToDoHead::formOf(*own) : TabLine::Foreign;
    if (!own)
        opened.whyLocked = ToDoLines::unreadableFile();
    else if (form == TabLine::Foreign)
        opened.whyLocked = ToDoLines::foreignFile();
    else if (form == TabLine::Later)
        opened.whyLocked = ToDoLines::laterVersion();

    opened.isNew = form == TabLine::Empty || form == TabLine::Foreign;
    if (opened.isNew) {
        const QByteArray names = contentOf(m_folder, namesName).value_or(QByteArray());
        opened.sheet = ActiveFile::firstSheet(names, active, style, today);
        opened.former = opened.sheet;
        return opened;
    }
    opened.sheet = ToDoSheet::fromFile(*own);
    opened.former = opened.sheet;
    const auto [digest, formerDigest] = opened.sheet.digests();
    const QByteArray there = ActiveFile::digest(active);
    const bool isOurs = there == digest || there == formerDigest;
    // What was cut off its end stands in the other file still, as far as it is open.
    const bool isCut = there == digest && !own->endsWith('\n');
    if (opened.whyLocked.isEmpty() && (!isOurs || isCut))
        opened.takenIn = ActiveFile::takeIn(opened.sheet, active, style, today);
    return opened;
}

ToDoSheet ToDoFiles::read(DateStyle style, QDate today) const
{
    return open(style, today).former;
}

std::array<QByteArray, 3> ToDoFiles::contents(const ToDoSheet &sheet) const
{
    const QByteArray active = ActiveFile::make(sheet);
    const QByteArray there = contentOf(m_folder, activeName).value_or(QByteArray());
    const QByteArray digest = ActiveFile::digest(active);
    const QByteArray own = sheet.toFile(digest, there == active ? digest : ActiveFile::digest(there));
    return {own, ActiveFile::makeNames(sheet), active};
}

bool ToDoFiles::save(const ToDoSheet &sheet) const
{
    ChangeSet change(m_folder);
    const auto contents = this->contents(sheet);
    for (std::size_t i = 0; i < contents.size(); ++i)
        replaceChanged(change, m_folder, names()[qsizetype(i)], contents[i]);
    return change.commit();
}

void ToDoFiles::addTo(WholeFilesChange &change, const ToDoSheet &sheet) const
{
    const auto contents = this->contents(sheet);
    for (std::size_t i = 0; i < contents.size(); ++i)
        change.replace(m_folder, names()[qsizetype(i)], contents[i]);
}
