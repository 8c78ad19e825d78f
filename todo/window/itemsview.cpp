// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/window/itemsview.h"

#include "shell/controls/buttonrow.h"
#include "shell/controls/controls.h"
#include "shell/controls/datebox.h"
#include "shell/controls/datepicker.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/titleline.h"
#include "shell/frame/functionwindow.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"
#include "todo/model/todocounts.h"
#include "todo/window/entryline.h"
#include "todo/window/itemcells.h"
#include "todo/window/itemgrid.h"
#include "todo/window/itemsmodel.h"
#include "todo/window/notebox.h"
#include "todo/window/openlists.h"
#include "todo/window/windowlines.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int emptySign = 72;
} // namespace

ItemsView::ItemsView(const ToDoDesk &desk)
    : TitledView(u"toDo"_s)
    , m_desk(desk)
    , m_model(new ItemsModel(desk.program, desk.lists, this))
    , m_grid(new ItemGrid(*m_model, desk.writing, this))
    , m_entry(new EntryLine(this))
    , m_entryRow(makeEntry())
    , m_hint(named(makeQuietLabel({}, this), u"entryHint"_s))
    , m_rows(new WholeRows(m_grid, nullptr, this))
    , m_emptySentence(named(new QLabel(this), u"nothingToDo"_s))
    , m_emptyLine(makeQuietLabel({}, this))
    , m_empty(makeEmpty())
    , m_words(titleLine().addWords(u"toDoWords"_s))
    , m_note(new NoteBox(m_grid->viewport()))
{
    auto *picker = new DatePicker(desk.program.clock, desk.program.settings, &desk.window);
    m_grid->cells().takeDates({desk.program.state.dateStyle, desk.program.clock}, picker);
    addContent(m_entryRow);
    addContent(m_hint);
    addContent(m_empty, 1);
    addContent(m_rows, 1);
    connectParts();
}

QWidget *ItemsView::makeEntry()
{
    auto *line = new QWidget(this);
    auto *row = new QHBoxLayout(line);
    row->setContentsMargins({});
    row->setSpacing(12);
    m_entry->setPlaceholderText(u"Something to do"_s);
    m_entry->setAccessibleName(u"Something to do"_s);
    row->addWidget(m_entry, 1);
    return line;
}

/// What stands in the place of the rows where there are none.
QWidget *ItemsView::makeEmpty()
{
    auto *page = new QWidget(this);
    auto *sign = new QLabel(page);
    sign->setPixmap(Icons::pixmap("todo"_L1, Theme::of(this).scheme, emptySign, devicePixelRatioF()));
    m_emptySentence->setFont(TypeScale::emptyTitle());
    m_emptyLine->setFont(TypeScale::body());
    auto *rows = new QVBoxLayout(page);
    rows->setSpacing(12);
    rows->addStretch(1);
    for (QLabel *label : {sign, m_emptySentence, m_emptyLine}) {
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(label != sign);
        rows->addWidget(label);
    }
    rows->addStretch(1);
    return page;
}

void ItemsView::setAddButton(QPushButton *button)
{
    button->setParent(m_entryRow);
    m_entryRow->layout()->addWidget(button);
}

void ItemsView::connectParts()
{
    connect(m_entry, &EntryLine::leftDown, this, [this] {
        if (m_grid->chosen().empty())
            m_grid->goToFirst();
        m_grid->setFocus();
    });
    connect(m_entry, &QLineEdit::textChanged, this, &ItemsView::showHint);
    connect(m_entry, &QLineEdit::textEdited, this, &ItemsView::offer);
    connect(m_entry, &FieldBox::refused, this, &ItemsView::said);
    connect(m_grid, &CellGrid::said, this, &ItemsView::said);
    connect(m_grid, &CellGrid::currentMoved, this, &ItemsView::moved);
    connect(m_grid->selectionModel(), &QItemSelectionModel::selectionChanged, this, &ItemsView::moved);
    connect(m_grid, &CellGrid::refused, this, [this] {
        if (const QString why = m_desk.lists.whyLocked(); !why.isEmpty())
            emit said(why);
    });
    connect(m_grid, &ItemGrid::laterClicked, this, [this] {
        m_model->unfoldLater();
        m_grid->goToLater();
    });
    connect(m_grid, &ItemGrid::listClicked, this, &ItemsView::listWanted);
    connect(m_grid, &ItemGrid::sortRequested, this, [this](int column) {
        keepChoice([this, column] { m_model->sortBy(ItemsModel::Column(column)); });
    });
    connect(m_model, &QAbstractItemModel::dataChanged, this, &ItemsView::placeNote);
    connect(m_model, &QAbstractItemModel::modelReset, this, &ItemsView::placeNote);
    connect(m_grid->horizontalHeader(), &QHeaderView::sectionResized, this, &ItemsView::placeNote);
    connect(m_grid, &ItemGrid::resized, this, &ItemsView::placeNote);
    connect(m_grid->verticalScrollBar(), &QScrollBar::valueChanged, this, &ItemsView::placeNote);
}

const Shown &ItemsView::shown() const
{
    return m_model->shown();
}

bool ItemsView::takesNew() const
{
    const Shown::Kind kind = shown().kind;
    return kind == Shown::List || kind == Shown::Today || kind == Shown::Coming;
}

int ItemsView::listForNew() const
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    if (shown().kind == Shown::List)
        return shown().list;
    for (const ToDoList &list : sheet.lists()) {
        if (list.kind != ListKind::Template)
            return list.id;
    }
    return 0;
}

