// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weightrecords.h"

#include "shell/core/bringingback.h"
#include "storage/wholefileschange.h"
#include "weight/model/personfiles.h"
#include "weight/model/personlist.h"
#include "weight/model/weightwords.h"

#include <algorithm>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

QString keyOf(const QString &name)
{
    return name.toCaseFolded();
}

} // namespace

WeightRecords::WeightRecords(const DataFolder &folder)
    : m_folder(folder)
{}

QString WeightRecords::counted(int count) const
{
    return BringingBack::counted(count, u"person"_s, u"persons"_s);
}

/// What bears a name that no person may have is a file of another function.
QStringList WeightRecords::names() const
{
    QStringList names = PersonFiles(m_folder).names();
    names.removeIf([](const QString &name) { return PersonFiles::whyNotNamed(name).has_value(); });
    return names;
}

std::vector<FunctionRecord> WeightRecords::all() const
{
    std::vector<FunctionRecord> records;
    for (const QString &name : names()) {
        std::optional<QByteArray> bytes;
        WholeFilesChange::readInto(bytes, m_folder, PersonFiles::fileName(name));
        records.push_back({keyOf(name), name, BringingBack::markOf(bytes.value_or(QByteArray()))});
    }
    return records;
}

QStringList WeightRecords::lines(const QString &key) const
{
    QStringList lines;
    for (const QString &name : names()) {
        if (keyOf(name) != key)
            continue;
        const WeightSheet sheet = PersonFiles(m_folder).read(name).sheet;
        for (std::size_t field = WeightSheet::BeginningDate; field < WeightSheet::fieldCount; ++field)
            BringingBack::addLine(lines, WeightWords::captions[field].toString(), sheet.fields[field]);
        BringingBack::addLine(lines, WeightWords::comments.toString(), sheet.shownComments());
        BringingBack::addLine(lines, u"Beginning photo:"_s, sheet.beginningPicture);
        BringingBack::addLine(lines, u"Current photo:"_s, sheet.currentPicture);
        for (qsizetype row = 0; row < sheet.weighIns.rowCount(); ++row)
            lines.append(sheet.weighIns.date(row) + u": "_s + sheet.weighIns.weight(row));
    }
    return lines;
}

RecordsBack WeightRecords::bringBack(const FunctionRecords &from, const QStringList &keys)
{
    const auto *source = dynamic_cast<const WeightRecords *>(&from);
    if (!source)
        return {};
    if (const QString why = BringingBack::whyNot(m_folder); !why.isEmpty())
        return BringingBack::refused(why);
    const PersonFiles files(m_folder);
    const auto change = std::make_shared<WholeFilesChange>();
    const QStringList there = source->names();
    QStringList listed = files.names();
    QStringList back;
    QString last;
    for (const QString &name : there) {
        if (!keys.contains(keyOf(name)))
            continue;
        std::optional<QByteArray> bytes;
        const int place = PersonList::place(listed, name);
        const QString here = place > 0 ? listed[place - 1] : files.freeName(name, listed);
        const QString file = PersonFiles::fileName(here);
        if (!WholeFilesChange::readInto(bytes, source->m_folder, PersonFiles::fileName(name)) ||
            !files.read(here).mayBeWritten())
            return BringingBack::refused(BringingBack::unreadable(file));
        if (bytes)
            change->replace(m_folder, file, bytes);
        if (place == 0)
            listed.insert(std::min(there.indexOf(name), listed.size()), here);
        back.append(keyOf(name));
        last = here;
    }
    if (listed != files.names())
        change->replace(m_folder, PersonList::fileName(), PersonList::encode(listed));
    const QString what = back.size() == 1 ? last : counted(int(back.size()));
    return change->isEmpty() ? RecordsBack{back, {}, {}} : BringingBack::done(change, m_folder, back, what);
}
