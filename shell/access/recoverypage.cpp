// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/recoverypage.h"

using namespace Qt::Literals::StringLiterals;

Page recoveryPage(const QString &code, const PageContext &context)
{
    Page page(u"Password Control"_s);
    page.line(u"Recovery code"_s, TextRole::Strong);
    page.blankLine();
    page.line(code, TextRole::Heading);
    page.blankLine();
    page.line(
        u"Where the password is forgotten, this code leads to a new one: type any wrong password, choose "
        u"\"Recovery Code\", and type these letters and digits. Capital letters, blanks and dashes do "
        u"not matter."_s);
    page.blankLine();
    page.line(u"It opens nothing else, and ends when it was used, when another code is made, or when the "
              u"password is removed. Keep this sheet away from the computer, and shred older ones."_s);
    return page.close(context.today, context.style);
}
