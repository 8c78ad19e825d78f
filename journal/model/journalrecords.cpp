// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalrecords.h"

#include "journal/model/journalfiles.h"
#include "journal/model/journalform.h"
#include "journal/model/journalyear.h"
#include "shell/core/bringingback.h"
#include "shell/core/dates.h"
#include "storage/wholefileschange.h"

#include <QFileInfo>

#include <algorithm>
#include <map>
#include <memory>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

JournalYear yearOf(JournalBlocks blocks)
{
    JournalYear year;
    year.setBlocks(std::move(blocks));
    return year;
}

JournalBlocks ofKind(const JournalBlocks &blocks, JournalBlock::Kind kind)
{
    JournalBlocks found;
    std::ranges::copy_if(blocks, std::back_inserter(found),
                         [kind](const JournalBlock &block) { return block.kind == kind; });
    return found;
}

QStringList linesOf(const JournalYear &year, QDate date)
{
    QStringList lines;
    const std::optional<JournalEntry> entry = year.entry(date, JournalBlock::Entry);
    if (!entry)
        return lines;
    BringingBack::addLine(lines, u"Tags:"_s, entry->tags.join(u", "_s));
    for (const JournalPicture &picture : entry->pictures)
        BringingBack::addLine(lines, u"Picture:"_s, picture.path + u' ' + picture.caption);
    for (const QString &line : entry->text.split(u'\n')) {
        if (!line.trimmed().isEmpty())
            lines.append(line);
    }
    return lines;
}

/// The blocks of a day that gets the entry of `there`: the one of `here` becomes its earlier version.
JournalBlocks exchanged(const JournalYear &here, const JournalYear &there, QDate date)
{
    JournalBlocks now = here.blocksOf(date);
    JournalBlocks blocks = ofKind(there.blocksOf(date), JournalBlock::Entry);
    if (ofKind(now, JournalBlock::Entry) == blocks)
        return now;
    JournalBlocks earlier = ofKind(now, JournalBlock::Earlier);
    if (const std::optional<JournalEntry> entry = here.entry(date, JournalBlock::Entry))
        earlier = {JournalForm::block(*entry, JournalBlock::Earlier)};
    else if (earlier.empty())
        earlier = ofKind(there.blocksOf(date), JournalBlock::Earlier);
    blocks.insert(blocks.end(), earlier.begin(), earlier.end());
    return blocks;
}

} // namespace

JournalRecords::JournalRecords(const DataFolder &folder, DateStyle style)
    : m_folder(folder)
    , m_style(style)
{}

QString JournalRecords::counted(int count) const
{
    return BringingBack::counted(count, u"day"_s, u"days"_s);
}

std::optional<JournalBlocks> JournalRecords::blocksOf(int year) const
{
    const std::optional<QByteArray> bytes = JournalFiles::read(m_folder, year);
    if (!bytes)
        return {};
    switch (JournalForm::formOf(*bytes)) {
    case JournalForm::Form::Empty:
    case JournalForm::Form::Plain:
        return JournalForm::blocks(*bytes, year);
    case JournalForm::Form::Later:
    case JournalForm::Form::Sealed:
    case JournalForm::Form::Binary:
    case JournalForm::Form::Foreign:
        break;
    }
    return {};
}

std::vector<FunctionRecord> JournalRecords::all() const
{
    std::vector<FunctionRecord> records;
    for (const int number : JournalFiles::years(m_folder)) {
        const JournalYear year = yearOf(blocksOf(number).value_or(JournalBlocks()));
        for (const QDate date : year.dates()) {
            QByteArray content;
            for (const JournalBlock &block : ofKind(year.blocksOf(date), JournalBlock::Entry))
                content += block.bytes.trimmed();
            records.push_back(
                {date.toString(Qt::ISODate), Dates::longText(date, m_style), BringingBack::markOf(content)});
        }
    }
    return records;
}

QStringList JournalRecords::lines(const QString &key) const
{
    const QDate date = QDate::fromString(key, Qt::ISODate);
    return date.isValid() ? linesOf(yearOf(blocksOf(date.year()).value_or(JournalBlocks())), date)
                          : QStringList();
}

void JournalRecords::visitLines(
    const std::function<bool(const FunctionRecord &, const QStringList &)> &visit) const
{
    for (const int number : JournalFiles::years(m_folder)) {
        const JournalYear year = yearOf(blocksOf(number).value_or(JournalBlocks()));
        for (const QDate date : year.dates()) {
            if (!visit({date.toString(Qt::ISODate), Dates::longText(date, m_style), {}}, linesOf(year, date)))
                return;
        }
    }
}

bool JournalRecords::mayBeWritten(int year) const
{
    const QFileInfo file(m_folder.filePath(JournalFiles::name(year)));
    return blocksOf(year) && (!file.exists() || file.isWritable());
}

RecordsBack JournalRecords::bringBack(const FunctionRecords &from, const QStringList &keys)
{
    const auto *source = dynamic_cast<const JournalRecords *>(&from);
    if (!source)
        return {};
    if (const QString why = BringingBack::whyNot(m_folder); !why.isEmpty())
        return BringingBack::refused(why);
    std::map<int, QList<QDate>> wanted;
    for (const QString &key : keys) {
        const QDate date = QDate::fromString(key, Qt::ISODate);
        if (date.isValid())
            wanted[date.year()].append(date);
    }
    const auto change = std::make_shared<WholeFilesChange>();
    QStringList back;
    for (const auto &[number, dates] : wanted) {
        if (!mayBeWritten(number))
            return BringingBack::refused(BringingBack::unreadable(JournalFiles::name(number)));
        JournalYear here = yearOf(*blocksOf(number));
        const JournalYear there = yearOf(source->blocksOf(number).value_or(JournalBlocks()));
        for (const QDate date : dates) {
            if (!there.entry(date, JournalBlock::Entry))
                continue;
            here.replace(date, exchanged(here, there, date));
            back.append(date.toString(Qt::ISODate));
        }
        change->replace(m_folder, JournalFiles::name(number), JournalForm::file(here.blocks()));
    }
    if (back.isEmpty() || change->isEmpty())
        return {back, {}, {}};
    const QString what = back.size() == 1
                             ? Dates::longText(QDate::fromString(back.first(), Qt::ISODate), m_style)
                             : counted(int(back.size()));
    return BringingBack::done(change, m_folder, back, what);
}
