// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/csvcolumns.h"

#include "shell/core/csvfile.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int sampleLines = 200;
constexpr qsizetype mostNames = 40;
constexpr qsizetype mostLookedAt = 200; ///< cells of a line
constexpr qsizetype longestName = 30;

bool hasDigit(const QStringList &cells)
{
    return std::ranges::any_of(cells.join(QString()), [](QChar character) { return character.isDigit(); });
}

} // namespace

CsvColumns::CsvColumns(CsvFile &file, Wanted wanted)
    : m_wanted(std::move(wanted))
{
    QList<int> numbers;
    CsvFile::Line line;
    while (m_sample.size() < sampleLines && file.next(line)) {
        m_sample.append(line.cells.first(std::min(line.cells.size(), mostLookedAt)));
        numbers.append(line.number);
    }
    file.rewind();
    guess();
    m_headingNumber = m_heading < 0 ? 0 : numbers[m_heading];
}

void CsvColumns::guess()
{
    for (int i = 0; i < int(m_sample.size()); ++i) {
        m_places = namedBy(m_sample[i]);
        m_heading = i;
        if (suffices(m_places) && m_places.size() - m_places.count(-1) >= 2)
            return;
    }
    // Names in another language are names all the same: somebody will say what they mean.
    if (m_sample.size() > 1 && !hasDigit(m_sample[0]) && hasDigit(m_sample[1])) {
        m_places = namedBy(m_sample[0]);
        m_heading = 0;
        return;
    }
    const bool fits = !m_sample.isEmpty() && m_sample.first().size() == m_wanted.count;
    m_places.clear();
    for (int i = 0; i < m_wanted.count; ++i)
        m_places.append(fits ? i : -1);
    m_heading = -1;
}

QList<int> CsvColumns::namedBy(const QStringList &heading) const
{
    QList<int> places(m_wanted.count, -1);
    for (const Names &names : m_wanted.names) {
        int &place = places[names.column];
        for (const QString &word : names.words) {
            for (int i = 0; place < 0 && i < int(heading.size()); ++i) {
                if (!places.contains(i) && !(m_wanted.isOther && m_wanted.isOther(heading[i])) &&
                    heading[i].contains(word, Qt::CaseInsensitive))
                    place = i;
            }
        }
    }
    return places;
}

bool CsvColumns::suffices(const QList<int> &places) const
{
    return m_wanted.needed < 0 ? places.count(-1) < places.size() : places[m_wanted.needed] >= 0;
}

bool CsvColumns::isComplete() const
{
    return suffices(m_places);
}

void CsvColumns::setPlace(int column, int place)
{
    std::ranges::replace(m_places, place, -1);
    m_places[column] = place;
}

QString CsvColumns::cell(const QStringList &line, int column) const
{
    const int place = m_places[column];
    return place < 0 ? QString() : line.value(place);
}

QStringList CsvColumns::sample(int column) const
{
    QStringList cells;
    for (const QStringList &line : m_sample)
        cells << cell(line, column);
    return cells;
}

QStringList CsvColumns::fileNames() const
{
    const QStringList heading = m_sample.value(m_heading);
    qsizetype count = 0;
    for (const QStringList &cells : m_sample)
        count = std::max(count, cells.size());
    QStringList names;
    for (qsizetype i = 0; i < std::min(count, mostNames); ++i) {
        const QString name = heading.value(i).simplified();
        names << (name.isEmpty() ? u"Column %1"_s.arg(i + 1) : name.left(longestName));
    }
    return names;
}

QString CsvColumns::example(int place) const
{
    return m_wanted.hasExamples ? firstCell(place) : QString();
}

QString CsvColumns::firstCell(int place) const
{
    for (int i = m_heading + 1; i < int(m_sample.size()); ++i) {
        if (const QString cell = m_sample[i].value(place).simplified(); !cell.isEmpty())
            return cell.size() > longestName ? QString(cell.left(longestName) + u'\u2026') : cell;
    }
    return {};
}

QStringList CsvColumns::notUsed() const
{
    const QStringList names = fileNames();
    QStringList left;
    for (int place = 0; place < int(names.size()); ++place) {
        if (!m_places.contains(place) && !firstCell(place).isEmpty())
            left << names[place];
    }
    return left;
}
