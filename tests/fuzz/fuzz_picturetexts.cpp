// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/metadata/metadata.h"
#include "album/model/picturedata.h"
#include "album/model/takendate.h"
#include "album/model/textsofpicture.h"
#include "fuzztarget.h"

#include <QBuffer>

extern "C" const MetadataModule *quilleryMetadata();

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QDate today(2026, 11, 23);
    const QByteArray bytes = asBytes(data, size).toByteArray();
    const auto parts = PictureData::parts(bytes);
    require(!parts || parts->empty() || PictureData::isSame(bytes, bytes), "a picture is the same as itself");
    QBuffer file;
    file.setData(bytes);
    file.open(QIODevice::ReadOnly);
    const QByteArray said = PictureData::withoutPicture(file);
    const QString name = QString::fromLatin1(bytes.first(std::min<qsizetype>(bytes.size(), 200)));
    require(TakenDate::fromName(name, today).size() <= 32, "a date has room in a record");
    require(TakenDate::fromProgram(bytes, today).size() <= 32, "a date has room in a record");

    Metadata found;
    if (!quilleryMetadata()->read(said, found))
        return 0;
    const PictureTexts before = TextsOfPicture::of(found, today);
    require(before.rating >= 0 && before.rating <= 5, "a rating is one of six");
    PictureTexts texts = before;
    texts.caption = QStringLiteral("Anne à Köln");
    const MetadataChange change = TextsOfPicture::change(found, texts, today);
    const QByteArray written = quilleryMetadata()->write(bytes, change);
    Metadata again;
    if (!written.isEmpty() && quilleryMetadata()->read(written, again))
        require(TextsOfPicture::of(again, today).caption == texts.caption, "what is written is read");
    return 0;
}
