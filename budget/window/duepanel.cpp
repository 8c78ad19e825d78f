// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/duepanel.h"

#include "budget/window/duemodel.h"
#include "budget/window/spentyear.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/titleline.h"
#include "shell/look/theme.h"
#include "shell/program/program.h"

#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLocale>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What the rows keep free at the edges of a column.
constexpr int inset = 8;

} // namespace

DuePanel::DuePanel(const Program &program, SpentYear &year, QWidget *parent)
    : TaskPanel(u"duePanel"_s, u"What Is Due"_s, parent)
    , m_year(year)
    , m_model(new DueModel(year, program.clock.today(), this))
    , m_months(named(new QComboBox, u"dueMonth"_s))
    , m_view(named(new QTableView(this), u"dueList"_s))
{
    for (int month = 1; month <= 12; ++month)
        m_months->addItem(QLocale::c().monthName(month));
    m_months->setMaxVisibleItems(12);
    m_months->setAccessibleName(u"Month"_s);
    titleLine().addAtRight(m_months);
    m_view->setModel(m_model);
    setGridRows(m_view);
    m_view->setAccessibleName(u"Items and their due days"_s);
    m_view->setEditTriggers(QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed |
                            QAbstractItemView::DoubleClicked);
    const QFontMetrics body(TypeScale::body());
    m_view->setColumnWidth(DueModel::DueDay, body.horizontalAdvance(u"Due day"_s) + 6 * inset);
    for (const int column : {DueModel::Planned, DueModel::Spent})
        m_view->setColumnWidth(column, body.horizontalAdvance(u"-99999.99"_s) + 4 * inset);
    m_view->installEventFilter(this);
    setFocusProxy(m_view);
    auto *work = new QWidget(this);
    auto *rows = new QVBoxLayout(work);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(12);
    QLabel *hint = makeQuietLabel(
        u"Type a due day; Space ticks what is paid and adds what is missing of the plan"_s, work);
    hint->setWordWrap(true);
    rows->addWidget(hint);
    rows->addWidget(new WholeRows(m_view), 1);
    setWork(work);
    setLeaveButton(u"dueClose"_s, u"C&lose"_s, ButtonKind::Main);
    connect(m_months, &QComboBox::currentIndexChanged, m_model, &DueModel::setMonth);
    connect(m_model, &DueModel::said, this, &DuePanel::said);
}

void DuePanel::open(int month, int row)
{
    setTitle(u"What Is Due, "_s + QString::number(m_year.year()));
    // The column of the items is as wide as they are, within reason.
    const QFontMetrics body(TypeScale::body());
    const QAbstractItemView &list = *m_view;
    m_view->setColumnWidth(DueModel::Item,
                           std::clamp(list.sizeHintForColumn(DueModel::Item) + inset,
                                      body.horizontalAdvance(u"Building work and much more"_s) + 4 * inset,
                                      body.horizontalAdvance(QString(48, u'n'))));
    m_months->setCurrentIndex(month);
    m_model->setMonth(month);
    int line = 0;
    for (int other = 0; other < m_model->rowCount(); ++other)
        line = m_model->sheetRow(other) <= row ? other : line;
    if (m_model->rowCount() > 0)
        m_view->setCurrentIndex(m_model->index(line, DueModel::DueDay));
}

bool DuePanel::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view && event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->key() == Qt::Key_Space && m_view->currentIndex().isValid()) {
            m_model->toggle(m_view->currentIndex().row());
            return true;
        }
        // A due day is typed and deleted wherever in the row the focus is.
        if (m_view->currentIndex().isValid() && !key->text().isEmpty() && key->text().front().isDigit())
            m_view->setCurrentIndex(m_view->currentIndex().siblingAtColumn(DueModel::DueDay));
        if (key->key() == Qt::Key_Delete && m_view->currentIndex().isValid()) {
            m_model->setData(m_view->currentIndex().siblingAtColumn(DueModel::DueDay), QString());
            return true;
        }
    }
    return TaskPanel::eventFilter(watched, event);
}
