// SPDX-License-Identifier: GPL-3.0-or-later
#include "keeper/model/keepersettings.h"

#include "keeper/model/keeperpayload.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

enum Id : quint8 {
    LockMinutes = 1,
    LocksMinimised = 2,
    ClipboardSeconds = 3,
    TellsExpiry = 4,
    KnowsPrinting = 5,
    NewCode = 6,
    Sheet = 16
};

constexpr int longestLock = 24 * 60;
constexpr int shortestClipboard = 10;
constexpr int longestClipboard = 120;
constexpr qsizetype mostSheets = 500;

/// Time, what it was, "1" with secrets, then the titles, all with a zero byte between them.
QString sheetText(const PrintedSheet &sheet)
{
    const QStringList parts{sheet.time.toUTC().toString(Qt::ISODate), sheet.what,
                            sheet.hasSecrets ? u"1"_s : u"0"_s};
    return (parts + sheet.titles).join(QChar(u'\0'));
}

PrintedSheet sheetOf(const QString &text)
{
    const QStringList parts = text.split(QChar(u'\0'));
    if (parts.size() < 3)
        return {};
    return {QDateTime::fromString(parts[0], Qt::ISODate), parts[1], parts[2] == "1"_L1, parts.sliced(3)};
}

} // namespace

SecretBytes KeeperSettings::encoded() const
{
    KeeperEntry fields;
    const auto add = [&fields](quint8 id, const QString &text) {
        fields.fields.append({id, false, {}, text});
    };
    add(LockMinutes, QString::number(lockMinutes));
    add(LocksMinimised, locksMinimised ? u"1"_s : u"0"_s);
    add(ClipboardSeconds, QString::number(clipboardSeconds));
    add(TellsExpiry, tellsExpiry ? u"1"_s : u"0"_s);
    add(KnowsPrinting, knowsPrinting ? u"1"_s : u"0"_s);
    if (!newCode.isEmpty())
        add(NewCode, newCode);
    const qsizetype first = fields.fields.size();
    for (const PrintedSheet &sheet : printed.last(std::min(printed.size(), mostSheets)))
        add(Sheet, sheetText(sheet));
    while (!KeeperPayload::fits(fields) && fields.fields.size() > first)
        fields.fields.remove(first, (fields.fields.size() - first + 1) / 2);
    return KeeperPayload::encoded(fields);
}

KeeperSettings KeeperSettings::decoded(QByteArrayView bytes)
{
    KeeperSettings settings;
    KeeperPayload::forEach(bytes, [&settings](const KeeperPayload::Field &field) {
        const QString text = QString::fromUtf8(field.text);
        switch (field.id) {
        case LockMinutes:
            settings.lockMinutes = std::clamp(text.toInt(), 1, longestLock);
            break;
        case LocksMinimised:
            settings.locksMinimised = text == "1"_L1;
            break;
        case ClipboardSeconds:
            settings.clipboardSeconds = std::clamp(text.toInt(), shortestClipboard, longestClipboard);
            break;
        case TellsExpiry:
            settings.tellsExpiry = text == "1"_L1;
            break;
        case KnowsPrinting:
            settings.knowsPrinting = text == "1"_L1;
            break;
        case NewCode:
            settings.newCode = text;
            break;
        case Sheet:
            settings.printed.append(sheetOf(text));
            break;
        default:
            break;
        }
    });
    return settings;
}
