// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/thumbnails.h"
#include "tests/support/testphotographs.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

class TestThumbnails : public QObject
{
    Q_OBJECT
private slots:
    void keepsAPictureForAsLongAsItsFileIsTheSame()
    {
        Thumbnails thumbnails(m_folder.filePath(u"a"_s));
        const ThumbnailKey key{u"/pictures/lake.jpg"_s, 1000, 5000};
        QVERIFY(thumbnails.read(key).image.isNull());
        thumbnails.write(key, TestPhotographs::draw({800, 400}, 1), true);
        QCOMPARE(thumbnails.read(key).image.size(), QSize(256, 128));
        QVERIFY(thumbnails.read(key).isCut);
        for (const ThumbnailKey &other :
             {ThumbnailKey{key.path, 1001, 5000}, ThumbnailKey{key.path, 1000, 5001},
              ThumbnailKey{u"/pictures/Lake.jpg"_s, 1000, 5000}, ThumbnailKey{key.path, -1, 0}})
            QVERIFY(!thumbnails.has(other) && thumbnails.read(other).image.isNull());
        thumbnails.write(key, TestPhotographs::draw({90, 60}, 1), false); // another program was faster
        QCOMPARE(thumbnails.read(key).image.size(), QSize(90, 60));
        QVERIFY(!thumbnails.read(key).isCut);
        QCOMPARE(QDir(m_folder.filePath(u"a"_s)).entryList(QDir::Files).size(), 1);
    }

    void showsTheGroundBehindAGlassAsWhite()
    {
        Thumbnails thumbnails(m_folder.filePath(u"b"_s));
        QImage glass(40, 40, QImage::Format_ARGB32);
        glass.fill(Qt::transparent);
        thumbnails.write({u"glass"_s, 1, 1}, glass, false);
        QCOMPARE(thumbnails.read({u"glass"_s, 1, 1}).image.pixelColor(20, 20), QColor(Qt::white));
    }

    void livesWithWhatBecomesOfItsFolder()
    {
        const QString path = m_folder.filePath(u"c"_s);
        Thumbnails thumbnails(path);
        const ThumbnailKey key{u"/pictures/lake.jpg"_s, 1000, 5000};
        thumbnails.write(key, TestPhotographs::draw({80, 60}, 1), false);
        const QString file = QDir(path).entryInfoList(QDir::Files).constFirst().filePath();
        TestPhotographs::save(file, "noise");
        QVERIFY(thumbnails.read(key).image.isNull());
        QVERIFY(QDir(path).removeRecursively());
        QVERIFY(thumbnails.read(key).image.isNull());
        thumbnails.write(key, TestPhotographs::draw({80, 60}, 1), false);
        QVERIFY(!thumbnails.read(key).image.isNull());
        QVERIFY(QDir(path).removeRecursively());
        TestPhotographs::save(path, "a file in its place");
        thumbnails.write(key, TestPhotographs::draw({80, 60}, 1), false);
        QVERIFY(thumbnails.read(key).image.isNull());
    }

    void givesUpWhatWasNotLookedAtForLongest()
    {
        constexpr qint64 most = 40'000;
        Thumbnails thumbnails(m_folder.filePath(u"d"_s), most);
        const QDir folder(m_folder.filePath(u"d"_s));
        const auto key = [](int i) { return ThumbnailKey{u"picture "_s + QString::number(i), 1, 1}; };
        const auto write = [&](int i) {
            thumbnails.write(key(i), TestPhotographs::draw({256, 192}, i), false);
        };
        for (int i = 0; i < 3; ++i)
            write(i);
        const QDateTime longAgo = QDateTime::currentDateTimeUtc().addDays(-100);
        for (const QFileInfo &info : folder.entryInfoList(QDir::Files)) {
            QFile file(info.filePath());
            QVERIFY(file.open(QIODevice::ReadWrite) &&
                    file.setFileTime(longAgo, QFileDevice::FileModificationTime));
        }
        QVERIFY(!thumbnails.read(key(1)).image.isNull()); // looked at today
        int last = 3;
        while (thumbnails.has(key(0)) || thumbnails.has(key(2)))
            write(last++);
        QVERIFY(last > 3 && last < 200);
        QVERIFY(thumbnails.has(key(1)));
        QVERIFY(thumbnails.has(key(last - 1)));
        qint64 bytes = 0;
        for (const QFileInfo &info : folder.entryInfoList(QDir::Files))
            bytes += info.size();
        QVERIFY(bytes <= most);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(TestThumbnails)
#include "tst_thumbnails.moc"
