// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

/// The small pictures of windows that the system's task switcher shows.
namespace TaskPreview {

/// Whether that of `window` shows its icon alone, also where the system keeps an older picture of it.
void setHidden(const QWidget &window, bool isHidden);

} // namespace TaskPreview
