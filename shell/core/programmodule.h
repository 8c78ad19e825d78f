// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFunctionPointer>
#include <QString>

/// Parts of the program that lie in libraries of their own, so that what they bring along is loaded where it
/// is used, and not with the program: in `modules` beside it, or where the system installed them.
namespace ProgramModule {

/// The function `symbol` of the module `name`, which is loaded when it is first asked for and stays. Null
/// where there is no such module; may be called on any thread.
QFunctionPointer function(const QString &name, const char *symbol);

} // namespace ProgramModule
