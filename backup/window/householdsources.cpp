// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/window/householdsources.h"

#include "backup/model/setrecords.h"
#include "backup/window/diskwork.h"
#include "shell/access/gate.h"
#include "shell/program/functionfaces.h"
#include "shell/program/program.h"

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

using Records = std::vector<std::pair<QString, std::unique_ptr<FunctionRecords>>>;

Records recordsIn(const Program &program, const DataFolder &folder, const QStringList &keys)
{
    Records records;
    for (const QString &key : keys) {
        const std::optional<Function> function = HouseholdSources::function(key);
        const FunctionEntry *entry = function ? program.functions.entry(*function) : nullptr;
        if (!entry || !entry->records)
            continue;
        if (std::unique_ptr<FunctionRecords> made = entry->records(program, folder))
            records.emplace_back(key, std::move(made));
    }
    return records;
}

QList<BackupCount> counts(const Records &records)
{
    QList<BackupCount> counts;
    for (const auto &[key, each] : records) {
        int count = 0;
        each->visitAll([&count](const FunctionRecord &) { ++count; });
        if (count > 0)
            counts.append({key, count});
    }
    return counts;
}

} // namespace

QString HouseholdSources::key(Function function)
{
    QString name = QString::fromLatin1(FunctionFaces::of(function).name);
    name[0] = name.at(0).toUpper();
    return name;
}

std::optional<Function> HouseholdSources::function(const QString &key)
{
    for (const FunctionFace &face : FunctionFaces::cards()) {
        if (HouseholdSources::key(face.function) == key)
            return face.function;
    }
    return std::nullopt;
}

QString HouseholdSources::title(const QString &key)
{
    const std::optional<Function> known = function(key);
    return known ? FunctionFaces::of(*known).titleText() : key;
}

QList<BackupSource> HouseholdSources::all(const Program &program)
{
    QList<BackupSource> sources;
    for (const FunctionFace &face : FunctionFaces::cards()) {
        const FunctionEntry *entry = program.functions.entry(face.function);
        if (!entry || face.function == Function::Backup || face.function == Function::PasswordControl)
            continue;
        sources.append({key(face.function), entry->files ? entry->files(program) : QStringList(),
                        entry->pictures ? entry->pictures(program) : QStringList()});
    }
    return sources;
}

QByteArray HouseholdSources::desk(const Program &program)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(Holdings::deskName);
    {
        QSettings written(path, QSettings::IniFormat);
        for (const QString &name : program.store.allKeys())
            written.setValue(name, program.store.value(name));
    }
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

HouseholdSources::Copy HouseholdSources::copyOf(const Program &program, const QString &key)
{
    const std::optional<Function> known = function(key);
    if (!known)
        return key == Holdings::password ? Copy::Verifier : Copy::Readable;
    const FunctionEntry *entry = program.functions.entry(*known);
    if (*known == Function::PasswordKeeper || (entry && entry->isSealed && entry->isSealed(program)))
        return Copy::Sealed;
    return FunctionFaces::of(*known).isGuarded(program.state.protectedAreas) ? Copy::Guarded : Copy::Readable;
}

QString HouseholdSources::words(Copy copy)
{
    switch (copy) {
    case Copy::Readable:
        return u"Anybody can read it"_s;
    case Copy::Guarded:
        return u"Guarded by this program only"_s;
    case Copy::Sealed:
        return u"Sealed"_s;
    case Copy::Verifier:
        return u"The password is not in it"_s;
    }
    Q_UNREACHABLE();
}

bool HouseholdSources::mayTell(const Program &program, const QString &key)
{
    const std::optional<Function> known = function(key);
    if (!known)
        return true;
    const FunctionFace &face = FunctionFaces::of(*known);
    return !face.isGuarded(program.state.protectedAreas) || program.gate.wasPassed(face.area);
}

QString HouseholdSources::counted(const Program &program, const BackupCount &count)
{
    const Records records = recordsIn(program, program.folder, {count.function});
    return records.empty() ? QString() : records.front().second->counted(count.records);
}

QList<BackupCount> HouseholdSources::count(const Program &program, DiskWork &work, const QString &folder,
                                           const QStringList &keys)
{
    Records records;
    work.doHere([&] { records = recordsIn(program, DataFolder(folder), keys); });
    return counts(records);
}

QList<BackupCount> HouseholdSources::countHere(const Program &program, const QStringList &keys)
{
    return counts(recordsIn(program, program.folder, keys));
}
