// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/pages/pagepainter.h"

#include <QImage>
#include <QPdfWriter>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

/// Looks at printed sheets: as pictures and through the PDF tools.
namespace SheetTools {

inline PageFont bodyFont(double points = 11)
{
    PageFont font;
    font.font.setPointSizeF(points);
    return font;
}

/// Whether poppler's tools are there; under another system's emulation they are not.
inline bool hasPdfTools()
{
    return !QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty();
}

/// What a PDF tool says of the file.
inline QString output(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        QTest::qFail(qPrintable(tool + QStringLiteral(" failed: ") +
                                QString::fromUtf8(process.readAllStandardError())),
                     __FILE__, __LINE__);
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// The text of each sheet of a PDF, as it stands there.
inline QStringList pdfSheets(const QString &path)
{
    return output(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), path, QStringLiteral("-")})
        .split(u'\f', Qt::SkipEmptyParts);
}

/// Prints the page into a PDF at `path` and returns the path.
inline QString savePdf(const QString &path, const Page &page, const PageSetup &setup = {})
{
    QPdfWriter writer(path);
    if (!PagePainter(page, setup, bodyFont()).print(writer))
        QTest::qFail("no PDF", __FILE__, __LINE__);
    return path;
}

/// The smallest rectangle that holds every dot of this colour, in inches.
inline QRectF inkOf(const QImage &image, QRgb color, double dotsPerInch)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == color)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return {QPointF(ink.topLeft()) / dotsPerInch, QSizeF(ink.size()) / dotsPerInch};
}

/// Whether nothing but white stands there.
inline bool isBlank(const QImage &image, const QRectF &inches, double dotsPerInch)
{
    const QRect area = QRectF(inches.topLeft() * dotsPerInch, inches.size() * dotsPerInch).toRect();
    const QImage part = image.copy(area);
    QImage white(part.size(), part.format());
    white.fill(Qt::white);
    return part == white;
}

} // namespace SheetTools
