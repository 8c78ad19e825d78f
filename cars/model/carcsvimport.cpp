// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/model/carcsvimport.h"

#include "cars/model/carnumbers.h"
#include "cars/model/carrows.h"
#include "cars/model/csvlines.h"
#include "cars/model/fuelfigures.h"
#include "shell/core/dates.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int linesAStep = 50;
constexpr qsizetype longestText = 400;
constexpr int longestCurrency = 3;
constexpr int historyDate = 1;
constexpr int historyDescription = 2;

template <typename Row, std::size_t count>
Row rowOf(const QStringList &cells, const std::array<QString Row::*, count> &columns)
{
    Row row;
    for (std::size_t i = 0; i < count; ++i)
        row.*columns[i] = cells[qsizetype(i)];
    return row;
}

template <typename Row, std::size_t count>
QStringList cellsOf(const Row &row, const std::array<QString Row::*, count> &columns)
{
    QStringList cells;
    for (const auto column : columns)
        cells << row.*column;
    return cells;
}

/// A reading "84.100" has points between its thousands, whatever the amounts of the file have.
QString withoutPoints(const QString &text)
{
    static const QRegularExpression thousands(u"^(\\D*\\d{1,3})((?:\\.\\d{3})+)(?![\\d.,])"_s);
    const QRegularExpressionMatch match = thousands.match(text);
    if (!match.hasMatch())
        return text;
    return match.captured(1) + match.captured(2).remove(u'.') + text.mid(match.capturedEnd());
}

} // namespace

CarCsvImport::CarCsvImport(const QByteArray &bytes, CarPart part, const CarRecord &car, DateStyle style,
                           QDate today)
    : m_file(bytes)
    , m_part(part)
    , m_car(car)
    , m_style(style)
    , m_today(today)
    , m_columns(m_file, CarCsv::columns(part, car.sheet.unit))
{
    guessForms();
    startOver();
}

void CarCsvImport::startOver()
{
    m_file.rewind();
    m_lines.clear();
    m_there.clear();
    m_chosen = 0;
    if (m_part == CarPart::Fuel) {
        for (const FuelRow &row : m_car.fuel)
            m_there.insert(keyOf(cellsOf(row, fuelColumns)));
    } else {
        for (const HistoryRow &row : m_part == CarPart::Repairs ? m_car.repairs : m_car.maintenance)
            m_there.insert(keyOf(cellsOf(row, historyColumns)));
    }
}

/// How the amounts and the dates are written.
void CarCsvImport::guessForms()
{
    QStringList dates;
    QStringList amounts;
    for (int column = 0; column < m_columns.count(); ++column) {
        // Readings have no decimals, but thousands that look like them.
        const bool isAmount = isNumber(column) && (m_part == CarPart::Fuel ? column > 3 : column == 3);
        if (isAmount)
            amounts << m_columns.sample(column);
        else if (column == CarRows::dateColumn(m_part))
            dates << m_columns.sample(column);
    }
    m_decimal = CsvCells::decimalSign(amounts);
    m_order = CsvCells::dateOrder(dates, m_style);
}

void CarCsvImport::setPlace(int column, int place)
{
    m_columns.setPlace(column, place);
    guessForms();
    startOver();
}

QStringList CarCsvImport::notUsed() const
{
    QStringList names = m_columns.notUsed();
    for (QString &name : names) {
        if (CarCsv::isInOtherUnit(name, m_car.sheet.unit))
            name += u" (another unit)"_s;
    }
    return names;
}

QStringList CarCsvImport::headings() const
{
    return CarRows::headings(m_part, m_car.sheet.unit);
}

bool CarCsvImport::isNumber(int column) const
{
    return m_part == CarPart::Fuel ? column != 0 : column != historyDate && column != historyDescription;
}

bool CarCsvImport::isReading(int column) const
{
    return m_part == CarPart::Fuel ? column == 1 || column == 2 : column == 0;
}

