// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/window/journalspelling.h"

#include "journal/window/daypage.h"
#include "journal/window/journaldesk.h"
#include "journal/window/journaltext.h"
#include "shell/frame/functionwindow.h"
#include "shell/frame/windowwriting.h"
#include "shell/writing/checkedtext.h"
#include "shell/writing/writing.h"

WindowWriting *JournalSpelling::make(const JournalDesk &desk)
{
    JournalText &text = desk.page.text();
    CheckedText *marks = desk.writing.check(&text, text.styles());
    QObject::connect(&text, &JournalText::documentShown, marks, &CheckedText::followDocument);
    const auto all = [&text] { return std::vector<WalkedText>{{0, {}, text.text()}}; };
    const auto change = [&text](const WalkedText &changed) { text.replaceText(changed.text); };
    auto *spelling = new WindowWriting({desk.window, desk.commands, desk.views, desk.writing}, {all, change},
                                       &desk.window);
    spelling->offerThesaurus();
    return spelling;
}
