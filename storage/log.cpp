// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/log.h"

Q_LOGGING_CATEGORY(storageLog, "quillery.storage")
