// SPDX-License-Identifier: GPL-3.0-or-later
#include "addressbook/entry/namechoice.h"

#include <numeric>

void NameChoice::offer(const NameList &names, int first, int without)
{
    m_names = names;
    m_first = first;
    m_without = without;
    narrow({});
}

void NameChoice::narrow(const QString &text)
{
    beginResetModel();
    if (text.isEmpty()) {
        m_positions.resize(m_names.count());
        std::iota(m_positions.begin(), m_positions.end(), 0);
    } else {
        m_positions = m_names.bestMatches(text);
    }
    m_positions.removeOne(m_without);
    if (const qsizetype at = m_positions.indexOf(m_first); at > 0 && text.isEmpty())
        m_positions.move(at, 0);
    endResetModel();
}

QString NameChoice::line(int row) const
{
    return row >= 0 && row < m_positions.size() ? m_names.line(m_positions[row]) : QString();
}

int NameChoice::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_positions.size());
}

QVariant NameChoice::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole)
        return {};
    return m_names.name(m_positions[index.row()]);
}
