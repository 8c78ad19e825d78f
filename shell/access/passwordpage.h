#pragma once

#include "shell/core/page.h"
#include "shell/core/programstate.h"

#include <QDate>

/// What password control prints: whether a password is set, and which functions of this edition ask for it.
Page passwordPage(bool isPasswordSet, const ProtectedAreas &areas, QDate printedOn, DateStyle style);
