// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "todo/model/todosheet.h"

#include <vector>

/// Which open items came back by themselves and are not shown yet: on the day when the one before was ticked,
/// and more than a week ahead of their date. Their steps are not shown either.
class ComingBack
{
public:
    ComingBack(const ToDoSheet &sheet, QDate today);

    bool isLater(int row) const { return m_isLater[std::size_t(row)]; }

private:
    std::vector<bool> m_isLater;
};

/// Who takes turns in "Anne > Nils > Karin".
namespace Turns {

/// Whose turn it is: "Anne".
QString current(QStringView who);
/// When the thing comes back: "Nils > Karin > Anne".
QString next(QStringView who);

} // namespace Turns
