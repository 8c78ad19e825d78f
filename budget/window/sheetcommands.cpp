// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/sheetcommands.h"

#include "budget/model/amount.h"
#include "budget/model/budgetentry.h"
#include "budget/model/lines.h"
#include "budget/model/messages.h"
#include "budget/model/sheetedits.h"
#include "budget/window/sheetgrid.h"
#include "budget/window/sheetmodel.h"
#include "shell/frame/commonkeys.h"
#include "shell/program/program.h"

#include <QApplication>
#include <QClipboard>
#include <QLocale>
#include <QMenu>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

SheetCommands::SheetCommands(Program &program, Desk desk, QWidget *window)
    : QObject(window)
    , m_program(program)
    , m_desk(std::move(desk))
    , m_window(window)
{
    connect(&m_desk.grid, &SheetGrid::rangeChanged, this, &SheetCommands::sayRange);
}

void SheetCommands::addCommands(QMenu *edit, QAction *amounts)
{
    const qsizetype before = edit->actions().size();
    addClipboardCommands(edit);
    edit->addSeparator();
    addFillCommands(edit);
    edit->addSeparator();
    addRowCommands(edit);
    m_cellActions = edit->actions().sliced(before);
    m_desk.grid.setContextMenuPolicy(Qt::CustomContextMenu);
    connect(&m_desk.grid, &QWidget::customContextMenuRequested, this,
            [this, amounts](QPoint place) { openCellMenu(place, amounts); });
}

