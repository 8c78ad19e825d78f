// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/trashpanel.h"

#include "shell/controls/rowsmodel.h"
#include "shell/controls/tablework.h"
#include "shell/core/dates.h"
#include "shell/core/framelines.h"
#include "shell/look/theme.h"

#include <QLocale>
#include <QTableView>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

enum Column { When, What };

/// What the rows keep free at the edges of a column.
constexpr int inset = 8;

std::vector<TableColumn<Trash::Item>> trashColumns(const DateStyle &style)
{
    return {{u"Deleted"_s, Qt::AlignLeft,
             [&style](const Trash::Item &item) {
                 return QString(Dates::statusText(item.deleted.date(), style) + u"  "_s +
                                QLocale::c().toString(item.deleted.time(), u"h:mm AP"_s));
             }},
            {u"What"_s, Qt::AlignLeft, &Trash::Item::title}};
}

} // namespace

TrashPanel::TrashPanel(const DateStyle &style, QWidget *parent)
    : TaskPanel(u"trashPanel"_s, u"Bring Back Deleted"_s, parent)
    , m_model(new RowsModel<Trash::Item>(trashColumns(style), this))
    , m_words(named(makeQuietLabel({}, this), u"trashWords"_s))
    , m_view(named(new QTableView(this), u"trashList"_s))
    , m_bringBack(nullptr)
{
    m_view->setModel(m_model);
    auto *work = new TableWork(m_words, m_view, u"Deleted in the last 30 days"_s, this);
    const QFontMetrics body(TypeScale::body());
    m_view->setColumnWidth(When, body.horizontalAdvance(u"Wed, 28 Nov 2026  12:58 AM"_s) + 4 * inset);
    setFocusProxy(m_view);
    setWork(work);
    m_bringBack = addButton(u"bringBack"_s, u"&Bring Back"_s, ButtonKind::Main);
    setLeaveButton(u"trashClose"_s, u"C&lose"_s);
    connect(m_bringBack, &QPushButton::clicked, this, &TrashPanel::choose);
    connect(m_view, &QTableView::doubleClicked, this, &TrashPanel::choose);
    connect(work, &TableWork::entered, this, &TrashPanel::choose);
}

void TrashPanel::setItems(std::vector<Trash::Item> items)
{
    const int row = m_view->currentIndex().row();
    m_model->setRows(std::move(items));
    m_words->setText(isEmpty() ? FrameLines::trashIsEmpty() : FrameLines::trashKeeps());
    setUnavailable(m_bringBack, isEmpty() ? FrameLines::trashIsEmpty() : QString());
    m_view->selectRow(std::clamp(row, 0, std::max(0, m_model->rowCount() - 1)));
}

bool TrashPanel::isEmpty() const
{
    return m_model->rowCount() == 0;
}

void TrashPanel::choose()
{
    if (const int row = m_view->currentIndex().row(); row >= 0)
        emit chosen(Trash::Item(m_model->row(row)));
}
