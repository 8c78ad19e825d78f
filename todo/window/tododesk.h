// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Commands;
class FunctionWindow;
class OpenLists;
class WorkViews;
class Writing;
struct Program;

/// What the parts of the To Do list work with.
struct ToDoDesk {
    Program &program;
    FunctionWindow &window; ///< questions and pages stand over it
    OpenLists &lists;
    Commands &commands;
    WorkViews &views;
    Writing &writing; ///< checks the spelling
};
