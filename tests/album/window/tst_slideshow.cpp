// SPDX-License-Identifier: GPL-3.0-or-later
#include "album/model/photoshelf.h"
#include "album/window/slidepanel.h"
#include "album/window/slideshow.h"
#include "tests/support/testphotographs.h"
#include "tests/support/testprogram.h"

#include <QCheckBox>
#include <QPointer>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// A shelf with four pictures: the third is missing, the fourth left out of slide shows.
class TestSlideShow : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_program.emplace();
        m_shelf.emplace(m_program->folder);
        m_shelf->load();
        std::vector<Photo> photos;
        for (int i = 0; i < 4; ++i) {
            Photo photo;
            photo.path = u"picture%1.jpg"_s.arg(i);
            photo.caption = u"Caption %1"_s.arg(i);
            photo.people = i == 1 ? u"Anne; Karin"_s : QString();
            photo.set(Photo::LeftOutOfShows, i == 3);
            if (i != 2)
                TestPhotographs::save(m_program->path(photo.path),
                                      TestPhotographs::jpeg(TestPhotographs::draw({320, 240}, i)));
            photos.push_back(photo);
        }
        m_photos = m_shelf->addPhotos(photos);
        QCOMPARE(m_photos.size(), 4);
    }

    void cleanup()
    {
        delete m_show.data();
        m_shelf.reset();
        m_program.reset();
    }

    void showsWhatIsThereRoundAfterRound()
    {
        start();
        QTRY_VERIFY(timer()->isActive());
        QCOMPARE(timer()->interval(), 2000);
        QCOMPARE(m_show->current(), m_photos.at(0));
        timer()->start(0);
        QTRY_COMPARE(m_show->current(), m_photos.at(1));
        QTRY_VERIFY(timer()->isActive());
        timer()->start(0); // the missing one is passed over, the last one has no part in it
        QTRY_COMPARE(m_show->current(), m_photos.at(0));
    }

    void obeysKeysAndMouse()
    {
        start();
        QTRY_VERIFY(timer()->isActive());
        QTest::keyClick(m_show, Qt::Key_Space);
        QVERIFY(m_show->isPaused() && !timer()->isActive());
        QTest::keyClick(m_show, Qt::Key_Right);
        QCOMPARE(m_show->current(), m_photos.at(1));
        QTest::keyClick(m_show, Qt::Key_Left);
        QCOMPARE(m_show->current(), m_photos.at(0));
        QTest::mouseClick(m_show, Qt::LeftButton);
        QCOMPARE(m_show->current(), m_photos.at(1));
        QTRY_COMPARE(m_show->accessibleName(), u"Caption 1, with Anne and Karin"_s);
        QVERIFY(!timer()->isActive());
        auto *bar = control<QWidget>(*m_show, "slideBar");
        QVERIFY(!bar->isVisible());
        QTest::mouseMove(m_show, m_show->rect().center());
        QTRY_VERIFY(bar->isVisible());
        auto *captions = control<QPushButton>(*m_show, "slideCaptions");
        QTest::keyClick(m_show, Qt::Key_C);
        QVERIFY(captions->isChecked());
        QTest::mouseClick(captions, Qt::LeftButton);
        QVERIFY(!captions->isChecked());
        QTest::mouseClick(control<QPushButton>(*m_show, "slidePause"), Qt::LeftButton);
        QVERIFY(!m_show->isPaused());
        QSignalSpy ended(m_show, &SlideShow::ended);
        QTest::keyClick(m_show, Qt::Key_Escape);
        QCOMPARE(ended.size(), 1);
        QCOMPARE(ended.first().first().toInt(), m_photos.at(1));
        QTRY_VERIFY(m_show.isNull());
    }

    void saysWhenNothingCanBeShown()
    {
        start({m_photos.at(2)});
        QTRY_COMPARE(m_show->current(), 0);
        QTest::keyClick(m_show, Qt::Key_Right);
        QTest::keyClick(m_show, Qt::Key_Home);
        QTest::keyClick(m_show, Qt::Key_Escape);
        QTRY_VERIFY(m_show.isNull());
    }

    void remembersWhatWasChosen()
    {
        {
            SlidePanel panel(m_program->program, *m_shelf);
            panel.start(u"Grandmother"_s, m_photos);
            QCOMPARE(panel.photos().size(), 3);
            control<QSpinBox>(panel, "slideSeconds")->setValue(99);
            QTest::mouseClick(control<QCheckBox>(panel, "slideShuffled"), Qt::LeftButton, {}, {8, 8});
            QTest::mouseClick(control<QPushButton>(panel, "slideBegin"), Qt::LeftButton);
        }
        SlidePanel panel(m_program->program, *m_shelf);
        panel.start(u"Nobody"_s, {m_photos.at(3)});
        QCOMPARE(panel.options().seconds, 30);
        QVERIFY(panel.options().isShuffled);
        QVERIFY(!control<QPushButton>(panel, "slideBegin")->isEnabled());
    }

private:
    void start(const QList<int> &photos = {})
    {
        SlideOptions options;
        options.seconds = 1; // less than is allowed
        m_show = new SlideShow(*m_shelf, m_program->path(u"thumbnails"_s), DateStyle::Usa, options);
        m_show->start(photos.isEmpty() ? m_photos : photos);
    }
    QTimer *timer() const { return control<QTimer>(*m_show, "Timer1"); }

    std::optional<TestProgram> m_program;
    std::optional<PhotoShelf> m_shelf;
    QList<int> m_photos;
    QPointer<SlideShow> m_show;
};

QTEST_MAIN(TestSlideShow)
#include "tst_slideshow.moc"
