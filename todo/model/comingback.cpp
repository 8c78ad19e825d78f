// SPDX-License-Identifier: GPL-3.0-or-later
#include "todo/model/comingback.h"

#include <QHash>
#include <QSet>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int daysAhead = 7;

/// What an item and its next one have in common.
QByteArray keyOf(const ToDoSheet &sheet, int row)
{
    return QByteArray::number(sheet.listOf(row)) + '\t' + sheet.repeatBytes(row) + '\t' +
           sheet.textBytes(row);
}

QStringList names(QStringView who)
{
    QStringList names;
    for (const QStringView name : who.split(u'>')) {
        if (!name.trimmed().isEmpty())
            names += name.trimmed().toString();
    }
    return names;
}

/// The repeating items that were done, and what that says about the open ones.
class Done
{
public:
    Done(const ToDoSheet &sheet, QDate today)
        : m_sheet(sheet)
        , m_today(today)
    {
        for (int row = 0; row < sheet.rowCount(); ++row) {
            if (!sheet.isDone(row) || sheet.repeatBytes(row).isEmpty())
                continue;
            const QByteArray key = keyOf(sheet, row);
            m_done.insert(key);
            if (sheet.actualOf(row) == today)
                m_doneToday.insert(key);
        }
    }

    bool isEmpty() const { return m_done.isEmpty(); }

    bool isLater(int row) const
    {
        if (!m_sheet.isOpen(row) || m_sheet.repeatBytes(row).isEmpty())
            return false;
        const QByteArray key = keyOf(m_sheet, row);
        const QDate due = m_sheet.dueOf(row);
        const bool isFarAhead = due.isValid() && due > m_today.addDays(daysAhead);
        return (isFarAhead && m_done.contains(key)) ||
               (m_doneToday.contains(key) && (!due.isValid() || due > m_today));
    }

private:
    const ToDoSheet &m_sheet;
    QDate m_today;
    QSet<QByteArray> m_done;
    QSet<QByteArray> m_doneToday;
};

} // namespace

ComingBack::ComingBack(const ToDoSheet &sheet, QDate today)
    : m_isLater(std::size_t(sheet.rowCount()), false)
{
    const Done done(sheet, today);
    QHash<int, bool> isItemLater; // by list
    for (int row = 0; row < sheet.rowCount() && !done.isEmpty(); ++row) {
        bool &isLater = isItemLater[sheet.listOf(row)];
        if (sheet.levelOf(row) != ItemLevel::Step || !sheet.repeatBytes(row).isEmpty())
            isLater = done.isLater(row);
        m_isLater[std::size_t(row)] = isLater;
    }
}

QString Turns::current(QStringView who)
{
    const QStringList all = names(who);
    return all.isEmpty() ? QString() : all.front();
}

QString Turns::next(QStringView who)
{
    QStringList all = names(who);
    if (all.size() < 2)
        return who.toString();
    all.append(all.takeFirst());
    return all.join(u" > "_s);
}
