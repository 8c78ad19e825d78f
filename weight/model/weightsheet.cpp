// SPDX-License-Identifier: GPL-3.0-or-later
#include "weight/model/weightsheet.h"

#include "weight/model/weightnumbers.h"

using namespace Qt::Literals::StringLiterals;

QString WeightSheet::shownComments() const
{
    QString shown = comments;
    return shown.replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n');
}

void WeightSheet::setShownComments(const QString &shown)
{
    if (shown == shownComments())
        return;
    comments = shown;
    comments.replace("\r\n"_L1, "\n"_L1).replace(u'\n', "\r\n"_L1);
}

std::optional<float> WeightSheet::beginningWeight() const
{
    return WeightNumbers::number(field(BeginningWeight));
}

std::optional<float> WeightSheet::goalWeight() const
{
    return WeightNumbers::number(field(GoalWeight));
}