bool CarCsvImport::step()
{
    CsvFile::Line line;
    for (int i = 0; i < linesAStep; ++i) {
        if (!m_file.next(line))
            return false;
        if (line.number == m_columns.headingNumber())
            continue;
        m_lines.push_back(read(line));
        sort(m_lines.back());
    }
    return true;
}

CarCsvLine CarCsvImport::read(const CsvFile::Line &line) const
{
    CarCsvLine read{.number = line.number, .cells = {}, .date = {}, .problem = {}};
    for (int column = 0; column < m_columns.count(); ++column)
        read.cells << readCell(read, column, m_columns.cell(line.cells, column));
    read.isBare = isBare(read.cells);
    if (!line.isClosed)
        read.problem = u"a quote has no end"_s;
    else if (read.date > m_today)
        read.problem = u"a date to come"_s;
    if (m_part != CarPart::Fuel && read.problem.isEmpty()) {
        const auto current = CarNumbers::number(m_car.sheet.field(VehicleSheet::Odometer));
        const auto reading = CarNumbers::number(read.cells.value(0));
        if (current && reading && *reading > *current)
            read.problem = u"above the current reading"_s;
    }
    return read;
}

/// Whether a row says neither what was done nor what it cost, or what was filled in.
bool CarCsvImport::isBare(const QStringList &cells) const
{
    for (int column = 0; column < int(cells.size()); ++column) {
        const bool tells = m_part == CarPart::Fuel ? column > 2 : column >= historyDescription;
        if (tells && !cells[column].trimmed().isEmpty())
            return false;
    }
    return true;
}

/// The cell as it will be stored; what is wrong with it is put into `line`.
QString CarCsvImport::readCell(CarCsvLine &line, int column, const QString &text) const
{
    const bool isDate = column == (m_part == CarPart::Fuel ? 0 : historyDate);
    if (isDate) {
        line.date = CsvCells::date(text, m_order);
        if (!line.date.isValid())
            line.problem = u"no date"_s;
        return line.date.isValid() ? Dates::numbers(line.date, m_style) : text.left(longestText);
    }
    if (!isNumber(column) || text.isEmpty())
        return text.left(longestText);
    QString found = number(isReading(column) ? withoutPoints(text) : text);
    if (found.isEmpty() && line.problem.isEmpty())
        line.problem = u"no number: "_s + text.left(20);
    return found;
}

/// The number as it is stored: plain, as what is typed is. Empty where `text` is none, or below 0.
QString CarCsvImport::number(const QString &text) const
{
    if (const QString plain = CarNumbers::plain(text); m_decimal == u'.' && !plain.isEmpty())
        return plain;
    constexpr QStringView signs = u"-(+/:";
    QString digits;
    int letters = 0;
    for (const QChar character : text) {
        if (character.isDigit())
            digits += character;
        else if (character == m_decimal)
            digits += u'.';
        else if (character.isLetter() && !digits.isEmpty())
            break; // a unit
        else if (signs.contains(character) || (character.isLetter() && ++letters > longestCurrency))
            return {};
    }
    if (digits.endsWith(u'.'))
        digits.chop(1);
    return digits.count(u'.') <= 1 ? CarNumbers::plain(digits) : QString();
}

/// A row is known by its date and, of a fill-up, its reading, else by what was done.
QString CarCsvImport::keyOf(const QStringList &cells) const
{
    const bool isFuel = m_part == CarPart::Fuel;
    const QString date = cells[isFuel ? 0 : historyDate];
    const QDate day = CarNumbers::date(date, m_style).value_or(QDate());
    const auto figure = [&cells](qsizetype column) {
        const auto number = CarNumbers::number(cells[column]);
        return number ? CarNumbers::text(*number) : QString();
    };
    QString key = (day.isValid() ? day.toString(Qt::ISODate) : date) + u'\n';
    if (!isFuel)
        return key + figure(0) + u'\n' + cells[historyDescription].simplified().toLower();
    // Two fill-ups of a day without a reading differ by what was filled in.
    const QString reading = figure(2);
    return key + (reading.isEmpty() ? figure(3) + u'\n' + figure(4) : reading);
}

