// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

class DataFolder;

/// A file of lines in UTF-8, whose first line says what it holds and in which version: "Quillery words 1".
struct WritingFile {
    enum class State {
        Missing, ///< or empty, or cut before the first line was complete
        Ours,
        Later,  ///< of a later version of the program
        Foreign ///< not of the program, or out of reach
    };

    State state = State::Missing;
    QList<QByteArray> lines; ///< behind the first one, without their ends; of a foreign file none

    /// Whether nothing is lost when it is written anew.
    bool mayBeReplaced() const { return state == State::Missing || state == State::Ours; }

    /// `kind`: the first line without its version.
    static WritingFile decode(const QByteArray &bytes, const QByteArray &kind);
    static WritingFile read(const DataFolder &folder, const QString &name, const QByteArray &kind);
    [[nodiscard]] static bool write(const DataFolder &folder, const QString &name, const QByteArray &kind,
                                    const QList<QByteArray> &lines);
};
