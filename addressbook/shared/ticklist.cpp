// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/shared/ticklist.h"

#include "addressbook/model/addressviewer.h"
#include "addressbook/model/viewerlines.h"
#include "shell/controls/controls.h"
#include "shell/controls/linkbutton.h"
#include "shell/controls/listrowdelegate.h"

#include <QHBoxLayout>
#include <QListView>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastRows = 3;

} // namespace

void TickedNames::list(const AddressViewer &viewer)
{
    beginResetModel();
    m_names.clear();
    m_names.reserve(std::size_t(viewer.count()));
    for (int row = 0; row < viewer.count(); ++row)
        m_names.push_back({viewer.name(row), viewer.line(row)});
    endResetModel();
    emit ticksChanged();
}

void TickedNames::tickAll(bool isTicked)
{
    m_isUsual = isTicked;
    m_others.clear();
    changeAll();
}

void TickedNames::tickOnly(int line)
{
    m_isUsual = false;
    m_others = {line};
    changeAll();
}

void TickedNames::changeAll()
{
    if (!m_names.empty())
        emit dataChanged(index(0), index(rowCount() - 1), {Qt::CheckStateRole});
    emit ticksChanged();
}

int TickedNames::tickedCount() const
{
    return int(std::ranges::count_if(m_names, [this](const Name &name) { return isTicked(name.line); }));
}

int TickedNames::firstTicked() const
{
    const auto found =
        std::ranges::find_if(m_names, [this](const Name &name) { return isTicked(name.line); });
    return found == m_names.end() ? -1 : int(found - m_names.begin());
}

int TickedNames::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_names.size());
}

QVariant TickedNames::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Name &name = m_names[std::size_t(index.row())];
    if (role == Qt::DisplayRole)
        return name.text;
    if (role == Qt::CheckStateRole)
        return isTicked(name.line) ? Qt::Checked : Qt::Unchecked;
    return {};
}

bool TickedNames::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    const int line = m_names[std::size_t(index.row())].line;
    if ((value.toInt() == Qt::Checked) == m_isUsual)
        m_others.remove(line);
    else
        m_others.insert(line);
    emit dataChanged(index, index, {Qt::CheckStateRole});
    emit ticksChanged();
    return true;
}

Qt::ItemFlags TickedNames::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable
                           : Qt::NoItemFlags;
}

TickList::TickList(QWidget *parent)
    : QWidget(parent)
    , m_names(new TickedNames(this))
    , m_view(named(new QListView(this), u"labelNames"_s))
    , m_count(makeFieldLabel({}, m_view, this))
{
    m_count->setObjectName(u"tickedCount"_s);
    m_view->setModel(m_names);
    m_view->setAccessibleName(u"Names to print"_s);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    setListRows(m_view);
    m_view->setMinimumHeight(leastRows * ListRowDelegate::rowHeight());
    auto *all = new LinkButton(u"tickAll"_s, u"&All"_s, this);
    auto *none = new LinkButton(u"tickNone"_s, u"&None"_s, this);
    all->setToolTip(u"Tick all names"_s);
    none->setToolTip(u"Tick none of the names"_s);
    auto *head = new QHBoxLayout;
    head->setSpacing(12);
    head->addWidget(m_count, 1);
    head->addWidget(all);
    head->addWidget(none);
    auto *rows = new QVBoxLayout(this);
    rows->setContentsMargins({});
    rows->setSpacing(4);
    rows->addLayout(head);
    rows->addWidget(m_view, 1);
    connect(all, &LinkButton::clicked, this, [this] { m_names->tickAll(true); });
    connect(none, &LinkButton::clicked, this, [this] { m_names->tickAll(false); });
    connect(m_names, &TickedNames::ticksChanged, this, &TickList::refresh);
    refresh();
}

void TickList::showTicked()
{
    if (const int row = m_names->firstTicked(); row >= 0)
        m_view->setCurrentIndex(m_names->index(row));
}

void TickList::refresh()
{
    m_count->setText(ViewerLines::ticked(m_names->tickedCount(), m_names->rowCount()));
}
