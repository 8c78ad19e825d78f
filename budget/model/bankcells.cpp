// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/bankcells.h"

#include "shell/core/dates.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int mostDigits = 12;
constexpr qsizetype longestCurrency = 3;

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isLetter(QChar character)
{
    return character.isLetter();
}

bool isMinus(QChar character)
{
    return character == u'-' || character == u'\u2212' || character == u'\u2013';
}

/// The number without what stands around it: blanks, a currency, a sign, which is put into `isNegative`.
QStringView bare(QStringView text, bool &isNegative)
{
    const auto isAround = [](QChar character) {
        return character.isSpace() || character.category() == QChar::Symbol_Currency;
    };
    for (qsizetype before = -1; before != text.size() && !text.isEmpty();) {
        before = text.size();
        const QChar first = text.front();
        const QChar last = text.back();
        if (isAround(first) || first == u'+' || isMinus(first)) {
            isNegative = isNegative || isMinus(first);
            text = text.sliced(1);
        } else if (isAround(last) || last == u'+' || isMinus(last)) {
            isNegative = isNegative || isMinus(last);
            text = text.chopped(1);
        } else if (first == u'(' && last == u')' && text.size() > 2) {
            isNegative = true;
            text = text.sliced(1).chopped(1);
        } else if (first.isLetter()) {
            const auto end = std::ranges::find_if_not(text, isLetter);
            if (end - text.begin() <= longestCurrency)
                text = text.sliced(end - text.begin());
        } else if (last.isLetter()) {
            qsizetype letters = 0;
            while (letters < text.size() && text[text.size() - 1 - letters].isLetter())
                ++letters;
            if (letters <= longestCurrency)
                text = text.chopped(letters);
        }
    }
    return text;
}

/// A word that names a column, and words that look like it but do not.
bool names(const QString &cell, const QStringList &words, const QStringList &others = {})
{
    const auto isIn = [&cell](const QString &word) { return cell.contains(word); };
    return std::ranges::any_of(words, isIn) && std::ranges::none_of(others, isIn);
}

bool namesDate(const QString &cell)
{
    return names(cell, {u"date"_s, u"datum"_s, u"buchungstag"_s, u"fecha"_s, u"posted"_s, u"data op"_s},
                 {u"update"_s});
}

bool namesSign(const QString &cell)
{
    return names(cell, {u"debit/credit"_s, u"credit/debit"_s, u"debit or credit"_s, u"soll/haben"_s, u"s/h"_s,
                        u"dr/cr"_s, u"cr/dr"_s, u"af bij"_s, u"d/c"_s, u"c/d"_s});
}

bool namesDebit(const QString &cell)
{
    return !namesSign(cell) &&
           names(cell, {u"debit"_s, u"withdraw"_s, u"paid out"_s, u"money out"_s, u"outgoing"_s, u"soll"_s,
                        u"belastung"_s, u"ausgabe"_s, u"débit"_s});
}

bool namesCredit(const QString &cell)
{
    return !namesSign(cell) && names(cell,
                                     {u"credit"_s, u"deposit"_s, u"paid in"_s, u"money in"_s, u"incoming"_s,
                                      u"haben"_s, u"gutschrift"_s, u"crédit"_s},
                                     {u"creditor"_s, u"credit card"_s});
}

bool namesAmount(const QString &cell)
{
    return names(cell,
                 {u"amount"_s, u"betrag"_s, u"umsatz"_s, u"bedrag"_s, u"importe"_s, u"importo"_s,
                  u"montant"_s, u"value"_s, u"sum"_s},
                 {u"date"_s, u"datum"_s, u"balance"_s, u"saldo"_s, u"original"_s, u"summary"_s, u"fee"_s});
}

bool namesText(const QString &cell)
{
    return names(cell, {u"description"_s,   u"payee"_s,
                        u"text"_s,          u"memo"_s,
                        u"note"_s,          u"detail"_s,
                        u"name"_s,          u"merchant"_s,
                        u"purpose"_s,       u"verwendungszweck"_s,
                        u"beguenstigter"_s, u"begünstigter"_s,
                        u"empfänger"_s,     u"zahlungspflichtiger"_s,
                        u"narrative"_s,     u"particulars"_s,
                        u"recipient"_s,     u"omschrijving"_s,
                        u"naam"_s,          u"libell"_s,
                        u"concept"_s,       u"transaction"_s},
                 {u"date"_s, u"type"_s, u"account"_s, u"id"_s});
}

