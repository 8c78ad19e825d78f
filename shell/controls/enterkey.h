// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QAbstractButton;

/// Lets Enter press a button that has the focus, as Space does, in windows and boxes alike.
void letEnterPress(QAbstractButton *button);
