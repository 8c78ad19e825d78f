// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/pagecontext.h"
#include "shell/manual/manual.h"

/// A page of the manual as a page to print: headings, paragraphs and lists one below the other.
Page printedManualPage(const ManualPage &page, const PageContext &context);
