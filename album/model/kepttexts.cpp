// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/kepttexts.h"

#include "album/metadata/metadata.h"
#include "album/model/picturedata.h"
#include "album/model/takendate.h"
#include "album/model/textlines.h"
#include "album/model/textsofpicture.h"
#include "shell/core/programmodule.h"
#include "storage/saving.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace {

using KeptTexts::Into;
using KeptTexts::Written;

/// What lies beside a picture is left alone beyond this.
constexpr qint64 mostBeside = 16 << 20;
/// A picture that is written to is in memory twice meanwhile.
constexpr qint64 mostWritten = 128 << 20;

const MetadataModule *module()
{
    static const MetadataModule *const table = [] {
        const auto entrance = reinterpret_cast<MetadataEntrance>(
            ProgramModule::function(QLatin1StringView(metadataModuleName), metadataEntranceName));
        return entrance ? entrance() : nullptr;
    }();
    return table;
}

/// Empty for what is no file, too large or cannot be read.
QByteArray contentOf(const QString &path, qint64 most)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || file.size() > most || !file.open(QIODevice::ReadOnly))
        return {};
    return file.read(most);
}

/// Texts in XML that are put together from one another are nobody's captions.
bool hasEntities(QByteArrayView bytes)
{
    return bytes.contains("<!ENTITY") || bytes.contains("<!DOCTYPE");
}

Metadata inPicture(const QString &path)
{
    QFile file(path);
    if (!module() || !QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = PictureData::withoutPicture(file);
    Metadata found;
    const bool isRead = !bytes.isEmpty() && !hasEntities(bytes) && module()->read(bytes, found);
    return isRead ? found : Metadata();
}

Metadata inText(const QByteArray &bytes)
{
    Metadata found;
    const bool isRead =
        module() && !bytes.isEmpty() && !hasEntities(bytes) && module()->readBeside(bytes, found);
    return isRead ? found : Metadata();
}

/// What is said first, and where it says nothing, what is said second.
PictureTexts joined(PictureTexts first, const PictureTexts &second)
{
    if (first.caption.isEmpty())
        first.caption = second.caption;
    if (first.people.isEmpty())
        first.people = second.people;
    if (first.tags.isEmpty())
        first.tags = second.tags;
    if (first.rating == 0)
        first.rating = second.rating;
    if (first.date.isEmpty())
        first.date = second.date;
    return first;
}

/// Puts `content` in the place of the file, which keeps its rights; a link stays one.
bool replace(const QString &path, QByteArrayView content)
{
    const QFileInfo file(path);
    const QFileInfo real(file.exists() ? file.canonicalFilePath() : path);
    const bool isThere = real.exists();
    const QFile::Permissions rights = real.permissions();
    if (!Saving::replaceFile(DataFolder(real.absolutePath()), real.fileName(), content))
        return false;
    if (isThere)
        QFile::setPermissions(real.filePath(), rights);
    return true;
}

Written writeBeside(const QString &path, const PictureTexts &texts, QDate today, const QStringList &goneDates)
{
    const QString beside = KeptTexts::besidePath(path);
    const QByteArray former = contentOf(beside, mostBeside);
    if (QFileInfo::exists(beside) && (former.isEmpty() || hasEntities(former)))
        return {.why = TextLines::damagedBeside()};
    const MetadataChange change = TextsOfPicture::change(inText(former), texts, today, goneDates);
    if (change.isNothing())
        return {.isKept = true, .why = {}};
    const QByteArray text = module()->writeBeside(former, change);
    if (text.isEmpty())
        return {.why = TextLines::damagedBeside()};
    const bool isKept = replace(beside, text);
    return {.isKept = isKept, .why = isKept ? QString() : TextLines::diskRefused()};
}

/// What is said in the file; nothing where that is more than anybody has to say.
QByteArray saidIn(const QByteArray &bytes)
{
    QBuffer file;
    file.setData(bytes);
    return file.open(QIODevice::ReadOnly) ? PictureData::withoutPicture(file) : QByteArray();
}

/// The file with the texts in it; nothing where that cannot be done.
QByteArray changed(const QByteArray &bytes, const MetadataChange &change)
{
    if (hasEntities(bytes))
        return {};
    const QByteArray result = PictureData::withProfileOf(bytes, module()->write(bytes, change));
    return PictureData::isSame(bytes, result) ? result : QByteArray();
}

Written writeInto(const QString &path, const PictureTexts &texts, QDate today, const QStringList &goneDates)
{
    if (QFileInfo(path).size() > mostWritten)
        return {.why = TextLines::tooLarge()};
    const QByteArray bytes = contentOf(path, mostWritten);
    if (!bytes.isEmpty() && saidIn(bytes).isEmpty())
        return {.why = TextLines::tooLarge()};
    Metadata found;
    if (bytes.isEmpty() || !module()->read(bytes, found))
        return {.why = TextLines::wouldLose()};
    const MetadataChange change = TextsOfPicture::change(found, texts, today, goneDates);
    if (change.isNothing())
        return {.isKept = true, .why = {}};
    const QByteArray result = changed(bytes, change);
    if (result.isEmpty())
        return {.why = TextLines::wouldLose()};
    const bool isKept = replace(path, result);
    return {.isKept = isKept, .why = isKept ? QString() : TextLines::diskRefused()};
}

/// What a picture's own orientation becomes by quarter turns to the right.
int turned(int orientation, int turns)
{
    static constexpr std::array next{6, 7, 8, 5, 2, 3, 4, 1}; // of 1 to 8
    for (int i = 0; i < turns; ++i)
        orientation = next[std::size_t(std::clamp(orientation, 1, 8) - 1)];
    return orientation;
}

bool isWritableKind(const QString &path)
{
    QFile file(path);
    const PictureData::Kind kind =
        file.open(QIODevice::ReadOnly) ? PictureData::kindOf(file.peek(16)) : PictureData::Kind::Other;
    return kind != PictureData::Kind::Heif && kind != PictureData::Kind::Other;
}

} // namespace

