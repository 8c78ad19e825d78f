// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/rowsmodel.h"
#include "shell/controls/taskpanel.h"
#include "weight/model/weightcsv.h"

#include <memory>

class QComboBox;
class QTableView;
class SlicedWork;
struct Program;

/// The preview of a file of dates and weights that comes into a person's table: what becomes of each of its
/// lines, and the button that takes those that are new.
class WeightCsvPanel final : public TaskPanel
{
    Q_OBJECT
public:
    explicit WeightCsvPanel(const Program &program);

    /// Shows the file at `path` beside the weigh-ins that are there. False, with the reason said, when it
    /// cannot be read.
    bool open(const QString &path, const WeightTable &weighIns);

public slots:
    void leave() override;

signals:
    /// A quiet line for the status bar.
    void said(const QString &line);
    /// The lines are to be taken: the table becomes `weighIns`, as `line` says.
    void taken(const WeightTable &weighIns, const QString &line);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void makeView();
    void shareWidth();
    void showLines();
    void refresh();
    void take();

    const Program &m_program;
    std::unique_ptr<WeightCsvImport> m_import;
    SlicedWork *m_work;
    RowsModel<WeightCsvLine> *m_model;
    QTableView *m_view;
    QComboBox *m_filter;
    QLabel *m_hint;
    QPushButton *m_take = nullptr;
};
