// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/textsofpicture.h"

#include "album/model/phototexts.h"
#include "album/model/takendate.h"
#include "storage/utf8text.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QChar cutMark(u'…');

/// What cameras write under each picture is no caption.
bool isCamerasWord(const QString &caption)
{
    static constexpr std::array words{"OLYMPUS DIGITAL CAMERA"_L1,
                                      "MINOLTA DIGITAL CAMERA"_L1,
                                      "KONICA MINOLTA DIGITAL CAMERA"_L1,
                                      "SONY DSC"_L1,
                                      "SAMSUNG"_L1,
                                      "DIGITAL CAMERA"_L1,
                                      "Digital StillCamera"_L1,
                                      "Exif_JPEG_PICTURE"_L1,
                                      "default"_L1};
    return std::ranges::find(words, caption) != words.end() || caption.startsWith("DCIM\\"_L1);
}

QString textOf(const QByteArray &bytes)
{
    return Utf8Text::decode(bytes).remove(QChar()).normalized(QString::NormalizationForm_C).trimmed();
}

QStringList textsOf(const QList<QByteArray> &all)
{
    QStringList texts;
    texts.reserve(all.size());
    for (const QByteArray &bytes : all) {
        const QString text = textOf(bytes);
        if (!text.isEmpty() && !texts.contains(text))
            texts.append(text);
    }
    return texts;
}

QList<QByteArray> bytesOf(const QStringList &texts)
{
    QList<QByteArray> all;
    all.reserve(texts.size());
    for (const QString &text : texts)
        all.append(text.toUtf8());
    return all;
}

/// The first that says something.
template <typename Text>
Text firstOf(std::initializer_list<Text> texts)
{
    const auto found = std::ranges::find_if(texts, [](const Text &text) { return !text.isEmpty(); });
    return found == texts.end() ? Text() : *found;
}

QString captionOf(const MetadataTexts &exif)
{
    const QString caption = textOf(exif.caption);
    return isCamerasWord(caption) ? QString() : caption;
}

/// What was taken by the camera on a day that a person names less exactly is as old as the camera says. What
/// was only scanned then is as old as the person says.
QString dateOf(const Metadata &found, QDate today)
{
    const QString created = TakenDate::fromProgram(found.xmpCreated, today);
    const QString camera = firstOf({TakenDate::fromCamera(found.exifOriginal, today),
                                    TakenDate::fromCamera(found.exifDigitized, today)});
    if (!created.isEmpty() && !created.contains(u'T') && !camera.startsWith(created))
        return created;
    return firstOf({camera, TakenDate::fromProgram(found.xmpOriginal, today), created});
}

/// Whether the text is what a record had room for of a longer one.
bool isCutOf(const QString &text, const QString &whole)
{
    return text.endsWith(cutMark) && whole.size() >= text.size() &&
           whole.startsWith(QStringView(text).chopped(1));
}

bool isCutOf(const QStringList &texts, const QStringList &whole)
{
    return isCutOf(PhotoTexts::joined(texts), PhotoTexts::joined(whole)); // as they stand in a record
}

/// What is said is said everywhere where it can be, and nothing nowhere.
template <typename Text>
bool isChange(const Text &text, const Text &before, bool isEverywhere)
{
    return text.isEmpty() ? !before.isEmpty() : !isEverywhere && !isCutOf(text, before);
}

/// The date of a record as it is written.
void putDate(MetadataChange &change, const QString &date)
{
    const QByteArray text = date.toLatin1();
    change.xmpCreated = text;
    if (date.size() == 19 && date[10] == u'T') {
        QByteArray exif = text;
        exif[4] = exif[7] = ':';
        exif[10] = ' ';
        change.exifOriginal = exif;
    }
}

/// Takes out what says that date, and nothing that says another one.
void takeOutDate(MetadataChange &change, const Metadata &found, const QString &date, QDate today)
{
    if (TakenDate::fromProgram(found.xmpCreated, today) == date)
        change.xmpCreated = QByteArray();
    if (TakenDate::fromCamera(found.exifOriginal, today) == date)
        change.exifOriginal = QByteArray();
}

} // namespace

PictureTexts TextsOfPicture::of(const Metadata &found, QDate today)
{
    PictureTexts texts;
    texts.caption = firstOf({textOf(found.xmp.caption), textOf(found.iptc.caption), captionOf(found.exif)});
    texts.people = textsOf(found.xmp.people);
    texts.tags = firstOf({textsOf(found.xmp.tags), textsOf(found.iptc.tags)});
    texts.rating = std::clamp(qRound(found.rating.toDouble()), 0, 5);
    texts.date = dateOf(found, today);
    return texts;
}

MetadataChange TextsOfPicture::change(const Metadata &found, const PictureTexts &texts, QDate today,
                                      const QStringList &goneDates)
{
    const PictureTexts before = of(found, today);
    MetadataChange change;
    change.asUtf8 = [](const QByteArray &bytes) { return Utf8Text::decode(bytes).toUtf8(); };
    const QByteArray caption = texts.caption.toUtf8();
    const bool isSaid =
        found.xmp.caption == caption && found.iptc.caption == caption && found.exif.caption == caption;
    if (isChange(texts.caption, before.caption, isSaid))
        change.caption = caption;
    const QList<QByteArray> people = bytesOf(texts.people);
    if (isChange(texts.people, before.people, found.xmp.people == people))
        change.people = people;
    const QList<QByteArray> tags = bytesOf(texts.tags);
    if (isChange(texts.tags, before.tags, found.xmp.tags == tags && found.iptc.tags == tags))
        change.tags = tags;
    if (texts.rating != before.rating)
        change.rating = texts.rating;
    if (!texts.date.isEmpty() && texts.date != before.date)
        putDate(change, texts.date);
    else if (texts.date.isEmpty() && goneDates.contains(before.date))
        takeOutDate(change, found, before.date, today);
    return change;
}
