// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/pictures/picturecopies.h"
#include "tests/support/testphotographs.h"

#include <QSignalSpy>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

class TestPictureCopies : public QObject
{
    Q_OBJECT
private slots:
    void readsPicturesForTheirPlacesOnPaper()
    {
        // Red at the left, blue at the right, and lying on its side in the file.
        QImage lake(400, 800, QImage::Format_RGB32);
        lake.fill(Qt::white);
        QPainter painter(&lake);
        painter.fillRect(0, 600, 400, 200, Qt::red);
        painter.fillRect(0, 0, 400, 200, Qt::blue);
        painter.end();
        TestPhotographs::save(m_data.filePath(u"lake.jpg"_s), TestPhotographs::photograph(lake, 6));
        struct Row {
            PaperPicture wanted;
            QSize pixels; ///< as it stands on the page
            QSize copy;
            QRgb left;
            QRgb top;
        };
        const QRgb red = qRgb(255, 0, 0);
        const QRgb white = qRgb(255, 255, 255);
        const QRgb blue = qRgb(0, 0, 255);
        const std::vector<Row> rows{
            {{.stored = u"lake.jpg"_s}, {800, 400}, {540, 270}, red, white},
            {{.stored = u"lake.jpg"_s, .place = {3000, 3000}}, {800, 400}, {800, 400}, red, white},
            {{.stored = u"lake.jpg"_s, .place = {300, 300}, .turns = 1}, {400, 800}, {150, 300}, white, red},
            {{.stored = u"lake.jpg"_s, .place = {300, 300}, .turns = 3}, {400, 800}, {150, 300}, white, blue},
            {{.stored = u"lake.jpg"_s, .place = {100, 200}, .mayBeTurned = true},
             {400, 800},
             {100, 200},
             white,
             red},
            {{.stored = u"lake.jpg"_s, .place = {200, 100}, .mayBeTurned = true},
             {800, 400},
             {200, 100},
             red,
             white},
            {{.stored = u"lake.jpg"_s, .place = {200, 200}, .isFilling = true},
             {200, 200},
             {200, 200},
             white,
             white},
            {{.stored = u"lake.jpg"_s, .place = {90, 200}, .isFilling = true, .mayBeTurned = true},
             {90, 200},
             {90, 200},
             white,
             red},
            {{.stored = u"lake.jpg"_s, .place = {3000, 3000}, .isFilling = true},
             {400, 400},
             {400, 400},
             white,
             white},
            {{.stored = u"none.jpg"_s}, {}, {0, 0}, 0, 0},
        };
        std::vector<PaperPicture> wanted;
        for (const Row &row : rows)
            wanted.push_back(row.wanted);
        PictureCopies copies(m_folder);
        QSignalSpy ready(&copies, &PictureCopies::ready);
        copies.make(wanted);
        QVERIFY(ready.wait());
        QCOMPARE(copies.pictures().size(), rows.size());
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const ListedPicture &listed = copies.pictures()[i];
            const QImage copy(listed.path);
            const QByteArray which = "row " + QByteArray::number(qulonglong(i));
            QVERIFY2(copy.size() == rows[i].copy && (copy.isNull() || listed.pixels == rows[i].pixels),
                     which);
            if (copy.isNull())
                continue;
            QVERIFY2(isNearly(copy.pixel(3, copy.height() / 2), rows[i].left), which);
            QVERIFY2(isNearly(copy.pixel(copy.width() / 2, 3), rows[i].top), which);
        }
    }

private:
    static bool isNearly(QRgb color, QRgb other)
    {
        return std::abs(qRed(color) - qRed(other)) < 30 && std::abs(qGreen(color) - qGreen(other)) < 30 &&
               std::abs(qBlue(color) - qBlue(other)) < 30;
    }

    QTemporaryDir m_data;
    DataFolder m_folder{m_data.path()};
};

QTEST_MAIN(TestPictureCopies)
#include "tst_picturecopies.moc"
