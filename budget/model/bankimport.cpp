// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/bankimport.h"

#include "shell/core/dates.h"

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int sampleLines = 500;
constexpr int linesAStep = 50;
constexpr qsizetype longestText = 400;

QString cellOf(const QStringList &cells, int column)
{
    return column < 0 ? QString() : cells.value(column);
}

} // namespace

BankImport::BankImport(const QByteArray &bytes, int year, DateStyle style, const Spending &spending)
    : m_file(bytes)
    , m_year(year)
    , m_style(style)
{
    look();
    know(spending);
    setRules(spending.rules);
}

/// Finds out from the first lines how the file is written.
void BankImport::look()
{
    QList<QStringList> sample;
    QList<int> numbers;
    CsvFile::Line line;
    while (sample.size() < sampleLines && m_file.next(line)) {
        sample.append(line.cells);
        numbers.append(line.number);
    }
    m_columns = BankColumns::find(sample);
    if (m_columns.hasHeading)
        m_columns.headingLine = numbers[m_columns.headingLine];
    QStringList amounts;
    QStringList dates;
    for (const QStringList &cells : sample) {
        amounts << cellOf(cells, m_columns.amount) << cellOf(cells, m_columns.debit);
        dates << cellOf(cells, m_columns.date);
    }
    m_decimal = CsvCells::decimalSign(amounts);
    m_order = CsvCells::dateOrder(dates, m_style);
    m_hasSigns = m_columns.amount < 0 || m_columns.sign >= 0;
    m_file.rewind();
}

void BankImport::know(const Spending &spending)
{
    for (const SpentAmount &amount : spending.amounts) {
        const QString text = amount.note.text().simplified().toLower();
        m_there.insert({amount.date, amount.cents, text});
        if (!text.isEmpty() && !amount.item.isEmpty())
            m_known.insert(text, amount.item);
    }
    m_known.remove(Spending::paidNote().text().toLower());
    m_paid = spending.paid;
}

bool BankImport::step()
{
    if (!m_isRead) {
        CsvFile::Line line;
        for (int i = 0; i < linesAStep; ++i) {
            if (!m_file.next(line)) {
                m_isRead = true;
                break;
            }
            if (m_columns.hasHeading && line.number == m_columns.headingLine)
                continue;
            m_lines.push_back(read(line));
            m_hasSigns = m_hasSigns || m_lines.back().cents < 0;
        }
        return true;
    }
    const std::size_t end = std::min(m_lines.size(), m_sorted + linesAStep);
    for (; m_sorted < end; ++m_sorted) {
        sort(m_lines[m_sorted]);
        add(m_lines[m_sorted], 1);
    }
    return m_sorted < m_lines.size();
}

double BankImport::progress() const
{
    constexpr double reading = 0.7;
    if (!m_isRead)
        return reading * m_file.progress();
    return m_lines.empty() ? 1 : reading + (1 - reading) * double(m_sorted) / double(m_lines.size());
}

BankLine BankImport::read(const CsvFile::Line &line) const
{
    BankLine read;
    read.number = line.number;
    QStringList texts;
    for (const int column : m_columns.texts) {
        const QString text = cellOf(line.cells, column);
        if (!text.isEmpty() && !texts.contains(text))
            texts.append(text);
    }
    read.text = texts.join(u' ').left(longestText);
    read.date = CsvCells::date(cellOf(line.cells, m_columns.date), m_order);
    const std::optional<qint64> amount = amountOf(line);
    read.cents = amount.value_or(0);
    if (!line.isClosed)
        read.problem = u"a quote has no end"_s;
    else if (!read.date.isValid())
        read.problem = u"no date"_s;
    else if (!amount)
        read.problem = u"no amount"_s;
    if (!read.problem.isEmpty() && read.text.isEmpty())
        read.text = line.cells.join(u' ').left(longestText);
    return read;
}

/// Below 0 what went out.
std::optional<qint64> BankImport::amountOf(const CsvFile::Line &line) const
{
    if (m_columns.amount < 0) {
        const auto debit = CsvCells::amount(cellOf(line.cells, m_columns.debit), m_decimal);
        const auto credit = CsvCells::amount(cellOf(line.cells, m_columns.credit), m_decimal);
        if (debit && *debit != 0)
            return -std::abs(*debit);
        return credit ? credit : debit;
    }
    const auto amount = CsvCells::amount(cellOf(line.cells, m_columns.amount), m_decimal);
    if (const auto outgoing = isOutgoing(cellOf(line.cells, m_columns.sign)); amount && outgoing)
        return *outgoing ? -std::abs(*amount) : std::abs(*amount);
    return amount;
}

void BankImport::sort(BankLine &line)
{
    if (!line.problem.isEmpty()) {
        line.state = BankLine::NotRead;
        return;
    }
    if (!line.isByHand)
        line.item = itemOf(line.text);
    if (line.cents == 0 || (m_hasSigns && line.cents > 0))
        line.state = BankLine::Incoming;
    else if (line.date.year() != m_year)
        line.state = BankLine::OtherYear;
    else if (isThere(line))
        line.state = BankLine::Duplicate;
    else
        line.state = line.item.isEmpty() ? BankLine::NoItem : BankLine::Ready;
    line.isChosen = line.state == BankLine::Ready;
}