template <typename Names>
int firstColumn(const QStringList &cells, Names isNamed)
{
    const auto found = std::ranges::find_if(cells, isNamed);
    return found == cells.end() ? -1 : int(found - cells.begin());
}

/// The columns as a heading names them; incomplete where `line` is none.
BankColumns named(const QStringList &line)
{
    QStringList cells;
    for (const QString &cell : line)
        cells.append(cell.toLower());
    BankColumns columns;
    columns.date = firstColumn(cells, namesDate);
    columns.amount = firstColumn(cells, namesAmount);
    columns.sign = firstColumn(cells, namesSign);
    if (columns.amount < 0) {
        columns.debit = firstColumn(cells, namesDebit);
        columns.credit = firstColumn(cells, namesCredit);
    }
    for (int column = 0; column < int(cells.size()); ++column) {
        if (namesText(cells[column]) && column != columns.amount && column != columns.date)
            columns.texts.append(column);
    }
    columns.hasHeading = true;
    return columns;
}

bool looksLikeDate(const QString &cell)
{
    return BankCells::date(cell, BankCells::DateOrder::DayFirst).isValid() ||
           BankCells::date(cell, BankCells::DateOrder::MonthFirst).isValid();
}

/// What the cells of a column are, over all lines.
struct ColumnKind {
    int dates = 0;
    int amounts = 0; ///< with cents or a sign
    int negatives = 0;
    int letters = 0;
};

QList<ColumnKind> kinds(const QList<QStringList> &lines)
{
    QList<ColumnKind> kinds;
    for (const QStringList &line : lines) {
        if (line.size() > kinds.size())
            kinds.resize(line.size());
        for (qsizetype column = 0; column < line.size(); ++column) {
            const QString &cell = line[column];
            ColumnKind &kind = kinds[column];
            if (looksLikeDate(cell)) {
                ++kind.dates;
                continue;
            }
            const bool hasMark = cell.contains(u'.') || cell.contains(u',') || cell.contains(u'-');
            if (const auto cents = BankCells::amount(cell, u'.'); cents && hasMark) {
                ++kind.amounts;
                kind.negatives += *cents < 0 ? 1 : 0;
            }
            kind.letters += int(std::ranges::count_if(cell, isLetter));
        }
    }
    return kinds;
}

BankColumns recognised(const QList<QStringList> &lines)
{
    const QList<ColumnKind> found = kinds(lines);
    const int enough = int(lines.size() + 1) / 2;
    BankColumns columns;
    for (int column = 0; column < int(found.size()); ++column) {
        const ColumnKind &kind = found[column];
        if (kind.dates >= enough && columns.date < 0)
            columns.date = column;
        const bool isBetter =
            columns.amount < 0 || (found[columns.amount].negatives == 0 && kind.negatives > 0);
        if (kind.amounts >= enough && isBetter)
            columns.amount = column;
    }
    for (int column = 0; column < int(found.size()); ++column) {
        // Three letters are a currency.
        if (found[column].letters > 4 * enough && column != columns.date && column != columns.amount)
            columns.texts.append(column);
    }
    return columns;
}

} // namespace

std::optional<qint64> BankCells::amount(QStringView text, QChar decimal)
{
    bool isNegative = false;
    text = bare(text, isNegative);
    const qsizetype point = text.lastIndexOf(decimal);
    qint64 cents = 0;
    int digits = 0;
    int decimals = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar character = text[at];
        if (isDigit(character)) {
            const bool isDecimal = point >= 0 && at > point;
            if (isDecimal && decimals == 2)
                continue; // less than a cent
            cents = cents * 10 + (character.unicode() - u'0');
            decimals += isDecimal ? 1 : 0;
            if (++digits > mostDigits)
                return {};
        } else if (at != point && character != u'.' && character != u',' && character != u'\'' &&
                   character != u'\u2019' && !character.isSpace()) {
            return {};
        }
    }
    if (digits == 0)
        return {};
    for (; decimals < 2; ++decimals)
        cents *= 10;
    return isNegative ? -cents : cents;
}

