// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/preview/exactpaper.h"

#include <QByteArrayView>

#include <cmath>

namespace {

/// What tells of a page is written at once; pictures and texts come in longer pieces.
constexpr qint64 longestOfPage = 4096;
constexpr int decimals = 6;

QByteArray boxOf(double width, double height)
{
    return "/MediaBox [0 0 " + QByteArray::number(width, 'f', decimals) + ' ' +
           QByteArray::number(height, 'f', decimals) + ']';
}

} // namespace

ExactPaper::ExactPaper(QIODevice &file, QSizeF points)
    : m_file(file)
    , m_rounded(boxOf(std::round(points.width()), std::round(points.height())))
    , m_exact(boxOf(points.width(), points.height()))
{
    setOpenMode(WriteOnly | Unbuffered);
}

qint64 ExactPaper::readData(char *, qint64)
{
    return -1;
}

qint64 ExactPaper::writeData(const char *data, qint64 size)
{
    const QByteArrayView bytes(data, size);
    if (size > longestOfPage || m_exact.size() != m_rounded.size() || !bytes.contains(m_rounded))
        return m_file.write(data, size);
    return m_file.write(bytes.toByteArray().replace(m_rounded, m_exact));
}
