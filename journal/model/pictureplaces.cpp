// SPDX-License-Identifier: GPL-3.0-or-later
#include "journal/model/pictureplaces.h"

#include "shell/core/lightmarks.h"

#include <QRegularExpression>
#include <QSet>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Also within a line: what a slip has moved there still holds its picture.
const QRegularExpression &places()
{
    static const QRegularExpression expression(u"\\[picture ([1-9][0-9]{0,3})\\]"_s);
    return expression;
}

QSet<int> numbersIn(const QString &text)
{
    QSet<int> numbers;
    for (auto found = places().globalMatch(text); found.hasNext();)
        numbers.insert(found.next().capturedView(1).toInt());
    return numbers;
}

QString renumbered(const QString &text, const std::function<int(int)> &numberOf)
{
    QString changed;
    qsizetype done = 0;
    for (auto found = places().globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch place = found.next();
        changed += QStringView(text).sliced(done, place.capturedStart() - done);
        changed += LightMarks::picture(numberOf(place.capturedView(1).toInt()));
        done = place.capturedEnd();
    }
    changed += QStringView(text).sliced(done);
    return changed;
}

} // namespace

QString PicturePlaces::complete(const QString &text, qsizetype count)
{
    const QSet<int> named = count > 0 ? numbersIn(text) : QSet<int>();
    QString whole = text;
    for (int number = 1; number <= count; ++number) {
        if (named.contains(number))
            continue;
        if (!whole.isEmpty() && !whole.endsWith(u'\n'))
            whole += u'\n';
        whole += LightMarks::picture(number);
    }
    return whole;
}

JournalEntry PicturePlaces::named(JournalEntry entry)
{
    const QSet<int> named = numbersIn(entry.text);
    QList<JournalPicture> kept;
    QList<int> numbers; ///< what each becomes
    for (int i = 0; i < entry.pictures.size(); ++i) {
        if (named.contains(i + 1))
            kept.append(entry.pictures[i]);
        numbers.append(int(kept.size()));
    }
    if (kept.size() == entry.pictures.size())
        return entry;
    entry.pictures = kept;
    entry.text = renumbered(entry.text, [&](int number) { return numbers.value(number - 1, number); });
    return entry;
}

QString PicturePlaces::behind(const QString &text, qsizetype count)
{
    return count == 0 ? text : renumbered(text, [count](int number) { return number + int(count); });
}
