// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget/window/importmodel.h"

#include "shell/core/dates.h"

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

QString whatBecomesOf(const BankLine &line)
{
    switch (line.state) {
    case BankLine::Ready:
        return line.isChosen ? u"Will be taken"_s : u"Left out"_s;
    case BankLine::NoItem:
        return u"No item yet"_s;
    case BankLine::Duplicate:
        return line.isChosen ? u"Will be taken again"_s : u"Is there already"_s;
    case BankLine::Incoming:
        return u"Came in"_s;
    case BankLine::OtherYear:
        return u"Of "_s + QString::number(line.date.year());
    case BankLine::NotRead:
        return u"Not read: "_s + line.problem;
    }
    Q_UNREACHABLE();
}

} // namespace

ImportModel::ImportModel(DateStyle style, QObject *parent)
    : QAbstractTableModel(parent)
    , m_style(style)
{}

void ImportModel::show(BankImport *import)
{
    beginResetModel();
    m_import = import;
    m_shown.clear();
    const std::size_t count = import ? import->lines().size() : 0;
    for (std::size_t line = 0; line < count; ++line) {
        if (isShown(import->lines()[line]))
            m_shown.push_back(line);
    }
    endResetModel();
}

void ImportModel::setFilter(Filter filter)
{
    m_filter = filter;
    show(m_import);
}

bool ImportModel::isShown(const BankLine &line) const
{
    switch (m_filter) {
    case Filter::All:
        return true;
    case Filter::Chosen:
        return line.isChosen;
    case Filter::NoItem:
        return line.state == BankLine::NoItem;
    case Filter::Duplicate:
        return line.state == BankLine::Duplicate;
    case Filter::NoSpending:
        return line.state == BankLine::Incoming || line.state == BankLine::OtherYear;
    case Filter::NotRead:
        return line.state == BankLine::NotRead;
    }
    Q_UNREACHABLE();
}

int ImportModel::firstWithoutItem() const
{
    const auto found = std::ranges::find_if(
        m_shown, [this](std::size_t line) { return m_import->lines()[line].state == BankLine::NoItem; });
    return found == m_shown.end() ? 0 : int(found - m_shown.begin());
}

void ImportModel::setItem(int row, const QString &item)
{
    m_import->setItem(line(row), item);
    emit dataChanged(index(row, 0), index(row, What));
    emit chosenChanged();
}

void ImportModel::toggle(int row)
{
    m_import->setChosen(line(row), !m_import->lines()[line(row)].isChosen);
    emit dataChanged(index(row, 0), index(row, What));
    emit chosenChanged();
}

int ImportModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

int ImportModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : What + 1;
}

QString ImportModel::text(const BankLine &line, int column) const
{
    const bool isRead = line.state != BankLine::NotRead;
    switch (column) {
    case Number:
        return QString::number(line.number);
    case Date:
        return isRead ? Dates::numbers(line.date, m_style) : QString();
    case Amount:
        return isRead ? centsText(std::abs(line.cents)) : QString();
    case Text:
        return line.text;
    case Item:
        // What does not count belongs to nothing, whatever the rules say of its text.
        return line.state == BankLine::Incoming || line.state == BankLine::OtherYear ? QString() : line.item;
    default:
        return whatBecomesOf(line);
    }
}

QVariant ImportModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const BankLine &of = m_import->lines()[line(index.row())];
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (index.column() == Amount ? Qt::AlignRight : Qt::AlignLeft));
    if (role == Qt::CheckStateRole && flags(index).testFlag(Qt::ItemIsUserCheckable))
        return of.isChosen ? Qt::Checked : Qt::Unchecked;
    return role == Qt::DisplayRole || role == Qt::ToolTipRole ? text(of, index.column()) : QVariant();
}

QVariant ImportModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue(Qt::AlignVCenter | (section == Amount ? Qt::AlignRight : Qt::AlignLeft));
    static const QStringList headings{u"Line"_s, u"Date"_s, u"Amount"_s,
                                      u"Text"_s, u"Item"_s, u"What becomes of it"_s};
    return role == Qt::DisplayRole ? headings.value(section) : QVariant();
}

/// A line can be ticked when it is spending and has an item.
Qt::ItemFlags ImportModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (!index.isValid() || index.column() != Number)
        return flags;
    const BankLine &of = m_import->lines()[line(index.row())];
    const bool isPossible =
        !of.item.isEmpty() && (of.state == BankLine::Ready || of.state == BankLine::Duplicate);
    return isPossible ? flags | Qt::ItemIsUserCheckable : flags;
}

bool ImportModel::setData(const QModelIndex &index, const QVariant &, int role)
{
    if (role != Qt::CheckStateRole || !flags(index).testFlag(Qt::ItemIsUserCheckable))
        return false;
    toggle(index.row());
    return true;
}
