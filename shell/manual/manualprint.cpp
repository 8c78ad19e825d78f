// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/manual/manualprint.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

Page printedManualPage(const ManualPage &manualPage, const PageContext &context)
{
    static const QRegularExpression block(u"<(ol|ul)>|<(h2|p|li)>(.*?)</\\2>"_s,
                                          QRegularExpression::DotMatchesEverythingOption);
    Page page(manualPage.title);
    int number = 0; // of the next item; 0 in a list without numbers
    for (auto blocks = block.globalMatch(manualPage.html); blocks.hasNext();) {
        const QRegularExpressionMatch found = blocks.next();
        if (const QString list = found.captured(1); !list.isEmpty()) {
            number = list == "ol"_L1 ? 1 : 0;
            continue;
        }
        const QString text = Manual::plainText(found.captured(3));
        if (found.captured(2) == "h2"_L1)
            page.blankLine().line(text, TextRole::Heading);
        else if (found.captured(2) == "p"_L1)
            page.line(text);
        else if (number > 0)
            page.line(u"%1.  %2"_s.arg(QString::number(number++), text));
        else
            page.line(u"\u2022  "_s + text);
    }
    return page.close(context.today, context.style);
}
