// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/sumsfile.h"

QByteArray SumsFile::line(const QByteArray &hash, const QString &path)
{
    QByteArray name = path.toUtf8();
    // A line that begins with a backslash has a name that is written in another way.
    const bool isOdd = name.contains('\\') || name.contains('\n') || name.contains('\r');
    if (isOdd)
        name.replace('\\', "\\\\").replace('\n', "\\n").replace('\r', "\\r");
    return (isOdd ? "\\" : "") + hash.toHex() + "  " + name + '\n';
}
