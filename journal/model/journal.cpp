// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journal.h"

#include "journal/model/journalfiles.h"
#include "journal/model/lines.h"
#include "storage/saving.h"
#include "storage/sealing/freememory.h"

#include <QFileInfo>

#include <algorithm>
#include <cstdlib>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Why a file of this form is for reading only; empty where it is not.
QString whyReadOnly(JournalForm::Form form, int year)
{
    switch (form) {
    case JournalForm::Form::Empty:
    case JournalForm::Form::Plain:
        return {};
    case JournalForm::Form::Sealed:
        return JournalLines::sealed(year);
    case JournalForm::Form::Later:
        return JournalLines::laterVersion(year);
    case JournalForm::Form::Binary:
        return JournalLines::binaryFile(JournalFiles::name(year));
    case JournalForm::Form::Foreign:
        break;
    }
    return JournalLines::foreignFile(JournalFiles::name(year));
}

} // namespace

Journal::Journal(const DataFolder &folder, const Clock &clock, QObject *parent, PasswordCost cost)
    : QObject(parent)
    , m_folder(folder)
    , m_seal(folder, clock, cost)
    , m_sitting(clock)
{
    connect(&m_seal, &JournalSeal::locking, this, &Journal::becomeLocked);
    connect(&m_seal, &JournalSeal::changed, this, &Journal::sealChanged);
}

bool Journal::isPossible(QDate date)
{
    return date.isValid() && date.year() >= JournalForm::firstYear && date.year() <= JournalForm::lastYear;
}

QList<int> Journal::years() const
{
    QList<int> years = JournalFiles::years(m_folder);
    for (const auto &[number, year] : m_years) {
        if (year.isModified() && !years.contains(number))
            years.append(number);
    }
    std::ranges::sort(years);
    return years;
}

JournalYear &Journal::yearOf(int year)
{
    const auto known = m_years.find(year);
    return known != m_years.end() ? known->second : m_years.emplace(year, readYear(year)).first->second;
}

JournalYear Journal::readYear(int number)
{
    JournalYear year;
    year.revision = ++m_readings << 32;
    year.stamp = JournalFiles::stamp(m_folder, number);
    const QFileInfo file(m_folder.filePath(JournalFiles::name(number)));
    const std::optional<QByteArray> bytes = JournalFiles::read(m_folder, number);
    if (!bytes) {
        year.state = JournalYear::State::ForReading;
        year.whyReadOnly = JournalLines::unreadableFile(JournalFiles::name(number));
        return year;
    }
    if (isLocked()) {
        year.state = JournalYear::State::Locked;
        year.whyReadOnly = JournalLines::sealed(number);
        return year;
    }
    const std::optional<QByteArray> plain = plainOf(number, *bytes, year);
    if (!plain) {
        year.state = JournalYear::State::ForReading;
        return year;
    }
    year.whyReadOnly = ::whyReadOnly(JournalForm::formOf(*plain), number);
    if (m_folder.isReadOnly())
        year.whyReadOnly = m_folder.whyReadOnly();
    else if (file.exists() && !file.isWritable() && year.whyReadOnly.isEmpty())
        year.whyReadOnly = JournalLines::protectedFile(JournalFiles::name(number));
    if (!year.whyReadOnly.isEmpty())
        year.state = JournalYear::State::ForReading;
    else
        year.state = file.exists() ? JournalYear::State::Open : JournalYear::State::Missing;
    year.setBlocks(JournalForm::blocks(*plain, number));
    return year;
}

std::optional<QByteArray> Journal::plainOf(int number, const QByteArray &bytes, JournalYear &year) const
{
    if (!SealedYear::isSealed(bytes))
        return bytes;
    if (SealedYear::isLater(bytes)) {
        year.whyReadOnly = JournalLines::laterSeal(number);
        return {};
    }
    if (!m_seal.isOpen() || m_seal.isOfAnotherSeal(bytes)) {
        year.whyReadOnly = JournalLines::noKey(number);
        return {};
    }
    const SealedYear opened(number, bytes, m_seal.key());
    if (opened.isShut()) {
        year.whyReadOnly = JournalLines::noKey(number);
        return {};
    }
    year.damage = opened.damage();
    return opened.plain();
}

