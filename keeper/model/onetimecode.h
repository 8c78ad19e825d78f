// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <QString>

#include <optional>

/// What a web site gave for one-time codes, and the codes themselves (RFC 6238). Times are seconds since
/// 1970.
struct OneTimeSecret {
    QByteArray key;
    QCryptographicHash::Algorithm algorithm = QCryptographicHash::Sha1;
    int digits = 6;  ///< or 8
    int period = 30; ///< seconds
    QString issuer{};
    QString account{};

    /// Reads "otpauth://totp/..." or a bare key in Base32, whatever its case, blanks and dashes. What cannot
    /// be read gives nothing, and `problem` says why.
    static std::optional<OneTimeSecret> read(const QString &text, QString *problem = nullptr);

    /// The code of that time, with its leading zeros.
    QString code(qint64 time) const;
    /// For how long it holds, 1 to `period`.
    int secondsLeft(qint64 time) const;

    /// The secret as `read()` takes it: the bare key where nothing else is unusual, else the address.
    QString text() const;

    bool operator==(const OneTimeSecret &) const = default;
};
