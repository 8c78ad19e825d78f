// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/enlargedpicture.h"
#include "shell/pictures/pictureframe.h"
#include "tests/support/testpictures.h"
#include "tests/support/testprogram.h"

using namespace Qt::Literals::StringLiterals;

class TestPictureFrame : public QObject
{
    Q_OBJECT
private slots:
    void readsPicturesThatAreTooLargeInTheirScale()
    {
        const QString path = makePicture(m_test.path(u"large.jpg"_s), {5000, 2500});
        QCOMPARE(PictureFile::read(path, {400, 400}).size(), QSize(400, 200));
        QVERIFY(PictureFile::read(m_test.path({}), {400, 400}).isNull());
        QVERIFY(PictureFile::read(m_test.path(u"none.jpg"_s), {400, 400}).isNull());
    }

    void enlargesWhatWasAskedForLast()
    {
        EnlargedPicture enlarged(m_test.folder, u"back"_s, u"Normal"_s);
        const auto *frame = control<PictureFrame>(enlarged, "enlargedPicture");
        const auto *name = control<QLabel>(enlarged, "enlargedName");
        enlarged.resize(400, 300);
        enlarged.show();
        enlarged.enlarge(makePicture(m_test.path(u"slow.jpg"_s), {5000, 2500}), u"Anne"_s);
        QVERIFY(name->isVisible());
        QVERIFY(!frame->words().isEmpty());
        enlarged.enlarge(m_test.path(u"none.jpg"_s));
        QVERIFY(!name->isVisible());
        QTRY_COMPARE(frame->words(), u"Picture not found"_s);
        QTest::qWait(300); // the slow one comes too late
        QVERIFY(!frame->hasPicture());
    }

private:
    TestProgram m_test;
};

QTEST_MAIN(TestPictureFrame)
#include "tst_pictureframe.moc"
