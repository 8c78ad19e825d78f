// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QString>

/// Somebody whom a function knows by name.
struct KnownPerson {
    QString name; ///< "Anne Lind"
    int record = 0;
    QDate born{}; ///< invalid where that is not known

    bool operator==(const KnownPerson &) const = default;
};
