// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budget/model/budgetsheet.h"
#include "budget/model/filetext.h"

#include <QByteArrayList>
#include <QDate>
#include <QHash>
#include <QList>

#include <optional>
#include <utility>

/// An amount that was spent on an item of the budget; below 0 what came back.
struct SpentAmount {
    QDate date;
    qint64 cents = 0;
    QString item; ///< empty: of no item
    FileText note;

    bool operator==(const SpentAmount &) const = default;
};

/// The day of each month on which an item is to be paid.
struct DueDay {
    QString item;
    int day = 1; ///< 1 to 31; a shorter month has it on its last day

    bool operator==(const DueDay &) const = default;
};

/// That an item was ticked as paid in a month.
struct PaidMark {
    int month = 1; ///< 1 to 12
    QString item;
    qint64 cents = 0; ///< what the tick added to the spent amounts

    bool operator==(const PaidMark &) const = default;
};

/// What lines of a bank belong to an item: those that contain a text.
struct ImportRule {
    QString text;
    QString item;

    bool operator==(const ImportRule &) const = default;
};

/// What a household spent in a year, beside what it planned. Rows of the worksheet are recognised by their
/// item; of two rows of one item the first has what was spent on it.
struct Spending {
    QList<SpentAmount> amounts; ///< in the order in which they were entered
    QList<DueDay> dueDays;
    QList<PaidMark> paid;
    QList<ImportRule> rules;
    QByteArrayList kept; ///< lines of the file that nothing is known about, as they are

    /// What the tick "paid" writes beside the amount that it adds.
    static const FileText &paidNote();

    /// 0 where none is set.
    int dueDay(const QString &item) const;
    /// 0 takes it away.
    void setDueDay(const QString &item, int day);

    bool isPaid(const QString &item, int month) const;
    /// Marks the item as paid in the month of `date`, and adds what is still missing of the `planned` cents.
    void tick(const QString &item, QDate date, qint64 planned);
    /// Takes the mark away, and what it added as long as that is still there.
    void untick(const QString &item, int month);

    /// What was spent on `item` in `month`, in cents.
    qint64 spent(const QString &item, int month) const;

    /// An item has another name: all of it goes along.
    void rename(const QString &from, const QString &to);
    /// Renames what the change of the worksheet from `before` to `after` renamed; rows that were moved keep
    /// what they have.
    void follow(const BudgetSheet &before, const BudgetSheet &after);

    bool operator==(const Spending &) const = default;
};

/// What was spent, by row and month, in cents.
struct SpentSums {
    using Months = std::array<qint64, BudgetSheet::monthCount>;

    static SpentSums of(const BudgetSheet &sheet, const QList<SpentAmount> &amounts);

    std::array<Months, BudgetSheet::rowCount> rows{};
    Months noRow{}; ///< spent on what is no item of the worksheet
    Months months{};

    /// Whether anything was spent in `month` (from 0) or on what has no row.
    bool hasAny(std::size_t month) const;
    bool hasAny() const;
    /// What was spent in place of what `plan` has, for totals and pages; what has no row stands in a row of
    /// its own, "No row".
    BudgetSheet asSheet(const BudgetSheet &plan) const;
};

/// The items of a worksheet and the first row of each.
class BudgetItems
{
public:
    explicit BudgetItems(const BudgetSheet &sheet);

    /// -1 where no row has the item, and for an empty one.
    int row(const QString &item) const { return m_rows.value(item, -1); }
    /// The item of `row` where that is the first row to have it; else nothing.
    QString owned(const BudgetSheet &sheet, std::size_t row) const;

private:
    QHash<QString, int> m_rows;
};

/// The date of something that is entered into `month` (1 to 12) of `year`: `today` where that lies in it,
/// else its last day, or its first as long as that is to come.
QDate spentDate(int year, int month, QDate today);

/// An amount of the worksheet in cents.
qint64 centsOf(QStringView stored);

/// "1250.00", "0.50", "-3.20".
QString centsText(qint64 cents);
