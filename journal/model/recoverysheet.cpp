// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/recoverysheet.h"

#include "shell/core/dates.h"

using namespace Qt::Literals::StringLiterals;

Page journalRecoverySheet(const QString &code, const PageContext &context)
{
    Page page(u"Daily Journal"_s);
    page.line(u"Recovery code of "_s + Dates::monthDayYear(context.today, context.style), TextRole::Strong);
    page.blankLine();
    page.line(code, TextRole::Heading);
    page.blankLine();
    page.line(
        u"It opens the sealed journal of this household where its password is forgotten: choose "
        u"\"Use the recovery code\" and type these letters and digits. Capital letters, blanks and dashes "
        u"do not matter."_s);
    page.blankLine();
    page.line(u"Without the password and without this code nobody can open the journal. Keep the sheet away "
              u"from the computer, and shred older ones."_s);
    return page.close(context.today, context.style);
}
