// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QVariantMap>

#include <memory>

/// Hears when the user's session is locked and when the computer goes to sleep. Where the system tells
/// nothing of either, it is silent.
class SessionWatch final : public QObject
{
    Q_OBJECT
public:
    explicit SessionWatch(QObject *parent = nullptr);
    ~SessionWatch() override;

    /// Begins to listen.
    void start();

signals:
    /// Nobody is at the desk from now on.
    void left();

private slots:
    void sleepChanged(bool isBeginning);
    void lockChanged(bool isLocked);
    void hintChanged(const QString &what, const QVariantMap &values);

private:
    class System;
    std::unique_ptr<System> m_system;
};
