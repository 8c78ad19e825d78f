// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/programstate.h"

#include "storage/ansitext.h"

using namespace Qt::Literals::StringLiterals;

QString FamilyName::caption() const
{
    return m_name.isEmpty() ? u"Quillery"_s : m_name + " Quillery"_L1;
}

bool ProtectedAreas::isProtected(int area) const
{
    return area >= 0 && area < count && AnsiText::trimmedBlanksRight(flag(area)) == "YES"_L1;
}

bool ProtectedAreas::isAnyProtected() const
{
    for (int area = 0; area < count; ++area) {
        if (isProtected(area))
            return true;
    }
    return false;
}