bool Journal::readNext(int nearest)
{
    QList<int> unread = years();
    unread.removeIf([this](int year) { return m_years.contains(year); });
    if (unread.isEmpty())
        return false;
    yearOf(*std::ranges::min_element(unread, {}, [nearest](int year) { return std::abs(year - nearest); }));
    return true;
}

std::optional<JournalEntry> Journal::entry(QDate date)
{
    return isPossible(date) ? yearOf(date.year()).entry(date, JournalBlock::Entry) : std::nullopt;
}

std::optional<JournalEntry> Journal::earlier(QDate date)
{
    return isPossible(date) ? yearOf(date.year()).entry(date, JournalBlock::Earlier) : std::nullopt;
}

QDate Journal::previous(QDate date)
{
    const QList<int> years = this->years();
    for (auto year = years.rbegin(); year != years.rend(); ++year) {
        if (*year > date.year())
            continue;
        const QList<QDate> dates = this->dates(*year);
        const auto behind = std::ranges::lower_bound(dates, date);
        if (behind != dates.begin())
            return *std::prev(behind);
    }
    return {};
}

QDate Journal::next(QDate date)
{
    for (const int year : years()) {
        if (year < date.year())
            continue;
        const QList<QDate> dates = this->dates(year);
        const auto after = std::ranges::upper_bound(dates, date);
        if (after != dates.end())
            return *after;
    }
    return {};
}

QList<QDate> Journal::onThisDay(QDate date, int neighbours) const
{
    const auto isNearby = [date, neighbours](QDate day) {
        for (int year = day.year() - 1; year <= day.year() + 1; ++year) {
            // 29 February has no place of its own in most years; its neighbours there are the 28th and 1
            // March.
            const QDate same(year, date.month(), date.day());
            const QDate first = same.isValid() ? same : QDate(year, 3, 1);
            const QDate last = same.isValid() ? same : QDate(year, 2, 28);
            if (year != date.year() && day >= first.addDays(-neighbours) && day <= last.addDays(neighbours))
                return true;
        }
        return false;
    };
    QList<QDate> found;
    for (const auto &[number, year] : m_years) {
        QList<QDate> days = year.dates();
        days.removeIf([&isNearby](QDate day) { return !isNearby(day); });
        found += days;
    }
    std::ranges::reverse(found);
    return found;
}

QMap<QString, int> Journal::tags() const
{
    QMap<QString, QMap<QString, int>> counts; // of each spelling, by the name without case
    for (const auto &[number, year] : m_years) {
        for (const JournalBlock &block : year.blocks()) {
            const bool hasTags = block.kind == JournalBlock::Entry && block.bytes.contains("\ntags ");
            const QStringList tags = hasTags ? JournalForm::head(block).tags : QStringList();
            for (const QString &tag : tags)
                ++counts[tag.toCaseFolded()][tag];
        }
    }
    QMap<QString, int> tags;
    for (const QMap<QString, int> &spellings : std::as_const(counts)) {
        auto most = spellings.begin();
        for (auto spelling = spellings.begin(); spelling != spellings.end(); ++spelling) {
            if (*spelling >= *most) // of as many, small letters
                most = spelling;
        }
        tags.insert(most.key(), std::accumulate(spellings.begin(), spellings.end(), 0));
    }
    return tags;
}

QStringList Journal::tagNames() const
{
    QStringList names = tags().keys();
    names.sort(Qt::CaseInsensitive);
    return names;
}

bool Journal::put(const JournalEntry &entry)
{
    if (!mayBeWritten(entry.date))
        return false;
    JournalYear &year = yearOf(entry.date.year());
    const qint64 revision = year.revision;
    year.replace(entry.date, m_sitting.blocksFor(year, entry));
    if (year.revision != revision)
        emit changed(entry.date);
    return true;
}

bool Journal::takeBack(const JournalEntry &entry)
{
    if (!mayBeWritten(entry.date))
        return false;
    m_sitting.forgetLast(yearOf(entry.date.year()), entry.date);
    return put(entry);
}

bool Journal::deleteForGood(QDate date)
{
    if (!mayBeWritten(date))
        return false;
    yearOf(date.year()).replace(date, {});
    m_sitting.deleteForGood(date);
    emit changed(date);
    return true;
}

