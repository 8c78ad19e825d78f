// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/ownwords.h"

#include "shell/writing/writingfile.h"

#include <algorithm>

namespace {

const QByteArray kind = QByteArrayLiteral("Quillery words");

} // namespace

OwnWords::OwnWords(const DataFolder &folder)
    : m_folder(folder)
{}

void OwnWords::read()
{
    m_words.clear();
    for (const QByteArray &line : WritingFile::read(m_folder, fileName, kind).lines) {
        const QString word = QString::fromUtf8(line).trimmed();
        if (word.size() <= longest)
            m_words.insert(word);
    }
}

bool OwnWords::contains(QStringView word) const
{
    if (m_words.isEmpty() || word.isEmpty())
        return false;
    QString text = QString::fromRawData(word.data(), word.size());
    if (m_words.contains(text))
        return true;
    if (!text[0].isUpper())
        return false;
    text[0] = text[0].toLower();
    return m_words.contains(text);
}

bool OwnWords::add(const QString &word)
{
    m_words.insert(word);
    WritingFile file = WritingFile::read(m_folder, fileName, kind);
    if (!file.mayBeReplaced())
        return false;
    const QByteArray line = word.toUtf8();
    if (file.lines.contains(line))
        return true;
    file.lines.append(line);
    std::ranges::sort(file.lines);
    return WritingFile::write(m_folder, fileName, kind, file.lines);
}

bool OwnWords::remove(const QString &word)
{
    m_words.remove(word);
    WritingFile file = WritingFile::read(m_folder, fileName, kind);
    if (!file.mayBeReplaced())
        return false;
    return file.lines.removeAll(word.toUtf8()) == 0 ||
           WritingFile::write(m_folder, fileName, kind, file.lines);
}
