// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cars/model/carcsvimport.h"
#include "cars/window/cardesk.h"
#include "shell/controls/taskpanel.h"

#include <memory>

class CsvModel;
class QMenu;
class QTableView;
class SlicedWork;

/// The preview of a file that comes into a history or the fuel tracker: what its columns are taken for, which
/// can be said otherwise, what becomes of each of its lines, and the button that takes them, in one step.
class CsvPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit CsvPanel(const CarDesk &desk);

    /// Shows the file at `path`, whose rows are for `part`. False, with the reason said, when it cannot be
    /// read.
    bool open(const QString &path, CarPart part);

public slots:
    void leave() override;

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);
    /// The lines were taken, as `line` says.
    void taken(const QString &line);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeView();
    void shareWidth();
    int widthOf(int column) const;
    void addChoices(QMenu *menu, int column);
    void openColumns();
    void openChoices(int section);
    void start();
    void refresh();
    void take();

    CarDesk m_desk;
    std::unique_ptr<CarCsvImport> m_import;
    CarPart m_part = CarPart::Maintenance;
    SlicedWork *m_work;
    CsvModel *m_model;
    QTableView *m_view;
    QLabel *m_hint;
    QPushButton *m_columns = nullptr;
    QPushButton *m_take = nullptr;
};
