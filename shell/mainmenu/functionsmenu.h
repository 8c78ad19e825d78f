// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Commands;
class FunctionOpener;
class QMenu;
struct Program;

/// Fills the menu "Program Functions": an entry for each function, disabled where it is not built in.
/// `opener` must outlive the menu.
void fillFunctionsMenu(QMenu &menu, Commands &commands, const Program &program, const FunctionOpener &opener);
