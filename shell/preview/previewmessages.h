// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/message.h"

/// The fixed wording of preview and printing.
namespace PreviewMessages {

inline Message pageCopied()
{
    return {QStringLiteral("Copy Option"),
            QStringLiteral("Current Page has been copied to the Windows Clipboard.")};
}

inline QString printToFileTitle()
{
    return QStringLiteral("Print to File (PDF)");
}

// Quiet lines of the status bar

inline QString notSaved(const QString &path, const QString &reason)
{
    return QStringLiteral("Could not save %1: %2").arg(path, reason);
}

inline QString printed(int sheets)
{
    return sheets == 1 ? QStringLiteral("1 page sent to the printer")
                       : QStringLiteral("%1 pages sent to the printer").arg(sheets);
}

inline QString notPrinted()
{
    return QStringLiteral("The printer did not take the page");
}

inline QString noSuchPage()
{
    return QStringLiteral("None of the pages asked for exists; nothing was printed");
}

inline QString printingStopped()
{
    return QStringLiteral("Printing was stopped");
}

} // namespace PreviewMessages
