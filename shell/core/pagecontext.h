// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/page.h"
#include "shell/core/programstate.h"

#include <QDate>
#include <QString>

/// What every page is built for: the sheet, how dates are written, the day of printing and the household's
/// name.
struct PageContext {
    PageSetup setup{};
    DateStyle style = DateStyle::Usa;
    QDate today{};
    QString family{};
};
