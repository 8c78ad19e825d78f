// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/spentyear.h"

#include "budget/model/spentlines.h"
#include "budget/window/sheetmodel.h"

SpentYear::SpentYear(const DataFolder &folder, SheetModel &model, QObject *parent)
    : QObject(parent)
    , m_folder(folder)
    , m_files(folder)
    , m_model(model)
{
    connect(&model, &SheetModel::recomputed, this, &SpentYear::refresh);
}

void SpentYear::load(int year)
{
    const SpendingFiles::Found found = m_files.read(year);
    m_year = year;
    m_state = found.state;
    m_saved = found.spending;
    m_sheet = m_model.sheet();
    show(m_saved);
}

void SpentYear::show(const Spending &spending)
{
    m_spending = spending;
    refresh();
}

void SpentYear::refresh()
{
    m_sums = SpentSums::of(m_model.sheet(), m_spending.amounts);
    constexpr double cents = 100;
    SheetModel::Sums sums{};
    std::array<double, BudgetSheet::monthCount> noRow{};
    for (std::size_t month = 0; month < BudgetSheet::monthCount; ++month) {
        noRow[month] = double(m_sums.noRow[month]) / cents;
        for (std::size_t row = 0; row < BudgetSheet::rowCount; ++row)
            sums[row][month] = double(m_sums.rows[row][month]) / cents;
    }
    m_model.setSpent(sums, noRow);
    emit changed();
}

ShownYear SpentYear::shown() const
{
    return {m_year, m_model.layer()};
}

BudgetSheet SpentYear::shownSheet() const
{
    return shown().isSpent() ? m_sums.asSheet(m_model.sheet()) : m_model.sheet();
}

QString SpentYear::whyNoTotals() const
{
    return shown().isSpent() && !m_sums.hasAny() ? SpentLines::nothingIn(m_year) : QString();
}

QString SpentYear::whyReadOnly() const
{
    if (m_folder.isReadOnly())
        return m_folder.whyReadOnly();
    if (m_state == SpendingFiles::State::Newer)
        return SpentLines::newerFile(fileName());
    if (m_state == SpendingFiles::State::OutOfReach)
        return SpentLines::unreadableFile(fileName());
    return {};
}

void SpentYear::change(const QString &title, const Spending &wanted)
{
    if (wanted == m_spending || !whyReadOnly().isEmpty())
        return;
    const Spending before = m_spending;
    const int year = m_year;
    show(wanted);
    emit edited({title, [=, this] { return exchange(year, wanted, before); },
                 [=, this] { return exchange(year, before, wanted); }, UndoStep::Typed});
}

UndoStep SpentYear::along(const UndoStep &step)
{
    Spending wanted = m_spending;
    wanted.follow(m_sheet, m_model.sheet());
    m_sheet = m_model.sheet();
    const Spending before = m_spending;
    if (wanted != before && whyReadOnly().isEmpty())
        show(wanted);
    const Spending after = m_spending;
    const auto both = [this](const std::function<ChangeResult()> &way, const Spending &spending) {
        return [=, this] {
            const ChangeResult result = way();
            m_sheet = m_model.sheet();
            if (result == ChangeResult::Done && m_spending != spending)
                show(spending);
            return result;
        };
    };
    return {step.title, both(step.undo, before), both(step.redo, after), step.kind};
}

ChangeResult SpentYear::exchange(int year, const Spending &shown, const Spending &wanted)
{
    if (year != m_year || m_spending != shown)
        return ChangeResult::Outdated;
    show(wanted);
    return ChangeResult::Done;
}
