// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalfiles.h"

#include "storage/disk.h"
#include "storage/log.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString beginning = u"DJour"_s;
const QString ending = u".Fil"_s;
const QString aside = u" set aside"_s;
constexpr qsizetype digits = 4;

/// The year of which `name` is the file; 0 for any other file.
int yearOf(const QString &name)
{
    if (name.size() != beginning.size() + digits + ending.size() ||
        !name.startsWith(beginning, Qt::CaseInsensitive) || !name.endsWith(ending, Qt::CaseInsensitive))
        return 0;
    const QStringView number = QStringView(name).sliced(beginning.size(), digits);
    const bool isNumber =
        std::ranges::all_of(number, [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
    const int year = isNumber ? number.toInt() : 0;
    return year >= JournalForm::firstYear ? year : 0;
}

/// "DJour2026 set aside.Fil", "DJour2026 set aside 2.Fil"
bool wasSetAside(const QString &name)
{
    const qsizetype at = beginning.size() + digits;
    return name.sliced(std::min(at, name.size())).startsWith(aside, Qt::CaseInsensitive) &&
           yearOf(name.first(at) + ending) > 0 && name.endsWith(ending, Qt::CaseInsensitive);
}

} // namespace

QString JournalFiles::name(int year)
{
    return beginning + QString::number(year) + ending;
}

QList<int> JournalFiles::years(const DataFolder &folder)
{
    QList<int> years;
    QDirIterator names(folder.path(), QDir::AllEntries | QDir::Hidden);
    while (names.hasNext()) {
        names.next();
        if (const int year = yearOf(names.fileName()); year > 0 && !years.contains(year))
            years.append(year);
    }
    std::ranges::sort(years);
    return years;
}

QStringList JournalFiles::names(const DataFolder &folder)
{
    QStringList names;
    QDirIterator files(folder.path(), QDir::Files | QDir::Hidden);
    while (files.hasNext()) {
        files.next();
        if (const QString name = files.fileName(); isOfYear(name) || wasSetAside(name))
            names.append(name);
    }
    names.sort();
    return names;
}

bool JournalFiles::isOfYear(const QString &name)
{
    return yearOf(name) > 0;
}

std::optional<QByteArray> JournalFiles::read(const DataFolder &folder, int year)
{
    return read(folder, name(year));
}

std::optional<QByteArray> JournalFiles::read(const DataFolder &folder, const QString &name)
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

bool JournalFiles::isSealed(const DataFolder &folder, int year)
{
    QFile file(folder.filePath(name(year)));
    return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) &&
           file.read(JournalForm::sealedLine.size()) == JournalForm::sealedLine;
}

FileStamp JournalFiles::stamp(const DataFolder &folder, int year)
{
    return FileStamp::of(folder, {name(year)});
}

QString JournalFiles::setAside(const DataFolder &folder, int year)
{
    const QString plain = beginning + QString::number(year) + aside;
    QString free = plain + ending;
    for (int number = 2; folder.exists(free); ++number)
        free = plain + u' ' + QString::number(number) + ending;
    const QString path = folder.filePath(name(year));
    if (folder.isReadOnly() || !QFileInfo::exists(path) ||
        !Disk::renameOver(path, folder.path() + u'/' + free))
        return {};
    Disk::flushNames(folder.path());
    return free;
}
