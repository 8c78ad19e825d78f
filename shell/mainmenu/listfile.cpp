// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/mainmenu/listfile.h"

#include "storage/ansitext.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace {

/// More than any line of such a file holds: keeps a damaged one from being read into one line.
constexpr qint64 longestLine = 4096;

QStringView withoutLineEnd(QStringView line)
{
    while (line.endsWith(u'\n') || line.endsWith(u'\r') || line.endsWith(QChar(26)))
        line.chop(1);
    return line;
}

QStringView withoutLeadingBlanks(QStringView text)
{
    while (text.startsWith(u' '))
        text = text.sliced(1);
    return text;
}

} // namespace

bool ListFile::isUsable(QStringView line)
{
    return !line.isEmpty() && withoutLeadingBlanks(line.left(2)) != "N*"_L1;
}

bool ListFile::hasUsableLine(const QString &path)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return false;
    while (!file.atEnd()) {
        const QByteArray bytes = file.readLine(longestLine);
        if (bytes.isEmpty())
            return false; // a folder, or a disk that fails
        if (isUsable(withoutLineEnd(AnsiText::decode(bytes))))
            return true;
    }
    return false;
}
