// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QLineEdit;
class QPlainTextEdit;

/// Lets a box hold no more than its field in the file has room for, counted in bytes of UTF-8: what goes
/// beyond is not taken, and told.
class ByteLimit final : public QObject
{
    Q_OBJECT
public:
    /// Belongs to `box`.
    ByteLimit(QLineEdit *box, int bytes);
    ByteLimit(QPlainTextEdit *box, int bytes);

    /// `text` as far as it fits, never cut inside a letter.
    static QString fitting(const QString &text, int bytes);

signals:
    void reached(int bytes);
};
