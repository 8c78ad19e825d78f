// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/writing/correctionfile.h"
#include "shell/writing/wordbreaks.h"
#include "shell/writing/writingfile.h"

#include <cstdint>
#include <cstdlib>

/// The household's own words, its corrections, and the words of any text.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    WritingFile::decode(bytes, "Quillery words");
    for (const Correction &pair : CorrectionFile::decode(bytes).pairs()) {
        if (!WordBreaks::isWord(pair.wrong) || pair.right.isEmpty())
            std::abort();
    }
    const QString text = QString::fromUtf8(bytes);
    qsizetype end = 0;
    for (const WordPlace &word : WordBreaks::checkedWords(text)) {
        if (word.at < end || word.length < 1 || word.end() > text.size() ||
            WordBreaks::wordAt(text, word.end()) != word)
            std::abort();
        end = word.end();
    }
    return 0;
}
