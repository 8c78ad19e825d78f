// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/picturelines.h"
#include "shell/pictures/picturequeue.h"
#include "shell/pictures/thumbnails.h"
#include "tests/support/testphotographs.h"

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>

using namespace Qt::Literals::StringLiterals;
using Look = PictureQueue::Look;
using Priority = PictureQueue::Priority;

namespace {

constexpr int patience = 60000; ///< milliseconds: under an emulator it takes its time

} // namespace

class TestPictureQueue : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_looks.clear();
        m_reasons.clear();
    }

    void bringsRoughPicturesBeforeSharpOnes()
    {
        PictureQueue queue(thumbnails());
        watch(queue);
        std::vector<WantedPicture> seen;
        for (int id = 1; id <= 12; ++id)
            seen.push_back(photograph(id, {1600, 1200}));
        queue.show(seen, {});
        QTRY_COMPARE_WITH_TIMEOUT(queue.waitingCount(), 0, patience);
        QTRY_COMPARE_WITH_TIMEOUT(sharpCount(), 12, patience);
        for (int id = 1; id <= 12; ++id) {
            QCOMPARE(m_looks.value(id).first(), Look::Rough);
            QCOMPARE(m_looks.value(id).last(), Look::Sharp);
            QCOMPARE(queue.kept(id).image.size(), QSize(256, 192));
        }
        m_looks.clear();
        queue.show(seen, {}); // nothing comes twice
        PictureQueue again(thumbnails());
        watch(again);
        again.show(seen, {});
        QTRY_COMPARE_WITH_TIMEOUT(sharpCount(), 12, patience);
        for (int id = 1; id <= 12; ++id)
            QCOMPARE(m_looks.value(id), QList<Look>{Look::Sharp}); // from the thumbnails
    }

    void readsWhatIsSeenBeforeTheRest()
    {
        std::vector<WantedPicture> all;
        for (int id = 0; id < 60; ++id)
            all.push_back(photograph(id, {1600, 1200}));
        PictureQueue queue(thumbnails());
        watch(queue);
        for (const WantedPicture &picture : all)
            queue.want(picture, Priority::Rest);
        queue.show({all.begin() + 50, all.begin() + 54}, {all.begin() + 54, all.begin() + 56});
        QTRY_COMPARE_WITH_TIMEOUT(queue.waitingCount(), 0, patience);
        QTRY_COMPARE_WITH_TIMEOUT(sharpCount(), 6, patience);
        // The thumbnails tell in which order the pictures were read.
        const QFileInfoList made = QDir(thumbnails()).entryInfoList(QDir::Files, QDir::Time | QDir::Reversed);
        QCOMPARE(made.size(), 60);
        int before = 0;
        const QDateTime last = timeOf(all[53]);
        for (const QFileInfo &file : made)
            before += file.lastModified() < last ? 1 : 0;
        QVERIFY2(before <= 4 + 3 * QThread::idealThreadCount() + 6, qPrintable(QString::number(before)));
    }

    void putsBackWhatIsNoLongerSeen()
    {
        std::vector<WantedPicture> all;
        for (int id = 0; id < 40; ++id)
            all.push_back(photograph(id, {1600, 1200}));
        PictureQueue queue(thumbnails());
        watch(queue);
        queue.show({all.begin(), all.begin() + 30}, {});
        queue.show({all.begin() + 30, all.begin() + 34}, {all.begin() + 34, all.end()});
        QTRY_COMPARE_WITH_TIMEOUT(queue.waitingCount(), 0, patience);
        QTRY_VERIFY_WITH_TIMEOUT(sharpCount() >= 10, patience);
        for (int id = 30; id < 40; ++id)
            QVERIFY(!queue.kept(id).image.isNull());
        QCOMPARE(QDir(thumbnails()).entryList(QDir::Files).size(), 40);
    }

    void turnsAndSizesPicturesAsTheyAreWanted()
    {
        PictureQueue queue(thumbnails());
        watch(queue);
        WantedPicture picture = photograph(7, {1600, 1200});
        const auto size = [&] {
            queue.show({picture}, {});
            const bool isThere = QTest::qWaitFor([&] { return queue.waitingCount() == 0; }, patience);
            QTest::qWait(20);
            return isThere ? queue.kept(7).image.size() : QSize();
        };
        QCOMPARE(size(), QSize(256, 192));
        picture.turns = 1;
        QCOMPARE(size(), QSize(192, 256));
        picture.turns = 0;
        queue.setSide(700);
        QCOMPARE(size(), QSize(768, 576));
        queue.setSide(PictureQueue::wholeSide);
        QCOMPARE(size(), QSize(1600, 1200));
        queue.setSide(100);
        queue.forget(7);
        QCOMPARE(size(), QSize(128, 96));
    }

    void showsNoPictureForAnother()
    {
        PictureQueue queue(thumbnails());
        watch(queue);
        WantedPicture picture = photograph(1, {1600, 1200});
        const WantedPicture other = photograph(2, {1200, 1600});
        queue.show({picture}, {});
        QTRY_VERIFY_WITH_TIMEOUT(!queue.kept(1).image.isNull(), patience);
        QTRY_COMPARE_WITH_TIMEOUT(queue.waitingCount(), 0, patience);
        picture.path = other.path; // the number belongs to another file now
        queue.show({picture}, {});
        QVERIFY(queue.kept(1).image.isNull());
        QTRY_COMPARE_WITH_TIMEOUT(queue.kept(1).image.size(), QSize(192, 256), patience);
    }

    void tellsWhatCannotBeShown()
    {
        PictureQueue queue(thumbnails());
        watch(queue);
        const WantedPicture text{1, TestPhotographs::save(path(u"text.jpg"_s), "Dear Karin,")};
        const WantedPicture none{2, path(u"none.jpg"_s)};
        const QByteArray whole = TestPhotographs::jpeg(TestPhotographs::draw({1600, 1200}, 3));
        const WantedPicture cut{3, TestPhotographs::save(path(u"cut.jpg"_s), whole.first(whole.size() / 2))};
        queue.want(text, Priority::Rest);
        queue.show({none, cut}, {});
        QTRY_COMPARE_WITH_TIMEOUT(m_reasons.size(), 2, patience);
        QCOMPARE(m_reasons.value(1), PictureLines::noPictureInside());
        QCOMPARE(queue.kept(2).reason, PictureLines::pictureNotFound());
        QTRY_COMPARE_WITH_TIMEOUT(m_looks.value(3), QList<Look>{Look::Cut}, patience);
        PictureQueue again(thumbnails());
        m_looks.clear();
        watch(again);
        again.show({cut}, {});
        QTRY_COMPARE_WITH_TIMEOUT(m_looks.value(3), QList<Look>{Look::Cut},
                                  patience); // its thumbnail knows it
    }

    void showsTheThumbnailOfAFileThatIsNotHere()
    {
        WantedPicture picture = photograph(5, {1600, 1200});
        const ThumbnailKey key = ThumbnailKey::of(picture.path);
        picture.size = key.size;
        picture.time = key.time;
        PictureQueue queue(thumbnails());
        watch(queue);
        queue.want(picture, Priority::Rest);
        QTRY_COMPARE_WITH_TIMEOUT(queue.waitingCount(), 0, patience);
        QVERIFY(m_looks.isEmpty()); // of the rest nothing arrives
        QVERIFY(QFile::remove(picture.path));
        queue.setSide(700);
        queue.show({picture}, {});
        QTRY_COMPARE_WITH_TIMEOUT(m_looks.value(5), QList<Look>{Look::Away}, patience);
        QCOMPARE(queue.kept(5).image.size(), QSize(256, 192));
    }

    void forgetsWhatIsNotWantedAnyMore()
    {
        PictureQueue queue(thumbnails());
        watch(queue);
        std::vector<WantedPicture> seen;
        for (int id = 0; id < 20; ++id)
            seen.push_back(photograph(id, {1600, 1200}));
        queue.show(seen, {});
        queue.forget(0);
        queue.forgetAll();
        QCOMPARE(queue.waitingCount(), 0);
        queue.show({seen[4]}, {});
        QTRY_COMPARE_WITH_TIMEOUT(sharpCount(), 1, patience);
        QTest::qWait(100);
        QCOMPARE(m_looks.size(), 1);
        queue.show(seen, {}); // and goes while it works
    }

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString thumbnails() const { return path(u"thumbnails"_s); }

    WantedPicture photograph(int id, QSize size) const
    {
        const QImage image = TestPhotographs::draw(size, id);
        return {id, TestPhotographs::save(path(QString::number(id) + u".jpg"_s),
                                          TestPhotographs::photograph(image, 1, image.scaled(160, 120)))};
    }

    QDateTime timeOf(const WantedPicture &picture) const
    {
        // A thumbnail folder of its own tells the name under which a picture's thumbnail is kept.
        Thumbnails names(path(u"names"_s));
        names.write(ThumbnailKey::of(picture.path), TestPhotographs::draw({20, 20}, 1), false);
        const QString name = QDir(path(u"names"_s)).entryList(QDir::Files).constFirst();
        return QFileInfo(thumbnails() + u'/' + name).lastModified();
    }

    void watch(const PictureQueue &queue)
    {
        connect(&queue, &PictureQueue::arrived, this,
                [this](int id, const QImage &, Look look) { m_looks[id].append(look); });
        connect(&queue, &PictureQueue::failed, this,
                [this](int id, const QString &reason) { m_reasons[id] = reason; });
    }

    int sharpCount() const
    {
        return int(std::count_if(m_looks.begin(), m_looks.end(),
                                 [](const QList<Look> &looks) { return looks.last() == Look::Sharp; }));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QHash<int, QList<Look>> m_looks;
    QHash<int, QString> m_reasons;
};

QTEST_GUILESS_MAIN(TestPictureQueue)
#include "tst_picturequeue.moc"