/// What concerns the cell that was clicked, and its row.
void SheetCommands::openCellMenu(QPoint place, QAction *amounts)
{
    auto *menu = named(new QMenu(m_window), u"cellMenu"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setToolTipsVisible(true);
    if (m_desk.model.layer() == SheetLayer::Spent) {
        menu->addAction(amounts);
        menu->addSeparator();
    }
    menu->addActions(m_cellActions);
    menu->popup(m_desk.grid.viewport()->mapToGlobal(place));
}

void SheetCommands::addClipboardCommands(QMenu *edit)
{
    const auto clear = [](BudgetSheet &sheet, const SheetRange &range) { SheetEdits::clear(sheet, range); };
    add(
        edit, u"mECut"_s, u"Cu&t"_s,
        [=, this] {
            copy();
            change(BudgetLines::cut(), clear);
        },
        QKeySequence::Cut);
    QAction *copyCells = m_desk.commands.add(
        edit, u"mECopyCells"_s, u"&Copy Cells"_s,
        [this] {
            if (isCellChosen())
                copy();
        },
        m_desk.unless);
    m_desk.commands.setKeyIn(&m_desk.grid, copyCells, QKeySequence::Copy);
    add(
        edit, u"mEPasteCells"_s, u"&Paste"_s, [this] { paste(); }, QKeySequence::Paste);
    add(
        edit, u"mEClear"_s, u"C&lear"_s, [=, this] { change(BudgetLines::cleared(), clear); },
        CommonKeys::remove);
}

void SheetCommands::addFillCommands(QMenu *edit)
{
    add(
        edit, u"mEFill"_s, u"&Fill Right"_s, [this] { repeatAmount(BudgetLines::filledRight(), 1); },
        Qt::CTRL | Qt::Key_R);
    add(edit, u"mESecond"_s, u"Every &Second Month"_s,
        [this] { repeatAmount(BudgetLines::everySecondMonth(), 2); });
    add(edit, u"mEThird"_s, u"Every T&hird Month"_s,
        [this] { repeatAmount(BudgetLines::everyThirdMonth(), 3); });
    add(edit, u"mESpread"_s, u"Spread &a Yearly Sum..."_s, [this] { spread(); });
    // The income is the same in both layers.
    Commands &all = m_desk.commands;
    QAction *income = all.writing(all.add(
        edit, u"mEIncome"_s, u"Total Inco&me..."_s,
        [this] {
            if (isCellChosen())
                enterIncome(std::max(0, m_desk.grid.currentIndex().column() - SheetColumn::firstMonth));
        },
        m_desk.unless));
    all.setKeyIn(&m_desk.grid, income, Qt::CTRL | Qt::Key_I);
}

void SheetCommands::addRowCommands(QMenu *edit)
{
    add(
        edit, u"mEInsert"_s, u"&Insert Row"_s, [this] { insertRow(); }, CommonKeys::newEntry);
    add(
        edit, u"mEUp"_s, u"Mo&ve Row Up"_s, [this] { moveRows(-1); }, Qt::ALT | Qt::Key_Up);
    add(
        edit, u"mEDown"_s, u"Move Row &Down"_s, [this] { moveRows(1); }, Qt::ALT | Qt::Key_Down);
}

QAction *SheetCommands::addDeleteRow(QMenu *menu)
{
    QAction *command = add(menu, u"mODel"_s, u"&Delete Row"_s, [this] { deleteRow(); });
    m_cellActions << command;
    return command;
}

QAction *SheetCommands::add(QMenu *menu, const QString &name, const QString &caption,
                            std::function<void()> run, const QKeySequence &key)
{
    Commands &all = m_desk.commands;
    QAction *command = all.writing(all.add(
        menu, name, caption,
        [this, run = std::move(run)] {
            if (isCellChosen())
                run();
        },
        [this] { return whyNoEdit(); }));
    if (!key.isEmpty())
        all.setKeyIn(&m_desk.grid, command, key);
    return command;
}

QString SheetCommands::whyNoEdit() const
{
    if (QString reason = m_desk.unless(); !reason.isEmpty())
        return reason;
    return m_desk.model.layer() == SheetLayer::Planned ? QString() : BudgetLines::inPlanOnly();
}

bool SheetCommands::isCellChosen()
{
    m_desk.grid.finishEdit();
    if (!m_desk.grid.range().isEmpty())
        return true;
    m_program.dialogs.ask(m_window, BudgetMessages::noCellChosen());
    return false;
}

void SheetCommands::change(const QString &title, const Edit &edit)
{
    BudgetSheet wanted = m_desk.model.sheet();
    const SheetRange range = m_desk.grid.range();
    edit(wanted, range);
    finish(title, wanted, range);
}

/// Makes the sheet `wanted` in one step, goes to `range`, and tells of it.
void SheetCommands::finish(const QString &title, const BudgetSheet &wanted, const SheetRange &range,
                           const QString &line)
{
    const bool isChanged = m_desk.model.change(title, wanted, range);
    if (range != m_desk.grid.range())
        m_desk.grid.choose(range);
    if (isChanged)
        emit done(line.isEmpty() ? title : line);
    else
        emit said(BudgetLines::isSoAlready());
}

void SheetCommands::show(const std::optional<Message> &message)
{
    if (message)
        m_program.dialogs.ask(m_window, *message);
}

/// Where one is, and what several cells come to.
void SheetCommands::sayRange()
{
    const SheetRange range = m_desk.grid.range();
    if (range.isEmpty())
        return;
    if (range.height() * range.width() == 1) {
        const QString item = inOneLine(m_desk.model.sheet().rows[std::size_t(range.top)].item);
        const QString month = QLocale::c().standaloneMonthName(range.left);
        emit said(range.left == SheetColumn::item ? item : BudgetLines::cell(item, month));
        return;
    }
    double sum = 0;
    for (int row = range.top; row <= range.bottom; ++row) {
        for (int column = std::max(range.left, SheetColumn::firstMonth); column <= range.right; ++column)
            sum += Amount::stored(m_desk.model.index(row, column).data().toString());
    }
    emit said(BudgetLines::chosen(range.height() * range.width(), sum));
}

/// What the cells show, in the layer that is shown.
void SheetCommands::copy()
{
    const SheetRange range = m_desk.grid.range();
    GridText::Rows cells = SheetEdits::cells(m_desk.model.sheet(), range);
    if (m_desk.model.layer() == SheetLayer::Spent) {
        for (int row = 0; row < range.height(); ++row) {
            for (int column = 0; column < range.width(); ++column)
                cells[row][column] =
                    m_desk.model.index(range.top + row, range.left + column).data().toString();
        }
    }
    QApplication::clipboard()->setText(GridText::encode(cells));
    emit said(BudgetLines::cellsCopied(range.height() * range.width()));
}

void SheetCommands::paste()
{
    const auto pasted = SheetEdits::pasted(m_desk.model.sheet(), m_desk.grid.range(),
                                           GridText::decode(QApplication::clipboard()->text()));
    if (pasted.cells == 0) {
        emit said(BudgetLines::nothingToPaste());
        return;
    }
    // Beforehand: what the sums have to say comes after it, and not over it.
    show(pasted.notice());
    finish(BudgetLines::pasted(pasted.cells), pasted.sheet, pasted.range,
           BudgetLines::pasted(pasted.cells, pasted.leftOut, pasted.foreign, pasted.partly));
}

void SheetCommands::repeatAmount(const QString &title, int step)
{
    const SheetRange range = m_desk.grid.range();
    const int first = std::max(range.left, SheetColumn::firstMonth);
    bool hasAmount = false;
    for (int row = range.top; row <= range.bottom; ++row)
        hasAmount = hasAmount || !cellText(m_desk.model.sheet(), row, first).isEmpty();
    if (!hasAmount) {
        emit said(BudgetLines::noAmountToRepeat());
        return;
    }
    change(title, [step](BudgetSheet &sheet, const SheetRange &chosen) {
        SheetEdits::repeatToTheRight(sheet, chosen, step);
    });
}

/// What a single row has already is offered, to be evened out.
void SheetCommands::spread()
{
    const SheetRange range = m_desk.grid.range();
    BudgetSheet wanted = m_desk.model.sheet();
    const bool isOneRow = range.height() == 1;
    const QString item = isOneRow ? inOneLine(wanted.rows[std::size_t(range.top)].item) : QString();
    const double there = isOneRow ? SheetEdits::sumToSpread(wanted, range) : 0;
    const QString question =
        BudgetMessages::whichSum(item, range.height(), SheetEdits::monthsToSpread(range));
    QString offered = there > 0 ? Amount::text(there) : QString();
    // A sum that is refused is asked for once more, as it was typed.
    while (const auto answer =
               m_program.dialogs.input(m_window, BudgetMessages::spreadTitle(), question, offered)) {
        if (answer->trimmed().isEmpty())
            return;
        const double sum = BudgetEntry::amountOf(*answer);
        if (sum > 0 && SheetEdits::spread(wanted, range, sum)) {
            finish(BudgetLines::spread(item), wanted, range,
                   BudgetEntry::isPartlyRead(*answer) ? BudgetLines::partlyRead(*answer, Amount::text(sum))
                                                      : QString());
            return;
        }
        show(sum <= 0 ? BudgetMessages::onlyNumbers() : BudgetMessages::cellLimit());
        offered = *answer;
    }
}

void SheetCommands::insertRow()
{
    BudgetSheet wanted = m_desk.model.sheet();
    const int row = m_desk.grid.range().top;
    if (!wanted.insertRow(std::size_t(row))) {
        emit said(BudgetLines::noRoomForRow());
        return;
    }
    finish(BudgetLines::insertedRow(row), wanted, {row, 0, row, 0});
}

void SheetCommands::deleteRow()
{
    if (m_program.dialogs.ask(m_window, BudgetMessages::deleteRow()) != Answer::Yes)
        return;
    const int row = m_desk.grid.currentIndex().row();
    BudgetSheet wanted = m_desk.model.sheet();
    const QString item = inOneLine(wanted.rows[std::size_t(row)].item);
    wanted.removeRow(std::size_t(row));
    const int column = m_desk.grid.currentIndex().column();
    finish(BudgetLines::deletedRow(item, row), wanted, {row, column, row, column});
}

void SheetCommands::moveRows(int by)
{
    SheetRange range = m_desk.grid.range();
    const QString item = inOneLine(m_desk.model.sheet().rows[std::size_t(range.top)].item);
    BudgetSheet wanted = m_desk.model.sheet();
    if (!SheetEdits::moveRows(wanted, range, by))
        return;
    const int from = range.top;
    range.top += by;
    range.bottom += by;
    finish(BudgetLines::movedRow(item, from), wanted, range);
}

void SheetCommands::enterIncome(int month)
{
    m_desk.grid.finishEdit();
    BudgetSheet wanted = m_desk.model.sheet();
    QString &income = wanted.incomes[std::size_t(month)];
    const QString title = BudgetLines::income(SheetColumn::headings()[SheetColumn::firstMonth + month]);
    emit said(title); // the question does not name the month
    const auto answer = m_program.dialogs.input(m_window, BudgetMessages::incomeTitle(),
                                                BudgetMessages::whichIncome(), income);
    if (!answer || answer->trimmed().isEmpty())
        return;
    const BudgetEntry entry = BudgetEntry::ofIncome(*answer);
    show(entry.notice);
    if (!entry.notice && BudgetEntry::isPartlyRead(*answer))
        emit said(BudgetLines::partlyRead(*answer, entry.text));
    income = entry.text;
    m_desk.model.preview(wanted);
    if (m_program.dialogs.ask(m_window, BudgetMessages::copyIncomeToTheRight()) == Answer::Yes)
        std::fill(wanted.incomes.begin() + month + 1, wanted.incomes.end(), entry.text);
    m_desk.model.change(title, wanted);
}
