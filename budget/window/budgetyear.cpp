// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/budgetyear.h"

#include "budget/model/lines.h"
#include "budget/model/messages.h"
#include "budget/model/yearcopy.h"
#include "budget/window/sheetmodel.h"
#include "budget/window/spentyear.h"
#include "shell/program/program.h"
#include "storage/changeset.h"

#include <algorithm>
#include <utility>

BudgetYear::BudgetYear(Program &program, SheetModel &model, SpentYear &spent, QWidget *window)
    : QObject(window)
    , m_program(program)
    , m_files(program.folder)
    , m_model(model)
    , m_spent(spent)
    , m_window(window)
{}

void BudgetYear::load(int year)
{
    const bool isOther = std::exchange(m_year, year) != year;
    const BudgetFiles::Found found = m_files.read(year);
    m_surplus = found.surplus();
    m_model.load(found.sheet);
    m_spent.load(year);
    emit fileTouched();
    emit loaded(year);
    if (isOther)
        emit opened(year);
    if (m_surplus > 0)
        emit said(BudgetLines::fileHasMore(fileName(), m_surplus));
    else if (found.values > 0 && found.values < BudgetFiles::valueCount)
        emit said(BudgetLines::fileEndsEarly(fileName()));
}

QStringList BudgetYear::fileNames() const
{
    return {fileName(), m_spent.fileName()};
}

bool BudgetYear::isModified() const
{
    return m_model.isModified() || m_spent.isModified();
}

/// Where both have changed, both are written or neither.
bool BudgetYear::write()
{
    if (!m_spent.isModified())
        return m_files.write(m_year, m_model.sheet());
    ChangeSet change(m_program.folder);
    if (m_model.isModified() || m_surplus > 0)
        change.replace(fileName(), BudgetFiles::encode(m_model.sheet()));
    m_spent.addTo(change);
    return change.commit();
}

bool BudgetYear::save()
{
    if (m_surplus > 0 &&
        m_program.dialogs.ask(m_window, BudgetMessages::dropSurplus(fileName(), m_surplus)) != Answer::Yes)
        return false;
    if (!write()) {
        emit said(BudgetLines::notSaved());
        return false;
    }
    m_surplus = 0;
    m_model.setSaved();
    m_spent.setSaved();
    emit fileTouched();
    emit said({}); // a refusal of the disk before
    return true;
}

void BudgetYear::copyToNext()
{
    if (!hasFile()) {
        emit said(BudgetLines::nothingToCopy(m_year));
        return;
    }
    const BudgetSheet there = m_files.read(m_year + 1).sheet;
    const auto items = std::ranges::count_if(
        there.rows, [](const BudgetSheet::Row &row) { return !row.item.trimmed().isEmpty(); });
    if (m_program.dialogs.ask(m_window, BudgetMessages::copyYear(m_year, int(items))) != Answer::Yes)
        return;
    const auto copy = YearCopy::of(m_program.folder, m_year);
    if (!copy) {
        emit said(BudgetLines::nothingToCopy(m_year));
        return;
    }
    if (!copy->commit(m_program.folder)) {
        emit said(BudgetLines::notCopied(m_year));
        return;
    }
    const auto shown = [this, target = copy->target()](ChangeResult result) {
        if (result != ChangeResult::Refused)
            showIfOpen(target);
        return result;
    };
    emit copied({BudgetLines::copied(m_year), [=, this] { return shown(copy->undo(m_program.folder)); },
                 [=, this] { return shown(copy->redo(m_program.folder)); }});
}

void BudgetYear::showIfOpen(int year)
{
    if (year == m_year)
        reload();
}

void BudgetYear::takeChangedFile()
{
    if (isModified()) {
        emit said(BudgetLines::changedElsewhereToo(fileName()));
        return;
    }
    reload();
    emit said(BudgetLines::changedElsewhere(fileName()));
}
