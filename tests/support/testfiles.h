// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/datafolder.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool makeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

/// The path to compare others with: on a disk that does not tell spellings apart, one for them all.
inline QString spelt(const QString &path)
{
    const QString found = QFileInfo(path).canonicalFilePath();
    const bool isAnySpelling = QFileInfo::exists(found.toLower()) && QFileInfo::exists(found.toUpper());
    return isAnySpelling ? found.toLower() : found;
}

/// `text`, blanks up to `width`.
inline QByteArray padded(const QByteArray &text, qsizetype width)
{
    return text + QByteArray(width - text.size(), ' ');
}

/// Bytes of any kind, the same in each run.
inline QByteArray noiseOf(qsizetype size)
{
    QByteArray noise(size, '\0');
    QRandomGenerator generator(4);
    std::ranges::generate(noise, [&generator] { return char(generator.bounded(256)); });
    return noise;
}

/// A data folder of its own, with bytes put in and taken out by hand.
class TestFolder
{
public:
    QString path(const QString &name) const { return m_dir.filePath(name); }
    QByteArray bytes(const QString &name) const { return contentOf(path(name)); }
    void put(const QString &name, const QByteArray &content) const { QVERIFY(makeFile(path(name), content)); }
    const DataFolder &folder() const { return m_folder; }

private:
    QTemporaryDir m_dir;
    DataFolder m_folder{m_dir.path()};
};

/// The test fails unless the log gets a line that matches `pattern`.
inline void expectWarning(const char *pattern)
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QString::fromLatin1(pattern)));
}
