// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

class QByteArray;
class QWidget;
struct Program;

/// Files of a window's work outside the household, for spreadsheets say: asks where they are, in the folder
/// that was the last one, and saves them.
class FilesOutside final
{
public:
    /// `key` keeps the folder: "Windows/AutoMaint/csvFolder".
    FilesOutside(Program &program, QWidget &window, const QString &key);

    /// Comma-separated values.
    static QString tables();

    /// Where a file is to be saved; nothing where nobody says so.
    std::optional<QString> askWhereTo(const QString &fileName, const QString &filter = tables()) const;
    /// Saves it there. The line for the status bar.
    [[nodiscard]] QString save(const QString &path, const QByteArray &bytes) const;
    /// Which file is to come in.
    std::optional<QString> askWhich(const QString &filter = tables()) const;
    /// It could be read: the next ones are looked for beside it.
    void keepFolder(const QString &path) const;

private:
    QString lastFolder() const;

    Program &m_program;
    QWidget &m_window;
    QString m_key;
};
