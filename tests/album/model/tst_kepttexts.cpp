// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/kepttexts.h"
#include "album/model/picturedata.h"
#include "album/model/textlines.h"
#include "tests/support/failingdisk.h"
#include "tests/support/rows.h"
#include "tests/support/testfiles.h"
#include "tests/support/testpictures.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;
using KeptTexts::Into;

namespace {

const QDate today(2026, 11, 23);

/// What the other program says of a file, each value under the name of its group and its own:
/// "XMP-dc:Subject".
QJsonObject toldByExiftool(const QString &path)
{
    QProcess program;
    program.start(u"exiftool"_s, {u"-j"_s, u"-G1"_s, u"-struct"_s, path});
    program.waitForFinished();
    return QJsonDocument::fromJson(program.readAllStandardOutput()).array().at(0).toObject();
}

void tellExiftool(const QStringList &words, const QString &path)
{
    QProcess program;
    program.start(u"exiftool"_s, words + QStringList{u"-q"_s, u"-overwrite_original"_s, path});
    program.waitForFinished();
    QCOMPARE(program.exitCode(), 0);
}

QStringList listOf(const QJsonValue &value)
{
    return value.isArray() ? value.toVariant().toStringList() : QStringList{value.toVariant().toString()};
}

bool isWithoutExiftool()
{
    return QStandardPaths::findExecutable(u"exiftool"_s).isEmpty();
}

/// A picture that says more than anybody reads.
QByteArray wordy()
{
    QByteArray segment("\xff\xe1\xff\xff"
                       "http://ns.adobe.com/xap/1.0/",
                       32);
    segment.append(QByteArray(0xffff + 2 - segment.size(), 'x'));
    return "\xff\xd8" + segment.repeated(17 * 16) + QByteArray("\xff\xda\0\2\1\2\3\xff\xd9", 9);
}

PictureTexts someTexts()
{
    return {.caption = u"Anne and Karin at the lake, about 1974"_s,
            .people = {u"Anne Miller"_s, u"Karin"_s},
            .tags = {u"lake"_s, u"summer holidays"_s},
            .rating = 4,
            .date = u"1974~"_s};
}

} // namespace

class TestKeptTexts : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString picture(const QString &name) const
    {
        return makePicture(m_dir.filePath(name), {64, 48}, Qt::darkBlue);
    }