bool KeptTexts::isBuiltIn()
{
    return module() != nullptr;
}

QString KeptTexts::besidePath(const QString &path)
{
    return path + QLatin1StringView(".xmp");
}

FoundTexts KeptTexts::read(const QString &path, QDate today)
{
    const Metadata picture = inPicture(path);
    const PictureTexts beside = TextsOfPicture::of(inText(contentOf(besidePath(path), mostBeside)), today);
    FoundTexts found{.texts = joined(beside, TextsOfPicture::of(picture, today)),
                     .pixels = picture.pixels,
                     .orientation = picture.orientation,
                     .hasCoordinates = picture.hasCoordinates};
    if (!found.texts.date.isEmpty()) {
        found.dateFound = DateFound::Picture;
        return found;
    }
    const QFileInfo file(path);
    found.texts.date = TakenDate::fromName(file.fileName(), today);
    if (found.texts.date.isEmpty())
        found.texts.date = TakenDate::fromTime(file.lastModified(), today);
    if (!found.texts.date.isEmpty())
        found.dateFound = DateFound::File;
    return found;
}

Written KeptTexts::write(const QString &path, const PictureTexts &texts, Into into, QDate today,
                         const QStringList &goneDates)
{
    if (!module())
        return {.why = TextLines::notBuiltIn()};
    if (!QFileInfo(path).isFile())
        return {.why = TextLines::pictureNotThere()};
    if (into == Into::Beside || !isWritableKind(path))
        return writeBeside(path, texts, today, goneDates);
    // What lies beside it would be believed before it.
    if (QFileInfo::exists(besidePath(path))) {
        if (const Written written = writeBeside(path, texts, today, goneDates); !written.isKept)
            return written;
    }
    return writeInto(path, texts, today, goneDates);
}

QByteArray KeptTexts::forGivingAway(const QByteArray &bytes, const PictureTexts &texts, QDate today,
                                    Coordinates coordinates, int turns)
{
    // Other formats have a mark for it, too, but few programs look at it there.
    if (turns != 0 && PictureData::kindOf(bytes) != PictureData::Kind::Jpeg)
        return {};
    Metadata found;
    if (!module() || hasEntities(bytes) || saidIn(bytes).isEmpty() || !module()->read(bytes, found))
        return {};
    MetadataChange change = TextsOfPicture::change(found, texts, today);
    change.orientation = turns == 0 ? 0 : turned(found.orientation, turns);
    change.withoutCoordinates = coordinates == Coordinates::TakenOut && found.hasCoordinates;
    return change.isNothing() ? bytes : changed(bytes, change);
}
