// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/setfolder.h"

#include <QDir>
#include <QLocale>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

bool isRefused(QChar character)
{
    return character < u' ' || character == QChar(0x7F) || u"<>:\"|?*\\"_s.contains(character);
}

QString asHex(QChar character)
{
    return u"%"_s + QString::number(character.unicode(), 16).toUpper().rightJustified(2, u'0');
}

} // namespace

QString SetFolder::path(const QString &drive, const QDateTime &begun)
{
    const QString name = QLocale::c().toString(begun.toLocalTime(), u"yyyy-MM-dd HH.mm.ss");
    return QDir::cleanPath(drive + u'/' + top + u'/' + name);
}

QString SetFolder::picturesPath(const QString &drive)
{
    return QDir::cleanPath(drive + u'/' + top + u'/' + pictures);
}

QString SetFolder::nameOf(const QString &folder, const QString &path)
{
    const QString clean = QDir::cleanPath(path);
    const QString inside = QDir::cleanPath(folder) + u'/';
    if (clean.startsWith(inside))
        return clean.sliced(inside.size());
    qsizetype start = 0;
    while (start < clean.size() && clean[start] == u'/')
        ++start;
    return elsewhere + clean.sliced(start);
}

QString SetFolder::elsewherePath(const QString &name)
{
    if (!name.startsWith(elsewhere))
        return {};
    const QString rest = name.sliced(elsewhere.size());
    const bool hasDrive = rest.size() > 2 && rest[0].isLetter() && rest[1] == u':';
    return hasDrive ? rest : QString(u'/' + rest);
}

bool SetFolder::isPicture(const QString &name)
{
    static constexpr std::array endings{".jpg"_L1,  ".jpeg"_L1, ".png"_L1,  ".bmp"_L1,  ".gif"_L1,
                                        ".tif"_L1,  ".tiff"_L1, ".webp"_L1, ".heic"_L1, ".heif"_L1,
                                        ".avif"_L1, ".jpe"_L1,  ".jfif"_L1};
    return name.startsWith(elsewhere) || std::ranges::any_of(endings, [&name](QLatin1StringView ending) {
               return name.endsWith(ending, Qt::CaseInsensitive);
           });
}

QString SetFolder::pieceEnding(int piece)
{
    return u".%1"_s.arg(piece, 3, 10, QChar(u'0'));
}

QString SetFolder::escaped(const QString &name)
{
    QString stored;
    stored.reserve(name.size());
    for (qsizetype i = 0; i < name.size(); ++i) {
        const QChar character = name[i];
        const bool isLast = i + 1 == name.size() || name[i + 1] == u'/';
        const bool isLostAtEnd = isLast && (character == u'.' || character == u' ');
        if (isLostAtEnd || (character != u'/' && isRefused(character)))
            stored += asHex(character);
        else
            stored += character;
    }
    return stored;
}
