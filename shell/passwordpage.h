#pragma once

#include "shell/page.h"
#include "shell/programstate.h"

#include <QDate>

/// What password control prints: whether a password is set, and which functions of this edition ask for it.
Page passwordPage(bool isPasswordSet, const ProtectedAreas &areas, QDate printedOn, DateStyle style);
