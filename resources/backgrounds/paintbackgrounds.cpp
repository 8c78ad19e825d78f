// SPDX-License-Identifier: GPL-3.0-or-later
// Paints the background pictures of the main menu, WP1.jpg to WP16.jpg, when the program is built.
//
//   paintbackgrounds paint PAINTED PROGRAM    paints them into PAINTED and brings PROGRAM up to date
//   paintbackgrounds supply PAINTED PROGRAM   copies those that PROGRAM lacks
//
// A household may have put a picture of its own under one of these names into the program's folder. It stays:
// a file there is only replaced when it is the one that was painted the last time.

#include "pictures.h"

#include <QBuffer>
#include <QDir>
#include <QSaveFile>

#include <array>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int jpegQuality = 82;

constexpr std::array painters{
    Pictures::morningHills, Pictures::dunes,        Pictures::quietSea,  Pictures::meadow,
    Pictures::birchWood,    Pictures::autumnLeaves, Pictures::snowfield, Pictures::nightSky,
    Pictures::lake,         Pictures::clouds,       Pictures::lavender,  Pictures::reeds,
    Pictures::linen,        Pictures::patchwork,    Pictures::willow,    Pictures::slate,
};

QString fileName(std::size_t picture)
{
    return u"WP%1.jpg"_s.arg(picture + 1);
}

/// The bytes of the file; nothing when it cannot be read.
QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool write(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

QByteArray painted(std::size_t picture)
{
    Canvas canvas(quint32(picture + 1));
    painters[picture](canvas);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    canvas.finished().save(&buffer, "JPG", jpegQuality);
    return bytes;
}

bool paint(std::size_t picture, const QDir &paintedFolder, const QDir &programFolder)
{
    const QString ours = paintedFolder.filePath(fileName(picture));
    const QString theirs = programFolder.filePath(fileName(picture));
    const QByteArray before = contents(ours);
    const QByteArray bytes = painted(picture);
    const bool isTheirOwn = QFile::exists(theirs) && (before.isEmpty() || contents(theirs) != before);
    return write(ours, bytes) && (isTheirOwn || write(theirs, bytes));
}

bool supply(std::size_t picture, const QDir &paintedFolder, const QDir &programFolder)
{
    const QString theirs = programFolder.filePath(fileName(picture));
    if (QFile::exists(theirs))
        return true;
    const QByteArray bytes = contents(paintedFolder.filePath(fileName(picture)));
    return !bytes.isEmpty() && write(theirs, bytes);
}

} // namespace

int main(int count, char *arguments[])
{
    const QByteArray task(count == 4 ? arguments[1] : "");
    if (task != "paint" && task != "supply") {
        std::fputs("usage: paintbackgrounds paint|supply PAINTED PROGRAM\n", stderr);
        return 2;
    }
    const QDir paintedFolder(QFile::decodeName(arguments[2]));
    const QDir programFolder(QFile::decodeName(arguments[3]));
    if (!paintedFolder.mkpath(u"."_s) || !programFolder.mkpath(u"."_s))
        return 1;
    for (std::size_t picture = 0; picture < painters.size(); ++picture)
        if (!(task == "paint" ? paint : supply)(picture, paintedFolder, programFolder)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(fileName(picture)));
            return 1;
        }
    return 0;
}
