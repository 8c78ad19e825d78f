// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "keeper/window/keeperdesk.h"
#include "shell/controls/importpreview.h"

class KeeperCsvImport;
class KeeperImport;

/// The preview of a file of another program that comes into the keeper. What is there already stands beside
/// what the file has, and nothing is written before the button.
class KeeperImportPanel final : public ImportPreview
{
    Q_OBJECT
public:
    explicit KeeperImportPanel(const KeeperDesk &desk);

    /// Shows the file at `path`. False, with the reason said, when it cannot be read.
    bool open(const QString &path);
    /// The keeper is locked: nothing of the file stays behind.
    void forget();

signals:
    /// The lines were taken, as `line` says.
    void taken(const QString &line);

protected:
    QString hint() const override;
    QString nothingToTake() const override;
    QString tooLong(const QString &name) const override;
    QString whyReadOnly() const override;
    void shown() override;
    void shareWidth() override;
    void take() override;

private:
    bool refuse(const QString &path);
    void readNothing();
    void followLine();
    bool hasDifferent() const;

    KeeperDesk m_desk;
    const KeeperImport *m_import = nullptr;
    const KeeperCsvImport *m_csv = nullptr; ///< the same, where it is a table
    QLabel *m_beside;
    QString m_refusal; ///< of a file that was not even read
};