void ItemsView::show(const Shown &shown)
{
    finishEdit();
    m_model->show(shown);
    m_grid->clearSelection();
    m_grid->setCurrentIndex({});
    m_grid->setListShown(shown.kind != Shown::List && shown.kind != Shown::Search);
    m_grid->scrollToTop();
    followLists();
    if (shown.kind == Shown::ByPerson || shown.kind == Shown::Done)
        m_grid->goToFirst();
    setFocusProxy(takesNew() ? static_cast<QWidget *>(m_entry) : m_grid);
    emit moved();
}

void ItemsView::followLists()
{
    follow(false);
}

/// The rows that are chosen stay so, wherever `change` moves them.
void ItemsView::keepChoice(const std::function<void()> &change)
{
    std::vector<int> chosen = m_grid->chosen();
    const int current = m_grid->currentIndex().data(ItemsModel::idRole).toInt();
    change();
    if (chosen == m_grid->chosen() && current == m_grid->currentIndex().data(ItemsModel::idRole).toInt())
        return;
    if (const auto first = std::ranges::find(chosen, current); first != chosen.end())
        std::rotate(chosen.begin(), first, first + 1);
    m_grid->choose(chosen);
}

void ItemsView::refresh()
{
    keepChoice([this] { m_model->refresh(); });
    showTitle();
    showEmptiness();
    showHint();
    const bool isLocked = !m_desk.lists.whyLocked().isEmpty();
    m_entryRow->setVisible(takesNew());
    m_entry->setLocked(isLocked);
}

void ItemsView::showTitle()
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    const QDate today = m_desk.program.clock.today();
    const ToDoCounts counts = ToDoCounts::of(sheet, today);
    const ToDoList *list = sheet.list(shown().list);
    titleLine().setTitle(ToDoWindowLines::title(shown(), list));
    int shownRows = 0;
    for (int row = 0; row < m_model->rowCount(); ++row)
        shownRows += m_model->rowAt(row).kind == ToDoRow::Item ? 1 : 0;
    const bool isOnlyLists = shownRows == 0 && m_model->rowCount() > 0 && shown().kind == Shown::Search;
    m_words->setText(isOnlyLists ? QString() : ToDoWindowLines::titleWords(shown(), counts, shownRows));
    const bool isOverdue = shown().kind == Shown::Today && counts.overdue > 0;
    if (m_overdue && m_overdue->isVisibleTo(this) != isOverdue) {
        m_overdue->setVisible(isOverdue);
        foot().rearrange();
    }
}

void ItemsView::showEmptiness()
{
    const bool isEmpty = m_model->rowCount() == 0;
    m_rows->setVisible(!isEmpty);
    m_empty->setVisible(isEmpty);
    m_emptySentence->setText(ToDoWindowLines::emptiness(shown()));
    m_emptyLine->setText(ToDoWindowLines::emptyLine(shown()));
}

/// What was bought before.
void ItemsView::offer(const QString &typed)
{
    const ToDoSheet &sheet = m_desk.lists.sheet();
    const ToDoList *list = sheet.list(listForNew());
    const bool isOffered = list && list->kind == ListKind::Shopping && !typed.trimmed().isEmpty();
    m_entry->setOffers(isOffered ? ToDoActions::offered(sheet, list->id, typed) : QStringList());
}

bool ItemsView::isTemplate() const
{
    const ToDoList *list = m_desk.lists.sheet().list(shown().list);
    return shown().kind == Shown::List && list && list->kind == ListKind::Template;
}

/// The planner has less room for a text than the lists.
void ItemsView::showHint()
{
    const bool isDated = shown().kind == Shown::Today || shown().kind == Shown::Coming;
    const QString hint = isDated && m_entry->text().size() > ToDoWindowLines::plannerRoom
                             ? ToDoWindowLines::tooLong()
                             : QString();
    m_hint->setText(hint);
    m_hint->setVisible(!hint.isEmpty());
}

/// The box of the open note stands in its row.
void ItemsView::placeNote()
{
    const int id = m_model->noteOpened();
    int place = -1;
    for (int row = 0; id > 0 && row < m_model->rowCount(); ++row) {
        if (m_model->rowAt(row).kind == ToDoRow::Note)
            place = row;
    }
    m_note->setVisible(place >= 0);
    if (place < 0)
        return;
    const ToDoSheet &sheet = m_desk.lists.sheet();
    m_note->show(id, sheet.item(sheet.rowOf(id)).note);
    m_note->setReadOnly(!m_desk.lists.whyLocked().isEmpty());
    QRect row = m_grid->visualRect(m_model->index(place, 0));
    row.setRight(m_grid->viewport()->width());
    m_note->setGeometry(row.adjusted(44, 2, -8, -4));
}

void ItemsView::finishEdit()
{
    m_grid->finishEdit();
    m_note->finish();
}

bool ItemsView::make(const ToDoActions::Result &result)
{
    if (!result.isChange() || !m_desk.lists.change(result.title, result.sheet))
        return false;
    choose(result.ids);
    emit done(result.title);
    return true;
}

std::vector<int> ItemsView::chosen() const
{
    return m_grid->chosen();
}

void ItemsView::choose(const std::vector<int> &ids)
{
    m_grid->choose(ids);
}

void ItemsView::typeNew()
{
    m_entry->setFocus();
    m_entry->selectAll();
}

void ItemsView::beginDay()
{
    followLists();
}
