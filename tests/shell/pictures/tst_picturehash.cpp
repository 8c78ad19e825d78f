// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/picturehash.h"
#include "tests/support/testphotographs.h"

class TestPictureHash : public QObject
{
    Q_OBJECT
private slots:
    void knowsTheSamePictureInAnotherSizeQualityOrTurn()
    {
        for (int which = 0; which < 20; ++which) {
            const QImage picture = TestPhotographs::draw({1200, 900}, which);
            const PictureHash hash = PictureHash::of(picture);
            QVERIFY(hash.isAlike(PictureHash::of(picture.scaled(256, 192, Qt::KeepAspectRatio))));
            QVERIFY(hash.isAlike(PictureHash::of(QImage::fromData(TestPhotographs::jpeg(picture, 25)))));
            for (int turns = 0; turns < 4; ++turns) {
                const QImage turned = picture.transformed(QTransform().rotate(90 * turns)).scaled(300, 300);
                const auto back = std::size_t((4 - turns) % 4);
                QVERIFY(hash.isAlike(PictureHash::ofAllTurns(turned)[back]));
            }
            QVERIFY(!hash.isAlike(PictureHash::of(TestPhotographs::draw({1200, 900}, which + 1))));
        }
    }

    void takesPicturesWithoutContrastForLikeNoOther()
    {
        QImage night(200, 100, QImage::Format_RGB32);
        night.fill(Qt::black);
        QCOMPARE(PictureHash::of(night).bits(), quint64(0));
        QVERIFY(!PictureHash::of(night).isAlike(PictureHash::of(night)));
        QCOMPARE(PictureHash::of(QImage()), PictureHash());
    }
};

QTEST_GUILESS_MAIN(TestPictureHash)
#include "tst_picturehash.moc"
