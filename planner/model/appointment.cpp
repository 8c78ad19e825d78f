// SPDX-License-Identifier: GPL-3.0-or-later
#include "planner/model/appointment.h"

#include "planner/model/plannerday.h"
#include "storage/ansitext.h"

namespace {

/// `text` as a row of this width gives it back after a save.
QString asStored(const QString &text, qsizetype width)
{
    const QByteArray field = AnsiText::field(AnsiText::trimmedBlanks(text), width);
    return AnsiText::trimmedBlanks(AnsiText::fieldText(field)).toString();
}

} // namespace

Appointment Appointment::ofRow(const QString &time, const QString &text)
{
    return {asStored(time, PlannerDay::timeWidth), asStored(text, PlannerDay::textWidth)};
}
