// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/theme.h"

#include <QColor>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QTest>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

static QString pathOf(int picture)
{
    return QDir(QStringLiteral(QUILLERY_PICTURES)).filePath(u"WP%1.jpg"_s.arg(picture));
}

/// What stands under the date and the sentence in a main menu area of `view`: the picture covers it, and its
/// foot stays at the area's foot.
static QImage underTheDate(int picture, QSize view)
{
    const QImage whole(pathOf(picture));
    const QSize covered = whole.size().scaled(view, Qt::KeepAspectRatioByExpanding);
    const QPoint origin((covered.width() - view.width()) / 2, covered.height() - view.height());
    return whole.scaled(covered, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .copy(QRect(origin, view) &
              QRect(origin + QPoint(32, 20), QPoint(std::min(700, view.width() * 3 / 4), 110) + origin));
}

/// Mean lightness, 0 to 1, of every square of `side` pixels.
static QList<QList<double>> lightness(const QImage &picture, int side)
{
    const QImage small = picture.scaled(picture.width() / side, picture.height() / side,
                                        Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QList<QList<double>> rows;
    for (int y = 0; y < small.height(); ++y) {
        rows.emplaceBack();
        for (int x = 0; x < small.width(); ++x)
            rows.last().append(QColor(small.pixel(x, y)).lightnessF());
    }
    return rows;
}

/// The pictures that the build paints must leave the date and the cards of the main menu readable.
class TestBackgroundPictures final : public QObject
{
    Q_OBJECT
private slots:
    void keepsToItsLimits_data()
    {
        QTest::addColumn<int>("picture");
        for (int picture = 1; picture <= 16; ++picture)
            QTest::addRow("WP%d", picture) << picture;
    }

    void keepsToItsLimits()
    {
        QFETCH(int, picture);
        QVERIFY(QFileInfo(pathOf(picture)).size() <= 150 * 1000);
        const QImage image(pathOf(picture));
        QCOMPARE(image.size(), QSize(1920, 1200));
        int span = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QColor colour(image.pixel(x, y));
                const auto [least, most] = std::minmax({colour.red(), colour.green(), colour.blue()});
                span = std::max(span, most - least);
            }
        QVERIFY2(span < 128, qPrintable(QString::number(span)));

        // The upper part is nearly even.
        const auto rows = lightness(image.copy(0, 0, image.width(), image.height() * 2 / 5), 16);
        int steps = 0;
        int squares = 0;
        for (qsizetype y = 1; y < rows.size(); ++y)
            for (qsizetype x = 1; x < rows[y].size(); ++x, ++squares)
                if (std::max(std::abs(rows[y][x] - rows[y][x - 1]), std::abs(rows[y][x] - rows[y - 1][x])) >
                    0.03)
                    ++steps;
        // A sun or a moon may stand at the right.
        QVERIFY2(steps < squares / 50, qPrintable(u"%1 of %2"_s.arg(steps).arg(squares)));
    }

    void dateIsReadable_data()
    {
        QTest::addColumn<int>("picture");
        QTest::addColumn<QSize>("view");
        for (int picture = 1; picture <= 16; ++picture)
            for (const QSize view : {QSize(800, 480), QSize(1280, 660), QSize(1920, 940), QSize(2560, 1300)})
                QTest::addRow("WP%d at %d", picture, view.width()) << picture << view;
    }

    void dateIsReadable()
    {
        QFETCH(int, picture);
        QFETCH(QSize, view);
        const QColor ink = picture == 8 || picture == 16 ? QColor(Qt::white) : QColor(0x2A, 0x28, 0x25);
        const QImage ground = underTheDate(picture, view);
        double least = 21;
        for (int y = 0; y < ground.height(); ++y)
            for (int x = 0; x < ground.width(); ++x)
                least = std::min(least, contrast(ink, ground.pixelColor(x, y)));
        QVERIFY2(least >= 4.5, qPrintable(QString::number(least)));

        // Nothing stands behind it.
        QList<double> all;
        for (const QList<double> &row : lightness(ground, 2))
            all += row;
        const auto [darkest, lightest] = std::ranges::minmax(all);
        QVERIFY2(lightest - darkest < 0.08, qPrintable(QString::number(lightest - darkest)));
    }
};

QTEST_GUILESS_MAIN(TestBackgroundPictures)
#include "tst_backgroundpictures.moc"
