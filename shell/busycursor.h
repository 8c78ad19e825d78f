#pragma once

#include "shell/hinfo1.h"

/// The hourglass for as long as it lives.
class BusyCursor
{
public:
    BusyCursor() { HINFO1::hourglassOn(); }
    ~BusyCursor() { HINFO1::hourglassOff(); }
    BusyCursor(const BusyCursor &) = delete;
    BusyCursor &operator=(const BusyCursor &) = delete;
};
