// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/systemmemory.h"

#include <QByteArrayList>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

qint64 SystemMemory::available()
{
    QFile file(u"/proc/meminfo"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (QByteArray line = file.readLine(); !line.isEmpty(); line = file.readLine())
        if (line.startsWith("MemAvailable:"))
            return line.simplified().split(' ').value(1).toLongLong() * 1024;
    return 0;
}
