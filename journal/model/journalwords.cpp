// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/journalwords.h"

#include "shell/core/lightmarks.h"

namespace {

/// Lines with the place of a picture are short.
bool isPicture(QStringView line)
{
    constexpr qsizetype longest = 32;
    return line.size() < longest && LightMarks::of(line).kind == MarkedLine::Picture;
}

/// Calls `visit` with each line of `text` until it answers false.
template <typename Visit>
void forEachLine(QStringView text, Visit visit)
{
    while (!text.isEmpty()) {
        const qsizetype end = text.indexOf(u'\n');
        const QStringView line = end < 0 ? text : text.first(end);
        text = end < 0 ? QStringView() : text.sliced(end + 1);
        if (!isPicture(line) && !visit(line))
            return;
    }
}

} // namespace

int JournalWords::count(const QString &text)
{
    int words = 0;
    forEachLine(text, [&words](QStringView line) {
        bool isWord = false;
        for (const QChar character : line) {
            const bool isCounted = isWord;
            isWord = !character.isSpace() && (isWord || character.isLetterOrNumber());
            words += isWord && !isCounted ? 1 : 0;
        }
        return true;
    });
    return words;
}

QString JournalWords::firstLine(const QString &text)
{
    QString first;
    forEachLine(text, [&first](QStringView line) {
        constexpr qsizetype most = 500;
        first = LightMarks::plain(line.left(most)).trimmed();
        return first.isEmpty();
    });
    return first;
}
