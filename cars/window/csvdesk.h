// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/vehiclefiles.h"
#include "cars/window/cardesk.h"
#include "shell/frame/filesoutside.h"

#include <QObject>

#include <functional>

class CsvPanel;
class LogView;
class QMenu;

/// Takes the rows of a history or of the fuel tracker out to a file for spreadsheets, and brings them in.
class CsvDesk final : public QObject
{
    Q_OBJECT
public:
    /// `shown` gives the view in front; null where that shows no rows.
    CsvDesk(const CarDesk &desk, std::function<LogView *()> shown, QObject *parent);

    void addCommands(QMenu *utilities);

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);
    /// Rows were brought in, as `line` says, which can be taken back.
    void done(const QString &line);

private:
    QString whyNoExport() const;
    QString whyNoImport() const;
    void exportRows();
    void importRows();

    CarDesk m_desk;
    std::function<LogView *()> m_shown;
    FilesOutside m_files;
    CsvPanel *m_panel = nullptr; ///< made when it is first opened
    LogView *m_from = nullptr;   ///< the view over which it stands
};
