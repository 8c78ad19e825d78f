// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/spentdesk.h"

#include "budget/model/amount.h"
#include "budget/model/budgetentry.h"
#include "budget/model/lines.h"
#include "budget/model/spentlines.h"
#include "budget/window/duepanel.h"
#include "budget/window/importpanel.h"
#include "budget/window/sheetgrid.h"
#include "budget/window/sheetmodel.h"
#include "budget/window/spentpanel.h"
#include "budget/window/spentyear.h"
#include "shell/controls/linkbutton.h"
#include "shell/core/place.h"
#include "shell/frame/commonkeys.h"
#include "shell/frame/workviews.h"
#include "shell/program/program.h"

#include <QComboBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMenu>
#include <QSettings>

#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

SpentDesk::SpentDesk(Program &program, Desk desk, QWidget *window)
    : QObject(window)
    , m_program(program)
    , m_desk(desk)
    , m_window(window)
{
    connect(&m_desk.model, &SheetModel::spentTyped, this, &SpentDesk::addTyped);
    connect(&m_desk.model, &SheetModel::layerChanged, this, &SpentDesk::refresh);
    connect(&m_desk.year, &SpentYear::changed, this, &SpentDesk::refresh);
}

/// `panel`, which was just made, among the views.
template <typename Panel>
Panel *SpentDesk::made(Panel *panel)
{
    m_desk.views.addPanel(panel);
    connect(panel, &Panel::said, this, &SpentDesk::said);
    return panel;
}

QWidget *SpentDesk::makeSwitch(QWidget *parent)
{
    auto *part = new QWidget(parent);
    m_noRow = new LinkButton(u"spentNoRow"_s, {}, part);
    m_noRow->hide();
    m_layers = named(new QComboBox(part), u"budgetLayer"_s);
    m_layers->addItems({u"Planned"_s, u"Spent"_s});
    m_layers->setAccessibleName(u"What the cells show"_s);
    auto *row = new QHBoxLayout(part);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(12);
    row->addWidget(m_noRow);
    row->addWidget(m_layers);
    connect(m_layers, &QComboBox::activated, this, [this](int layer) { setLayer(layer == 1); });
    connect(m_noRow, &LinkButton::clicked, this, [this] { openAmounts(-1, -1); });
    return part;
}

void SpentDesk::addCommands(QMenu *view)
{
    Commands &all = m_desk.commands;
    const auto unless = [this] { return whyNoSheet(); };
    m_planned = all.add(
        view, u"mVPlanned"_s, u"&Planned"_s, [this] { setLayer(false); }, unless, CommonKeys::views[0]);
    m_spent = all.add(
        view, u"mVSpent"_s, u"&Spent"_s, [this] { setLayer(true); }, unless, CommonKeys::views[1]);
    for (QAction *layer : {m_planned, m_spent})
        layer->setCheckable(true);
    view->addSeparator();
    m_amountsCommand = all.add(
        view, u"mVAmounts"_s, u"Amounts &of This Cell"_s, [this] { openCell(); }, unless,
        Qt::CTRL | Qt::Key_Return);
    QAction *due = all.add(
        view, u"mVDue"_s, u"What Is &Due"_s, [this] { openDue(); }, unless);
    all.tool(due, "calendar-day"_L1, u"Due"_s);
    refresh();
}

void SpentDesk::addImport(QMenu *menu)
{
    m_desk.commands.writing(m_desk.commands.add(
        menu, u"mUBank"_s, u"Bring &In a Bank File..."_s, [this] { openFile(); },
        [this] {
            const QString why = whyNoSheet();
            return why.isEmpty() ? m_desk.year.whyReadOnly() : why;
        }));
}

void SpentDesk::stop()
{
    if (m_import && m_desk.views.isShown(m_import))
        m_import->leave();
}

void SpentDesk::openFile()
{
    m_desk.grid.finishEdit();
    const QString key = u"Windows/Budget1/bankFolder"_s;
    const auto path = m_program.dialogs.chooseFileToOpen(
        m_window, SpentLines::bringIn(), m_program.store.value(key).toString(), SpentLines::bankFilter());
    if (!path)
        return;
    if (!m_import) {
        m_import = made(new ImportPanel(m_program, m_desk.year));
        connect(m_import, &ImportPanel::progressed, this, &SpentDesk::progressed);
        connect(m_import, &ImportPanel::taken, this, &SpentDesk::showTaken);
    }
    if (!m_import->open(*path))
        return;
    m_program.store.setValue(key, QFileInfo(*path).path());
    m_desk.views.open(m_import);
    m_import->setFocus();
}

QString SpentDesk::whyNoSheet() const
{
    return m_desk.views.isHome() ? QString() : BudgetLines::inSheetOnly();
}

