// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/timeofday.h"

namespace {

struct Found {
    QTime time{};
    qsizetype end = 0; ///< where the text goes on
    bool isHourAlone = false;
};

bool isDigitAt(QStringView text, qsizetype at)
{
    return at < text.size() && text[at] >= u'0' && text[at] <= u'9';
}

qsizetype behindBlanks(QStringView text, qsizetype at)
{
    while (at < text.size() && text[at].isSpace())
        ++at;
    return at;
}

/// 'a' or 'p' where "AM" or "PM" stands at `at`; else nothing.
char16_t halfAt(QStringView text, qsizetype at)
{
    if (at + 1 >= text.size() || text[at + 1].toLower() != u'm')
        return 0;
    const char16_t half = text[at].toLower().unicode();
    const bool goesOn = at + 2 < text.size() && text[at + 2].isLetterOrNumber();
    return !goesOn && (half == u'a' || half == u'p') ? half : 0;
}

Found find(QStringView text)
{
    Found found;
    qsizetype at = behindBlanks(text, 0);
    const qsizetype begin = at;
    int hour = 0;
    for (; at < begin + 2 && isDigitAt(text, at); ++at)
        hour = 10 * hour + text[at].digitValue();
    if (at == begin)
        return found;
    int minute = 0;
    found.isHourAlone = true;
    if (isDigitAt(text, at + 1) && isDigitAt(text, at + 2) && (text[at] == u':' || text[at] == u'.')) {
        minute = 10 * text[at + 1].digitValue() + text[at + 2].digitValue();
        found.isHourAlone = false;
        at += 3;
    }
    found.end = at;
    const qsizetype behind = behindBlanks(text, at);
    if (const char16_t half = halfAt(text, behind)) {
        if (hour < 1 || hour > 12)
            return found;
        hour = hour % 12 + (half == u'p' ? 12 : 0);
        found.isHourAlone = false;
        found.end = behind + 2;
    }
    found.time = QTime(hour, minute);
    return found;
}

Found findLeading(QStringView text)
{
    const Found found = find(text);
    const bool isWhole = found.end == text.size() || text[found.end].isSpace() || text[found.end].isPunct();
    return isWhole && !found.isHourAlone ? found : Found();
}

} // namespace

QTime TimeOfDay::of(QStringView text)
{
    const Found found = find(text);
    return behindBlanks(text, found.end) == text.size() ? found.time : QTime();
}

QTime TimeOfDay::leading(QStringView text)
{
    return findLeading(text).time;
}

QStringView TimeOfDay::behindLeading(QStringView text)
{
    const Found found = findLeading(text);
    return found.time.isValid() ? text.sliced(behindBlanks(text, found.end)) : text;
}
