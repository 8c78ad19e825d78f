// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class Commands;
class FunctionWindow;
class OpenCar;
class WorkViews;
struct Program;

/// What the views of a car work with.
struct CarDesk {
    Program &program;
    FunctionWindow &window; ///< questions and pages stand over it
    OpenCar &car;
    Commands &commands;
    WorkViews &views;
};
