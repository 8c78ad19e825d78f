// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/tabline.h"

/// The first line of the lists' file, which says what it is.
namespace ToDoHead {

inline constexpr QByteArrayView firstLine = "Quillery To Do 1";

inline TabLine::Form formOf(QByteArrayView file)
{
    return TabLine::formOf(file, firstLine);
}

} // namespace ToDoHead
