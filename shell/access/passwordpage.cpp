// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/passwordpage.h"

#include "shell/access/guardedareas.h"
#include "shell/access/passwordmessages.h"

using namespace Qt::Literals::StringLiterals;

Page passwordPage(bool isPasswordSet, const ProtectedAreas &areas, const QSet<int> &sealed,
                  const PageContext &context)
{
    Page page(u"Password Control"_s);
    page.line(isPasswordSet ? u"A password is set."_s
                            : u"No password is set: every function opens without asking."_s);
    page.blankLine();
    page.columns({3.2, 1.2, 4.6}, {u"Function"_s, u"Password"_s, u"What it does"_s});
    for (int area = 0; area < ProtectedAreas::count; ++area) {
        if (!GuardedAreas::isOfThisEdition(area))
            continue;
        const QString way = GuardedAreas::openWay(area, areas);
        const QString level = GuardedAreas::level(area, sealed);
        page.row({GuardedAreas::name(area), areas.isProtected(area) ? u"asked"_s : u"not asked"_s,
                  way.isEmpty() ? level : PasswordMessages::stillOpens(level, way)});
    }
    return page.close(context.today, context.style);
}
