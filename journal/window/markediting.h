// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QTextCursor;

/// What keys and commands do to the light marks of a text.
namespace MarkEditing {

/// Puts `sign`, "**" or "*", around what is chosen or the word at the cursor, and takes it away where it
/// stands around all of it. Where there is no word it is set up for what will be typed. One step to undo.
void toggle(QTextCursor &cursor, const QString &sign);

/// Begins the chosen lines with `lead`, "# " or "- "; where all of them do so already, none does any more.
void toggleLead(QTextCursor &cursor, const QString &lead);

/// Whether the cursor stands in a line that `goOn` is for.
bool mayGoOn(const QTextCursor &cursor);
/// What Enter does in a list: the next line is one of it, too; in a line without a text the list ends.
void goOn(QTextCursor &cursor);

/// Moves the chosen lines of a list by a step to the right, or to the left where `steps` is negative. False
/// where there is none.
bool indent(QTextCursor &cursor, int steps);

/// A text from elsewhere as one that is typed here.
QString cleaned(QString text);

} // namespace MarkEditing