QDate BankCells::date(QStringView text, DateOrder order)
{
    std::array<int, 3> numbers{};
    std::array<int, 3> digits{};
    std::size_t part = 0;
    for (const QChar character : text.trimmed()) {
        if (isDigit(character) && digits[part] < 8) {
            numbers[part] = numbers[part] * 10 + (character.unicode() - u'0');
            ++digits[part];
        } else if ((character == u'.' || character == u'/' || character == u'-') && part < 2 &&
                   digits[part] > 0) {
            ++part;
        } else if (part == 2 && digits[2] > 0 && (character.isSpace() || character == u'T')) {
            break; // a time
        } else {
            // Month names are rare enough to be read the long way.
            const auto named = text.size() <= 20 ? Dates::parse(text, DateStyle::Other) : std::nullopt;
            return named.value_or(QDate());
        }
    }
    if (part == 0 && digits[0] == 8)
        return {numbers[0] / 10000, numbers[0] / 100 % 100, numbers[0] % 100};
    if (part != 2 || digits[1] > 2)
        return {};
    if (digits[0] == 4 && digits[2] <= 2)
        return {numbers[0], numbers[1], numbers[2]};
    if (digits[0] > 2 || (digits[2] != 2 && digits[2] != 4))
        return {};
    const int year = digits[2] == 2 ? 2000 + numbers[2] : numbers[2];
    return order == DateOrder::DayFirst ? QDate(year, numbers[1], numbers[0])
                                        : QDate(year, numbers[0], numbers[1]);
}

QChar BankCells::decimalSign(const QStringList &texts)
{
    int points = 0;
    int commas = 0;
    for (const QString &text : texts) {
        bool isNegative = false;
        const QStringView number = bare(text, isNegative);
        const qsizetype point = number.lastIndexOf(u'.');
        const qsizetype comma = number.lastIndexOf(u',');
        const qsizetype behind = number.size() - 1 - std::max(point, comma);
        // Three digits behind a single mark are thousands or not: that says nothing.
        const bool tells = (point >= 0 && comma >= 0) || behind == 1 || behind == 2;
        points += tells && point > comma ? 1 : 0;
        commas += tells && comma > point ? 1 : 0;
        // "1.250": were the point decimal, cents would have three digits.
        commas += !tells && behind == 3 && point > comma ? 1 : 0;
        points += !tells && behind == 3 && comma > point ? 1 : 0;
    }
    return commas > points ? u',' : u'.';
}

BankCells::DateOrder BankCells::dateOrder(const QStringList &texts, DateStyle style)
{
    bool hasPoints = false;
    for (const QString &text : texts) {
        hasPoints = hasPoints || text.contains(u'.');
        const bool isDayFirst = date(text, DateOrder::DayFirst).isValid();
        const bool isMonthFirst = date(text, DateOrder::MonthFirst).isValid();
        if (isDayFirst != isMonthFirst)
            return isDayFirst ? DateOrder::DayFirst : DateOrder::MonthFirst;
    }
    return hasPoints || style == DateStyle::Other ? DateOrder::DayFirst : DateOrder::MonthFirst;
}

BankColumns BankColumns::find(const QList<QStringList> &lines)
{
    const auto size = int(lines.size());
    for (int line = 0; line < size; ++line) {
        BankColumns columns = named(lines[line]);
        if (!columns.isComplete())
            continue;
        columns.headingLine = line;
        if (columns.texts.isEmpty())
            columns.texts = recognised(lines.mid(line + 1)).texts;
        return columns;
    }
    return recognised(lines);
}

std::optional<bool> isOutgoing(const QString &cell)
{
    const QString word = cell.trimmed().toLower();
    static const QStringList outgoing{u"d"_s, u"dr"_s, u"debit"_s, u"s"_s, u"soll"_s, u"-"_s, u"af"_s};
    static const QStringList incoming{u"c"_s, u"cr"_s, u"credit"_s, u"h"_s, u"haben"_s, u"+"_s, u"bij"_s};
    if (outgoing.contains(word))
        return true;
    if (incoming.contains(word))
        return false;
    return {};
}
