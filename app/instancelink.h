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

    enum class Reply {
        Nobody,  ///< no program is there
        Silence, ///< one is, and hangs
        Answer   ///< one is, and comes to the front
    };

    /// Waits for calls. What stands in the way counts as left over from a program that died: call first.
    /// Without a line the program runs as well: false, with a line in the log.
    [[nodiscard]] bool listen();

    /// Calls the program that is at work in the folder; it may still be starting, so that it is called again,
    /// up to `attempts` times.
    Reply callOther(int attempts = 10) const;

signals:
    /// Another start asks for the main window.
    void called();

private:
    QString m_name;
    QLocalServer m_server;
};
