// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What each system wants of a program that starts.
namespace Startup {

/// Before the application is made: asks for a dark look on a dark desktop, where the system gives it to those
/// alone that ask.
void prepare();

/// After the application is made: lets a library that asks the system's locale for the letters of a file's
/// name read all of them, also where the user's locale is not installed here or has none beyond ASCII.
void readAllLetters();

/// Passes the right to come to the front, which the user's click has given to this start, on to the program
/// that it calls.
void letOtherComeToFront();

} // namespace Startup
