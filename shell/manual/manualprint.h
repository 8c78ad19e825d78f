#pragma once

#include "shell/core/page.h"
#include "shell/manual/manual.h"

#include <QDate>

/// A page of the manual as a page to print: headings, paragraphs and lists one below the other.
Page printedManualPage(const ManualPage &page, QDate printedOn, DateStyle style);
