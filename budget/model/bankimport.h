// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/bankcolumns.h"
#include "budget/model/spending.h"
#include "shell/core/csvcells.h"
#include "shell/core/csvfile.h"
#include "shell/core/incomingfile.h"

#include <QHash>
#include <QSet>
#include <QStringMatcher>

#include <map>
#include <vector>

/// A line of a bank's file, and what will become of it.
struct BankLine {
    enum State {
        Ready,     ///< it has an item
        NoItem,    ///< it is spending, but nobody knows on what
        Duplicate, ///< the same date, amount and text are there already, or it is ticked as paid
        Incoming,  ///< money that came in
        OtherYear,
        NotRead ///< `problem` says why
    };

    int number = 0; ///< from 1
    QDate date;
    qint64 cents = 0; ///< below 0 what went out, as the bank has it
    QString text;
    QString item;
    QString problem;
    State state = NotRead;
    bool isChosen = false; ///< whether it will be taken
    bool isByHand = false; ///< its item was chosen for it alone
};

/// Brings what a bank's file has into the year that is open: reads it a few lines at a time, finds the items
/// by rules, and recognises what is there already.
class BankImport final : public IncomingFile
{
public:
    /// `spending` is what is there already.
    BankImport(const QByteArray &bytes, int year, DateStyle style, const Spending &spending);

    enum Column { Date, Amount, Text, Item };
    /// What the preview can show of it.
    enum Filter { All, Chosen, WithoutItem, ThereAlready, NoSpending, Unread };

    /// Reads or sorts some lines.
    bool step() override;
    double progress() const override;
    std::size_t lineCount() const override { return m_lines.size(); }
    QStringList headings() const override;
    bool isNumber(int column) const override { return column == Amount; }
    int lineNumber(std::size_t line) const override { return m_lines[line].number; }
    QString cell(std::size_t line, int column) const override;
    QString whatBecomesOf(std::size_t line) const override;
    bool isIn(std::size_t line, int filter) const override;
    /// When it is spending and has an item.
    bool mayBeTaken(std::size_t line) const override;
    bool isChosen(std::size_t line) const override { return m_lines[line].isChosen; }
    void setChosen(std::size_t line, bool isChosen) override;
    int chosenCount() const override { return m_chosen; }

    const std::vector<BankLine> &lines() const { return m_lines; }
    /// Whether all amounts count as spent, since none has a minus.
    bool areAllSpent() const { return !m_hasSigns; }
    /// Whether the columns of date and amount were found.
    bool isReadable() const { return m_columns.isComplete(); }

    const QList<ImportRule> &rules() const { return m_rules; }
    /// Sorts all lines anew by `rules`, of which the first that fits counts: call `step` then.
    void setRules(const QList<ImportRule> &rules);
    void setItem(std::size_t line, const QString &item);

    int count(BankLine::State state) const { return m_counts[std::size_t(state)]; }
    qint64 chosenCents() const { return m_chosenCents; }

    /// What the chosen lines add.
    QList<SpentAmount> amounts() const;

private:
    struct Same {
        QDate date;
        qint64 cents;
        QString text; ///< in lower case
        bool operator==(const Same &) const = default;
        friend size_t qHash(const Same &same, size_t seed = 0)
        {
            return qHashMulti(seed, same.date.toJulianDay(), same.cents, same.text);
        }
    };

    void look();
    void know(const Spending &spending);
    BankLine read(const CsvFile::Line &line) const;
    std::optional<qint64> amountOf(const CsvFile::Line &line) const;
    void sort(BankLine &line);
    QString itemOf(const QString &text) const;
    bool isThere(const BankLine &line);
    void add(const BankLine &line, int by);

    CsvFile m_file;
    int m_year;
    DateStyle m_style;
    BankColumns m_columns;
    QChar m_decimal = u'.';
    CsvCells::DateOrder m_order = CsvCells::DateOrder::DayFirst;
    bool m_isRead = false;
    bool m_hasSigns = false;
    std::vector<BankLine> m_lines;
    std::size_t m_sorted = 0; ///< lines whose state is known

    QList<ImportRule> m_rules;
    QList<QStringMatcher> m_matchers;
    QSet<Same> m_there;              ///< in the year already
    QSet<Same> m_seen;               ///< in the lines that are sorted
    QHash<QString, QString> m_known; ///< the items of texts that were there before
    QList<PaidMark> m_paid;
    std::array<int, BankLine::NotRead + 1> m_counts{};
    int m_chosen = 0;
    qint64 m_chosenCents = 0;
};
