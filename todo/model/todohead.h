// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/// The first line of the lists' file, which says what it is.
namespace ToDoHead {

enum Form {
    Empty, ///< nothing, or only the beginning of that line
    Known,
    Later,  ///< of a later version of the program
    Foreign ///< anything else
};

inline constexpr QByteArrayView firstLine = "Quillery To Do 1";

Form formOf(QByteArrayView file);

/// The line that `text` begins with, without its line end.
QByteArrayView lineOf(QByteArrayView text);

} // namespace ToDoHead
