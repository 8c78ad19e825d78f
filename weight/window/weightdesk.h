// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Commands;
class DateCheck;
class FunctionWindow;
class OpenPerson;
class WorkViews;
struct Program;

/// What the views of a person work with.
struct WeightDesk {
    Program &program;
    FunctionWindow &window; ///< questions and pages stand over it
    OpenPerson &person;
    DateCheck &dateCheck;
    Commands &commands;
    WorkViews &views;
};
