// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QSizeF>

/// Lets a PDF through to its file with the exact size of its sheets, which the toolkit's writer rounds to
/// whole points: 841.89 of A4 and not 842. Numbers of the same length take their place, since the file tells
/// where in it everything stands.
class ExactPaper final : public QIODevice
{
public:
    /// `points` is the size of the sheets as they lie.
    ExactPaper(QIODevice &file, QSizeF points);

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 most) override;
    qint64 writeData(const char *data, qint64 size) override;

private:
    QIODevice &m_file;
    QByteArray m_rounded;
    QByteArray m_exact;
};
