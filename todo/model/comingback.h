// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "todo/model/todosheet.h"

#include <QSet>

/// Which open items came back by themselves and are not shown yet: on the day when the one before was ticked,
/// and more than a week ahead of their date.
class ComingBack
{
public:
    ComingBack(const ToDoSheet &sheet, QDate today);

    bool isLater(int row) const;

private:
    const ToDoSheet &m_sheet;
    QDate m_today;
    QSet<QByteArray> m_done; ///< repeating items that were done before today
    QSet<QByteArray> m_doneToday;
};

/// Who takes turns in "Anne > Nils > Karin".
namespace Turns {

/// Whose turn it is: "Anne".
QString current(QStringView who);
/// When the thing comes back: "Nils > Karin > Anne".
QString next(QStringView who);

} // namespace Turns
