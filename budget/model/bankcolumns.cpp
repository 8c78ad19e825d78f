// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/model/bankcolumns.h"

#include "shell/core/csvcells.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

bool isLetter(QChar character)
{
    return character.isLetter();
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
    return CsvCells::date(cell, CsvCells::DateOrder::DayFirst).isValid() ||
           CsvCells::date(cell, CsvCells::DateOrder::MonthFirst).isValid();
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
            if (const auto cents = CsvCells::amount(cell, u'.'); cents && hasMark) {
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