private slots:
    void init()
    {
        if (!KeptTexts::isBuiltIn())
            QSKIP("built without the library for texts in pictures");
    }

    void anotherProgramReadsWhatWeWrite_data()
    {
        const QString letters = u"Žofie à l'école — Аня и Карин 👩‍👧 "_s;
        rows<QString, QString>({{"a caption", u"a.jpg"_s, u"Anne and Karin at the lake"_s},
                                {"accents, Cyrillic, emoji", u"b.jpg"_s, letters},
                                {"960 bytes", u"c.jpg"_s, QString(480, u'Ж')},
                                {"PNG", u"d.png"_s, letters},
                                {"TIFF", u"e.tif"_s, letters},
                                {"WebP", u"f.webp"_s, letters}});
    }
    void anotherProgramReadsWhatWeWrite()
    {
        if (isWithoutExiftool())
            QSKIP("no exiftool here");
        const auto [name, caption] = row<QString, QString>();
        const QString path = m_dir.filePath(name);
        QImage image(64, 48, QImage::Format_RGB32);
        image.fill(Qt::darkBlue);
        if (!image.save(path))
            QSKIP("no such format here");
        PictureTexts texts = someTexts();
        texts.caption = caption.trimmed();
        texts.date = u"2019-07-04T15:30:12"_s;
        const KeptTexts::Written written = KeptTexts::write(path, texts, Into::Picture, today);
        QVERIFY2(written.isKept, qPrintable(written.why));

        const QJsonObject told = toldByExiftool(path);
        QCOMPARE(told[u"XMP-dc:Description"_s].toString(), texts.caption);
        QCOMPARE(told[u"IFD0:ImageDescription"_s].toString(), texts.caption);
        QCOMPARE(listOf(told[u"XMP-iptcExt:PersonInImage"_s]), texts.people);
        QCOMPARE(listOf(told[u"XMP-dc:Subject"_s]), texts.tags);
        QCOMPARE(told[u"XMP-xmp:Rating"_s].toInt(), 4);
        QCOMPARE(told[u"XMP-photoshop:DateCreated"_s].toString(), u"2019:07:04 15:30:12"_s);
        QCOMPARE(told[u"ExifIFD:DateTimeOriginal"_s].toString(), u"2019:07:04 15:30:12"_s);
        if (!name.endsWith(u"webp"_s)) { // has no place for it
            QCOMPARE(told[u"IPTC:Caption-Abstract"_s].toString(), texts.caption);
            QCOMPARE(listOf(told[u"IPTC:Keywords"_s]), texts.tags);
            QCOMPARE(told[u"IPTC:CodedCharacterSet"_s].toString(), u"UTF8"_s);
        }
        QCOMPARE(KeptTexts::read(path, today).texts, texts);
    }

    void whatAnotherProgramWroteIsRead_data()
    {
        const PictureTexts anne{
            .caption = u"Anne à Köln"_s, .people = {}, .tags = {}, .rating = 0, .date = {}};
        PictureTexts all = someTexts();
        all.date = u"1974"_s;
        PictureTexts tagged = anne;
        tagged.tags = {u"Köln"_s, u"Rhein"_s};
        PictureTexts taken = anne;
        taken.date = u"2019-07-04T15:30:12"_s;
        PictureTexts scanned = anne;
        scanned.date = u"1974"_s;
        rows<QStringList, PictureTexts>(
            {{"EXIF alone", {u"-EXIF:ImageDescription=Anne à Köln"_s}, anne},
             {"EXIF of a camera without words",
              {u"-EXIF:ImageDescription=OLYMPUS DIGITAL CAMERA"_s},
              PictureTexts()},
             {"IPTC in UTF-8",
              {u"-IPTC:CodedCharacterSet=UTF8"_s, u"-IPTC:Caption-Abstract=Anne à Köln"_s,
               u"-IPTC:Keywords=Köln"_s, u"-IPTC:Keywords=Rhein"_s},
              tagged},
             {"IPTC of an old program", {u"-IPTC:Caption-Abstract=Anne à Köln"_s}, anne},
             {"XMP first",
              {u"-XMP-dc:Description=Anne à Köln"_s, u"-IPTC:Caption-Abstract=other"_s,
               u"-EXIF:ImageDescription=another"_s},
              anne},
             {"IPTC before EXIF",
              {u"-IPTC:Caption-Abstract=Anne à Köln"_s, u"-EXIF:ImageDescription=another"_s},
              anne},
             {"everything",
              {u"-XMP-dc:Description="_s + someTexts().caption, u"-XMP-iptcExt:PersonInImage=Anne Miller"_s,
               u"-XMP-iptcExt:PersonInImage=Karin"_s, u"-XMP-dc:Subject=lake"_s,
               u"-XMP-dc:Subject=summer holidays"_s, u"-XMP-xmp:Rating=4"_s,
               u"-XMP-photoshop:DateCreated=1974"_s},
              all},
             {"the camera's time within a day that is said",
              {u"-XMP-dc:Description=Anne à Köln"_s, u"-XMP-photoshop:DateCreated=2019:07:04"_s,
               u"-EXIF:DateTimeOriginal=2019:07:04 15:30:12"_s},
              taken},
             {"scanned long after",
              {u"-XMP-dc:Description=Anne à Köln"_s, u"-XMP-photoshop:DateCreated=1974"_s,
               u"-EXIF:CreateDate=2015:02:03 10:00:00"_s},
              scanned}});
    }
    void whatAnotherProgramWroteIsRead()
    {
        if (isWithoutExiftool())
            QSKIP("no exiftool here");
        const auto [words, expected] = row<QStringList, PictureTexts>();
        const QString path = picture(u"theirs.jpg"_s);
        tellExiftool(words, path);
        FoundTexts found = KeptTexts::read(path, today);
        if (found.dateFound == DateFound::File)
            found.texts.date.clear();
        QCOMPARE(found.texts.caption, expected.caption);
        QCOMPARE(found.texts, expected);
    }

    void whatElseIsSaidStays()
    {
        if (isWithoutExiftool())
            QSKIP("no exiftool here");
        const QString path = picture(u"full.jpg"_s);
        tellExiftool({u"-EXIF:Make=Lens & Son"_s, u"-EXIF:Orientation#=6"_s, u"-IPTC:City=Köln"_s,
                      u"-IPTC:Caption-Abstract=Köln"_s, u"-XMP-dc:Creator=Grandfather"_s,
                      u"-EXIF:GPSLatitude=50.9"_s, u"-EXIF:GPSLatitudeRef=N"_s, u"-Comment=kept"_s},
                     path);
        const QByteArray before = contentOf(path);
        QVERIFY(KeptTexts::write(path, someTexts(), Into::Picture, today).isKept);
        QVERIFY(PictureData::isSame(before, contentOf(path)));
        QJsonObject told = toldByExiftool(path);
        QCOMPARE(told[u"IFD0:Make"_s].toString(), u"Lens & Son"_s);
        QCOMPARE(told[u"IPTC:City"_s].toString(), u"Köln"_s);
        QCOMPARE(listOf(told[u"XMP-dc:Creator"_s]), QStringList{u"Grandfather"_s});
        QCOMPARE(told[u"File:Comment"_s].toString(), u"kept"_s);
        QVERIFY(told.contains(u"GPS:GPSLatitude"_s));
        QCOMPARE(KeptTexts::read(path, today).orientation, 6);

        const QByteArray given =
            KeptTexts::forGivingAway(contentOf(path), someTexts(), today, KeptTexts::Coordinates::TakenOut);
        QVERIFY(makeFile(path, given));
        told = toldByExiftool(path);
        for (const QString &key : told.keys())
            QVERIFY2(!key.startsWith(u"GPS:"_s), qPrintable(key));
        QCOMPARE(KeptTexts::read(path, today).texts, someTexts());
    }

    void textsStandBesideWhatCannotBeWritten()
    {
        const QString path = picture(u"drawn.bmp"_s);
        const QByteArray before = contentOf(path);
        QVERIFY(KeptTexts::write(path, someTexts(), Into::Picture, today).isKept);
        QCOMPARE(contentOf(path), before);
        QVERIFY(contentOf(path + u".xmp"_s).contains("Anne and Karin at the lake"));
        QCOMPARE(KeptTexts::read(path, today).texts, someTexts());

        PictureTexts fewer = someTexts();
        fewer.people = {u"Karin"_s};
        fewer.tags.clear();
        QVERIFY(KeptTexts::write(path, fewer, Into::Beside, today).isKept);
        QCOMPARE(KeptTexts::read(path, today).texts, fewer);
        if (!isWithoutExiftool()) {
            const QJsonObject told = toldByExiftool(path + u".xmp"_s);
            QCOMPARE(told[u"XMP-dc:Description"_s].toString(), fewer.caption);
        }
    }

    void aLongerTextStaysWhole()
    {
        const QString path = picture(u"long.jpg"_s);
        PictureTexts whole = someTexts();
        whole.caption = QString(400, u'x');
        QVERIFY(KeptTexts::write(path, whole, Into::Picture, today).isKept);
        PictureTexts record = whole;
        record.caption = QString(317, u'x') + u'…';
        record.rating = 2;
        QVERIFY(KeptTexts::write(path, record, Into::Picture, today).isKept);
        QCOMPARE(KeptTexts::read(path, today).texts.caption, whole.caption);
        QCOMPARE(KeptTexts::read(path, today).texts.rating, 2);
    }

    void writingTheSameAgainWritesNothing()
    {
        const QString path = picture(u"same.jpg"_s);
        QVERIFY(KeptTexts::write(path, someTexts(), Into::Picture, today).isKept);
        const FailingDisk disk(DiskFailure::OneStep, 1);
        QVERIFY(KeptTexts::write(path, someTexts(), Into::Picture, today).isKept);
        QCOMPARE(disk.steps(), 0);
    }

    void theDiskMayFailAtAnyStep()
    {
        const QString path = picture(u"failing.jpg"_s);
        const QByteArray original = contentOf(path);
        QTest::failOnWarning({});
        const auto prepare = [&] { QVERIFY(makeFile(path, original)); };
        const auto change = [&] { return KeptTexts::write(path, someTexts(), Into::Picture, today).isKept; };
        const auto state = [&] { return contentOf(path); };
        failAtEachStep(DataFolder(m_dir.path()), prepare, change, state);
    }

    void whatIsNoPictureIsLeftAlone_data()
    {
        QByteArray nested = "\xff\xd8\xff\xe1";
        constexpr char words[] =
            "http://ns.adobe.com/xap/1.0/\0<!DOCTYPE x [<!ENTITY a \"aaaa\">]><x>&a;</x>";
        const QByteArray packet(words, sizeof words - 1);
        nested += char(0);
        nested += char(packet.size() + 2);
        nested += packet + "\xff\xda";
        rows<QByteArray>({{"nothing", {}},
                          {"noise", noiseOf(5000)},
                          {"a beginning alone", "\xff\xd8\xff"},
                          {"nested entities", nested},
                          {"17 MiB of words", wordy()},
                          {"a PNG that is cut", QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16)},
                          {"a TIFF that leads nowhere", QByteArray("II*\0\xff\xff\xff\x7f", 8)}});
    }
    void whatIsNoPictureIsLeftAlone()
    {
        const auto [bytes] = row<QByteArray>();
        const QString path = m_dir.filePath(u"bad.jpg"_s);
        QVERIFY(makeFile(path, bytes));
        QCOMPARE(KeptTexts::read(path, today).texts.caption, QString());
        std::ignore = KeptTexts::write(path, someTexts(), Into::Picture, today);
        QCOMPARE(contentOf(path), bytes);
        QFile::remove(path + u".xmp"_s);
    }
};

QTEST_GUILESS_MAIN(TestKeptTexts)
#include "tst_kepttexts.moc"
