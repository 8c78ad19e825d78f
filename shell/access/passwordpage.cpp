// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/passwordpage.h"

#include "shell/access/guardedareas.h"

using namespace Qt::Literals::StringLiterals;

Page passwordPage(bool isPasswordSet, const ProtectedAreas &areas, const PageContext &context)
{
    Page page(u"Password Control"_s);
    page.line(isPasswordSet ? u"A password is set."_s
                            : u"No password is set: every function opens without asking."_s);
    page.blankLine();
    page.columns({3.0, 1.0}, {u"Function"_s, u"Password"_s});
    for (int area = 0; area < ProtectedAreas::count; ++area) {
        if (GuardedAreas::isOfThisEdition(area))
            page.row({GuardedAreas::name(area), areas.isProtected(area) ? u"asked"_s : u"not asked"_s});
    }
    return page.close(context.today, context.style);
}
