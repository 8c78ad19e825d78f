// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/writing/corrections.h"
#include "storage/datafolder.h"

#include <QByteArray>
#include <QString>

/// The household's table of corrections on the disk, `Spell2.Fil`: wrong word, tab, right one. Without the
/// file it is the first table.
class CorrectionFile
{
public:
    inline static const QString fileName = QStringLiteral("Spell2.Fil");
    /// Of either side of a pair, in characters.
    static constexpr int longest = 60;

    explicit CorrectionFile(const DataFolder &folder);

    Corrections read() const;
    /// False where the disk refuses, or where a file lies there that is of a later version or not the
    /// program's: that one is left as it is.
    [[nodiscard]] bool save(const Corrections &corrections) const;
    /// Whether the file may be written as far as its content is concerned.
    bool mayBeSaved() const;

    /// What the bytes of a file mean; pairs that are none are passed over.
    static Corrections decode(const QByteArray &bytes);

private:
    DataFolder m_folder;
};
