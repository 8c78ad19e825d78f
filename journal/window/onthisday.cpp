// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/onthisday.h"

#include "journal/model/journal.h"
#include "journal/model/journalwords.h"
#include "journal/window/windowlines.h"
#include "shell/controls/controls.h"
#include "shell/controls/enterkey.h"
#include "shell/controls/listrowdelegate.h"
#include "shell/controls/twolinedelegate.h"
#include "shell/core/dates.h"
#include "shell/program/program.h"

#include <QCheckBox>
#include <QListView>
#include <QSettings>
#include <QShortcut>
#include <QStandardItemModel>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString aroundKey = QStringLiteral("Windows/DJournal/daysAround");
constexpr int daysAround = 3;

} // namespace

OnThisDay::OnThisDay(const Program &program, Journal &journal, QWidget *parent)
    : QWidget(parent)
    , m_program(program)
    , m_journal(journal)
    , m_rows(new QStandardItemModel(this))
    , m_list(named(new QListView, u"onThisDay"_s))
    , m_whole(new WholeRows(m_list, nullptr, this))
    , m_nothing(makeQuietLabel(JournalWindowLines::nothingOnThisDay(), this))
    , m_around(named(new QCheckBox(JournalWindowLines::nearbyDays(), this), u"daysAround"_s))
{
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->setSpacing(6);
    auto *head = new QHBoxLayout;
    head->addWidget(makeHeading(u"On This Day"_s, this), 1);
    head->addWidget(m_around);
    rows->addLayout(head);
    rows->addWidget(m_nothing);
    rows->addWidget(m_whole);
    rows->addStretch(0);
    m_nothing->setWordWrap(true);
    setTabOrder(m_around, m_list);
    m_list->setModel(m_rows);
    setListRows(m_list);
    m_list->setItemDelegate(new TwoLineDelegate(m_list));
    m_list->setAccessibleName(u"On this day"_s);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_around->setToolTip(JournalWindowLines::nearbyDaysToo());
    m_around->setChecked(program.store.value(aroundKey).toBool());
    connect(m_around, &QCheckBox::toggled, this, [this](bool isOn) {
        m_program.store.setValue(aroundKey, isOn);
        refresh();
        emit refreshed();
    });
    connect(m_list, &QListView::clicked, this, &OnThisDay::open);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto *opens = new QShortcut(key, m_list);
        opens->setContext(Qt::WidgetShortcut);
        connect(opens, &QShortcut::activated, m_list, [this] { open(m_list->currentIndex()); });
    }
}

void OnThisDay::setDate(QDate date)
{
    m_date = date;
    refresh();
}

void OnThisDay::refresh()
{
    const QModelIndex before = m_list->currentIndex();
    const QDate current = before.isValid() ? before.data(TwoLineDelegate::keyRole).toDate() : QDate();
    m_rows->clear();
    const QList<QDate> dates = m_date.isValid()
                                   ? m_journal.onThisDay(m_date, m_around->isChecked() ? daysAround : 0)
                                   : QList<QDate>();
    for (const QDate date : dates) {
        const auto entry = m_journal.entry(date);
        if (!entry)
            continue;
        const bool isSame = date.month() == m_date.month() && date.day() == m_date.day();
        const QString day =
            isSame ? QString::number(date.year()) : Dates::shortWithYear(date, m_program.state.dateStyle);
        const int years = m_date.year() - date.year();
        const QString title = years == 0 ? day : QString(day + u", "_s + JournalWindowLines::yearsAgo(years));
        auto *row = new QStandardItem(title);
        row->setData(date, TwoLineDelegate::keyRole);
        row->setData(JournalWords::firstLine(entry->text), TwoLineDelegate::wordsRole);
        row->setData(QString(title + u". "_s + JournalWords::firstLine(entry->text)), Qt::AccessibleTextRole);
        m_rows->appendRow(row);
        if (date == current)
            m_list->setCurrentIndex(row->index());
    }
    m_nothing->setVisible(m_rows->rowCount() == 0);
    m_whole->setVisible(m_rows->rowCount() > 0);
}

int OnThisDay::count() const
{
    return m_rows->rowCount();
}

int OnThisDay::headHeight() const
{
    return minimumSizeHint().height() - (m_whole->isHidden() ? 0 : m_whole->minimumHeight());
}

int OnThisDay::rowsHeight(int rows) const
{
    return count() > 0 ? rows * m_list->sizeHintForRow(0) + 2 * m_list->frameWidth() : 0;
}

void OnThisDay::showRows(int rows)
{
    if (count() > 0)
        m_whole->setFixedHeight(rowsHeight(rows));
}

void OnThisDay::open(const QModelIndex &index)
{
    if (index.isValid())
        emit dateChosen(index.data(TwoLineDelegate::keyRole).toDate());
}

void OnThisDay::forget()
{
    m_date = {};
    m_rows->clear();
    m_nothing->hide();
    m_whole->hide();
}
