// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/budgetprint.h"

#include "budget/model/budgetentry.h"
#include "budget/model/budgetpages.h"
#include "budget/model/papermessages.h"
#include "budget/model/sheetlines.h"
#include "budget/window/exportbox.h"
#include "budget/window/sheetgrid.h"
#include "budget/window/sheetmodel.h"
#include "budget/window/spentyear.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/functionwindow.h"
#include "shell/program/program.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>

#include <utility>

using namespace Qt::Literals::StringLiterals;

BudgetPrint::BudgetPrint(Program &program, FunctionWindow *window, Sources sources)
    : QObject(window)
    , m_program(program)
    , m_window(window)
    , m_from(sources)
    , m_picture(program.folder)
{}

void BudgetPrint::setTotals(Chart chart, std::function<BudgetBasis()> basis)
{
    m_chart = std::move(chart);
    m_basis = std::move(basis);
}

void BudgetPrint::addPrintCommands(Commands &commands, QMenu *menu)
{
    QAction *print = commands.add(
        menu, u"mOPrt"_s, u"&Print"_s, [this] { printSheet(); }, {}, CommonKeys::print);
    commands.add(
        menu, u"mOPTotals"_s, u"Print &Totals"_s, [this] { printTotals(); },
        [this] { return m_from.year.whyNoTotals(); });
    commands.add(menu, u"mOPDiscuss"_s, u"Print S&heet to Discuss"_s, [this] { printDiscussion(); });
    commands.tool(print, "print"_L1, u"Print"_s);
}

void BudgetPrint::addCopyCommand(Commands &commands, QMenu *menu)
{
    commands.add(menu, u"mECopyBudget"_s, u"Copy &Budget to Clipboard"_s, [this] { copy(); });
}

void BudgetPrint::addExportCommand(Commands &commands, QMenu *menu)
{
    commands.add(
        menu, u"mUExcel"_s, u"&Export to Excel/Spreadsheet"_s, [this] { exportFile(); },
        [this] {
            const bool isWorthIt = SheetLines::isWorthExporting(m_from.model.sheet());
            return isWorthIt ? QString() : BudgetPaper::nothingToExport();
        });
}

/// With what is still being typed into a cell.
BudgetSheet BudgetPrint::sheet() const
{
    m_from.grid.finishEdit();
    return m_from.model.sheet();
}

/// The same of the layer that the grid shows.
BudgetSheet BudgetPrint::shownSheet() const
{
    m_from.grid.finishEdit();
    return m_from.year.shownSheet();
}

/// The proposed name of a PDF.
QString BudgetPrint::nameOf(const QString &what) const
{
    return what + u' ' + QString::number(m_from.year.year());
}

void BudgetPrint::printSheet()
{
    m_window->showPreview(
        [shown = m_from.year.shown(), sheet = shownSheet()](const PageContext &context) {
            return BudgetPages::sheet(shown, sheet, context);
        },
        nameOf(m_from.year.shown().isSpent() ? u"Budget Spent"_s : u"Budget"_s));
}

void BudgetPrint::printTotals()
{
    const BudgetSheet sheet = shownSheet();
    if (const auto refusal = whyNoTotals(sheet)) {
        m_program.dialogs.ask(m_window, *refusal);
        return;
    }
    const BudgetBasis basis = m_basis ? m_basis() : BudgetBasis::Income;
    const auto page = [this, shown = m_from.year.shown(), sheet, basis](const PageContext &context) {
        const QSizeF frame = BudgetPages::chartFrame(context.setup.orientation).size();
        return BudgetPages::totals(shown, sheet, basis, storeChart(sheet, basis, frame), context);
    };
    m_window->showPreview(
        page, nameOf(m_from.year.shown().isSpent() ? u"Budget Totals Spent"_s : u"Budget Totals"_s));
}

/// The path of its picture, wherever that could be kept.
QString BudgetPrint::storeChart(const BudgetSheet &sheet, BudgetBasis basis, QSizeF inches)
{
    if (!m_chart)
        return {};
    QString path = m_picture.store(m_chart(sheet, basis, inches));
    const DataFolder &folder = m_program.folder;
    if (!folder.isReadOnly() && path != folder.filePath(ChartPicture::fileName))
        emit said(BudgetPaper::chartNotSaved());
    return path;
}

void BudgetPrint::printDiscussion()
{
    m_window->showPreview(
        [year = m_from.year.year(), sheet = sheet(), spent = spent()](const PageContext &context) {
            return BudgetPages::discussion(year, sheet, spent, context);
        },
        nameOf(u"Budget to Discuss"_s));
}

BudgetPages::Spent BudgetPrint::spent() const
{
    std::array<double, BudgetSheet::rowCount> rows{};
    bool isAny = false;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (const double amount : m_from.model.spent()[row]) {
            rows[row] += amount;
            isAny = isAny || amount != 0;
        }
    }
    return isAny ? BudgetPages::Spent(rows) : std::nullopt;
}

void BudgetPrint::copy()
{
    QGuiApplication::clipboard()->setText(SheetLines::clipboardText(m_from.year.year(), sheet()));
    m_program.dialogs.ask(m_window, BudgetPaper::copied());
}

void BudgetPrint::exportFile()
{
    ExportBox box(m_program, m_from.year.year(), SheetLines::exportText(sheet()), m_window);
    m_program.dialogs.run(box);
}