qsizetype CarCsvImport::room() const
{
    return m_part == CarPart::Fuel ? mostFuelRows - m_car.fuel.size() - m_chosen : 1;
}

void CarCsvImport::sort(CarCsvLine &line)
{
    if (!line.problem.isEmpty() || line.cells.isEmpty())
        return;
    const QString key = keyOf(line.cells);
    line.state = m_there.contains(key) ? CarCsvLine::Duplicate
                 : room() <= 0         ? CarCsvLine::Full
                                       : CarCsvLine::Ready;
    m_there.insert(key);
    line.isChosen = line.state == CarCsvLine::Ready && !line.isBare;
    m_chosen += line.isChosen ? 1 : 0;
}

QString CarCsvImport::whatBecomesOf(std::size_t at) const
{
    const CarCsvLine &line = m_lines[at];
    switch (line.state) {
    case CarCsvLine::Ready:
        return line.isChosen ? u"Will be taken"_s
               : line.isBare ? CsvLines::nothingDone(m_part)
                             : u"Left out"_s;
    case CarCsvLine::Duplicate:
        return line.isChosen ? u"Will be taken again"_s : u"Is there already"_s;
    case CarCsvLine::Full:
        return u"No room for it"_s;
    case CarCsvLine::NotRead:
        return u"Not read: "_s + line.problem;
    }
    Q_UNREACHABLE();
}

bool CarCsvImport::mayBeTaken(std::size_t line) const
{
    const CarCsvLine::State state = m_lines[line].state;
    return state == CarCsvLine::Ready || state == CarCsvLine::Duplicate;
}

void CarCsvImport::setChosen(std::size_t line, bool isChosen)
{
    CarCsvLine &changed = m_lines[line];
    if (changed.isChosen == isChosen || changed.state == CarCsvLine::NotRead || (isChosen && room() <= 0))
        return;
    changed.isChosen = isChosen;
    m_chosen += isChosen ? 1 : -1;
}

int CarCsvImport::count(CarCsvLine::State state) const
{
    return int(std::ranges::count(m_lines, state, &CarCsvLine::state));
}

CarRecord CarCsvImport::result() const
{
    std::vector<const CarCsvLine *> chosen;
    for (const CarCsvLine &line : m_lines) {
        if (line.isChosen)
            chosen.push_back(&line);
    }
    std::ranges::stable_sort(chosen, {}, &CarCsvLine::date);
    CarRecord car = m_car;
    if (m_part == CarPart::Fuel) {
        addFillUps(car.fuel, chosen);
        return car;
    }
    for (const CarCsvLine *line : chosen)
        (m_part == CarPart::Repairs ? car.repairs : car.maintenance)
            .append(rowOf(line->cells, historyColumns));
    return car;
}

/// `chosen` in the order of their dates.
void CarCsvImport::addFillUps(FuelLog &fuel, const std::vector<const CarCsvLine *> &chosen) const
{
    using Reading = std::pair<QDate, double>;
    std::vector<Reading> readings;
    const auto add = [&readings](QDate date, const QString &current) {
        if (const auto reading = CarNumbers::number(current); reading && date.isValid())
            readings.emplace_back(date, *reading);
    };
    for (const FuelRow &row : std::as_const(fuel))
        add(CarNumbers::date(row.date, m_style).value_or(QDate()), row.current);
    for (const CarCsvLine *line : chosen)
        add(line->date, line->cells[2]);
    std::ranges::sort(readings);
    for (const CarCsvLine *line : chosen) {
        FuelRow row = rowOf(line->cells, fuelColumns);
        const auto reading = CarNumbers::number(row.current);
        if (row.previous.trimmed().isEmpty() && reading) {
            const auto own = std::ranges::lower_bound(readings, Reading(line->date, *reading));
            if (own != readings.begin() && std::prev(own)->second < *reading)
                row.previous = CarNumbers::text(std::prev(own)->second);
        }
        fuel.append(FuelFigures::completed(row, {}));
    }
}
