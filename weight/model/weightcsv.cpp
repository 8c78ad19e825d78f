// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weightcsv.h"

#include "shell/core/csvtext.h"
#include "weight/model/weightdates.h"
#include "weight/model/weightnumbers.h"
#include "weight/model/weightwords.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int sampleLines = 200;
constexpr int linesAStep = 200;
constexpr qsizetype longestText = 40;
constexpr qsizetype longestUnit = 6; ///< "pounds"

/// The number of a text that may have a unit behind it, "80.5 kg".
std::optional<double> weightOf(QStringView text)
{
    text = text.trimmed();
    qsizetype letters = 0;
    while (letters < text.size() && text[text.size() - 1 - letters].isLetter())
        ++letters;
    return letters > longestUnit ? std::nullopt : WeightNumbers::typed(text.chopped(letters));
}

bool isDate(const QString &text)
{
    return CsvCells::date(text, CsvCells::DateOrder::MonthFirst).isValid() ||
           CsvCells::date(text, CsvCells::DateOrder::DayFirst).isValid();
}

/// The first of the cells that has one of the words and none of the others; a figure is no name.
int named(const QStringList &cells, const QStringList &words, const QStringList &others = {})
{
    const auto has = [](const QString &cell, const QStringList &of) {
        return std::ranges::any_of(
            of, [&cell](const QString &word) { return cell.contains(word, Qt::CaseInsensitive); });
    };
    for (int i = 0; i < int(cells.size()); ++i) {
        const bool isFigure = std::ranges::any_of(cells[i], [](QChar c) { return c.isDigit(); });
        if (!isFigure && has(cells[i], words) && !has(cells[i], others))
            return i;
    }
    return -1;
}

bool isByDay(const WeightTable &weighIns)
{
    for (qsizetype row = 0; row < weighIns.rowCount(); ++row) {
        if (!weighIns.day(row).isValid() || (row > 0 && weighIns.day(row) < weighIns.day(row - 1)))
            return false;
    }
    return true;
}

} // namespace

QByteArray WeightCsv::text(const WeightTable &weighIns)
{
    const QStringList headings = WeightWords::headings();
    QString text = CsvText::line(headings.first(2));
    for (qsizetype row = 0; row < weighIns.rowCount(); ++row) {
        const QDate day = weighIns.day(row);
        QString weight = weighIns.weight(row);
        if (weight.endsWith(u'.'))
            weight.chop(1);
        text += CsvText::line({day.isValid() ? day.toString(Qt::ISODate) : weighIns.date(row), weight});
    }
    return CsvText::file(text);
}

QString WeightCsv::fileName(const QString &person)
{
    return CsvText::fileName(person, u"weight"_s);
}

WeightCsvImport::WeightCsvImport(const QByteArray &bytes, const WeightTable &weighIns, DateStyle style,
                                 QDate today)
    : m_file(bytes)
    , m_weighIns(weighIns)
    , m_today(today)
{
    look(style);
    for (qsizetype row = 0; row < weighIns.rowCount(); ++row) {
        if (const auto weight = weighIns.number(row))
            m_there.insert({weighIns.day(row).toJulianDay(), WeightNumbers::text(double(*weight))});
    }
}

/// Finds out from the first lines how the file is written.
void WeightCsvImport::look(DateStyle style)
{
    QList<QStringList> sample;
    CsvFile::Line line;
    while (sample.size() < sampleLines && m_file.next(line)) {
        if (!isReadable() && findByHeading(line.cells))
            m_headingNumber = line.number;
        sample.append(line.cells);
    }
    m_file.rewind();
    if (!isReadable())
        findByContent(sample);
    QStringList dates;
    for (const QStringList &cells : sample)
        dates << cells.value(m_dateColumn);
    m_order = CsvCells::dateOrder(dates, style);
}

