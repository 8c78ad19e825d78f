// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/systemlook.h"

#include "shell/look/theme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QVariant>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A setting of the desktop, as its portal tells it to every program; invalid where it has none.
QVariant desktopSetting(const QString &group, const QString &key)
{
    constexpr int patience = 200; // milliseconds
    QDBusMessage read = QDBusMessage::createMethodCall(u"org.freedesktop.portal.Desktop"_s,
                                                       u"/org/freedesktop/portal/desktop"_s,
                                                       u"org.freedesktop.portal.Settings"_s, u"Read"_s);
    read << group << key;
    const QDBusMessage reply = QDBusConnection::sessionBus().call(read, QDBus::Block, patience);
    if (reply.type() != QDBusMessage::ReplyMessage || reply.arguments().isEmpty())
        return {};
    QVariant value = reply.arguments().constFirst();
    while (value.metaType() == QMetaType::fromType<QDBusVariant>()) // the portal wraps it twice
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

bool SystemLook::isHighContrast(const QPalette &palette)
{
    // Ordinary desktops stay below: black on the usual light grey is 18.4.
    constexpr double least = 19;
    return contrast(palette.color(QPalette::WindowText), palette.color(QPalette::Window)) >= least;
}

bool SystemLook::hasSmallFonts()
{
    return false;
}

bool SystemLook::wantsLessMotion()
{
    if (!QDBusConnection::sessionBus().isConnected())
        return false;
    const QVariant animations = desktopSetting(u"org.gnome.desktop.interface"_s, u"enable-animations"_s);
    if (animations.isValid())
        return !animations.toBool();
    const QVariant slowness = desktopSetting(u"org.kde.kdeglobals.KDE"_s, u"AnimationDurationFactor"_s);
    return slowness.isValid() && slowness.toDouble() <= 0;
}
