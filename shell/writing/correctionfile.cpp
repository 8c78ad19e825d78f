// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/correctionfile.h"

#include "shell/writing/wordbreaks.h"
#include "shell/writing/writingfile.h"

namespace {

const QByteArray kind = QByteArrayLiteral("Quillery corrections");

Corrections tableOf(const WritingFile &file)
{
    if (file.state == WritingFile::State::Missing || file.state == WritingFile::State::Foreign)
        return Corrections::firstTable();
    Corrections table;
    for (const QByteArray &line : file.lines) {
        const qsizetype tab = line.indexOf('\t');
        if (tab < 0)
            continue;
        const QString wrong = QString::fromUtf8(line.first(tab)).trimmed();
        const QString right = QString::fromUtf8(line.sliced(tab + 1)).section(u'\t', 0, 0).trimmed();
        if (WordBreaks::isWord(wrong) && wrong.size() <= CorrectionFile::longest && !right.isEmpty() &&
            right.size() <= CorrectionFile::longest)
            table.set(wrong, right);
    }
    return table;
}

} // namespace

CorrectionFile::CorrectionFile(const DataFolder &folder)
    : m_folder(folder)
{}

Corrections CorrectionFile::read() const
{
    return tableOf(WritingFile::read(m_folder, fileName, kind));
}

Corrections CorrectionFile::decode(const QByteArray &bytes)
{
    return tableOf(WritingFile::decode(bytes, kind));
}

bool CorrectionFile::mayBeSaved() const
{
    return WritingFile::read(m_folder, fileName, kind).mayBeReplaced();
}

bool CorrectionFile::save(const Corrections &corrections) const
{
    if (!mayBeSaved())
        return false;
    QList<QByteArray> lines;
    for (const Correction &pair : corrections.pairs())
        lines += pair.wrong.toUtf8() + '\t' + pair.right.toUtf8();
    return WritingFile::write(m_folder, fileName, kind, lines);
}
