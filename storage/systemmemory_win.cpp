// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/systemmemory.h"

#include <qt_windows.h>

qint64 SystemMemory::available()
{
    MEMORYSTATUSEX status{};
    status.dwLength = sizeof status;
    return GlobalMemoryStatusEx(&status) ? qint64(status.ullAvailPhys) : 0;
}
