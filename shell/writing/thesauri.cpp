// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/thesauri.h"

#include "shell/writing/wordencoding.h"
#include "storage/datafolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The library cuts longer lines of an index into pieces.
constexpr qsizetype longestLine = 190;
/// And those of the data, which begin with a word and the number of its meanings.
constexpr qint64 headBytes = 512;
constexpr int mostMeanings = 200;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    const bool isFile = QFileInfo(path).isFile() && file.size() <= Thesauri::mostBytes;
    return isFile && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray headOf(const QString &path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) ? file.readLine(longestLine).trimmed()
                                                                      : QByteArray();
}

QString languageOf(const QString &name)
{
    return name.section(QRegularExpression(u"[_-]"_s), 0, 0);
}

/// Where the entries of `word` begin in the data; an index should name it once.
std::vector<qint64> placesOf(const QByteArray &index, const QByteArray &word)
{
    std::vector<qint64> places;
    const QByteArray sought = '\n' + word + '|';
    for (qsizetype at = index.indexOf(sought); at >= 0; at = index.indexOf(sought, at + 1)) {
        const qsizetype begin = at + sought.size();
        const qsizetype end = index.indexOf('\n', begin);
        bool isNumber = false;
        const qint64 place = index.mid(begin, end < 0 ? -1 : end - begin).trimmed().toInt(&isNumber);
        places.push_back(isNumber ? place : -1);
    }
    return places;
}

/// "nice|5": what stands there is believed to be the number of meanings.
bool isEntry(QFile &data, qint64 place)
{
    if (place < 0 || place >= data.size() || !data.seek(place))
        return false;
    const QByteArray line = data.read(headBytes).split('\n').first();
    const qsizetype bar = line.indexOf('|');
    bool isNumber = false;
    const int count = line.mid(bar + 1).trimmed().toInt(&isNumber);
    return bar >= 0 && isNumber && count >= 0 && count <= mostMeanings;
}

} // namespace

QStringList Thesauri::folders(const QString &programFolder, const QString &dataFolder)
{
    QStringList folders{DataFolder(programFolder).filePath(u"dictionaries"_s),
                        DataFolder(dataFolder).filePath(u"dictionaries"_s)};
    for (const QString &shared : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        folders += shared + u"/mythes"_s;
    return folders;
}

std::vector<ThesaurusFiles> Thesauri::found(const QStringList &folders)
{
    static const QRegularExpression name(u"^th_([a-z]{2,3}([_-][A-Za-z0-9]+)*)_v2$"_s);
    std::vector<ThesaurusFiles> found;
    for (const QString &folder : folders) {
        for (const QString &file : QDir(folder).entryList({u"th_*_v2.idx"_s}, QDir::Files, QDir::Name)) {
            const QString stem = folder + u'/' + file.chopped(4);
            const auto match = name.match(file.chopped(4));
            ThesaurusFiles files{match.captured(1), stem + u".idx"_s, stem + u".dat"_s};
            files.encoding = headOf(files.idxPath);
            const auto isSame = [&files](const auto &other) { return other.name == files.name; };
            const bool isUsable = match.hasMatch() && QFileInfo(files.datPath).isFile() &&
                                  WordEncoding::named(files.encoding).has_value();
            if (isUsable && std::ranges::none_of(found, isSame))
                found.push_back(std::move(files));
        }
    }
    std::ranges::sort(found, {}, &ThesaurusFiles::name);
    return found;
}

std::optional<ThesaurusFiles> Thesauri::firstFor(const QStringList &languages,
                                                 const std::vector<ThesaurusFiles> &found)
{
    for (const QString &language : languages) {
        auto own = std::ranges::find(found, language, &ThesaurusFiles::name);
        if (own == found.end())
            own = std::ranges::find_if(found, [&language](const ThesaurusFiles &files) {
                return languageOf(files.name) == languageOf(language);
            });
        if (own != found.end())
            return *own;
    }
    return std::nullopt;
}

bool Thesauri::areSound(const ThesaurusFiles &files)
{
    const QByteArray index = contentOf(files.idxPath);
    const QFileInfo data(files.datPath);
    if (index.isEmpty() || !data.isFile() || !data.isReadable() || data.size() > mostBytes ||
        index.contains('\0'))
        return false;
    qsizetype line = 0;
    qsizetype begin = 0;
    bool isNumber = true;
    while (begin < index.size() && isNumber) {
        const qsizetype found = index.indexOf('\n', begin);
        const qsizetype end = found < 0 ? index.size() : found;
        if (end - begin > longestLine)
            return false;
        if (line == 1) { // how many words there are, by which the library lays out its memory
            const qint64 count = index.mid(begin, end - begin).trimmed().toInt(&isNumber);
            isNumber = isNumber && count > 0 && count <= index.size() / 2;
        }
        begin = end + 1;
        ++line;
    }
    return isNumber && line > 2;
}

bool Thesauri::isSound(const ThesaurusFiles &files, const QByteArray &word)
{
    const std::vector<qint64> places = placesOf(contentOf(files.idxPath), word);
    QFile data(files.datPath);
    return !word.isEmpty() && !word.contains('\n') && !places.empty() && data.open(QIODevice::ReadOnly) &&
           std::ranges::all_of(places, [&data](qint64 place) { return isEntry(data, place); });
}
