// SPDX-License-Identifier: GPL-3.0-or-later
#include "backup/model/snapshotmanifest.h"

#include "backup/model/diskrecords.h"
#include "shell/core/csvtext.h"

#include <QSet>
#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QByteArrayView byteOrderMark("\xEF\xBB\xBF");
constexpr qsizetype hashDigits = 64;
constexpr std::array<QLatin1StringView, 3> keptWords{"readable"_L1, "guarded"_L1, "sealed"_L1};

QStringList heads()
{
    return {u"Name"_s, u"Bytes"_s, u"Changed"_s, u"SHA-256"_s, u"Function"_s, u"Kept as"_s};
}

/// The last line, without which the file is cut.
QStringList lastLine(qsizetype files)
{
    return {u"END"_s, QString::number(files), QString(), QString(), QString(), QString()};
}

/// The cells of a line, cut from its end: only the name before them may have commas and quotes.
QStringList cellsOf(const QString &line)
{
    QStringList cells = line.split(u',');
    const qsizetype ofName = cells.size() - heads().size() + 1;
    if (ofName < 1)
        return {};
    QString name = cells.first(ofName).join(u',');
    if (name.size() >= 2 && name.startsWith(u'"') && name.endsWith(u'"'))
        name = name.sliced(1, name.size() - 2).replace(u"\"\""_s, u"\""_s);
    return QStringList{name} + cells.sliced(ofName);
}

std::optional<SnapshotFile> fileOf(const QStringList &cells)
{
    if (cells.size() != heads().size())
        return std::nullopt;
    bool isNumber = false;
    SnapshotFile file{.name = cells[0],
                      .size = cells[1].toLongLong(&isNumber),
                      .changed = QDateTime::fromString(cells[2], Qt::ISODateWithMs),
                      .hash = QByteArray::fromHex(cells[3].toLatin1()),
                      .function = cells[4],
                      .keptAs = KeptAs::Readable};
    const auto word = std::ranges::find(keptWords, cells[5]);
    const bool isWhole = isNumber && file.size >= 0 && file.changed.isValid() && word != keptWords.end() &&
                         cells[3].size() == hashDigits && file.hash.size() == hashDigits / 2 &&
                         DiskRecords::isSafe(file.name);
    if (!isWhole)
        return std::nullopt;
    file.changed = file.changed.toUTC();
    file.keptAs = KeptAs(word - keptWords.begin());
    return file;
}

} // namespace

QByteArray SnapshotManifest::encoded(const QList<SnapshotFile> &files)
{
    QString lines = CsvText::line(heads());
    for (const SnapshotFile &file : files) {
        lines += CsvText::line(
            {file.name, QString::number(file.size), file.changed.toUTC().toString(Qt::ISODateWithMs),
             QString::fromLatin1(file.hash.toHex()), file.function, keptWords[std::size_t(file.keptAs)]});
    }
    return CsvText::file(lines + CsvText::line(lastLine(files.size())));
}

std::optional<QList<SnapshotFile>> SnapshotManifest::decoded(const QByteArray &bytes)
{
    if (bytes.size() > mostBytes || !bytes.startsWith(byteOrderMark) || !bytes.isValidUtf8())
        return std::nullopt;
    QStringList lines = QString::fromUtf8(bytes.sliced(byteOrderMark.size())).split(u"\r\n"_s);
    if (lines.size() < 3 || !lines.takeLast().isEmpty() || lines.takeFirst() != heads().join(u','))
        return std::nullopt;
    const QStringList last = cellsOf(lines.takeLast());
    if (last != lastLine(lines.size()))
        return std::nullopt;
    QList<SnapshotFile> files;
    files.reserve(lines.size());
    QSet<QString> names;
    for (const QString &line : std::as_const(lines)) {
        const std::optional<SnapshotFile> file = fileOf(cellsOf(line));
        if (!file || names.contains(file->name))
            return std::nullopt;
        names.insert(file->name);
        files.append(*file);
    }
    return files;
}
