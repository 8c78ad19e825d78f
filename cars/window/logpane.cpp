// SPDX-License-Identifier: GPL-3.0-or-later
#include "cars/window/logpane.h"

#include "cars/model/carrows.h"
#include "cars/model/historylines.h"
#include "cars/model/lines.h"
#include "cars/model/messages.h"
#include "cars/window/entrymodel.h"
#include "cars/window/logmodel.h"
#include "cars/window/opencar.h"
#include "shell/controls/controls.h"
#include "shell/controls/datepicker.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/core/framelines.h"
#include "shell/frame/functionwindow.h"
#include "shell/program/program.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

LogPane::LogPane(const CarDesk &desk, CarPart part, const Names &names,
                 const std::vector<CarColumns::Width> &widths)
    : m_desk(desk)
    , m_model(new LogModel(desk.program, desk.car, part, this))
    , m_new(new EntryModel(desk.program, desk.car, *m_model, this))
    , m_picker(new DatePicker(desk.program.clock, desk.program.settings, &desk.window, names.calendar))
    , m_entry(makeGrid(names.entry, m_new, u"New entry"_s))
    , m_list(makeGrid(names.list, m_model, u"Entries, the newest first"_s))
    , m_rows(new WholeRows(m_list))
    , m_empty(named(makeQuietLabel(HistoryLines::noneYet(part), this), names.list + u"Empty"_s))
{
    m_entry->setEntry();
    m_entry->installEventFilter(this);
    m_list->horizontalHeader()->hide();
    m_empty->setWordWrap(true);
    for (CarGrid *grid : {m_entry, m_list})
        grid->setWidths(widths);
    m_list->putUnder(m_entry);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->setSpacing(8);
    rows->addWidget(m_entry);
    rows->addWidget(m_empty);
    rows->addWidget(m_rows, 1);
    rows->addStretch(0);
    setFocusProxy(m_entry);
    connectGrids();
    m_entry->setCurrentIndex(m_new->index(0, m_new->firstColumn()));
}

CarGrid *LogPane::makeGrid(const QString &name, QAbstractItemModel *model, const QString &accessibleName)
{
    auto *grid = new CarGrid(m_desk.program, name, m_picker, this);
    grid->setModel(model);
    grid->setAccessibleName(accessibleName);
    return grid;
}

void LogPane::connectGrids()
{
    for (CarGrid *grid : {m_entry, m_list}) {
        connect(grid, &CarGrid::said, this, &LogPane::said);
        connect(grid, &CarGrid::refused, this, [this] { emit said(m_desk.car.whyLocked(m_model->part())); });
    }
    connect(m_entry, &CarGrid::entered, this, &LogPane::take);
    connect(m_list, &CarGrid::currentMoved, this, &LogPane::chosen);
    connectModel(m_new, m_entry);
    connectModel(m_model, m_list);
}

/// What is refused is told, and can be typed anew.
template <typename Model>
void LogPane::connectModel(const Model *model, CarGrid *grid)
{
    const auto goBack = [this, grid](const QModelIndex &cell) {
        // Behind the box in which that is told, and behind the way that the key leads.
        QMetaObject::invokeMethod(
            this, [grid, at = QPersistentModelIndex(cell)] { grid->setCurrentIndex(at); },
            Qt::QueuedConnection);
    };
    connect(model, &Model::noticed, this, [this, goBack](const Message &message, const QModelIndex &cell) {
        emit noticed(message);
        goBack(cell);
    });
    connect(model, &Model::refused, this, [this, goBack](const QString &reason, const QModelIndex &cell) {
        emit said(reason);
        goBack(cell);
    });
    connect(model, &Model::said, this, &LogPane::said);
}

void LogPane::refresh()
{
    const qsizetype inFile = m_model->rowInFile(m_list->currentIndex().row());
    const QModelIndex current = m_list->currentIndex();
    const int rows = m_model->rowCount();
    m_model->refresh();
    m_new->refresh();
    // Rows that came or went leave the choice where it was on the screen.
    if (current.isValid() && m_model->rowCount() != rows && m_model->rowCount() > 0) {
        const int row = m_model->rowCount() > rows ? m_model->rowOf(inFile) : current.row();
        m_list->setCurrentIndex(
            m_model->index(std::clamp(row, 0, m_model->rowCount() - 1), current.column()));
    }
    if (m_list->currentIndex().isValid())
        m_list->scrollTo(m_list->currentIndex());
    place();
    emit chosen();
}

/// The row of something new is as high as it must be; an empty list gives way to a sentence.
void LogPane::place()
{
    const bool isEmpty = m_model->rowCount() == 0;
    m_rows->setVisible(!isEmpty);
    m_empty->setVisible(isEmpty);
    m_entry->ensurePolished();
    m_entry->setFixedHeight(m_entry->horizontalHeader()->sizeHint().height() + CarGrid::usualRowHeight() +
                            2 * m_entry->frameWidth());
    (isEmpty ? m_entry : m_list)->fitColumns();
}