QString BankImport::itemOf(const QString &text) const
{
    for (qsizetype rule = 0; rule < m_rules.size(); ++rule) {
        if (m_matchers[rule].indexIn(text) >= 0)
            return m_rules[rule].item;
    }
    return m_known.value(text.toLower());
}

bool BankImport::isThere(const BankLine &line)
{
    const Same same{line.date, std::abs(line.cents), line.text.toLower()};
    if (m_there.contains(same))
        return true;
    const bool isTicked = std::ranges::any_of(m_paid, [&](const PaidMark &mark) {
        return mark.month == line.date.month() && mark.cents == same.cents && mark.item == line.item;
    });
    const bool isRepeated = m_seen.contains(same);
    m_seen.insert(same);
    return isTicked || isRepeated;
}

void BankImport::setRules(const QList<ImportRule> &rules)
{
    m_rules = rules;
    m_rules.removeIf([](const ImportRule &rule) { return rule.text.trimmed().isEmpty(); });
    m_matchers.clear();
    for (const ImportRule &rule : m_rules)
        m_matchers.append(QStringMatcher(rule.text.simplified(), Qt::CaseInsensitive));
    m_sorted = 0;
    m_seen.clear();
    m_counts = {};
    m_chosen = 0;
    m_chosenCents = 0;
}

void BankImport::setItem(std::size_t at, const QString &item)
{
    BankLine &line = m_lines[at];
    if (line.state != BankLine::Ready && line.state != BankLine::NoItem && line.state != BankLine::Duplicate)
        return;
    add(line, -1);
    line.item = item;
    line.isByHand = true;
    if (line.state != BankLine::Duplicate)
        line.state = item.isEmpty() ? BankLine::NoItem : BankLine::Ready;
    line.isChosen = line.state == BankLine::Ready || (line.isChosen && !item.isEmpty());
    add(line, 1);
}

QStringList BankImport::headings() const
{
    return {u"Date"_s, u"Amount"_s, u"Text"_s, u"Item"_s};
}

QString BankImport::cell(std::size_t at, int column) const
{
    const BankLine &line = m_lines[at];
    const bool isRead = line.state != BankLine::NotRead;
    switch (column) {
    case Date:
        return isRead ? Dates::numbers(line.date, m_style) : QString();
    case Amount:
        return isRead ? centsText(std::abs(line.cents)) : QString();
    case Text:
        return line.text;
    default:
        // What does not count belongs to nothing, whatever the rules say of its text.
        return line.state == BankLine::Incoming || line.state == BankLine::OtherYear ? QString() : line.item;
    }
}

QString BankImport::whatBecomesOf(std::size_t at) const
{
    const BankLine &line = m_lines[at];
    switch (line.state) {
    case BankLine::Ready:
        return line.isChosen ? u"Will be taken"_s : u"Left out"_s;
    case BankLine::NoItem:
        return u"No item yet"_s;
    case BankLine::Duplicate:
        return line.isChosen ? u"Will be taken again"_s : u"Is there already"_s;
    case BankLine::Incoming:
        return u"Came in"_s;
    case BankLine::OtherYear:
        return u"Of "_s + QString::number(line.date.year());
    case BankLine::NotRead:
        return u"Not read: "_s + line.problem;
    }
    Q_UNREACHABLE();
}

bool BankImport::isIn(std::size_t at, int filter) const
{
    const BankLine &line = m_lines[at];
    switch (Filter(filter)) {
    case All:
        return true;
    case Chosen:
        return line.isChosen;
    case WithoutItem:
        return line.state == BankLine::NoItem;
    case ThereAlready:
        return line.state == BankLine::Duplicate;
    case NoSpending:
        return line.state == BankLine::Incoming || line.state == BankLine::OtherYear;
    case Unread:
        return line.state == BankLine::NotRead;
    }
    Q_UNREACHABLE();
}

bool BankImport::mayBeTaken(std::size_t at) const
{
    const BankLine &line = m_lines[at];
    return !line.item.isEmpty() && (line.state == BankLine::Ready || line.state == BankLine::Duplicate);
}

void BankImport::setChosen(std::size_t at, bool isChosen)
{
    BankLine &line = m_lines[at];
    add(line, -1);
    line.isChosen = isChosen && mayBeTaken(at);
    add(line, 1);
}

void BankImport::add(const BankLine &line, int by)
{
    m_counts[std::size_t(line.state)] += by;
    if (!line.isChosen)
        return;
    m_chosen += by;
    m_chosenCents += by * std::abs(line.cents);
}

QList<SpentAmount> BankImport::amounts() const
{
    QList<SpentAmount> amounts;
    for (const BankLine &line : m_lines) {
        if (line.isChosen)
            amounts.append({line.date, std::abs(line.cents), line.item, line.text});
    }
    return amounts;
}
