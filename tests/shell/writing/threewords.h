// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/testfiles.h"

/// A thesaurus and a dictionary of three words.
namespace ThreeWords {

inline const QByteArray idx = "UTF-8\n3\nglad|6\nhappy|49\nzest|125\n";
inline const QByteArray dat = "UTF-8\n"
                              "glad|1\n"
                              "(adj)|happy|cheerful (similar term)\n"
                              "happy|2\n"
                              "(adj)|felicitous|fortunate (similar term)\n"
                              "(noun)|joy (generic term)\n"
                              "zest|1\n"
                              "(noun)|gusto|relish\n";

/// Puts the thesaurus there under this name, in the folder `in` ("dictionaries/") of `folder`.
inline void putThesaurus(const TestFolder &folder, const QString &name = QStringLiteral("en_US"),
                         const QString &in = {})
{
    folder.put(in + QStringLiteral("th_") + name + QStringLiteral("_v2.idx"), idx);
    folder.put(in + QStringLiteral("th_") + name + QStringLiteral("_v2.dat"), dat);
}

/// Puts both there. The dictionary knows "happier" as a form of "happy".
inline void put(const TestFolder &folder, const QString &in = {})
{
    putThesaurus(folder, QStringLiteral("en_US"), in);
    folder.put(in + QStringLiteral("en_US.aff"), "SET UTF-8\nSFX R Y 1\nSFX R y ier y\n");
    folder.put(in + QStringLiteral("en_US.dic"), "4\nglad\nhappy/R\nzest\nwas\n");
}

} // namespace ThreeWords
