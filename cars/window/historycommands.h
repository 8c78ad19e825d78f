// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/window/cardesk.h"

#include <QObject>

#include <vector>

class CostsPanel;
class CsvDesk;
class LogView;
class QAction;
class QMenu;

/// What is done with the rows of histories and fuel tracker beside typing: deleting, the clipboard, files,
/// and what they come to.
class HistoryCommands final : public QObject
{
    Q_OBJECT
public:
    HistoryCommands(const CarDesk &desk, std::vector<LogView *> views, QObject *parent);

    /// Puts the commands into the edit menu, and buttons into the feet of the views.
    void addCommands(QMenu *edit);
    /// Puts the costs with their charts, and the calculators, into the view menu and the fuel view's foot.
    void addCosts(QMenu *view);
    /// Puts export and import into the utilities.
    void addFiles(QMenu *utilities);

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);
    /// Something was added or deleted, as `line` says, and can be taken back.
    void done(const QString &line);
    void costsPrintWanted();

private:
    void addButtons(QAction *deleteEntry);
    LogView *shown() const;
    /// Why no cell can be copied or changed just now.
    QString whyNoRows() const;
    void deleteEntry();
    void deleteFillUp();
    void openCosts();

    CarDesk m_desk;
    std::vector<LogView *> m_views;
    CsvDesk *m_files;
    CostsPanel *m_costs = nullptr;  ///< made when it is first opened
    LogView *m_costsFrom = nullptr; ///< null: from another view
};
