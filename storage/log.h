// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLoggingCategory>

/// Failures of reading and writing data files: one line each, for whoever looks into a household's trouble.
Q_DECLARE_LOGGING_CATEGORY(storageLog)
