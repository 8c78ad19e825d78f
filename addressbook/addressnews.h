#pragma once

#include "shell/liveline.h"
#include "shell/programstate.h"

#include <QDate>

#include <optional>

class DataFolder;

/// What the address book has to say on the main menu.
namespace AddressNews {

/// The birthdays and anniversaries of the next seven days ("Anne Lind: birthday Tuesday", "2 birthdays this
/// week"), else the next one within thirty days; nothing when none is near. `today` counts as near.
std::optional<LiveLine> liveLine(const DataFolder &folder, DateStyle style, QDate today);

} // namespace AddressNews
