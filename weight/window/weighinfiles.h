// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/frame/filesoutside.h"
#include "weight/model/weighttable.h"
#include "weight/window/weightdesk.h"

#include <QObject>

class PersonViews;
class QMenu;
class WeighInsView;
class WeightCsvPanel;

/// Takes the weigh-ins of the open person out to a file for spreadsheets, and brings them in.
class WeighInFiles final : public QObject
{
    Q_OBJECT
public:
    WeighInFiles(const WeightDesk &desk, PersonViews &views, QObject *parent);

    void addCommands(QMenu *utilities);

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);
    /// Weigh-ins were brought in, as `line` says, which can be taken back.
    void done(const QString &line);

private:
    QString whyNoExport() const;
    void exportRows();
    void importRows();
    void take(const WeightTable &weighIns, const QString &line);

    WeightDesk m_desk;
    PersonViews &m_views;
    FilesOutside m_files;
    WeightCsvPanel *m_panel = nullptr; ///< made when it is first opened
};
