// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "journal/model/journalfiles.h"
#include "shell/core/clock.h"
#include "storage/disk.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

inline constexpr int firstYear = 1997;
inline constexpr int lastYear = 2026;
inline const QDate today(lastYear, 11, 23);

/// Stands in the evening of today.
class StandingClock final : public Clock
{
public:
    QDateTime now() const override { return QDateTime(::today, QTime(20, 0)); }
};

/// A text of about 1,500 characters: words of which some are frequent and most are rare, in four paragraphs.
inline QString textOf(QRandomGenerator &random)
{
    static const QStringList frequent =
        QStringLiteral("the and we to a of in was it went with for on day house garden").split(u' ');
    static const QString vowels = QStringLiteral("aeiou\u00e9");
    static const QString others = QStringLiteral("bcdfghklmnprstvw");
    QString text;
    while (text.size() < 1500) {
        QString word;
        if (random.bounded(2) == 0) {
            word = frequent[random.bounded(int(frequent.size()))];
        } else {
            for (int part = random.bounded(1, 4); part > 0; --part) {
                word += others[random.bounded(int(others.size()))];
                const int vowel = random.bounded(60);
                word += vowels[vowel < 1 ? 5 : vowel % 5];
            }
        }
        text += word + (random.bounded(70) == 0 ? QStringLiteral(".\n\n") : QStringLiteral(" "));
    }
    return text;
}

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no file");
    return file.readAll();
}

/// Thirty years with an entry every day: 10,957 of them, 16 MB.
class ThirtyYears
{
public:
    explicit ThirtyYears(const QString &place = QDir::tempPath(), int first = firstYear)
        : temporary(place + QStringLiteral("/bench_journal-XXXXXX"))
    {
        QRandomGenerator random(4);
        for (int year = first; year <= lastYear; ++year) {
            JournalBlocks blocks;
            for (QDate day(year, 1, 1); day.year() == year; day = day.addDays(1)) {
                JournalEntry entry{
                    .date = day, .written = QDateTime(day, QTime(21, 30)), .text = textOf(random)};
                if (day.day() % 7 == 0)
                    entry.tags = QStringList{QStringLiteral("garden"), QStringLiteral("school")};
                blocks.push_back(JournalForm::block(entry, JournalBlock::Entry));
            }
            const QByteArray bytes = JournalForm::file(blocks);
            size += bytes.size();
            if (!Disk::writeWhole(folder.filePath(JournalFiles::name(year)), bytes))
                qFatal("cannot write the years");
        }
    }

    qint64 size = 0;
    QTemporaryDir temporary;
    DataFolder folder{temporary.path()};
};

inline const ThirtyYears &thirtyYears()
{
    static const ThirtyYears years;
    return years;
}
