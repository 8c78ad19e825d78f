// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/window/personpane.h"

#include "shell/controls/controls.h"
#include "shell/controls/listrowdelegate.h"
#include "weight/window/windowlines.h"

#include <QListView>
#include <QStringListModel>
#include <QVBoxLayout>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int leastWidth = 180;
} // namespace

PersonPane::PersonPane(GuardedChoice::Guard guard, QWidget *parent)
    : QWidget(parent)
    , m_model(new QStringListModel(this))
    , m_view(named(new QListView(this), u"Combo1"_s))
    , m_count(named(makeQuietLabel({}, this), u"personCount"_s))
    , m_rows(new QVBoxLayout(this))
{
    m_view->setModel(m_model);
    setListRows(m_view);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setAccessibleName(u"Select Individual"_s);
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(12);
    auto *list = new QVBoxLayout;
    list->setSpacing(3);
    list->addWidget(makeFieldLabel(u"Select Individual:"_s, m_view, this));
    list->addWidget(new WholeRows(m_view, m_count, this), 1);
    m_rows->addLayout(list, 1);
    setMinimumWidth(leastWidth);
    setFocusProxy(m_view);
    m_choice = new GuardedChoice(m_view, Qt::DisplayRole, std::move(guard));
    connect(m_choice, &GuardedChoice::chosen, this,
            [this](const QVariant &name) { emit chosen(name.toString()); });
    connect(m_view, &QAbstractItemView::clicked, this, &PersonPane::entered);
    connect(m_view, &QAbstractItemView::activated, this, &PersonPane::entered);
}

QStringList PersonPane::names() const
{
    return m_model->stringList();
}

void PersonPane::setNames(const QStringList &names)
{
    m_choice->changeRows([&] { m_model->setStringList(names); });
    m_count->setText(TrackerLines::countOfPersons(names.size()));
}

void PersonPane::show(const QString &name)
{
    m_choice->show(name);
}

void PersonPane::addButton(QPushButton *button)
{
    m_rows->addWidget(button);
}
