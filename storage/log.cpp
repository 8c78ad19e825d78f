#include "storage/log.h"

Q_LOGGING_CATEGORY(storageLog, "quillery.storage")
