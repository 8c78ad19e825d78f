// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "todo/model/todoitem.h"

#include <vector>

/// The templates that come with the program: before a trip, guests, spring cleaning, winter check, tax
/// papers, shopping.
namespace Templates {

struct Template {
    ListKind kind = ListKind::Plain; ///< of the list that is made from it
    QString name;
    std::vector<ToDoItem> items;
};

const std::vector<Template> &all();

} // namespace Templates
