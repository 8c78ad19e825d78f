// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The mouse pointer of the whole program.
namespace Hourglass {

/// Switch it. "On" twice is still one hourglass; "off" always ends it.
void on();
void off();

} // namespace Hourglass

/// The hourglass for as long as it lives.
class BusyCursor
{
public:
    BusyCursor() { Hourglass::on(); }
    ~BusyCursor() { Hourglass::off(); }
    BusyCursor(const BusyCursor &) = delete;
    BusyCursor &operator=(const BusyCursor &) = delete;
};