bool WeightCsvImport::findByHeading(const QStringList &cells)
{
    const int date = named(cells, {u"date"_s, u"datum"_s, u"fecha"_s, u"day"_s, u"tag"_s, u"time"_s});
    const int weight = named(cells, {u"weight"_s, u"gewicht"_s, u"peso"_s, u"poids"_s, u"kg"_s, u"lb"_s},
                             {u"goal"_s, u"beginning"_s, u"difference"_s, u"change"_s, u"target"_s});
    if (date < 0 || weight < 0 || date == weight)
        return false;
    m_dateColumn = date;
    m_weightColumn = weight;
    return true;
}

/// Without a heading: the first column of dates, and the first other one of numbers.
void WeightCsvImport::findByContent(const QList<QStringList> &lines)
{
    for (const QStringList &cells : lines) {
        const auto date = std::ranges::find_if(cells, isDate);
        if (date == cells.end())
            continue;
        for (int i = 0; i < int(cells.size()); ++i) {
            if (i != date - cells.begin() && weightOf(cells[i]) && !isDate(cells[i])) {
                m_dateColumn = int(date - cells.begin());
                m_weightColumn = i;
                return;
            }
        }
    }
}

bool WeightCsvImport::step()
{
    CsvFile::Line line;
    for (int i = 0; i < linesAStep; ++i) {
        if (!isReadable() || !m_file.next(line))
            return false;
        if (line.number == m_headingNumber)
            continue;
        WeightCsvLine found = read(line);
        if (found.problem.isEmpty()) {
            const std::pair key(found.day.toJulianDay(), found.weight);
            found.state = m_there.contains(key) ? WeightCsvLine::Duplicate : WeightCsvLine::Ready;
            m_there.insert(key);
        }
        m_lines.push_back(found);
    }
    return true;
}

WeightCsvLine WeightCsvImport::read(const CsvFile::Line &line) const
{
    const QString date = line.cells.value(m_dateColumn);
    const QString weight = line.cells.value(m_weightColumn);
    WeightCsvLine found{line.number, date.left(longestText), weight.left(longestText)};
    found.day = CsvCells::date(date, m_order);
    const auto number = weightOf(weight);
    if (!line.isClosed)
        found.problem = u"a quote has no end"_s;
    else if (!found.day.isValid())
        found.problem = date.trimmed().isEmpty() ? u"the date is missing"_s : u"no date"_s;
    else if (found.day > m_today)
        found.problem = u"a date to come"_s;
    else if (!number)
        found.problem = weight.trimmed().isEmpty() ? u"the weight is missing"_s : u"no weight"_s;
    if (found.day.isValid())
        found.date = WeightDates::tableText(found.day);
    if (number)
        found.weight = WeightNumbers::text(*number);
    return found;
}

QStringList WeightCsvImport::headings() const
{
    return {u"Date"_s, u"Weight"_s};
}

QString WeightCsvImport::cell(std::size_t line, int column) const
{
    return column == 0 ? m_lines[line].date : m_lines[line].weight;
}

QString WeightCsvImport::whatBecomesOf(std::size_t line) const
{
    switch (m_lines[line].state) {
    case WeightCsvLine::Ready:
        return u"Will be taken"_s;
    case WeightCsvLine::Duplicate:
        return u"Is there already"_s;
    case WeightCsvLine::NotRead:
        return u"Not read: "_s + m_lines[line].problem;
    }
    Q_UNREACHABLE();
}

bool WeightCsvImport::isIn(std::size_t line, int filter) const
{
    return filter <= 0 || int(m_lines[line].state) == filter - 1;
}

int WeightCsvImport::count(WeightCsvLine::State state) const
{
    return int(std::ranges::count(m_lines, state, &WeightCsvLine::state));
}

WeightTable WeightCsvImport::result() const
{
    std::vector<const WeightCsvLine *> ready;
    for (const WeightCsvLine &line : m_lines) {
        if (line.state == WeightCsvLine::Ready)
            ready.push_back(&line);
    }
    std::ranges::stable_sort(ready, {}, &WeightCsvLine::day);
    WeightTable weighIns = m_weighIns;
    const bool wasByDay = isByDay(weighIns);
    for (const WeightCsvLine *line : ready)
        weighIns.append({line->date, line->weight});
    if (wasByDay)
        weighIns.sort(WeightTable::Column::Date, Qt::AscendingOrder);
    return weighIns;
}