bool Journal::isModified() const
{
    return !m_held.empty() ||
           std::ranges::any_of(m_years, [](const auto &year) { return year.second.isModified(); });
}

bool Journal::save()
{
    bool areSaved = m_held.empty();
    for (auto &[number, year] : m_years) {
        if (year.isModified() && !saveYear(number, year))
            areSaved = false;
    }
    return areSaved;
}

bool Journal::saveYear(int number, JournalYear &year)
{
    if (JournalFiles::stamp(m_folder, number) != year.stamp) {
        JournalYear there = readYear(number);
        if (!there.mayBeWritten())
            return false;
        year.mergeInto(std::move(there));
        emit changed({});
    }
    const std::optional<QByteArray> former = JournalFiles::read(m_folder, number);
    const std::optional<QByteArray> bytes =
        former ? m_seal.toStore(number, JournalForm::file(year.blocks()), *former) : std::nullopt;
    if (!bytes || !Saving::replaceFile(m_folder, JournalFiles::name(number), *bytes))
        return false;
    year.saved();
    year.stamp = JournalFiles::stamp(m_folder, number);
    year.state = JournalYear::State::Open;
    return true;
}

QString Journal::whyNotSaved(int year)
{
    const JournalYear &open = yearOf(year);
    if (!open.mayBeWritten() || !open.isModified() || JournalFiles::stamp(m_folder, year) == open.stamp)
        return {};
    return readYear(year).whyReadOnly;
}

QString Journal::setAside(int year)
{
    const bool isForReading = state(year) == JournalYear::State::ForReading;
    if (!isForReading && whyNotSaved(year).isEmpty())
        return {};
    QString name = JournalFiles::setAside(m_folder, year);
    if (name.isEmpty())
        return {};
    if (isForReading)
        m_years.erase(year);
    else
        yearOf(year).stamp =
            JournalFiles::stamp(m_folder, year); // all that was read of it goes into the new file
    emit changed({});
    return name;
}

bool Journal::reread()
{
    bool isChanged = false;
    m_isLocked.reset();
    for (auto &[number, year] : m_years) {
        if (JournalFiles::stamp(m_folder, number) == year.stamp)
            continue;
        JournalYear there = readYear(number);
        isChanged = true;
        if (year.isModified() && there.mayBeWritten()) {
            year.mergeInto(std::move(there));
        } else if (!year.isModified()) {
            year = std::move(there);
            m_sitting.forget(number);
        }
    }
    if (isChanged)
        emit changed({});
    return isChanged;
}

bool Journal::isLocked()
{
    if (!m_isLocked)
        m_isLocked = m_seal.isLocked();
    return *m_isLocked;
}

/// What the disk refused stays, but sealed; all else goes.
void Journal::becomeLocked()
{
    m_sitting.lock(m_years);
    for (auto &[number, year] : m_years) {
        const QList<QDate> dates = year.modifiedDates();
        JournalBlocks blocks;
        for (const QDate date : dates) {
            const JournalBlocks ofDate = year.blocksOf(date);
            blocks.insert(blocks.end(), ofDate.begin(), ofDate.end());
        }
        if (!dates.isEmpty())
            m_held[number] = {
                dates, SealedYear::sealed(number, JournalForm::file(blocks), m_seal.head(), m_seal.key())};
        for (JournalBlock &block : blocks)
            SecretBytes::wipe(block.bytes);
        year.wipe();
    }
    m_years.clear();
    FreeMemory::wipe();
}

void Journal::sealChanged()
{
    m_isLocked.reset();
    if (m_seal.isOpen()) {
        std::erase_if(m_years, [](const auto &year) { return !year.second.isModified(); });
        for (auto held = m_held.begin(); held != m_held.end();) {
            const auto &[number, what] = *held;
            JournalYear &year = yearOf(number);
            if (!year.mayBeWritten()) {
                ++held;
                continue;
            }
            const SealedYear opened(number, what.sealed, m_seal.key());
            const JournalBlocks blocks = JournalForm::blocks(opened.plain(), number);
            for (const QDate date : what.dates) {
                JournalBlocks ofDate;
                std::ranges::copy_if(blocks, std::back_inserter(ofDate),
                                     [date](const JournalBlock &block) { return block.date == date; });
                year.replace(date, ofDate);
            }
            held = m_held.erase(held);
        }
    }
    emit changed({});
}
