// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QLocalServer>
#include <QObject>

/// The line between two starts of the program on one data folder: the second asks the first to come to the
/// front, and goes.
class InstanceLink final : public QObject
{
    Q_OBJECT
public:
    explicit InstanceLink(const DataFolder &folder, QObject *parent = nullptr);

    /// Waits for calls; the caller holds the folder's lock, so that whatever stands in the way is left over
    /// from a program that died. Without a line the program runs as well: false, with a line in the log.
    bool listen();

    /// Calls the program that holds the folder; it may still be starting, so that it is called again, up to
    /// `attempts` times. False when nobody answered.
    bool callOther(int attempts = 10) const;

signals:
    /// Another start asks for the main window.
    void called();

private:
    QString m_name;
    QLocalServer m_server;
};
