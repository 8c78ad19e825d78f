// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/writingfile.h"

#include "storage/datafolder.h"
#include "storage/saving.h"

#include <QFile>
#include <QFileInfo>

namespace {

/// Nobody has that many words of their own; what is larger is not read.
constexpr qint64 mostBytes = 16 << 20;

} // namespace

WritingFile WritingFile::decode(const QByteArray &bytes, const QByteArray &kind)
{
    const QByteArray ours = kind + " 1";
    QList<QByteArray> lines = bytes.split('\n');
    for (QByteArray &line : lines) {
        if (line.endsWith('\r'))
            line.chop(1);
    }
    const QByteArray first = lines.takeFirst();
    if (lines.isEmpty() && first != ours && ours.startsWith(first))
        return {State::Missing, {}};
    lines.removeAll(QByteArray());
    if (first == ours)
        return {State::Ours, lines};
    bool isVersion = false;
    const QByteArray begin = kind + " ";
    const int version = first.startsWith(begin) ? first.sliced(begin.size()).toInt(&isVersion) : 0;
    return isVersion && version > 1 ? WritingFile{State::Later, lines} : WritingFile{State::Foreign, {}};
}

WritingFile WritingFile::read(const DataFolder &folder, const QString &name, const QByteArray &kind)
{
    QFile file(folder.filePath(name));
    if (!file.exists())
        return {};
    if (file.size() > mostBytes || QFileInfo(file).isDir() || !file.open(QIODevice::ReadOnly))
        return {State::Foreign, {}};
    return decode(file.read(mostBytes), kind);
}

bool WritingFile::write(const DataFolder &folder, const QString &name, const QByteArray &kind,
                        const QList<QByteArray> &lines)
{
    QByteArray content = kind + " 1\r\n";
    for (const QByteArray &line : lines)
        content += line + "\r\n";
    return Saving::replaceFile(folder, name, content);
}
