// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/program/functions.h"

#include <QObject>

/// News that every open window should hear: another one changed what they share.
class ProgramSignals final : public QObject
{
    Q_OBJECT
public:
    using QObject::QObject;

signals:
    /// The panel colours were changed for the whole program to `color`, as the records hold it.
    void panelColorsChanged(const QString &color);
    /// The top toolbar was removed or restored.
    void topToolbarChanged();
    /// The family name was changed.
    void familyNameChanged();
    /// A window that is gone with it could not save a setting.
    void settingNotSaved();
    /// The window asks for the manual's page of this context.
    void helpRequested(int context);
    /// A window wants a place of another function shown, behind that function's guard.
    void placeRequested(Function function, const Place &place);
    /// Nobody is at the desk, by what somebody said or by the system: what is guarded is to be covered.
    void lockRequested();
    /// Somebody wants to see the covered `window` again: asks for the password.
    void uncoverRequested(QWidget *window);
    /// What the password guards has changed, or when it covers.
    void guardsChanged();
    /// The main window is to come to the front.
    void mainMenuRequested();
};