void SpentDesk::setLayer(bool isSpent)
{
    m_desk.grid.finishEdit();
    m_desk.model.setLayer(isSpent ? SheetLayer::Spent : SheetLayer::Planned);
    m_desk.commands.refresh();
    refresh();
    emit said(isSpent ? SpentLines::howToAdd() : QString());
    m_desk.grid.setFocus();
}

void SpentDesk::refresh()
{
    const bool isSpent = m_desk.model.layer() == SheetLayer::Spent;
    if (m_layers) {
        const auto &noRow = m_desk.year.sums().noRow;
        const qint64 cents = std::accumulate(noRow.begin(), noRow.end(), qint64(0));
        m_layers->setCurrentIndex(isSpent ? 1 : 0);
        m_noRow->setText(SpentLines::withoutRow(cents));
        m_noRow->updateGeometry();
        m_noRow->setVisible(isSpent && std::ranges::any_of(noRow, [](qint64 sum) { return sum != 0; }));
    }
    if (m_spent) {
        m_planned->setChecked(!isSpent);
        m_spent->setChecked(isSpent);
    }
}

void SpentDesk::addTyped(int row, int month, const QString &typed)
{
    if (const QString why = m_desk.year.whyReadOnly(); !why.isEmpty()) {
        emit said(why);
        return;
    }
    const QString item = m_desk.model.sheet().rows[std::size_t(row)].item.trimmed();
    if (item.isEmpty()) {
        emit said(SpentLines::needsAnItem());
        return;
    }
    if (typed.trimmed().isEmpty())
        return;
    BudgetEntry entry = BudgetEntry::ofCell(typed);
    // A minus is money that came back.
    if (const double amount = BudgetEntry::amountOf(typed); amount < 0 && amount >= -Amount::mostInCell)
        entry = {Amount::text(amount), {}};
    if (const qint64 cents = centsOf(entry.text); cents != 0) {
        const SpentAmount amount{
            spentDate(m_desk.year.year(), month + 1, m_program.clock.today()), cents, item, {}};
        Spending wanted = m_desk.year.spending();
        wanted.amounts.append(amount);
        m_desk.year.change(SpentLines::added(cents, item, amount.date), wanted);
    }
    if (entry.notice)
        emit noticed(*entry.notice);
    else if (BudgetEntry::isPartlyRead(typed))
        emit partlyRead(typed, entry.text);
}

void SpentDesk::openCell()
{
    const QModelIndex current = m_desk.grid.currentIndex();
    if (!current.isValid())
        return;
    if (m_desk.model.sheet().rows[std::size_t(current.row())].item.trimmed().isEmpty()) {
        emit said(SpentLines::needsAnItem());
        return;
    }
    openAmounts(current.row(), current.column() - SheetColumn::firstMonth);
}

void SpentDesk::openDue()
{
    m_desk.grid.finishEdit();
    if (!m_due)
        m_due = made(new DuePanel(m_program, m_desk.year));
    const QModelIndex current = m_desk.grid.currentIndex();
    // On an item, the month of today is meant.
    const QDate today = m_program.clock.today();
    const int itemsMonth = today.year() == m_desk.year.year() ? today.month() - 1 : 0;
    const int month = current.column() - SheetColumn::firstMonth;
    m_due->open(month < 0 ? itemsMonth : month, current.row());
    m_desk.views.open(m_due);
    m_due->setFocus();
}

void SpentDesk::openAmounts(int row, int month)
{
    m_desk.grid.finishEdit();
    if (!m_amounts)
        m_amounts = made(new SpentPanel(m_program, m_desk.year, m_window));
    m_amounts->open(row, month);
    m_desk.views.open(m_amounts);
    m_amounts->setFocus();
}

/// What was brought in is to be seen at once.
void SpentDesk::showTaken(const SpentAmount &first)
{
    setLayer(true);
    const int row = BudgetItems(m_desk.model.sheet()).row(first.item);
    if (row < 0)
        return;
    m_desk.grid.setCurrentIndex(m_desk.model.index(row, SheetColumn::firstMonth + first.date.month() - 1));
    m_desk.grid.scrollTo(m_desk.grid.currentIndex());
}

void SpentDesk::show(const Place &place)
{
    m_desk.views.goHome();
    const int column = place.date.isValid() ? SheetColumn::firstMonth + place.date.month() - 1 : 0;
    if (place.row >= 0 && place.row < m_desk.model.rowCount()) {
        m_desk.grid.setCurrentIndex(m_desk.model.index(place.row, column));
        m_desk.grid.scrollTo(m_desk.grid.currentIndex());
    }
    if (!place.date.isValid())
        return;
    // A date with a record is an amount that was found; without one, something due.
    if (place.record == 0) {
        openDue();
        return;
    }
    setLayer(true);
    openAmounts(place.row, place.row < 0 ? -1 : place.date.month() - 1);
    m_amounts->choose(place.date);
}
