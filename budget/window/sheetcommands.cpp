// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/sheetcommands.h"

#include "budget/model/budgetentry.h"
#include "budget/model/lines.h"
#include "budget/model/messages.h"
#include "budget/window/sheetgrid.h"
#include "budget/window/sheetmodel.h"
#include "shell/program/program.h"

#include <QMenu>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

SheetCommands::SheetCommands(Program &program, Desk desk, QWidget *window)
    : QObject(window)
    , m_program(program)
    , m_desk(std::move(desk))
    , m_window(window)
{}

void SheetCommands::addCommands(QMenu *edit)
{
    Commands &all = m_desk.commands;
    m_deleteRow = all.writing(all.add(
        edit, u"mODel"_s, u"&Delete Row"_s, [this] { deleteRow(); }, m_desk.unless));
}

bool SheetCommands::isCellChosen()
{
    m_desk.grid.finishEdit();
    if (m_desk.grid.currentIndex().isValid())
        return true;
    m_program.dialogs.ask(m_window, BudgetMessages::noCellChosen());
    return false;
}

void SheetCommands::deleteRow()
{
    if (!isCellChosen() || m_program.dialogs.ask(m_window, BudgetMessages::deleteRow()) != Answer::Yes)
        return;
    const int row = m_desk.grid.currentIndex().row();
    BudgetSheet wanted = m_desk.model.sheet();
    const QString item = inOneLine(wanted.rows[std::size_t(row)].item);
    wanted.removeRow(std::size_t(row));
    m_desk.model.change(BudgetLines::deletedRow(item, row), wanted);
}

void SheetCommands::enterIncome(int month)
{
    m_desk.grid.finishEdit();
    BudgetSheet wanted = m_desk.model.sheet();
    QString &income = wanted.incomes[std::size_t(month)];
    const auto answer = m_program.dialogs.input(m_window, BudgetMessages::incomeTitle(),
                                                BudgetMessages::whichIncome(), income);
    if (!answer || answer->trimmed().isEmpty())
        return;
    const BudgetEntry entry = BudgetEntry::ofIncome(*answer);
    if (entry.notice)
        m_program.dialogs.ask(m_window, *entry.notice);
    income = entry.text;
    m_desk.model.preview(wanted);
    if (m_program.dialogs.ask(m_window, BudgetMessages::copyIncomeToTheRight()) == Answer::Yes)
        std::fill(wanted.incomes.begin() + month + 1, wanted.incomes.end(), entry.text);
    m_desk.model.change(BudgetLines::income(SheetColumn::headings()[SheetColumn::firstMonth + month]),
                        wanted);
}
