// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <memory>

/// Keeps the screen on and the system awake for as long as it lives, where the desktop can be asked for that.
class ScreenAwake final
{
public:
    /// `reason` is shown by desktops that tell what holds them back: "Slide show".
    explicit ScreenAwake(const QString &reason);
    ~ScreenAwake();
    ScreenAwake(const ScreenAwake &) = delete;
    ScreenAwake &operator=(const ScreenAwake &) = delete;

private:
    class System;

    std::unique_ptr<System> m_system;
};