void LogPane::finishEdit()
{
    m_entry->finishEdit();
    m_list->finishEdit();
    if (m_new->isTyped())
        add(Adding::OnLeaving);
}

void LogPane::take()
{
    m_entry->finishEdit();
    if (const QString why = m_desk.car.whyLocked(m_model->part()); !why.isEmpty()) {
        emit said(why);
        return;
    }
    if (m_new->isTyped())
        add(Adding::Asked);
    else
        emit said(HistoryLines::nothingTyped(m_model->part()));
    m_entry->setFocus();
    m_entry->horizontalScrollBar()->setValue(0);
    m_entry->setCurrentIndex(m_new->index(0, m_new->firstColumn()));
}

void LogPane::add(Adding adding)
{
    CarRecord wanted = m_desk.car.record();
    const CarPart part = m_model->part();
    if (part == CarPart::Fuel && wanted.fuel.size() >= mostFuelRows) {
        if (adding == Adding::Asked)
            emit noticed(CarMessages::fuelFull());
        return;
    }
    CarRows::append(wanted, part, m_new->cells());
    const qsizetype row = CarRows::count(wanted, part) - 1;
    m_new->clear();
    if (m_amend)
        m_amend(wanted, row, adding);
    const QString what = m_model->titleOf(wanted, row);
    const QStringList missing = HistoryLines::missing(part, CarRows::cells(wanted, part, row));
    m_desk.car.change(HistoryLines::added(what), wanted);
    m_list->setCurrentIndex(m_model->index(m_model->rowOf(row), 0));
    m_list->scrollTo(m_list->currentIndex());
    m_entry->setCurrentIndex(m_new->index(0, m_new->firstColumn()));
    if (adding == Adding::Asked)
        emit added(HistoryLines::added(what));
    else // behind what is said of the view that comes
        QMetaObject::invokeMethod(
            this, [this, line = HistoryLines::addedOnLeaving(what, missing)] { emit added(line); },
            Qt::QueuedConnection);
}

void LogPane::propose(const QStringList &cells)
{
    m_new->clear();
    m_new->paste(0, cells);
    m_entry->setFocus();
    m_entry->setCurrentIndex(m_new->index(0, m_new->columnCount() - 1));
}

bool LogPane::isRowChosen() const
{
    return m_list->currentIndex().isValid();
}

QString LogPane::removeChosen(Removing how)
{
    m_list->finishEdit();
    const LogModel::Removal removal = m_model->removal(m_list->currentIndex().row());
    OpenCar &car = m_desk.car;
    const bool isTaken =
        how == Removing::Typed || car.isNew() || car.savePart(m_model->part(), removal.wanted);
    if (isTaken)
        car.change(removal.title, removal.wanted,
                   how == Removing::Written ? std::optional(m_model->part()) : std::nullopt);
    else
        emit said(FrameLines::refused(m_desk.program.folder, CarLines::notDeleted()));
    m_list->setFocus();
    return isTaken ? removal.title : QString();
}

void LogPane::copy()
{
    const CarGrid *grid = m_entry->isInUse() ? m_entry : m_list;
    QItemSelection chosen = grid->selectionModel()->selection();
    if (chosen.isEmpty() && grid->currentIndex().isValid())
        chosen.select(grid->currentIndex(), grid->currentIndex());
    if (chosen.isEmpty())
        return;
    const QModelIndex first = chosen.first().topLeft();
    const QModelIndex last = chosen.first().bottomRight();
    GridText::Rows rows;
    for (int row = first.row(); row <= last.row(); ++row) {
        QStringList texts;
        for (int column = first.column(); column <= last.column(); ++column)
            texts << first.sibling(row, column).data(Qt::EditRole).toString();
        rows << texts;
    }
    QGuiApplication::clipboard()->setText(GridText::encode(rows));
    emit said(HistoryLines::copied(rows.size() * rows.first().size()));
}

void LogPane::paste()
{
    const GridText::Rows rows = GridText::decode(QGuiApplication::clipboard()->text());
    const QModelIndex current = (m_entry->isInUse() ? m_entry : m_list)->currentIndex();
    if (const QString why = m_desk.car.whyLocked(m_model->part()); !why.isEmpty())
        emit said(why);
    else if (rows.isEmpty() || !current.isValid())
        emit said(HistoryLines::nothingToPaste());
    else if (m_entry->isInUse()) {
        m_new->paste(current.column(), rows.first());
        if (rows.size() > 1)
            emit said(HistoryLines::firstRowPasted());
    } else
        emit said(m_model->paste(current, rows));
}

/// Esc gives up what was typed into the row of something new, before it leaves the view.
bool LogPane::eventFilter(QObject *watched, QEvent *event)
{
    const bool isEscape = watched == m_entry && event->type() == QEvent::KeyPress &&
                          static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
    if (!isEscape || !m_new->isTyped())
        return QWidget::eventFilter(watched, event);
    m_new->clear();
    return true;
}
